// What `lytdlg doctor` says of partner libraries: which copy is loaded, and what it lacks.
#include "DoctorFolder.h"
#include "SourceNames.h"

#include "lytdlg/doctor/WantedLibraries.h"

namespace
{

namespace fs = std::filesystem;

constexpr const char* whereTo =
    "                        hint: copy it to the folder of the word processor's program, or add its folder to PATH\n";
constexpr const char* firstCall = "dialogs/finding.dlg:38:25: ";

} // namespace

TEST(DoctorOnPartners, LooksForThoseThatDescriptionsCall)
{
    const DoctorFolder folder;
    folder.Remove("word/lytdata.dll");
    EXPECT_EQ(folder.Findings(), std::string("wrong    partners       ") + firstCall +
                                     "lytdata.dll is in none of the folders that Windows searches; what it fills "
                                     "stays empty\n" +
                                     whereTo);
}

// The most common mistake: Windows does not look there.
TEST(DoctorOnPartners, TellsOfOneThatLiesBesideTheLibrary)
{
    const DoctorFolder folder;
    folder.Write("parts/lytdata.dll", folder.Read("word/lytdata.dll"));
    folder.Remove("word/lytdata.dll");
    EXPECT_EQ(folder.Findings(), std::string("wrong    partners       ") + firstCall +
                                     "lytdata.dll is in none of the folders that Windows searches, but lies in parts; "
                                     "what it fills stays empty\n" +
                                     whereTo);
    EXPECT_EQ(folder.Findings({"--partners", folder.File("parts")}), "");
}

TEST(DoctorOnPartners, WarnsOfACatalogueThatStaysEmpty)
{
    const DoctorFolder folder;
    folder.Remove("word/lytsrc.dll");
    EXPECT_EQ(folder.Findings(),
              std::string("warning  partners       lytsrc.dll is in none of the folders that Windows "
                          "searches; the catalogue stays empty\n") +
                  whereTo);
}

TEST(DoctorOnPartners, NotesOneThatOnlyTheReportAsks)
{
    const DoctorFolder folder;
    folder.Remove("word/LytRes64.dll");
    EXPECT_EQ(folder.Findings(), "");
    EXPECT_NE(folder.Notes().find("note     partners       LytRes64.dll is in none of the folders"), std::string::npos);
}

TEST(DoctorOnPartners, TellsOfOneThatCannotBeLoaded)
{
    const DoctorFolder folder;
    folder.Write("word/lytsrc.dll", LibraryFile({"lytTreeStart", "lytTreeNext"}, machine32));
    folder.Write("word/lytdata.dll", "a text");
    EXPECT_EQ(folder.Findings(),
              "wrong    partners       word/lytsrc.dll: is no 64-bit library; the catalogue stays empty\n"
              "                        hint: put a 64-bit one in its place\n"
              "wrong    partners       word/lytdata.dll: is no library, or is damaged or cannot be read; what it "
              "fills stays empty\n"
              "                        hint: copy it again\n");
}

TEST(DoctorOnPartners, NamesWhatALibraryNeedsAndDoesNotFind)
{
    const DoctorFolder folder;
    folder.Write("word/lytsrc.dll",
                 LibraryFile({"lytTreeStart", "lytTreeNext"}, machine64, {"libgcc_s_seh-1.dll", "libstdc++-6.dll"}));
    EXPECT_EQ(
        folder.Findings(),
        "wrong    partners       word/lytsrc.dll: cannot be loaded: it needs libgcc_s_seh-1.dll, libstdc++-6.dll, "
        "which Windows does not find; the catalogue stays empty\n"
        "                        hint: link it statically, so that it needs nothing but Windows, or copy what it "
        "needs beside the word processor's program\n");
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

TEST(DoctorOnPartners, TellsOfAFunctionThatIsOneOfCpp)
{
    const DoctorFolder folder;
    folder.Write("word/lytsrc.dll", LibraryFile({"_Z12lytTreeStartPKc", "lytTreeNext"}));
    EXPECT_EQ(folder.Findings(),
              "wrong    partners       lytsrc.dll has no function \"lytTreeStart\"; the catalogue stays empty\n"
              "                        hint: \"_Z12lytTreeStartPKc\" is that function of C++; declare it extern "
              "\"C\"\n");
}

TEST(DoctorOnPartners, TellsWhereAFunctionIsCalledThatIsNotThere)
{
    const DoctorFolder folder;
    std::vector<std::string> functions = DoctorFolder::dataFunctions;
    std::erase(functions, "LookUp");
    functions.emplace_back("Lookup");
    folder.Write("word/lytdata.dll", LibraryFile(functions));
    EXPECT_EQ(
        folder.Findings(),
        "wrong    partners       dialogs/finding.dlg:38:34: lytdata.dll has no function \"LookUp\"; what it fills "
        "stays empty\n"
        "                        hint: did you mean \"Lookup\"?\n");
}

TEST(DoctorOnPartners, AskForOnePairOfACatalogueAndForOneNameOfAVersion)
{
    const DoctorFolder folder;
    folder.Write("word/lytsrc.dll", LibraryFile({"lytTreeStart", "lytTreeNext"}));
    folder.Write("word/LytRes64.dll", LibraryFile({"getLYTVersion"}));
    EXPECT_EQ(folder.Findings(), "");
    folder.Write("word/lytsrc.dll", LibraryFile({"lytTreeStart", "lytParaTreeStart", "lytParaTreeNext"}));
    folder.Write("word/LytRes64.dll", LibraryFile({"version"}));
    EXPECT_EQ(folder.Findings(),
              "wrong    partners       lytsrc.dll has no function \"lytTreeNext\"; the catalogue stays empty\n"
              "                        hint: its version may be another one; copy the right one\n"
              "warning  partners       LytRes64.dll has none of the functions getLYTVersion, getVersion; the report "
              "leaves its version out\n"
              "                        hint: its version may be another one; copy the right one\n");
}

TEST(DoctorOnPartners, TellsWhichOfTwoCopiesIsLoaded)
{
    const DoctorFolder folder;
    folder.Write("newer/lytsrc.dll", folder.Read("word/lytsrc.dll") + "of another day");
    const std::string found = "warning  partners       newer/lytsrc.dll: is another lytsrc.dll than the one that is "
                              "loaded, word/lytsrc.dll in the host's folder\n"
                              "                        hint: remove the one that is not meant\n";
    EXPECT_EQ(folder.Findings(), found);
    EXPECT_EQ(folder.Findings({"--partners", folder.File("newer")}), found);
    EXPECT_EQ(folder.Findings({"--host", folder.Write("other/word.exe", LibraryFile({})), "--partners",
                               folder.File("newer"), "--partners", folder.File("word")}),
              "warning  partners       word/lytsrc.dll: is another lytsrc.dll than the one that is loaded, "
              "newer/lytsrc.dll in a folder of --partners\n"
              "                        hint: remove the one that is not meant\n");
    folder.Write("newer/lytsrc.dll", folder.Read("word/lytsrc.dll"));
    EXPECT_EQ(folder.Findings(), "");
}

TEST(DoctorOnPartners, TakesANameWithAndWithoutItsExtensionForOneLibrary)
{
    const DoctorFolder folder;
    folder.Replace("dialogs/finding.dlg", "FILLEDBY, lytdata, LookUp", "FILLEDBY, LytData.dll, LookUp");
    folder.Remove("word/lytdata.dll");
    const std::string found = folder.Findings();
    EXPECT_EQ(std::ranges::count(found, '\n'), 2) << found;
}

TEST(DoctorOnPartners, PassesOverACallWithoutAName)
{
    const DoctorFolder folder;
    folder.Replace("dialogs/finding.dlg", "FILLEDBY, lytdata, LookUp", "FILLEDBY, \"\", LookUp");
    const std::string found = folder.Findings();
    EXPECT_EQ(found.find("partners"), std::string::npos) << found;
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

TEST(DoctorOnPartners, TellsOfAFolderInQuotesWhichWindowsDoesNotFind)
{
    const DoctorFolder folder;
    folder.Write("parts/lytdata.dll", folder.Read("word/lytdata.dll"));
    folder.Remove("word/lytdata.dll");
    EXPECT_EQ(
        folder.Findings({"--partners", "\"" + folder.File("parts") + "\""}),
        "wrong    partners       parts/lytdata.dll: is not found by Windows, since quotes stand round a folder of "
        "--partners; what it fills stays empty\n"
        "                        hint: take the quotes away there\n");
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
                      ": lies in the current folder or in that of the document, from where Windows may load it\n"
                      "                        hint: remove it, unless you know who put it there, and keep partners in "
                      "folders that users cannot write\n");
        std::filesystem::remove(documents.File(planted));
    }
    EXPECT_EQ(folder.Findings({"--document", documents.File("a.doc")}), "");
}
