// What `lytdlg doctor` says of lyt.ini, the language that it sets, and the log.
#include "DoctorFolder.h"

namespace fs = std::filesystem;

TEST(DoctorOnConfiguration, LooksForTheConfiguration)
{
    const DoctorFolder folder;
    folder.Remove("init/lyt.ini");
    EXPECT_EQ(folder.Findings(), "wrong    configuration  there is no lyt.ini in the folders\n"
                                 "                        hint: copy it there, or name its folder with --init\n");
    EXPECT_EQ(folder.Findings({"--init", folder.File("init")}),
              "wrong    configuration  init/lyt.ini: is not there\n"
              "                        hint: copy it there, or name its folder with --init\n");
}

TEST(DoctorOnConfiguration, LooksForTheLanguageAndItsFile)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "Current Language=English", "Current Language=Englisch");
    EXPECT_EQ(folder.Findings(),
              "wrong    language       init/lyt.ini:5:18: dialogs/lang/Englisch.nls is not there, so that every text "
              "reads \"no value present\"\n"
              "                        hint: did you mean \"English\"?\n");
    folder.Replace("init/lyt.ini", "Current Language=Englisch", "Current Language=Elvish");
    EXPECT_EQ(folder.Findings(),
              "wrong    language       init/lyt.ini:5:18: dialogs/lang/Elvish.nls is not there, so that every text "
              "reads \"no value present\"\n"
              "                        hint: write English, or add the file\n");
    folder.Replace("init/lyt.ini", "Current Language=Elvish", "Language=English");
    EXPECT_EQ(folder.Findings(),
              "wrong    language       init/lyt.ini: no language is set, so that every text reads \"no value "
              "present\"\n"
              "                        hint: write Current Language=English in the section [global]\n");
    // The platform takes no account of case.
    folder.Replace("init/lyt.ini", "Language=English", "Current Language=ENGLISH");
    EXPECT_EQ(folder.Findings(), "");
}

TEST(DoctorOnConfiguration, TellsOfAByteOrderMarkThatHidesALine)
{
    const DoctorFolder folder;
    folder.Write("init/lyt.ini", "\xEF\xBB\xBF[global]\nCurrent Language=English\nTreeWidth=1\nTreeHeight=1\n");
    EXPECT_EQ(folder.Findings(),
              "warning  configuration  init/lyt.ini:1:1: a byte order mark stands before the first line, and hides it\n"
              "                        hint: save the file in code page 1252, which editors call ANSI or "
              "Windows-1252\n"
              "wrong    language       init/lyt.ini: no language is set, so that every text reads \"no value "
              "present\"\n"
              "                        hint: write Current Language=English in the section [global]\n"
              "warning  configuration  init/lyt.ini: TreeWidth is no size, so that the catalogue opens as small as a "
              "window can be\n"
              "                        hint: write TreeWidth=500 in the section [global]\n"
              "warning  configuration  init/lyt.ini: TreeHeight is no size, so that the catalogue opens as small as a "
              "window can be\n"
              "                        hint: write TreeHeight=500 in the section [global]\n");
}

TEST(DoctorOnConfiguration, TellsOfACatalogueWithoutASize)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "TreeWidth=460", "TreeWidth=wide");
    EXPECT_EQ(folder.Findings(),
              "warning  configuration  init/lyt.ini:7:11: TreeWidth is no size, so that the catalogue opens as small "
              "as a window can be\n"
              "                        hint: write TreeWidth=500 in the section [global]\n");
}

TEST(DoctorOnConfiguration, AsksForADocumentWhenALogIsWritten)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "level=0", "level=2");
    EXPECT_EQ(folder.Findings(),
              "warning  log            init/lyt.ini:14:7: level 2: a log is written beside each document, and one that "
              "cannot be written may end the word processor\n"
              "                        hint: name a document with --document to have its folder judged, or write "
              "level=0\n");
    folder.Write("document/a.doc", "");
    EXPECT_EQ(folder.Findings({"--document", folder.File("document/a.doc")}), "");
    EXPECT_FALSE(folder.Has("document/a.log")) << "trying it leaves no trace";
}

TEST(DoctorOnConfiguration, TriesWhetherTheLogCanBeWritten)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "level=0", "level=2");
    EXPECT_EQ(folder.Findings({"--document", folder.Path() + "/nowhere/a.doc"}),
              "wrong    log            nowhere/a.log: cannot be written, since its folder is not there; such a failure "
              "(207) may end the word processor\n"
              "                        hint: make the folder, or set level=0 in the section [LogLevel] of lyt.ini\n");
    const std::string log = folder.Write("document/a.log", "what was logged before");
    EXPECT_EQ(folder.Findings({"--document", folder.File("document/a.doc")}), "");
    EXPECT_EQ(folder.Read("document/a.log"), "what was logged before");
    fs::permissions(log, fs::perms::owner_read);
    EXPECT_EQ(folder.Findings({"--document", folder.File("document/a.doc")}),
              "wrong    log            document/a.log: cannot be written; such a failure (207) may end the word "
              "processor\n"
              "                        hint: let the users write it, or set level=0 in the section [LogLevel] of "
              "lyt.ini\n");
}

TEST(DoctorOnConfiguration, TellsOfALogThatGetsAnotherNameThanItsDocument)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "level=0", "level=2");
    const std::string document = folder.Write("version.2/a.doc", "");
    EXPECT_EQ(folder.Findings({"--document", document}),
              "warning  log            version.log: is the log of version.2/a.doc: the name is cut at the first dot of "
              "the whole path\n"
              "                        hint: keep documents in folders without a dot in their names\n");
}

TEST(DoctorOnConfiguration, TellsOfALevelThatIsNoNumber)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "level=0", "level=all");
    EXPECT_EQ(folder.Findings(),
              "warning  log            init/lyt.ini:14:7: the level \"all\" is no number, and counts as 0\n"
              "                        hint: write level=0, or the highest level that is to be logged\n");
}

// As the platform's own functions read such files.
TEST(DoctorOnConfiguration, ReadsFilesInUtf16)
{
    const DoctorFolder folder;
    for (const char* file : {"init/lyt.ini", "dialogs/lang/English.nls", "dialogs/lang/German.nls"})
    {
        std::string wide = "\xFF\xFE";
        for (const char ch : folder.Read(file))
            wide += std::string{ch, '\0'};
        folder.Write(file, wide);
    }
    EXPECT_EQ(folder.Findings(), "");
}
