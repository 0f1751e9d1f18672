// `lytdlg texts`: language files against dialogs and against each other.
#include "CommandRun.h"
#include "SourceNames.h"
#include "environment/ErrorTable.h"
#include "lytdlg/judge/FolderTexts.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/TextTable.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <set>

namespace
{

using nlohmann::json;

// The texts that the library asks for by itself, all there.
std::string LibraryTexts()
{
    std::string texts;
    std::string section;
    for (const lytdlg::LibraryText& text : lytdlg::LibraryTexts())
    {
        if (text.section != section)
            texts += "[" + text.section + "]\n";
        section = text.section;
        texts += text.key + "=x\n";
    }
    return texts;
}

// How many texts there are with so many of the dialog.
std::string Count(size_t own)
{
    return std::to_string(lytdlg::LibraryTexts().size() + own);
}

// A folder with a dialog and texts for it.
class DialogFolder : public TestFolder
{
public:
    DialogFolder(const DescriptionText& dialog, const std::string& english, const std::string& german)
    {
        Write("a.dlg", dialog());
        Write("lang/English.nls", english + LibraryTexts());
        Write("lang/German.nls", german + LibraryTexts());
    }

    // The lines of the output that are not about the library.
    std::string Lines(int expectedCode) const
    {
        const CommandRun run({"texts", Path()});
        EXPECT_EQ(run.code, expectedCode);
        EXPECT_EQ(run.errors, "");
        std::string lines;
        for (size_t start = 0; start < run.output.size();)
        {
            const size_t end = run.output.find('\n', start) + 1;
            const std::string line = run.output.substr(start, end - start);
            if (line.find("the library") == std::string::npos)
                lines += line;
            start = end;
        }
        return lines;
    }
};

DescriptionText Dialog()
{
    DescriptionText dialog;
    dialog.section = "S";
    return dialog;
}

} // namespace

TEST(Texts, ComeFromEveryStatementThatNamesAKey)
{
    DescriptionText dialog = Dialog();
    dialog.layout =
        "Text 1,2,3,4,\"Label\",.A\nListBox 1,2,3,4,.L\nComboBox 1,2,3,4,.C\nPushButton 1,2,3,4,\"Off\",.B\n"
        "TextBox 1,2,3,4,.T\n";
    dialog.values = "L: Item = value\nL: DBLCLICK = B\nL = FILLEDBY, lib, f, g, p, NotAKey/x\n"
                    "C = FILLEDBY, lib, f, g, p, First/x\nB: VISIBLE = A, On\nT: NotAKey = x, y\n";
    dialog.evaluation = "T = NULL: Message\n";
    std::string uses;
    for (const lytdlg::ShownText& use : lytdlg::TextsOf("a.dlg", dialog()).uses)
        uses += use.section + "/" + use.key + (use.role == lytdlg::TextRole::Caption ? "! " : " ") +
                std::to_string(use.place.line) + "\n";
    EXPECT_EQ(uses, "S/TITLE 3\nS/Label! 4\nS/Off! 7\nS/Item 11\nS/First 14\nS/On 15\nMsgBox/Message 19\n");
}

TEST(Texts, ComeFromEveryChoiceOfTheDefinesAndFromWhatFollowsAMistake)
{
    DescriptionText dialog = Dialog();
    dialog.layout =
        "<X\nText 1,2,3,4,\"WithX\"\n>\n<!X\nText 1,2,3,4,\"WithoutX\"\n>\nText 1,2\nText 1,2,3,4,\"Both\"\n";
    std::string keys;
    for (const lytdlg::ShownText& use : lytdlg::TextsOf("a.dlg", dialog()).uses)
        keys += use.key + " ";
    EXPECT_EQ(keys, "TITLE WithX WithoutX Both ");
}

TEST(Texts, ShowEachKeyWithItsPlacesAndWhatIsMissing)
{
    DescriptionText dialog = Dialog();
    dialog.layout = "Text 1,2,3,4,\"Label\",.A\nText 1,2,3,4,\"label\",.B\n";
    const DialogFolder folder(dialog, "[S]\nTitle=T\nLabel=L\n", "[S]\nTitle=T\n");
    EXPECT_EQ(folder.Lines(1), "SECTION       KEY           English  German   USED BY\n"
                               "S             TITLE         line 2   line 2   a.dlg:3\n"
                               "S             Label         line 3   missing  a.dlg:4, a.dlg:5\n"
                               "\n" +
                                   Count(2) + " texts, 1 missing\n");
}

TEST(Texts, TellWhatIsWrongWithAText)
{
    const std::string tooLong(75, 'x');
    DescriptionText dialog = Dialog();
    dialog.layout = "Text 1,2,3,4,\"Label\",.A\n";
    const DialogFolder folder(
        dialog, "[S]\nTITLE=It's\nLabel=It's\nUnused=a & b %\nSame=x\nLong=" + tooLong + "\nSame=y\nNothing\n[s]\nA=\n",
        "[S]\nTITLE=Es\nLabel=Es\nUnused=a\\n\nSame=x\nLong=x\nNothing=\n");
    EXPECT_EQ(folder.Lines(1), "SECTION       KEY           English  German   USED BY\n"
                               "S             TITLE         line 2   line 2   a.dlg:3\n"
                               "S             Label         line 3   line 3   a.dlg:4\n"
                               "S             Unused        line 4   line 4   -\n"
                               "S             Same          line 5   line 5   -\n"
                               "S             Long          line 6   line 6   -\n"
                               "S             Nothing       missing  line 7   -\n"
                               "s             A             -        -        -\n"
                               "\n"
                               "[S] TITLE: different apostrophes: English 1, German 0\n"
                               "[S] Label: an apostrophe in English, where the caption ends\n"
                               "[S] Label: different apostrophes: English 1, German 0\n"
                               "[S] Unused: unused\n"
                               "[S] Unused: different per cent signs: English 1, German 0\n"
                               "[S] Unused: different line ends (\\n): English 0, German 1\n"
                               "[S] Unused: different ampersands: English 1, German 0\n"
                               "[S] Same: unused\n"
                               "[S] Same: never read in English, line 7: its key or section is there twice\n"
                               "[S] Long: unused\n"
                               "[S] Long: cut in English: 75 bytes, 74 are shown\n"
                               "[S] Nothing: unused\n"
                               "[S] Nothing: no = in English, line 8\n"
                               "[s] A: unused\n"
                               "[s] A: never read in English, line 10: its key or section is there twice\n"
                               "\n" +
                                   Count(7) + " texts, 1 missing\n");
}

TEST(Texts, AreShownInUtf8)
{
    const DialogFolder folder(Dialog(), "[S]\nTITLE=T\n\xDC=x\n", "[S]\nTITLE=T\n\xDC=x\n");
    EXPECT_NE(folder.Lines(0).find("S             \xC3\x9C"), std::string::npos);
}

TEST(Texts, AreGivenAsJsonToo)
{
    const DialogFolder folder(Dialog(), "[S]\nTITLE=\"a\" \\n\n", "[S]\nTITLE2=x\n");
    const CommandRun run({"texts", folder.Path(), "--format", "json"});
    EXPECT_EQ(run.code, 1);
    const json told = json::parse(run.output);
    EXPECT_EQ(told.at("missing"), 2);
    EXPECT_EQ(told.at("texts").front(), json::parse(R"({"section": "Buttons", "key": "001", "uses": [{"library": true}],
        "texts": [{"language": "English", "line": 4, "text": "x"}, {"language": "German", "line": 4, "text": "x"}],
        "remarks": []})"));
    EXPECT_EQ(told.at("texts").at(lytdlg::LibraryTexts().size()), json::parse(R"({"section": "S", "key": "TITLE",
        "uses": [{"file": "a.dlg", "line": 3}],
        "texts": [{"language": "English", "line": 2, "text": "\"a\" \\n"}, {"language": "German", "missing": true}],
        "remarks": []})"));
    EXPECT_EQ(told.at("texts").back(), json::parse(R"({"section": "S", "key": "TITLE2", "uses": [],
        "texts": [{"language": "English", "missing": true}, {"language": "German", "line": 2, "text": "x"}],
        "remarks": ["unused"]})"));
}

TEST(Texts, OfTheSamplesAreAllThereAndAllUsed)
{
    const lytdlg::TextTable samples(LYT_SOURCE_FOLDER "/samples/dialogs");
    EXPECT_EQ(samples.CountMissing(), 0U);
    EXPECT_GT(samples.Rows().size(), 100U);
    for (const lytdlg::TextRow& row : samples.Rows())
        EXPECT_TRUE(row.remarks.empty()) << row.section << "/" << row.key << ": " << row.remarks.front();
}

TEST(Texts, OfTheLibraryAreThoseThatItsSourcesAskFor)
{
    std::set<std::string> known;
    for (const lytdlg::LibraryText& text : lytdlg::LibraryTexts())
    {
        if (text.section != lytErrorSection)
            known.insert('"' + text.section + "\", \"" + text.key + '"');
    }
    EXPECT_EQ(NamedInSources("", "GetText\\((\"\\w+\", \"\\w+\")\\)"), known);
}

TEST(Errors, MeetTheUserAsTheirTableSays)
{
    std::map<ClytErrorWay, std::set<std::string>> ways;
    for (const ClytErrorRow& error : lytErrors)
    {
        if (error.way != ClytErrorWay::Either)
            ways[error.way].insert(error.name);
        else
            for (const ClytErrorWay each : {ClytErrorWay::Raised, ClytErrorWay::Reported})
                ways[each].insert(error.name);
    }
    const std::string name = "lytError\\(\"(\\w+)\"\\)";
    EXPECT_EQ(NamedInSources("", ("\\b(?:lytRaise|lytRaiseInstead|Tell|Guarded)\\([^;]*?" + name).c_str()),
              ways[ClytErrorWay::Raised]);
    std::set<std::string> reported = NamedInSources("", ("\\b(?:lytReport|Report)\\([^;]*?" + name).c_str());
    reported.merge(NamedInSources("", ("\\bReport\\([^;]*: " + name).c_str()));
    EXPECT_EQ(reported, ways[ClytErrorWay::Reported]);
    EXPECT_EQ(NamedInSources("", ("\\bClytPrefix(?:::OfKey)?\\(" + name).c_str()), ways[ClytErrorWay::Above]);
}

// Arguments and prefixes are as long as they usually are; a caught message may have any length.
TEST(Errors, FitTheirBoxInTheLanguagesOfTheSamples)
{
    static const std::map<std::string, std::string> arguments = {
        {"", ""},         {"control", "FindingsList"},  {"file", "C:\\Inspection\\dialogs\\lytInSym.dlg"},
        {"line", "1234"}, {"library", "partsdata.dll"}, {"list", "FindingsList"},
        {"size", "1024"}, {"word", "$DEPENDANCES"},     {"log", "C:\\Inspection\\house.log"}};
    static const std::map<std::string, std::string> above = {{lytError("FunctionMissing"), lytError("ActionFailed")},
                                                             {lytError("BracketOpen"), lytError("ListText")},
                                                             {lytError("ActionUnknown"), lytError("RuleWrong")}};
    const lytdlg::LanguageFiles samples(LYT_SOURCE_FOLDER "/samples/dialogs");
    for (const std::string& language : samples.Languages())
    {
        for (const ClytErrorRow& error : lytErrors)
        {
            const std::string text = samples.Text(language, lytErrorSection, error.number);
            const std::string& argument = arguments.at(error.argument);
            SCOPED_TRACE(language + ": " + text);
            EXPECT_EQ(std::ranges::count(text, '\''), argument.empty() ? 0 : 2);
            EXPECT_EQ(text.find("''") != std::string::npos, !argument.empty());
            const auto prefix = above.find(error.number);
            const size_t prefixSize =
                prefix == above.end() ? 0 : samples.Text(language, lytErrorSection, prefix->second).size() + 1;
            EXPECT_LE(prefixSize + text.size() + argument.size(), lytdlg::longestLanguageText);
        }
    }
}

TEST(Errors, AreListedForThoseWhoWriteTheTexts)
{
    static const std::map<ClytErrorWay, const char*> ways = {{ClytErrorWay::Raised, "raised"},
                                                             {ClytErrorWay::Reported, "reported"},
                                                             {ClytErrorWay::Either, "either"},
                                                             {ClytErrorWay::Above, "above another"}};
    std::string rows = "| key | shown when | argument | way |\n|---|---|---|---|\n";
    for (const ClytErrorRow& error : lytErrors)
        rows += "| `" + std::string(error.number) + "` | " + error.about + " | " + error.argument + " | " +
                ways.at(error.way) + " |\n";
    const std::string page = lytdlg::ReadWholeFile(LYT_SOURCE_FOLDER "/docs/deployment.md").value_or("");
    EXPECT_NE(page.find(rows), std::string::npos) << rows;
}

// Elsewhere the section comes from a dialog, a failure or a caller, and the section of the buttons comes before a key of a table.
TEST(Texts, OfTheLibraryAreAskedForInNoOtherWay)
{
    EXPECT_EQ(
        NamedInSources("", "lytEnvironment\\.GetText\\((?!\"\\w+\", \"\\w+\"\\))([^,]*),"),
        (std::set<std::string>{"dialog.GetTextSection()", "this->dialog->GetTextSection()", "dialog->GetTextSection()",
                               "lytErrorSection", "section", "CString(section)", "lytButtonSection"}));
}

TEST(TextsEncode, ConvertsWhatWasSavedInAnotherEncoding)
{
    const TestFolder folder;
    std::string wide = "\xFF\xFE";
    for (const char ch : std::string("[A]\r\nB=\xFC\r\n"))
        wide += std::string{ch, '\0'};
    const std::string plain = folder.Write("lang/Danish.nls", "[A]\nB=\xF8\n");
    const std::string utf8 = folder.Write("lang/German.nls", "\xEF\xBB\xBF[A]\r\nB=\xC3\xBC\r\n");
    const std::string russian = folder.Write("lang/Russian.nls", "[A]\nB=\xD0\x96\n");
    const std::string unicode = folder.Write("lang/Wide.nls", wide);
    const std::string dialog = folder.Write("a.dlg", wide.substr(2));
    const CommandRun run({"texts", folder.Path(), "--encode"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.output, utf8 + ": converted into the code page\n" + dialog + ": converted into the code page\n");
    EXPECT_EQ(run.errors,
              "lytdlg: " + russian + ": line 2 has a letter that the code page does not have; it stays as it is\n");
    EXPECT_EQ(lytdlg::ReadWholeFile(utf8), "[A]\r\nB=\xFC\r\n");
    EXPECT_EQ(lytdlg::ReadWholeFile(dialog), "[A]\r\nB=\xFC\r\n");
    EXPECT_EQ(lytdlg::ReadWholeFile(unicode), wide);
    EXPECT_EQ(lytdlg::ReadWholeFile(plain), "[A]\nB=\xF8\n");
}
