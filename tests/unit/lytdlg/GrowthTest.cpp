// Descriptions of thousands of statements are judged in time. Where each statement is compared with all others, one of these
// takes minutes or hours, and the limit against hangs strikes; what is printed grows no faster than the description.
#include "lytdlg/judge/Report.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace lytdlg
{

namespace
{

// Lines below the words of their sections. One that begins with `*` is there as often as the test says, with the number of
// each for `#` and the next number for `@`.
struct Growing
{
    const char* name;
    const char* lines;
};

constexpr Growing kinds[] = {
    {"controls on one place", "$LAYOUT\n*TextBox 520, 12, 100, 19, .S#"},
    {"hidden controls on one place", "$LAYOUT\n*TextBox 520, 12, 100, 19, .S#\n$DEPENDANCES\n*S#/VISIBLE = Name(a#)"},
    {"controls side by side", "$LAYOUT\n*TextBox #, 12, 1, 19, .S#"},
    {"frames", "$LAYOUT\n*GroupBox #, #, 9999, 9999, \"\", .S#"},
    {"options of a group", "$LAYOUT\nOptionGroup .G\n*OptionButton 520, 12, 90, 12, \"Name\", .S#\n$VALUES\n*S# = v#"},
    {"options without a value", "$LAYOUT\nOptionGroup .G\n*OptionButton 520, 12, 9, 9, \"Name\", .S#\n$VALUES\nS1 = v"},
    {"groups of options", "$LAYOUT\n*OptionGroup .G#\n$DEPENDANCES\n*G#/ACTIVE = G@(a)"},
    {"rules", "$LAYOUT\n*TextBox 520, 12, 1, 1, .S#\n$DEPENDANCES\n*S#/ACTIVE = S@(a)"},
    {"rules for unknown controls", "$LAYOUT\n*TextBox 520, 12, 1, 1, .S#\n$DEPENDANCES\n*U#/ACTIVE = W#(a)"},
    {"values that a list lacks",
     "$LAYOUT\nDropListBox 8, 8, 90, 90, .L\n$VALUES\n*L: Name = v#\n$DEPENDANCES\n*Name/ACTIVE = L(z#)"},
    {"buttons without an action",
     "$LAYOUT\n*PushButton 520, 12, 9, 9, \"Name\", .S#\n$VALUES\n*U#: REJECT, x\nU VISIBLE"},
    {"values", "$LAYOUT\n*TextBox 520, 12, 1, 1, .S#\n$VALUES\n*S# = v#"},
    {"values of one control", "$VALUES\n*Name = v#"},
    {"values of unknown controls", "$LAYOUT\n*TextBox 520, 12, 1, 1, .S#\n$VALUES\n*U# = v#"},
    {"checks",
     "$LAYOUT\n*TextBox 520, 12, 1, 1, .S#\n$EVALUATION\n*S# = NULL: NameMissing\n$OUTPUT\n*S#(x) = (\"%s\", S#)"},
    {"checks of one control", "$EVALUATION\n*Name = x#: NameMissing"},
    {"statements of an input", "$INPUT\nStart: (1, S1 = Name\n*S#: (1, S@ = Name"},
    {"jumps of an input", "$INPUT\nStart: = S1\n*S#: Name(a) = S@, Start"},
    {"fills of a list", "$LAYOUT\nListBox 8, 8, 90, 90, .L\n$VALUES\n*L: Name = v#\n$INPUT\n*S#: (1, S@ = L = v#"},
    {"parts of an input", "$INPUT\n*$INPUT, p#\n*Start: (1, End = Name"},
    {"rules of an output", "$LAYOUT\n*TextBox 520, 12, 1, 1, .S#\n$OUTPUT\n*S#(x), Name(y) = (\"%s\", Name)"},
    {"rules of an output on one control", "$OUTPUT\n*Name(x#) = (\"%s\", Name)"},
    {"groups of an output", "$OUTPUT\n(\"%s\", Name)\n*$OUTPUT, g#"},
    {"remarks", "$VALUES\n*Name = x# ; lytdlg: ignore value-twice because"},
    {"defines", "$VALUES\n*<D#\n*>"},
    {"shown texts", "$LAYOUT\n*CheckBox 520, 12, 1, 1, \"K#\", .S#"},
    {"missing texts", "$LAYOUT\n*CheckBox 520, 12, 1, 1, \"M#\", .S#"},
    {"one text that is there often", "$LAYOUT\n*CheckBox 520, 12, 1, 1, \"Often\", .S#"},
};

std::string Numbered(const std::string& line, int number)
{
    std::string text;
    for (const char ch : line)
        text += ch == '#' ? std::to_string(number) : ch == '@' ? std::to_string(number + 1) : std::string(1, ch);
    return text + "\n";
}

std::string Repeated(const std::string& line)
{
    std::string text;
    for (int number = 1; number <= LYT_GROWN; ++number)
        text += Numbered(line, number);
    return text;
}

// What is below the word of each section.
std::map<std::string, std::string> SectionsOf(const Growing& growing)
{
    std::map<std::string, std::string> sections;
    std::istringstream lines(growing.lines);
    std::string present;
    for (std::string line; std::getline(lines, line);)
    {
        if (line.starts_with('$') && line.find(',') == std::string::npos)
            present = line;
        else
            sections[present] += line.starts_with('*') ? Repeated(line.substr(1)) : line + "\n";
    }
    return sections;
}

std::string Grown(const Growing& growing)
{
    std::map<std::string, std::string> of = SectionsOf(growing);
    return "$VERSION 1\n$LAYOUT Grown\nBegin Dialog Box 30000, 30000, \"Name\", .Dialog\nTextBox 8, 8, 90, 19, "
           ".Name\n" +
           of["$LAYOUT"] + "End Dialog\n$VALUES\n" + of["$VALUES"] + "$DEPENDANCES\n" + of["$DEPENDANCES"] +
           "$EVALUATION, x\n" + of["$EVALUATION"] + "$INPUT, parent\n" + of["$INPUT"] + "$OUTPUT, parent\n" +
           of["$OUTPUT"] + "$END\n";
}

const TestFolder& FolderWithTexts()
{
    static const TestFolder folder;
    static const bool isFilled = []
    {
        folder.Write("lang/English.nls", "[Grown]\nName=Name\n" + Repeated("K#=&Text #") + Repeated("Often=&Often"));
        return true;
    }();
    static_cast<void>(isFilled);
    return folder;
}

} // namespace

TEST(Growth, OfADescriptionIsThatOfItsJudgement)
{
    for (const Growing& growing : kinds)
    {
        SCOPED_TRACE(growing.name);
        const Description description("grown.dlg", Grown(growing), {});
        const Findings findings = Judge(description, SurroundingsOf(FolderWithTexts().Path(), {}));
        size_t size = 0;
        for (const Finding& finding : findings.All())
            size += TextOf(finding, description, false).size();
        EXPECT_LE(findings.All().size(), size_t{8} * LYT_GROWN);
        EXPECT_LE(size, size_t{2000} * LYT_GROWN);
    }
}

} // namespace lytdlg
