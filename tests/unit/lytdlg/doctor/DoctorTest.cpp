// What `lytdlg doctor` finds in a deployment, and how it is asked and answers.
#include "DoctorFolder.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/doctor/Deployment.h"
#include "lytdlg/text/LanguageFiles.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <memory>
#include <utility>

using nlohmann::json;

namespace
{

namespace fs = std::filesystem;

// The words of a line, some of them in quotes; @ is the folder.
std::vector<std::string> WordsOf(const std::string& line, const TestFolder& folder)
{
    std::vector<std::string> words;
    size_t place = 0;
    while ((place = line.find_first_not_of(' ', place)) != std::string::npos)
    {
        const size_t end = std::min(line.find(' ', place), line.size());
        std::string& word = words.emplace_back(line, place, end - place);
        if (line[place] == '"')
            word = commandline::TakeQuoted(line, place).value_or("an open quote");
        else
            place = end;
        if (const size_t at = word.find('@'); at != std::string::npos)
            word.replace(at, 1, folder.Path());
    }
    return words;
}

void CarryOut(const std::vector<std::string>& words, const DoctorFolder& folder)
{
    const std::string& act = words.at(0);
    const std::string& name = words.at(1);
    if (act == "remove")
        folder.Remove(name);
    else if (act == "absent")
        EXPECT_FALSE(folder.Has(name)) << name;
    else if (act == "write")
        folder.Write(name, words.at(2));
    else if (act == "copy")
        folder.Write(words.at(2), folder.Read(name));
    else if (act == "replace")
        folder.Replace(name, words.at(2), words.at(3));
    else
    {
        const auto needs = std::ranges::find(words, "needs");
        const auto needed = needs != words.end() ? needs + 1 : needs;
        folder.Write(name, LibraryFile({words.begin() + 2, needs}, act == "library32" ? machine32 : machine64,
                                       {needed, words.end()}));
    }
}

} // namespace

// Each line of doctor.cases changes a sound deployment, or asks doctor with options and has below it what doctor finds. An
// empty line begins with another deployment.
TEST(Doctor, FindsWhatIsWrong)
{
    std::ifstream file(LYT_SOURCE_FOLDER "/tests/unit/lytdlg/doctor/doctor.cases");
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    lines.emplace_back();
    auto folder = std::make_unique<DoctorFolder>();
    std::string expected;
    std::string found;
    std::string asked;
    for (const std::string& line : lines)
    {
        if (line.starts_with("wrong ") || line.starts_with("warning ") || line.starts_with(" "))
        {
            expected += line + "\n";
            continue;
        }
        EXPECT_EQ(std::exchange(found, ""), std::exchange(expected, "")) << asked;
        asked = line;
        const std::vector<std::string> words = WordsOf(line, *folder);
        if (words.empty())
            folder = std::make_unique<DoctorFolder>();
        else if (words.front() == "doctor")
            found = folder->Findings({words.begin() + 1, words.end()});
        else
            CarryOut(words, *folder);
    }
}

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

// Also when its folder is not judged.
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
    EXPECT_EQ(folder.Findings(), "wrong    library        lyt64.dll: is not the file that SHA256SUMS names\n"
                                 "                        hint: it is damaged, or of another version; copy it again\n");
}

TEST(Doctor, KnowsTheVersionOfTheLibraryByItsRecord)
{
    const std::string record("\xBD\x04\xEF\xFE\0\0\x01\0\x02\0\x01\0\x04\x01\x03\0", 16);
    EXPECT_EQ(lytdlg::VersionOf("before " + record + " after"), "1.2.3.260");
    EXPECT_EQ(lytdlg::VersionOf(record.substr(0, 15)), "");
    EXPECT_EQ(lytdlg::VersionOf(""), "");

    const DoctorFolder folder;
    folder.Write("lyt64.dll", folder.Read("lyt64.dll") + record);
    EXPECT_EQ(folder.Findings(),
              std::string("warning  library        lyt64.dll: is of another version than these tools, which are ") +
                  commandline::projectVersion +
                  "\n                        hint: after an upgrade or a way back, copy library and tools from one "
                  "package\n");
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

TEST(Doctor, TriesWhetherTheLogCanBeWritten)
{
    const DoctorFolder folder;
    folder.Replace("init/lyt.ini", "level=0", "level=2");
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

// As the platform's own functions read such files.
TEST(Doctor, ReadsFilesInUtf16)
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

TEST(Doctor, TellsOfAByteOrderMarkThatHidesALine)
{
    const DoctorFolder folder;
    folder.Write("init/lyt.ini", "\xEF\xBB\xBF[global]\nCurrent Language=English\nTreeWidth=1\nTreeHeight=1\n");
    EXPECT_EQ(folder.Findings(),
              "warning  configuration  init/lyt.ini:1:1: a byte order mark comes before the first line, and hides it\n"
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
