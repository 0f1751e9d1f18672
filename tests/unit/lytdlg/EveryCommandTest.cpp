// What holds for every command, however good or bad the description is.
#include "CommandRun.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

constexpr const char* whole = "$VERSION 1\n"
                              "$LAYOUT S\n"
                              "Begin Dialog Box 200, 100, \"T\", .M\n"
                              "    TextBox 10, 10, 100, 19, .A\n"
                              "    OKButton 10, 40, 100, 22, .Ok\n"
                              "    PushButton 10, 70, 100, 22, \"P\", .P\n"
                              "End Dialog\n"
                              "$VALUES\n"
                              "    P = DIALOG, other\n"
                              "$DEPENDANCES\n"
                              "    Ok/ACTIVE = A(NOTNULL)\n"
                              "$EVALUATION, x\n"
                              "    A = NULL: Missing\n"
                              "$INPUT, parent\n"
                              "    Start: (9, End = A\n"
                              "$OUTPUT, parent\n"
                              "    (\"%s\", A)\n"
                              "$END\n";

std::string With(const std::string& line, const std::string& replacement)
{
    std::string text = whole;
    return text.replace(text.find(line), line.size(), replacement);
}

// Every command with words that name the folder's files; the first operand of most is a description.
std::vector<std::vector<std::string>> CommandLinesIn(const TestFolder& folder)
{
    const std::string dialog = folder.File("a.dlg");
    const std::string inputs = folder.Write("inputs.txt", "one\n\x1B[2J\n");
    folder.Write("a.case", "dialog: a.dlg\nset A = x\nexpect A = \"x\"\nexpect result = \"\x1B[2J\"\n");
    return {{"check", dialog},
            {"check", dialog, "--format", "json"},
            {"check", dialog, "--format", "sarif"},
            {"run", dialog, "--input", "i\x1B[2J", "--trace", "--set", "A=x", "--ok"},
            {"scan", dialog, "--input", "one", "--trace"},
            {"scan", dialog, "--input", "one", "--part", "parent"},
            {"scan", dialog, "--input", "one", "--part", "none"},
            {"compose", dialog, "--input", "i\x1B[2J"},
            {"compose", dialog, "--ok"},
            {"roundtrip", dialog, "--inputs", inputs},
            {"why", dialog, "A"},
            {"test", folder.Path()},
            {"fmt", dialog, "--check"},
            {"texts", folder.Path()},
            {"texts", folder.Path(), "--format", "json"},
            {"new", "a", "-o", folder.Path()},
            {"preview", dialog, "--names"},
            {"graph", dialog},
            {"graph", dialog, "--of", "scan"},
            {"graph", dialog, "--of", "groups"},
            {"doctor", folder.Path()},
            {"help", "check"}};
}

bool OpensTheDialog(const std::string& command)
{
    constexpr const char* commands[] = {"run", "scan", "compose", "roundtrip", "why", "test", "preview"};
    return std::ranges::find(commands, command) != std::end(commands);
}

// The first control character, with the text after it, or empty.
std::string ControlCharacterOf(const std::string& printed)
{
    for (size_t place = 0; place < printed.size(); ++place)
    {
        const auto byte = static_cast<unsigned char>(printed[place]);
        const auto next = static_cast<unsigned char>(printed[std::min(place + 1, printed.size() - 1)]);
        const bool isSecondRange = byte == 0xC2 && next >= 0x80 && next < 0xA0;
        if ((byte < 0x20 && byte != '\n' && byte != '\t') || byte == 0x7F || isSecondRange)
            return testing::PrintToString(printed.substr(place, 30));
    }
    return "";
}

} // namespace

TEST(EveryCommand, IsTriedHere)
{
    const TestFolder folder;
    // It waits for its standard input; ServerTest.cpp talks with it.
    std::vector<std::string> tried = {"lsp"};
    for (const auto& words : CommandLinesIn(folder))
        tried.push_back(words.front());
    for (const lytdlg::Command& command : lytdlg::Commands())
        EXPECT_NE(std::ranges::find(tried, command.form.word), tried.end()) << command.form.word;
}

TEST(EveryCommand, EndsWithAnErrorWhereTheLibraryRefusesTheDescription)
{
    static const std::string descriptions[] = {
        "",
        "$",
        "$VERSION 1\n",
        std::string(whole, 40),
        With("$END\n", ""),
        With("$VERSION 1", "$VERSION 2"),
        With("$LAYOUT S\n", ""),
        With("Begin Dialog Box 200, 100, \"T\", .M", "Begin Dialog Box"),
        With("10, 10, 100, 19", "10, 10"),
        With("$VALUES\n", ""),
        With("A(NOTNULL)", "B(NOTNULL)"),
        With("Ok/ACTIVE = A(NOTNULL)", "Ok/ACTIVE ="),
        With("A = NULL: Missing", "A ="),
        With("Start: (9, End = A", "Start: (,"),
        With("Start: (9, End = A", "Other: (9, End = A"),
        With("(\"%s\", A)", "("),
        With("(\"%s\", A)", "(\"%s%q\", A)"),
        "<A\n" + std::string(whole),
    };
    for (const std::string& description : descriptions)
    {
        const TestFolder folder;
        folder.Write("a.dlg", description);
        folder.Write("lang/English.nls", "");
        const CommandRun opened({"run", folder.File("a.dlg")});
        for (const auto& words : CommandLinesIn(folder))
        {
            SCOPED_TRACE(words.front() + " of\n" + description);
            const CommandRun run(words);
            EXPECT_TRUE(run.code >= 0 && run.code <= 2);
            EXPECT_TRUE(run.code != 0 || opened.code == 0 || !OpensTheDialog(words.front())) << run;
        }
    }
}

TEST(EveryCommand, PrintsNoControlCharactersOfFiles)
{
    const TestFolder folder;
    const std::string escape = "\x1B[2J\x7F\x81";
    std::string description = "<D" + escape + "\n>\n" + With("\"T\", .M", "\"T" + escape + "\", .M");
    for (const char* place : {".A\n", "\"P", "A(NOTNULL)", "Missing", "other", "\"%s\", A"})
    {
        const size_t end = description.find(place) + std::string(place).find_first_not_of(".\"") + 1;
        description.insert(end, escape);
    }
    folder.Write("a.dlg", description);
    folder.Write("b.dlg", With("\"T\"", "\"" + escape + "\""));
    folder.Write("lang/English.nls", "[S" + escape + "]\nT" + escape + "=x" + escape + "\n[S]\nT" + escape + "=x" +
                                         escape + "\n[Dialog_Error]\n212=line'" + escape + "'\n");
    std::vector<std::vector<std::string>> lines = CommandLinesIn(folder);
    const std::string other = folder.File("b.dlg");
    for (const auto& words : CommandLinesIn(folder))
    {
        lines.push_back(words);
        std::ranges::replace(lines.back(), folder.File("a.dlg"), other);
    }
    for (const auto& words : lines)
    {
        const CommandRun run(words);
        EXPECT_EQ(ControlCharacterOf(run.output + run.errors), "") << testing::PrintToString(words);
    }
}
