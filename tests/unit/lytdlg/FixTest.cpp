// What `lytdlg check --fix` makes of each rule's wrong example, and of files in a folder of the test.
#include "CommandRun.h"
#include "ExampleFindings.h"
#include "lytdlg/judge/Fixes.h"
#include "lytdlg/text/Diff.h"
#include "lytdlg/text/TextFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <sstream>

namespace lytdlg
{

namespace
{

std::string FixedExample(const std::string& lines, Fixing fixing)
{
    return MendDescription(Description(ExampleName(lines), ExampleDescription(lines), {}),
                           SurroundingsOf(ExampleFolder().Path(), {}), fixing)
        .text;
}

// Of its wrong example.
std::string HintsOn(const Rule& rule)
{
    std::string hints;
    std::istringstream found(FindIn(rule.wrong).text);
    for (std::string line; std::getline(found, line);)
        hints += line.starts_with("   ") ? "#" + line.substr(2) + "\n" : "";
    return hints;
}

// The lines that a fix takes away and puts in.
std::string ChangesOf(const std::string& before, const std::string& after)
{
    std::string changes;
    std::istringstream diff(DiffOf("", before, after));
    for (std::string line; std::getline(diff, line);)
    {
        if ((line.starts_with('-') || line.starts_with('+')) && !line.starts_with("---") && !line.starts_with("+++"))
            changes += line + "\n";
    }
    return changes;
}

std::string FileOf(const char* name)
{
    std::ifstream file(std::string(LYT_SOURCE_FOLDER "/tests/unit/lytdlg/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A dialog with a slip in three lines: the first is certain, the second a guess, the third nothing that can be mended.
const std::string slips = "$VERSION 1\n$LAYOUT Box\nBegin Dialog Box 300, 100, \"Title\", .Main\n"
                          "    TextBox 10, 10, 200, 19, .Field\n    OKButton 10, 60, 100, 22, .Ok\n"
                          "    CancelButton 120, 60, 100, 22, .Cancel\nEnd Dialog\n$VALUES\n    Feild = \xE4\n"
                          "$DEPENDANCES\n$EVALUATION, x\n$INPUT, parent\n    Start: (999, End = Field\n"
                          "$OUTPUT, parent\n    (\"%s: has %s\", Field, Field)\n$END\n";
const std::string fixTexts = "[Buttons]\n001=&OK\n002=&Cancel\n[Box]\nTitle=Box\n";

class CheckFix : public testing::Test
{
protected:
    CheckFix() { folder.Write("lang/English.nls", fixTexts); }

    CommandRun Check(std::vector<std::string> options)
    {
        options.insert(options.begin(), {"check", path});
        return CommandRun(options);
    }
    static std::string With(const std::string& from, const std::string& to)
    {
        std::string text = slips;
        return text.replace(text.find(from), from.size(), to);
    }
    std::string Content() const { return ReadWholeFile(path).value_or(""); }

    TestFolder folder;
    const std::string path = folder.Write("box.dlg", slips);
};

} // namespace

// These are not shown in a description of the examples: the next test is about the language files, PartnerRulesTest.cpp about
// libraries, and TextsCommandTest.cpp about `texts --encode`. What is refused without another reason has no certain cure.
const std::set<std::string> rulesOfOtherFiles = {
    "text-byte-order-mark", "text-form", "message-differs", "partner-library", "partner-form", "utf-16", "refused"};

// hints.cases holds the way from each rule's wrong example to the right one, which has no findings: what the hints say, and
// the change that they ask for. Where a finding has a fix, it is that change.
TEST(Hints, LeadFromTheWrongExampleToTheRightOne)
{
    std::string told;
    for (const Rule& rule : Rules())
    {
        EXPECT_EQ(rule.wrong.empty(), rulesOfOtherFiles.contains(rule.id)) << rule.id;
        if (rule.wrong.empty())
            continue;
        SCOPED_TRACE(rule.id);
        const std::string wrong = ExampleDescription(rule.wrong);
        const std::string right = ExampleDescription(rule.right);
        const std::string safe = FixedExample(rule.wrong, Fixing::Safe);
        const std::string all = FixedExample(rule.wrong, Fixing::All);
        EXPECT_TRUE(all == wrong || all == right) << ChangesOf(wrong, all);
        EXPECT_TRUE(safe == wrong || safe == all);
        EXPECT_EQ(FindIn(rule.right).text, "");
        told += rule.id + (safe != wrong ? " (fix)\n" : all != wrong ? " (fix all)\n" : "\n");
        told += HintsOn(rule) + ChangesOf(wrong, right) + "\n";
    }
    EXPECT_EQ(told, FileOf("hints.cases"));
}

namespace
{

// What is wrong in the language files, and right; of some rules in one language only.
struct TextCase
{
    const char* rule;
    std::string wrong;
    std::string right;
    bool isOfOne = false;
};

// Either of the two texts becomes that one.
std::string WithText(std::string content, const TextCase& texts, const std::string& text)
{
    const bool isLonger = texts.wrong.size() > texts.right.size();
    for (const std::string& present : {isLonger ? texts.wrong : texts.right, isLonger ? texts.right : texts.wrong})
    {
        const size_t place = content.find(present);
        if (place != std::string::npos)
            return content.replace(place, present.size(), text);
    }
    ADD_FAILURE() << texts.rule;
    return content;
}

std::set<std::string> RulesThatFind(const TextCase& texts, bool isRight)
{
    const TestFolder folder;
    for (const ExampleFile& file : ExampleFiles())
    {
        const std::string name = file.name;
        const bool isWrong = !isRight && (!texts.isOfOne || name == "lang/English.nls");
        folder.Write(name, name.starts_with("lang/")
                               ? WithText(file.content, texts, isWrong ? texts.wrong : texts.right)
                               : std::string(file.content));
    }
    std::set<std::string> rules;
    const std::string example = texts.rule == std::string("text-unused") ? "" : FindRule(texts.rule)->wrong;
    const Findings findings =
        Judge(Description("", ExampleDescription(example), {}), SurroundingsOf(folder.Path(), {}));
    for (const Finding& finding : findings.All())
        rules.insert(finding.rule->id);
    return rules;
}

} // namespace

// The example stays as it is, and the language file changes.
TEST(Hints, AboutTextsAreFollowedInTheLanguageFiles)
{
    const TextCase cases[] = {
        {"text-long", "A text that goes on for longer than the seventy-four characters that there are", "A text"},
        {"text-apostrophe", "T&he author's name", "T&he author"},
        {"text-ampersand", "Remove=Remo&ve", "Remove=Remove"},
        {"caption-ampersand", "& ", "&& &7 "},
        {"text-marks", "Marked=Marked", "Marked=Mar&ked", true},
        {"text-bytes", "\xC3\x84", "\xC4"},
        {"text-empty", "Nothing=\r", "Nothing=Not&hing\r"},
        {"text-twice", "Copied=Copied&3\r\nCopied=Cop&y\r\n", "Copied=Copied&3\r\n"},
        {"mnemonic-twice", "Note=&Note", "Note=Not&e"},
        {"mnemonic-none", "Plain=Plain", "Plain=Plain &1"},
        {"text-unused", "Square=Square\r\nSqare=Square\r\n", "Square=Square\r\n"},
        {"text-form", "texts\r\n[Buttons]", "[Buttons]"},
        {"text-byte-order-mark", "\xEF\xBB\xBF[Buttons]", "[Buttons]", true},
        {"message-differs", "[MsgBox]", "[Dialog_Error]\r\n208=Not written.\r\n\r\n[MsgBox]", true},
    };
    for (const TextCase& each : cases)
    {
        EXPECT_TRUE(RulesThatFind(each, false).contains(each.rule)) << each.rule;
        EXPECT_EQ(RulesThatFind(each, true), std::set<std::string>()) << each.rule;
    }
}

TEST(Hints, ToSetADefineAreFollowedByIt)
{
    const Description description("", ExampleDescription(FindRule("define-off")->wrong), {"WIDE"});
    EXPECT_TRUE(Judge(description, SurroundingsOf(ExampleFolder().Path(), {})).All().empty());
}

TEST(Fixes, KeepLineEndsAndAMark)
{
    EXPECT_EQ(WithFixes("one\r\ntwo\nthree", {{{2, 0, 3}, "2\n2"}, {{3, 5, 0}, "!"}}), "one\r\n2\r\n2\nthree!");
    EXPECT_EQ(WithFixes("\xEF\xBB\xBFone\ntwo\n", {{{1, 0, 3}, "1"}, {{2, 0, 3}, ""}}), "\xEF\xBB\xBF"
                                                                                        "1\n");
    // Of two that overlap the first.
    EXPECT_EQ(WithFixes("abcd", {{{1, 2, 2}, "x"}, {{1, 1, 2}, "y"}}), "ayd");
}

TEST(Differences, AreThoseOfDiff)
{
    EXPECT_EQ(DiffOf("x", "a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(DiffOf("x", "a\nb\nc\nd\ne\nf\n", "a\nB\nc\nd\ne\nf\nG\n"),
              "--- x\n+++ x\n@@ -1,6 +1,7 @@\n a\n-b\n+B\n c\n d\n e\n f\n+G\n");
    EXPECT_EQ(DiffOf("x", "1\n2\n3\n4\n5\n6\n7\n8\n9\n", "2\n3\n4\n5\n6\n7\n8\n9\nX\n"),
              "--- x\n+++ x\n@@ -1,4 +1,3 @@\n-1\n 2\n 3\n 4\n@@ -7,3 +6,4 @@\n 7\n 8\n 9\n+X\n");
}

TEST_F(CheckFix, MendsWhatCannotChangeWhatWorks)
{
    const CommandRun run = Check({"--fix"});
    EXPECT_TRUE(run.output.starts_with(path + ": 1 finding mended\n")) << run;
    EXPECT_EQ(Content(), With("Feild", "Field"));
    EXPECT_NE(run.output.find("format-letter-s"), std::string::npos) << run;
    EXPECT_EQ(run.code, 1);
}

TEST_F(CheckFix, MendsAllWhenItIsTold)
{
    const CommandRun run = Check({"--fix=all"});
    std::string mended = With("Feild", "Field");
    mended.replace(mended.find("has"), 3, "haS");
    EXPECT_EQ(Content(), mended);
    EXPECT_EQ(run.output, path + ": 2 findings mended\n1 description judged: 0 errors, 0 warnings, 0 notes\n");
    EXPECT_EQ(run.code, 0);
}

TEST_F(CheckFix, ShowsFirstWhatItWouldChange)
{
    const CommandRun run = Check({"--fix", "--dry-run"});
    EXPECT_TRUE(run.output.starts_with("--- " + path + "\n+++ " + path +
                                       "\n@@ -6,7 +6,7 @@\n     CancelButton 120, 60, 100, 22, .Cancel\n End Dialog\n"
                                       " $VALUES\n-    Feild = \u00E4\n+    Field = \u00E4\n $DEPENDANCES\n"))
        << run;
    EXPECT_EQ(Content(), slips);
    EXPECT_NE(CommandRun({"check", path, "--dry-run"}).errors.find("write --fix as well"), std::string::npos);
    EXPECT_EQ(CommandRun({"check", "-", "--fix"}).code, 2);
}

TEST_F(CheckFix, KeepsLineEndsAndEncodingOfTheFile)
{
    std::string windows;
    for (const char ch : slips)
        windows += ch == '\n' ? std::string("\r\n") : std::string(1, ch);
    folder.Write("box.dlg", windows);
    Check({"--fix"});
    EXPECT_EQ(Content(), windows.replace(windows.find("Feild"), 5, "Field"));
}

// A name that is near to two others is not mended without being asked, and a mend that brings another finding not at all.
TEST_F(CheckFix, LeavesWhatItCannotBeSureOf)
{
    const std::string near = With("OKButton", "TextBox 10, 35, 200, 19, .Fields\n    OKButton");
    folder.Write("box.dlg", std::string(near).replace(near.find("Feild"), 5, "Fieldd"));
    Check({"--fix"});
    EXPECT_NE(Content().find("Fieldd = "), std::string::npos);
    const std::string twice = With("Feild = \xE4", "Feild = \xE4\n    Ok = x\n    Field = b");
    folder.Write("box.dlg", twice);
    Check({"--fix"});
    EXPECT_EQ(Content().find("Ok = x"), std::string::npos);
}

TEST_F(CheckFix, MendsALanguageFileOnceForAllItsDialogs)
{
    folder.Write("lang/English.nls", fixTexts + "Title=Other\nField=x\n");
    folder.Write("other.dlg", With("Feild", "Field"));
    const CommandRun run({"check", folder.Path(), "--fix=all"});
    EXPECT_EQ(ReadWholeFile(folder.File("lang/English.nls")), fixTexts) << run;
}

TEST_F(CheckFix, IsInTheReportsForPrograms)
{
    using nlohmann::json;
    const json told = json::parse(Check({"--format", "json"}).output);
    EXPECT_EQ(told["findings"][0]["fix"],
              json({{"line", 9}, {"column", 5}, {"length", 5}, {"text", "Field"}, {"safe", true}}));
    const json log = json::parse(Check({"--format", "sarif"}).output);
    const json& change = log["runs"][0]["results"][0]["fixes"][0]["artifactChanges"][0];
    EXPECT_EQ(change["replacements"][0],
              json({{"deletedRegion", {{"startLine", 9}, {"startColumn", 5}, {"endColumn", 10}}},
                    {"insertedContent", {{"text", "Field"}}}}));
}

} // namespace lytdlg
