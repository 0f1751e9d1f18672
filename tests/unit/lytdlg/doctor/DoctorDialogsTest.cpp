// What `lytdlg doctor` says of language files, descriptions, and the marks on files.
#include "DoctorFolder.h"
#include "SourceNames.h"

#include "environment/ErrorTable.h"
#include "exports/NamedDialogs.h"

namespace fs = std::filesystem;

TEST(DoctorOnDialogs, LooksForTheTextsThatTheLibraryAsksForByItself)
{
    const DoctorFolder folder;
    folder.Replace("dialogs/lang/English.nls", "\n222=", "\n;222=");
    const std::string found = folder.Findings();
    EXPECT_TRUE(std::regex_match(
        found, std::regex("wrong    texts          dialogs/lang/English\\.nls:\\d+:1: the text \"222\" of "
                          "\\[Dialog_Error\\] is missing, and \"no value present\" is shown in its place\n"
                          " {24}hint: add to the section: 222=.+\n")))
        << found;
}

TEST(DoctorOnDialogs, OnlyWarnsOfTextsInALanguageThatIsNotInUse)
{
    const DoctorFolder folder;
    folder.Replace("dialogs/lang/German.nls", "\n222=", "\n;222=");
    const std::string found = folder.Findings();
    EXPECT_TRUE(found.starts_with("warning  texts          dialogs/lang/German.nls:")) << found;
    EXPECT_EQ(std::ranges::count(found, '\n'), 2) << found;
}

TEST(DoctorOnDialogs, TellsOfTextsThatDoNotShowWhatTheyShould)
{
    const DoctorFolder folder;
    const std::string texts = folder.Read("dialogs/lang/English.nls");
    const auto findingsFor = [&](const std::string& key, const std::string& text)
    {
        folder.Write("dialogs/lang/English.nls", texts);
        const size_t start = texts.find("\n" + key + "=") + 1;
        folder.Replace("dialogs/lang/English.nls", texts.substr(start, texts.find_first_of("\r\n", start) - start),
                       key + "=" + text);
        return std::regex_replace(folder.Findings(), std::regex("nls:\\d+:1:"), "nls:LINE:1:");
    };
    EXPECT_TRUE(findingsFor("222", "").starts_with(
        "warning  texts          dialogs/lang/English.nls:LINE:1: the text \"222\" of [Dialog_Error] is empty\n"));
    EXPECT_EQ(findingsFor("222", std::string(75, 'x')),
              "warning  texts          dialogs/lang/English.nls:LINE:1: the text \"222\" of [Dialog_Error] has 75 "
              "characters, of which 74 are shown\n"
              "                        hint: make it shorter\n");
    EXPECT_TRUE(findingsFor("212", "A line has the wrong form.")
                    .starts_with("warning  texts          dialogs/lang/English.nls:LINE:1: the text \"212\" of "
                                 "[Dialog_Error] has no place for what it is about\n"
                                 "                        hint: write '' there, as in 212="));
}

TEST(DoctorOnDialogs, JudgesDescriptionsAsCheckDoes)
{
    const DoctorFolder folder;
    folder.Replace("dialogs/lytInSym.dlg", "$EVALUATION, x", "$EVALUATION x");
    const std::string found = folder.Findings();
    EXPECT_NE(found.find(": \"$EVALUATION x\" opens no section (section-misspelt)\n"
                         "                        hint: a blank does not end the word; write \"$EVALUATION, x\"\n"),
              std::string::npos)
        << found;
    EXPECT_TRUE(found.starts_with("wrong    dialogs        dialogs/lytInSym.dlg:")) << found;
}

TEST(DoctorOnDialogs, TellsOfAPartnerThatIsMarkedAsDownloaded)
{
    const DoctorFolder folder;
    const TestFolder elsewhere;
    elsewhere.Write("other.dll", LibraryFile({"LookUp"}));
    elsewhere.Write("other.dll:Zone.Identifier", "[ZoneTransfer]\r\nZoneId=3\r\n");
    folder.Replace("dialogs/finding.dlg", "FILLEDBY, lytdata, LookUp", "FILLEDBY, other, LookUp");
    EXPECT_EQ(folder.Findings({"--partners", elsewhere.Path()}),
              "warning  marks          " + elsewhere.Path() +
                  ": 1 file is marked as downloaded, and Windows may refuse to use such a file: other.dll\n"
                  "                        hint: unblock each in its properties, or all by the command Unblock-File of "
                  "PowerShell\n");
}

TEST(DoctorOnDialogs, NotesFilesThatAreWriteProtected)
{
    const DoctorFolder folder;
    fs::permissions(folder.File("init/lyt.ini"), fs::perms::owner_read);
    EXPECT_EQ(folder.Findings(), "");
    EXPECT_NE(folder.Notes().find("note     marks          init: 1 file is write-protected, which hinders an update "
                                  "and nothing else: lyt.ini\n"),
              std::string::npos);
}

TEST(DoctorOnDialogs, TellsOfManyOfAKindInOneLine)
{
    const DoctorFolder folder;
    folder.Write("dialogs/lang/German.nls",
                 std::regex_replace(folder.Read("dialogs/lang/German.nls"), std::regex("\n2(\\d\\d)="), "\n;2$1="));
    const std::string found = folder.Findings();
    EXPECT_TRUE(
        std::regex_match(found, std::regex("warning  texts [^\n]+ is missing, and [^\n]+ \\(and \\d\\d more of this "
                                           "kind\\)\n {24}hint: [^\n]+\n")))
        << found;
    const CommandRun run({"doctor", folder.Path(), "--format", "json"});
    EXPECT_EQ(run.output.find("more of this kind"), std::string::npos) << "programs are told of each";
    for (int number = 0; number < 23; ++number)
        folder.Write("dialogs/more" + std::to_string(number) + ".dlg", "$LAYOUT x\n$END\n");
    EXPECT_LT(std::ranges::count(folder.Findings(), '\n'), 20) << folder.Findings();
}

TEST(DoctorOnDialogs, TellsOfFilesWithLongerNamesThanTheLibraryOpens)
{
    const DoctorFolder folder;
    const std::string name(250, 'x');
    folder.Write("dialogs/" + name + ".dlg", "");
    EXPECT_TRUE(folder.Findings().starts_with("wrong    names          dialogs/" + name +
                                              ".dlg: has a longer name than the library can open, with its folders\n"))
        << folder.Findings();
}

TEST(DoctorOnDialogs, KnowsTheDescriptionsThatTheLibraryOpens)
{
    std::set<std::string> known;
    for (const ClytNamedDialog& opened : lytNamedDialogs)
    {
        EXPECT_EQ(&lytNamed(opened.which), &opened);
        known.insert(opened.description);
    }
    EXPECT_EQ(known, NamedInSources("/exports", "\"(\\w+\\.dlg)\""));
}
