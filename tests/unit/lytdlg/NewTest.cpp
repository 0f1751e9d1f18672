// `lytdlg new`: a dialog to begin with.
#include "CommandRun.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "exports/NamedDialogs.h"
#include "liveform/LiveForm.h"
#include "lytdlg/text/DescriptionLines.h"
#include "lytdlg/text/NewDialog.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/TextTable.h"
#include "robot/WindowRobot.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{

namespace fs = std::filesystem;

constexpr const char* hint = "`lytdlg --help` lists commands and options.\n";

// The library's environment, with the dialogs of a folder.
class Environment
{
public:
    Environment(const TestFolder& folder, const std::string& language)
    {
        folder.Write("lyt.ini", "[global]\r\nCurrent Language=" + language + "\r\n");
        lytEnvironment.SetDialogPath(folder.Path().c_str());
        lytEnvironment.SetInitPath(folder.Path().c_str());
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { lytEnvironment.Reset(); }
};

std::vector<std::string> FilesOf(const TestFolder& folder)
{
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder.Path()))
    {
        if (entry.is_regular_file())
            files.push_back(entry.path().filename().string());
    }
    std::ranges::sort(files);
    return files;
}

CommandRun NewIn(const TestFolder& folder, const std::string& name)
{
    return CommandRun({"new", name, "-o", folder.Path()});
}

std::string FileIn(const TestFolder& folder, const std::string& name)
{
    return (fs::path(folder.Path()) / name).make_preferred().string();
}

} // namespace

TEST(New, MakesADescriptionItsTextsAndACase)
{
    const TestFolder folder;
    EXPECT_EQ(NewIn(folder, "mine"),
              CommandRun(0, FileIn(folder, "lang/English.nls") + ": made\n" + FileIn(folder, "lang/German.nls") +
                                ": made\n" + FileIn(folder, "mine.case") + ": made\n" + FileIn(folder, "mine.dlg") +
                                ": made\n"));
    EXPECT_EQ(FilesOf(folder), (std::vector<std::string>{"English.nls", "German.nls", "mine.case", "mine.dlg"}));
}

TEST(New, MakesADialogThatOpensAndGivesAResult)
{
    const TestFolder folder;
    NewIn(folder, "mine");
    const Environment environment(folder, "English");
    lytInputKey = "area=20";
    LiveForm form(folder.File("mine.dlg").c_str());
    ASSERT_TRUE(form.Open());
    EXPECT_EQ(WindowText(form), "Properties of mine");
    EXPECT_EQ(form.Value("Name"), "area");
    EXPECT_EQ(form.Value("Value"), "20");
    EXPECT_TRUE(form.Confirm());
    EXPECT_STREQ(form.GetResult(), "area=20");
    form.Enter("Name", "");
    EXPECT_FALSE(form.IsEnabled("Value"));
    robot::Robot robot;
    robot.AnswerMessage();
    EXPECT_FALSE(form.Confirm());
    EXPECT_EQ(robot.Messages(), std::vector<std::string>{"Please enter a name."});
}

TEST(New, SpeaksEachLanguage)
{
    const TestFolder folder;
    NewIn(folder, "mine");
    const Environment environment(folder, "German");
    LiveForm form(folder.File("mine.dlg").c_str());
    ASSERT_TRUE(form.Open());
    EXPECT_EQ(WindowText(form), "Eigenschaften von mine");
    robot::Robot robot;
    robot.AnswerMessage();
    EXPECT_FALSE(form.Confirm());
    EXPECT_EQ(robot.Messages(), std::vector<std::string>{"Bitte einen Namen eingeben."});
}

TEST(New, LeavesNothingToFormatAndNoTextMissing)
{
    const TestFolder folder;
    std::vector<std::string> files = {"mine.dlg"};
    for (const ClytNamedDialog& named : lytNamedDialogs)
        files.emplace_back(named.description);
    for (const std::string& file : files)
    {
        NewIn(folder, file.substr(0, file.find('.')));
        const std::string description = folder.Read(file);
        EXPECT_EQ(lytdlg::FormattedDescription(folder.File(file), description), description);
    }
    const lytdlg::TextTable texts(folder.Path());
    EXPECT_EQ(texts.CountMissing(), 0U);
    for (const lytdlg::TextRow& row : texts.Rows())
        EXPECT_TRUE(row.remarks.empty()) << row.key << ": " << row.remarks.front();
}

TEST(New, AddsItsTextsToTheLanguageFilesThatAreThere)
{
    const TestFolder folder;
    folder.Write("lang/French.nls", "[MsgBox]\r\nA=1\r\n; note\r\n\r\n[Other]\r\nB=2");
    folder.Write("lang/German.nls", "[Other]\nB=2\n");
    EXPECT_EQ(NewIn(folder, "mine"),
              CommandRun(0, FileIn(folder, "lang/French.nls") + ": texts added\n" + FileIn(folder, "lang/German.nls") +
                                ": texts added\n" + FileIn(folder, "mine.case") + ": made\n" +
                                FileIn(folder, "mine.dlg") + ": made\n"));
    EXPECT_EQ(folder.Read("lang/French.nls"),
              "[MsgBox]\r\nA=1\r\nmineNameMissing=Please enter a name.\r\n; note\r\n\r\n[Other]\r\nB=2\r\n\r\n"
              "[mine]\r\nTitle=Properties of mine\r\nFrame=Placeholder\r\nName=&Name:\r\nValue=&Value:\r\n");
    EXPECT_EQ(folder.Read("lang/German.nls"),
              "[Other]\nB=2\n\n[MsgBox]\nmineNameMissing=Bitte einen Namen eingeben.\n\n"
              "[mine]\nTitle=Eigenschaften von mine\nFrame=Platzhalter\nName=&Name:\nValue=&Wert:\n");
    // The case is in a language that is there.
    EXPECT_NE(folder.Read("mine.case").find("dialog: mine.dlg\nlanguage: French\n"), std::string::npos);
}

TEST(New, PutsTheCaseIntoTheFolderOfTheCases)
{
    const TestFolder folder;
    folder.Write("cases/other.case", "");
    folder.Write("dialogs/lang/English.nls", "");
    const CommandRun run({"new", "mine", "-o", FileIn(folder, "dialogs")});
    EXPECT_EQ(run.code, 0);
    EXPECT_NE(folder.Read("cases/mine.case").find("dialog: ../dialogs/mine.dlg\nlanguage: English\n"),
              std::string::npos);
    EXPECT_FALSE(folder.Has("dialogs/mine.case"));
}

TEST(New, OverwritesNothing)
{
    const TestFolder folder;
    const auto refusal = [&](const std::string& what)
    { return CommandRun(2, "", "lytdlg: " + what + "; choose another name\n" + hint); };

    const std::string dialog = folder.Write("MINE.DLG", "x");
    EXPECT_EQ(NewIn(folder, "mine"), refusal(dialog + " is there already and stays as it is"));
    EXPECT_EQ(FilesOf(folder), std::vector<std::string>{"MINE.DLG"});

    const std::string kept = folder.Write("other.case", "x");
    EXPECT_EQ(NewIn(folder, "other"), refusal(kept + " is there already and stays as it is"));

    const std::string language = folder.Write("lang/English.nls", "[ third ]\n");
    EXPECT_EQ(NewIn(folder, "third"), refusal(language + " holds a section [third] already, which stays as it is"));
    EXPECT_EQ(folder.Read("lang/English.nls"), "[ third ]\n");
    EXPECT_EQ(FilesOf(folder), (std::vector<std::string>{"English.nls", "MINE.DLG", "other.case"}));
}

TEST(New, LeavesEverythingAsItWasWhenAFileCannotBeWritten)
{
    const TestFolder folder;
    folder.Write("lang/English.nls", "[A]\n");
    const std::string german = folder.Write("lang/German.nls", "[A]\n");
    const auto writing = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(german, writing, fs::perm_options::remove);
    EXPECT_EQ(NewIn(folder, "mine"),
              CommandRun(1, "", "lytdlg: " + german + " is write-protected; it stays as it was\n"));
    fs::permissions(german, fs::perms::owner_write, fs::perm_options::add);
    EXPECT_EQ(folder.Read("lang/English.nls"), "[A]\n");
    EXPECT_EQ(FilesOf(folder), (std::vector<std::string>{"English.nls", "German.nls"}));
}

TEST(New, TellsWhatIsWrongWithAName)
{
    static const struct
    {
        const char* name;
        const char* fault;
    } cases[] = {
        {"mine", ""},
        {"lytNewSym", ""},
        {"lytrpgrp", ""},
        {"a-b_2", ""},
        {"", "use letters from A to Z, digits, - and _, with a letter first"},
        {"2a", "use letters from A to Z, digits, - and _, with a letter first"},
        {"a b", "use letters from A to Z, digits, - and _, with a letter first"},
        {"../a", "use letters from A to Z, digits, - and _, with a letter first"},
        {"a\\b", "use letters from A to Z, digits, - and _, with a letter first"},
        {"c:a", "use letters from A to Z, digits, - and _, with a letter first"},
        {"\xE4", "use letters from A to Z, digits, - and _, with a letter first"},
        {"a.dlg", "write the name without .dlg"},
        {"nul", "Windows keeps this name for a device; choose another"},
        {"Com7", "Windows keeps this name for a device; choose another"},
        {"msgbox", "the library has a section of texts with this name for itself; choose another"},
        {"Dialog_Error", "the library has a section of texts with this name for itself; choose another"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(lytdlg::FaultOfName(c.name), c.fault) << c.name;
    EXPECT_EQ(lytdlg::FaultOfName(std::string(40, 'a')), "");
    EXPECT_EQ(lytdlg::FaultOfName(std::string(41, 'a')), "use 40 letters at most");
}
