// What `lytdlg doctor` says of partner libraries: which copy is loaded, and what it lacks.
#include "DoctorFolder.h"
#include "SourceNames.h"

#include "lytdlg/doctor/WantedLibraries.h"

namespace fs = std::filesystem;

TEST(DoctorOnPartners, NotesOneThatOnlyTheReportAsks)
{
    const DoctorFolder folder;
    folder.Remove("word/LytRes64.dll");
    EXPECT_EQ(folder.Findings(), "");
    EXPECT_NE(folder.Notes().find("note     partners       LytRes64.dll is in none of the folders"), std::string::npos);
}

TEST(DoctorOnPartners, TakesACutLibraryForADamagedOne)
{
    const DoctorFolder folder;
    const std::string whole = folder.Read("word/lytsrc.dll");
    folder.Write("word/lytsrc.dll", whole.substr(0, whole.size() - 1));
    EXPECT_EQ(folder.Findings(),
              "wrong    partners       word/lytsrc.dll: is no library, or is damaged or cannot be read; the catalogue "
              "stays empty\n"
              "                        hint: copy it again\n");
}

TEST(DoctorOnPartners, TakesAProgramWithoutAFolderForOneOfTheCurrentFolder)
{
    const DoctorFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.File("word"));
    const CommandRun run({"doctor", folder.Path(), "--host", "word.exe"});
    fs::current_path(before);
    EXPECT_EQ(run.code, 0) << run;
}

TEST(DoctorOnPartners, LooksInOneFolderForALibraryWithAWholePath)
{
    const DoctorFolder folder;
    folder.Write("parts/other.dll", LibraryFile({"LookUp"}));
    folder.Replace("dialogs/finding.dlg", "FILLEDBY, lytdata, LookUp",
                   "FILLEDBY, \"" + folder.File("parts") + "\\Other.dll\", LookUp");
    EXPECT_EQ(folder.Findings(), "");
    EXPECT_NE(folder.GoodLines().find("parts/other.dll: in the folder that the description names, with LookUp\n"),
              std::string::npos)
        << folder.GoodLines();
    folder.Remove("parts/other.dll");
    const std::string found = folder.Findings();
    EXPECT_NE(found.find("Other.dll is not in the folder that the description names; what it fills stays empty\n"
                         "                        hint: copy it there\n"),
              std::string::npos)
        << found;
}

TEST(DoctorOnPartners, CannotSayWhereWindowsLooksWithoutTheHost)
{
    const DoctorFolder folder;
    const CommandRun run({"doctor", folder.Path()});
    EXPECT_EQ(run.code, 0);
    EXPECT_NE(run.output.find("note     partners       cannot be judged, since the folders that Windows searches are "
                              "not known\n"),
              std::string::npos)
        << run.output;
}

TEST(DoctorOnPartners, KnowsTheLibrariesThatTheSourcesLoad)
{
    // Nothing is asked of the companion "lyt", so nothing is lost without it; one is a part of Windows.
    std::set<std::string> known = {"lyt", "kernel32.dll"};
    for (const lytdlg::OwnPartner& partner : lytdlg::OwnPartners())
        known.insert(partner.name);
    // A name that messages tell as well has a constant.
    EXPECT_EQ(known,
              NamedInSources("", "(?:lytLoadLibrary\\(|const char\\* (?:libraryName|lytSourceName) = )\"([^\"]+)\""));
}

TEST(DoctorOnPartners, LooksForLibrariesThatSomebodyHasPutBesideTheDocument)
{
    const DoctorFolder folder;
    const TestFolder documents;
    documents.Write("a.doc", "");
    for (const char* planted : {"lyt.dll", "lytsrc.dll", "LytRes64.dll"})
    {
        documents.Write(planted, LibraryFile({}));
        EXPECT_EQ(folder.Findings({"--document", documents.File("a.doc")}),
                  "warning  partners       " + documents.File(planted) +
                      ": is in the current folder or in that of the document, from where Windows may load it\n"
                      "                        hint: remove it, unless you know who put it there, and keep partners in "
                      "folders that users cannot write\n");
        std::filesystem::remove(documents.File(planted));
    }
    EXPECT_EQ(folder.Findings({"--document", documents.File("a.doc")}), "");
}
