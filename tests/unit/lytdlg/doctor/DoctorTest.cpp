// What `lytdlg doctor` says of the library and its host, and how it is asked and answers.
#include "DoctorFolder.h"

#include "lytdlg/doctor/Deployment.h"
#include "lytdlg/text/LanguageFiles.h"

#include <nlohmann/json.hpp>

using nlohmann::json;

TEST(Doctor, FindsNothingWrongWithTheSamples)
{
    const DoctorFolder folder;
    const std::string count = std::to_string(lytdlg::LibraryTexts().size());
    EXPECT_EQ(folder.Output(),
              "good     library        lyt64.dll: 64-bit, with all 21 functions\n"
              "good     library        lyt64.dll: without a version, SHA-256 " +
                  lytdlg::ChecksumOf(folder.Read("lyt64.dll")) +
                  "\n"
                  "good     host           word/word.exe: 64-bit\n"
                  "note     loading        judged on Windows only, with the screen and the common controls\n"
                  "good     configuration  init/lyt.ini: is there\n"
                  "good     language       init/lyt.ini:5:18: English\n"
                  "good     log            init/lyt.ini:14:7: level 0: no log is written\n"
                  "good     texts          dialogs/lang/English.nls: all " +
                  count +
                  " texts of the library\n"
                  "good     texts          dialogs/lang/German.nls: all " +
                  count +
                  " texts of the library\n"
                  "good     dialogs        dialogs: 8 descriptions, in which `check` finds nothing\n"
                  "good     partners       word/lytsrc.dll: in the host's folder, with lytTreeStart, lytTreeNext, "
                  "lytParaTreeStart, lytParaTreeNext\n"
                  "good     partners       word/LytRes64.dll: in the host's folder, with getVersion\n"
                  "good     partners       word/lytdata.dll: in the host's folder, with LookUp, OpenList, NextItem, "
                  "OpenMarked, OpenSymbols, NextSymbol\n"
                  "good     marks          15 files, none marked as downloaded\n"
                  "verdict: good\n");
}

TEST(Doctor, LooksForTheLibrary)
{
    const DoctorFolder folder;
    folder.Remove("lyt64.dll");
    EXPECT_EQ(folder.Findings(), "wrong    library        there is no lyt64.dll in the folders\n"
                                 "                        hint: copy it there, or name it with --library\n");
    EXPECT_EQ(folder.Findings({"--library", folder.File("word")}),
              "wrong    library        word: cannot be read\n"
              "                        hint: check the name, and give the users the right to read it\n");
}

TEST(Doctor, TellsOfALibraryThatA64BitProgramCannotLoad)
{
    const DoctorFolder folder;
    folder.Write("lyt64.dll", LibraryFile(lytdlg::OwnFunctions(), machine32));
    EXPECT_EQ(folder.Findings(), "wrong    library        lyt64.dll: is no 64-bit library\n"
                                 "                        hint: copy the 64-bit lyt64.dll\n");
    folder.Write("lyt64.dll", "a text");
    EXPECT_EQ(folder.Findings(), "wrong    library        lyt64.dll: is no library, or is damaged\n"
                                 "                        hint: copy it again\n");
}

TEST(Doctor, TellsOfFunctionsThatTheLibraryLacks)
{
    const DoctorFolder folder;
    std::vector<std::string> functions = lytdlg::OwnFunctions();
    std::erase(functions, "lytWizard");
    folder.Write("lyt64.dll", LibraryFile(functions));
    EXPECT_EQ(folder.Findings(),
              "wrong    library        lyt64.dll: lacks functions: lytWizard\n"
              "                        hint: it is another library, or of another version; copy the lyt64.dll that "
              "belongs to these tools\n");
}

TEST(Doctor, TellsOfASecondOneOfWhatThereShouldBeOneOf)
{
    const DoctorFolder folder;
    folder.Write("old/lyt64.dll", folder.Read("lyt64.dll"));
    folder.Write("old/init/lyt.ini", "");
    folder.Write("old/dialogs/a.dlg", "");
    EXPECT_EQ(
        folder.Findings(),
        "warning  library        old/lyt64.dll: is a second copy, and the macros may load either\n"
        "                        hint: remove it, or name the one that is meant with --library\n"
        "warning  configuration  old/init/lyt.ini: is a second one, and the macros may name the folder of either\n"
        "                        hint: remove it, or name the folder that is meant with --init\n"
        "warning  dialogs        old/dialogs: holds descriptions as well, and the macros may name either folder\n"
        "                        hint: remove it, or name the folder that is meant with --dialogs\n");
    EXPECT_EQ(folder.Findings({"--library", folder.File("lyt64.dll"), "--init", folder.File("init"), "--dialogs",
                               folder.File("dialogs")}),
              "");
}

TEST(Doctor, GoesThroughAFolderOnceThoughItIsNamedTwice)
{
    const DoctorFolder folder;
    EXPECT_EQ(folder.Findings({folder.File("init"), folder.Path()}), "");
}

TEST(Doctor, TellsOfAHostThatCannotLoadTheLibrary)
{
    const DoctorFolder folder;
    folder.Write("word/word.exe", LibraryFile({}, machine32));
    EXPECT_EQ(folder.Findings(),
              "wrong    host           word/word.exe: is a 32-bit program, which cannot load the library\n"
              "                        hint: install the 64-bit edition of the word processor\n");
    folder.Write("word/word.exe", "a text");
    EXPECT_EQ(folder.Findings(),
              "wrong    host           word/word.exe: is no program for Windows on this kind of processor\n"
              "                        hint: name the word processor's program with --host\n");
    folder.Remove("word/word.exe");
    EXPECT_EQ(folder.Findings(), "wrong    host           word/word.exe: cannot be read\n"
                                 "                        hint: name the word processor's program with --host\n");
}

// Also when its folder is none of those that are judged.
TEST(Doctor, CountsWhatItFound)
{
    const DoctorFolder folder;
    folder.Remove("lyt64.dll");
    folder.Remove("dialogs/lytWzPhr.dlg");
    folder.Remove("dialogs/lytWzSym.dlg");
    EXPECT_TRUE(folder.Output().ends_with("verdict: 1 wrong, 2 warnings\n"));
    folder.Write("lyt64.dll", LibraryFile(lytdlg::OwnFunctions()));
    EXPECT_TRUE(folder.Output().ends_with("verdict: 2 warnings\n"));
}

TEST(Doctor, TellsTheSameAsJson)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "Current Language=English", "Current Language=Englisch");
    const CommandRun run({"doctor", folder.Path(), "--host", folder.File("word/word.exe"), "--format", "json"});
    EXPECT_EQ(run.code, 1);
    const json told = json::parse(run.output);
    EXPECT_EQ(told.at("verdict"), "wrong");
    EXPECT_EQ(told.at("wrong"), 1);
    EXPECT_EQ(told.at("warnings"), 0);
    EXPECT_EQ(told.at("observations").size(), 14U);
    EXPECT_EQ(told.at("observations").at(0), json({{"verdict", "good"},
                                                   {"about", "library"},
                                                   {"path", folder.File("lyt64.dll")},
                                                   {"message", "64-bit, with all 21 functions"}}));
    EXPECT_EQ(told.at("observations").at(5),
              json({{"verdict", "wrong"},
                    {"about", "language"},
                    {"path", folder.File("init/lyt.ini")},
                    {"line", 5},
                    {"column", 18},
                    {"message", folder.File("dialogs/lang/Englisch.nls") +
                                    " is not there, so that every text reads \"no value present\""},
                    {"hint", "did you mean \"English\"?"}}));
}

TEST(Doctor, GivesAVerdictAsJsonThatNotesDoNotChange)
{
    const DoctorFolder folder;
    const CommandRun run({"doctor", folder.Path(), "--format", "json"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(json::parse(run.output).at("verdict"), "good");
}

TEST(Doctor, ComparesTheLibraryWithTheChecksumsThatWereHandedOutWithIt)
{
    EXPECT_EQ(lytdlg::ChecksumOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    const DoctorFolder folder;
    const std::string sum = lytdlg::ChecksumOf(folder.Read("lyt64.dll"));
    for (const std::string& good :
         std::vector<std::string>{sum + "  lyt64.dll\n", sum + " *lyt64.dll\r\n", "12  word/lytsrc.dll\n", "a\n"})
    {
        folder.Write("SHA256SUMS", good);
        EXPECT_EQ(folder.Findings(), "") << good;
    }
    folder.Write("SHA256SUMS", "12  lytsrc.dll\n" + std::string(64, '0') + "  ./lyt64.dll\n");
    EXPECT_EQ(folder.Findings(), "wrong    library        lyt64.dll: is not the file that SHA256SUMS tells of\n"
                                 "                        hint: it is damaged, or of another version; copy it again\n");
}

TEST(Doctor, KnowsTheVersionOfTheLibraryByItsRecord)
{
    const std::string record("\xBD\x04\xEF\xFE\0\0\x01\0\x02\0\x01\0\x04\x01\x03\0", 16);
    EXPECT_EQ(lytdlg::VersionOf("before " + record + " after"), "1.2.3.260");
    EXPECT_EQ(lytdlg::VersionOf(record.substr(0, 15)), "");
    EXPECT_EQ(lytdlg::VersionOf(""), "");
}

TEST(Doctor, TellsProgramsWhyNothingWasJudged)
{
    for (const std::vector<std::string>& words : {std::vector<std::string>{"doctor", "nowhere", "--format", "json"},
                                                  {"doctor", "--format", "json"},
                                                  {"doctor", ".", "--wrong", "--format", "json"}})
    {
        const CommandRun run(words);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(json::parse(run.output).at("verdict"), "not judged");
        EXPECT_NE(run.errors.find(json::parse(run.output).at("message")), std::string::npos);
    }
}

TEST(Doctor, RefusesAFolderWithALongerNameThanTheLibraryOpens)
{
    const CommandRun run({"doctor", "\\\\?\\" + std::string(260, 'x')});
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.errors.find(" is longer than the 259 characters that Windows allows the library"), std::string::npos)
        << run;
}
