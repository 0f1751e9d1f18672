// What `lytdlg check` prints, silences and ends with, over descriptions in a folder of the test.
#include "lytdlg/Commands.h"
#include "lytdlg/judge/Judge.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <string_view>

using nlohmann::json;

namespace
{

// A description that holds what a rule wants to see and nothing else.
const std::string sound = "$VERSION 1\n$LAYOUT Box\nBegin Dialog Box 300, 100, \"Title\", .Main\n"
                          "    TextBox 10, 10, 200, 19, .Field\n    OKButton 10, 60, 100, 22, .Ok\n"
                          "    CancelButton 120, 60, 100, 22, .Cancel\nEnd Dialog\n$VALUES\n$DEPENDANCES\n"
                          "$EVALUATION, x\n$INPUT, parent\n    Start: (999, End = Field\n$OUTPUT, parent\n"
                          "    (\"%s\", Field)\n$END\n";

std::string With(const std::string& from, const std::string& to)
{
    std::string text = sound;
    return text.replace(text.find(from), from.size(), to);
}

class CheckReport : public testing::Test
{
protected:
    CheckReport()
    {
        const std::string texts = "[Buttons]\n001=&OK\n002=&Cancel\n[Box]\nTitle=Box\n";
        folder.Write("lang/English.nls", texts);
    }

    // What the command prints for the description, the folder's path left out.
    std::string Check(const std::string& description, std::vector<std::string> options = {})
    {
        const std::string path = folder.Write("box.dlg", description);
        options.insert(options.begin(), {"check", path});
        testing::internal::CaptureStdout();
        exitCode = lytdlg::Run(options);
        std::string text = testing::internal::GetCapturedStdout();
        for (size_t at = text.find(folder.Path()); at != std::string::npos; at = text.find(folder.Path()))
            text.erase(at, folder.Path().size() + 1);
        return text;
    }

    // With the separator of this machine, as paths are printed.
    const std::string lang = (std::filesystem::path("lang") / "").string();
    TestFolder folder;
    int exitCode = -1;
};

constexpr const char* misspelt = "$EVALUATION x";

} // namespace

TEST_F(CheckReport, TellsPlaceLevelRuleMessageAndTheWayOut)
{
    EXPECT_EQ(Check(With("$EVALUATION, x", misspelt)),
              "box.dlg:10:1: error section-misspelt: \"$EVALUATION x\" opens no section (message 212)\n"
              "    $EVALUATION x\n"
              "    ^~~~~~~~~~~~~\n"
              "    hint: a blank does not end the word; write \"$EVALUATION, x\"\n"
              "1 description judged: 1 error, 0 warnings, 0 notes\n");
    EXPECT_EQ(exitCode, 1);
}

// A tab is as wide as the terminal likes, and the description is not in UTF-8.
TEST_F(CheckReport, ShowsThePlaceUnderTheLineAsItIsPrinted)
{
    const std::string printed = Check(With("$VALUES\n", "$VALUES\nField = \xE4\t\xC3\x9F\n"));
    const std::string line = "    Field = \u00E4\t\u00C3\u0178\n";
    EXPECT_NE(printed.find("box.dlg:9:10: warning tab"), std::string::npos) << printed;
    EXPECT_NE(printed.find(line + "             ^\n"), std::string::npos) << printed;
    EXPECT_NE(printed.find(line + "             \t^~\n"), std::string::npos) << printed;
}

// The header of a further group opens no section by itself.
TEST_F(CheckReport, NamesTheHeaderThatIsMissingAboveAFurtherOne)
{
    const std::string told = Check(
        With("$OUTPUT, parent\n    (\"%s\", Field)\n", "    (\"%s\", Field)\n$OUTPUT, other\n    (\"%s\", Field)\n"));
    EXPECT_NE(told.find("box.dlg:13:5: error section-missing: the line \"$OUTPUT\" is missing (message 212)\n"),
              std::string::npos)
        << told;
    EXPECT_EQ(told.find("output-first"), std::string::npos) << told;
}

// It hides the first section from the library.
TEST_F(CheckReport, TellsOfAByteOrderMarkInALanguageFile)
{
    folder.Write("lang/English.nls", "\xEF\xBB\xBF[Box]\nTitle=Box\n[Buttons]\n001=&OK\n002=&Cancel\n");
    const std::string told = Check(sound);
    const std::string wayOut = "save the file in code page 1252, which editors call ANSI or Windows-1252, or let "
                               "`lytdlg texts FOLDER --encode` convert it\n";
    for (const std::string& part : {"box.dlg:2:9: warning text-section: English.nls has no section [Box]\n"
                                    "    $LAYOUT Box\n"
                                    "            ^~~\n"
                                    "    hint: a byte order mark hides it; " +
                                        wayOut,
                                    "English.nls:1:1: warning text-byte-order-mark: a byte order mark comes before "
                                    "the first line, and hides it\n"
                                    "    \u00EF\u00BB\u00BF[Box]\n"
                                    "    ^\n"
                                    "    hint: " +
                                        wayOut,
                                    std::string("1 description judged: 0 errors, 2 warnings, 0 notes\n")})
        EXPECT_NE(told.find(part), std::string::npos) << told;
}

TEST_F(CheckReport, TellsOfLinesOfALanguageFileThatAreNothing)
{
    folder.Write("lang/English.nls", "[Buttons]\n001=&OK\n002=&Cancel\n// texts\n[Box]\nTitle=Box\n[Open\n");
    EXPECT_EQ(Check(sound), lang +
                                "English.nls:4:1: warning text-form: this line has no equals sign\n"
                                "    // texts\n"
                                "    ^~~~~~~~\n"
                                "    hint: write KEY=TEXT, or a semicolon before a comment\n" +
                                lang +
                                "English.nls:7:1: warning text-form: the bracket of this section is not closed\n"
                                "    [Open\n"
                                "    ^~~~~\n"
                                "    hint: write [NAME]\n"
                                "1 description judged: 0 errors, 2 warnings, 0 notes\n");
}

TEST_F(CheckReport, TellsOfMessagesThatDifferBetweenLanguages)
{
    const std::string texts = "[Buttons]\n001=&OK\n002=&Cancel\n[Box]\nTitle=Box\n[Dialog_Error]\n";
    folder.Write("lang/English.nls", texts + "207=No ''.\n208=No room.\n");
    folder.Write("lang/German.nls", texts + "207=Nein.\n");
    EXPECT_EQ(Check(sound), lang +
                                "English.nls:8:1: warning message-differs: German.nls has no text \"208\" in "
                                "[Dialog_Error]\n"
                                "    208=No room.\n"
                                "    ^~~\n"
                                "    hint: add it there\n" +
                                lang +
                                "German.nls:7:1: warning message-differs: the marks '' differ from those in "
                                "English.nls, line 7\n"
                                "    207=Nein.\n"
                                "    ^~~\n"
                                "    hint: give both languages the same marks\n"
                                "1 description judged: 0 errors, 2 warnings, 0 notes\n");
}

// The messages of [MsgBox] belong to all dialogs of the folder, and are reported with the first of them.
TEST_F(CheckReport, TellsOfAMessageThatNoCheckOfTheFolderNames)
{
    folder.Write("lang/English.nls", "[Buttons]\n001=&OK\n002=&Cancel\n[Box]\nTitle=Box\n[MsgBox]\nLost=x\nFar=x\n");
    const std::string otherChecks = With("$EVALUATION, x\n", "$EVALUATION, x\n    Field = NULL: Far\n");
    folder.Write("other.dlg", otherChecks);
    const std::string lost = "English.nls:7:1: note text-unused: no dialog of the folder uses the text \"Lost\"\n";
    const std::string told = Check(sound);
    EXPECT_NE(told.find(lost), std::string::npos) << told;
    EXPECT_NE(told.find("0 errors, 0 warnings, 1 note\n"), std::string::npos) << told;
    // What a line names that cannot be read is not known.
    const std::string refused = With("$EVALUATION, x\n", "$EVALUATION, x\n    Field = NULL Lost\n");
    folder.Write("other.dlg", refused);
    EXPECT_EQ(Check(sound), "1 description judged: 0 errors, 0 warnings, 0 notes\n");
    folder.Write("other.dlg", otherChecks);
    folder.Write("a.dlg", otherChecks);
    EXPECT_EQ(Check(sound), "1 description judged: 0 errors, 0 warnings, 0 notes\n");
}

// Texts of one dialog's section are reported with the first dialog that shows the section, wherever it is in the folder.
TEST_F(CheckReport, TellsOfATextThatNoDialogOfItsSectionShows)
{
    folder.Write("lang/English.nls",
                 "[Buttons]\n001=&OK\n002=&Cancel\n[Box]\nTitle=Box\nOld=x\n[Other]\nTitle=Other\n");
    folder.Write("a.dlg", With("$LAYOUT Box", "$LAYOUT Other"));
    const std::string told = Check(sound);
    EXPECT_NE(told.find("English.nls:6:1: note text-unused: no dialog of the folder uses the text \"Old\"\n"),
              std::string::npos)
        << told;
}

TEST_F(CheckReport, OfASoundDescriptionIsOneLine)
{
    EXPECT_EQ(Check(sound), "1 description judged: 0 errors, 0 warnings, 0 notes\n");
    EXPECT_EQ(exitCode, 0);
}

TEST_F(CheckReport, GivesJsonThatAProgramReads)
{
    const json told = json::parse(Check(With("$EVALUATION, x", misspelt), {"--format", "json"}));
    EXPECT_EQ(told["descriptions"], 1);
    EXPECT_EQ(told["errors"], 1);
    ASSERT_EQ(told["findings"].size(), 1U);
    const json& finding = told["findings"][0];
    EXPECT_TRUE(finding["path"].get<std::string>().ends_with("box.dlg"));
    EXPECT_EQ(finding["line"], 10);
    EXPECT_EQ(finding["column"], 1);
    EXPECT_EQ(finding["length"], 13);
    EXPECT_EQ(finding["level"], "error");
    EXPECT_EQ(finding["rule"], "section-misspelt");
}

TEST_F(CheckReport, GivesALineForEachFindingAsCompilersDo)
{
    EXPECT_EQ(Check(With("$EVALUATION, x", misspelt), {"--format", "gcc"}),
              "box.dlg:10:1: error: \"$EVALUATION x\" opens no section; a blank does not end the word; write "
              "\"$EVALUATION, x\" [section-misspelt]\n");
    EXPECT_EQ(exitCode, 1);
}

TEST_F(CheckReport, LeavesOutWhatIsLessGrave)
{
    const std::string description = With("    OKButton 10, 60, 100, 22, .Ok\n", "");
    EXPECT_NE(Check(description).find("0 errors, 0 warnings, 1 note\n"), std::string::npos);
    const std::string nothing = "1 description judged: 0 errors, 0 warnings, 0 notes\n";
    EXPECT_EQ(Check(description, {"--level", "warning"}), nothing);
    EXPECT_EQ(Check(With("Begin Dialog Box 300", "Begin Dialog Box 150"), {"--level", "error"}), nothing);
    EXPECT_EQ(exitCode, 0);
}

// One note for a dialog and rule, and one finding for the encoding of a file.
TEST_F(CheckReport, FoldsWhatIsOftenTheSame)
{
    const std::string unused =
        Check(With("(\"%s\", Field)", "(\"%s\", Field, Field)\n; x\n$OUTPUT, a\n(\"%s\", Field, Field)"));
    EXPECT_NE(unused.find("format-surplus: the format does not take \"Field\", and no check asks for it; and 1 more in "
                          "line 17\n"),
              std::string::npos)
        << unused;
    const std::string letters = Check(With("$VALUES\n", "$VALUES\nField = \xC3\x9F\n; x\nOther = \xC3\x9F\n"));
    EXPECT_NE(
        letters.find("box.dlg:9:9: warning utf-8: the library reads this letter as 2 characters; and 1 more in line "
                     "11\n"),
        std::string::npos)
        << letters;
    const json told = json::parse(
        Check(With("$VALUES\n", "$VALUES\nField = \xC3\x9F\n; x\n; y\nOk = \xC3\x9F\n"), {"--format", "json"}));
    EXPECT_EQ(told["findings"][0]["more"][0]["line"], 12);
}

TEST_F(CheckReport, NamesUtf16)
{
    std::string wide = "\xFF\xFE";
    for (const char ch : sound)
        wide += std::string{ch, '\0'};
    const std::string told = Check(wide);
    EXPECT_NE(
        told.find("box.dlg:1:1: error utf-16: the file was saved as UTF-16, which the library cannot read (message "
                  "213)\n"),
        std::string::npos)
        << told;
    EXPECT_NE(told.find("1 error, 0 warnings, 0 notes\n"), std::string::npos) << told;
}

// What the published schema requires of a log, a run, a tool, a rule and a result.
TEST_F(CheckReport, GivesSarifWithAllThatItsSchemaRequires)
{
    const json log = json::parse(Check(With("$EVALUATION, x", misspelt), {"--format", "sarif"}));
    EXPECT_EQ(log.at("version"), "2.1.0");
    ASSERT_EQ(log.at("runs").size(), 1U);
    const json& run = log["runs"][0];
    const json& driver = run.at("tool").at("driver");
    EXPECT_EQ(driver.at("name"), "lytdlg");
    std::vector<std::string_view> ids;
    for (const json& rule : driver.at("rules"))
    {
        ids.push_back(rule.at("id").get_ref<const std::string&>());
        EXPECT_TRUE(rule.at("shortDescription").at("text").is_string());
    }
    EXPECT_TRUE(std::ranges::equal(ids, lytdlg::ruleNames));
    ASSERT_EQ(run.at("results").size(), 1U);
    const json& result = run["results"][0];
    EXPECT_TRUE(result.at("message").at("text").is_string());
    EXPECT_EQ(result.at("level"), "error");
    EXPECT_EQ(result.at("ruleId"), "section-misspelt");
    const json& place = result.at("locations").at(0).at("physicalLocation");
    EXPECT_TRUE(place.at("artifactLocation").at("uri").is_string());
    EXPECT_EQ(place.at("region"), json({{"startLine", 10}, {"startColumn", 1}, {"endColumn", 14}}));
}

TEST_F(CheckReport, IsTheSameAfterAByteThatIsNoText)
{
    const std::string description = With("$EVALUATION, x", "$EVALUATION \xE4\x81");
    EXPECT_EQ(json::parse(Check(description, {"--format", "json"}))["errors"], 1);
    EXPECT_EQ(json::parse(Check(description, {"--format", "sarif"}))["version"], "2.1.0");
}

TEST_F(CheckReport, PassesOverWhatIsKnown)
{
    const std::string known = folder.File("known.txt");
    const std::string description = With("$EVALUATION, x", misspelt);
    Check(description, {"--write-baseline", known});
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(Check(description, {"--baseline", known}), "1 description judged: 0 errors, 0 warnings, 0 notes\n");
    EXPECT_EQ(exitCode, 0);
    // Lines above the known one change its number only.
    EXPECT_EQ(Check("; one more\n" + description, {"--baseline", known}),
              "1 description judged: 0 errors, 0 warnings, 0 notes\n");
    Check(With("$EVALUATION, x", "$EVALUATION y"), {"--baseline", known});
    EXPECT_EQ(exitCode, 1);
}

TEST_F(CheckReport, TellsOfRemarksThatSilenceNothing)
{
    static const struct
    {
        const char* remark;
        const char* told;
    } cases[] = {
        {"ignore section-ordr it is", "warning ignore-unknown: there is no rule \"section-ordr\""},
        {"ignore ignore-unused", "warning ignore-without-reason: the remark gives no reason"},
        {"ignore ignore-unused because", "note ignore-unused: \"ignore-unused\" finds nothing here"},
        {"ignore section-misspelt because", "note ignore-unused: \"section-misspelt\" finds nothing here"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.remark);
        const std::string told = Check(With("$VALUES\n", std::string("$VALUES ; lytdlg: ") + c.remark + "\n"));
        EXPECT_NE(told.find(c.told), std::string::npos) << told;
    }
}

TEST_F(CheckReport, DoesNotSilenceAnError)
{
    const std::string told = Check(With("$EVALUATION, x", "$EVALUATION x ; lytdlg: ignore section-misspelt because"));
    EXPECT_NE(told.find("error section-misspelt"), std::string::npos) << told;
}

// What `lytdlg check --explain` prints of the rule.
std::string Explained(const char* rule)
{
    testing::internal::CaptureStdout();
    EXPECT_EQ(lytdlg::Run({"check", "--explain", rule}), 0);
    return testing::internal::GetCapturedStdout();
}

TEST_F(CheckReport, ExplainsARuleWithExamples)
{
    const std::string told = Explained("section-misspelt");
    EXPECT_TRUE(
        told.starts_with("section-misspelt (error)\nA line looks like the header of a section but is not one.\n"));
    EXPECT_NE(told.find("\nWrong:\n\n    $EVALUATION x\n\nRight:\n\n    $EVALUATION, x\n"), std::string::npos) << told;
}

TEST_F(CheckReport, PrintsExamplesInUtf8)
{
    const std::string told = Explained("utf-8");
    EXPECT_TRUE(told.ends_with("Wrong:\n\n    $VALUES\n    Unit = Stra\u00C3\u0178e\n\n"
                               "Right:\n\n    $VALUES\n    Unit = Stra\u00DFe\n"))
        << told;
}

TEST_F(CheckReport, SearchesFoldersBelow)
{
    folder.Write("deep/er/box.dlg", sound);
    folder.Write("deep/er/lang/English.nls", "[Buttons]\n001=&OK\n002=&Cancel\n[Box]\nTitle=Box\n");
    folder.Write(".hidden/box.dlg", sound);
    folder.Write("box.dlg", sound);
    testing::internal::CaptureStdout();
    EXPECT_EQ(lytdlg::Run({"check", folder.Path()}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "2 descriptions judged: 0 errors, 0 warnings, 0 notes\n");
}
