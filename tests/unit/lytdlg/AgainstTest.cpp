// What the dialogs of a corpus make of texts is what each version of the library has made of them: the samples, dialogs that
// are sound, new ones, and the right examples of the rules.
#include "CommandRun.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/judge/Examples.h"
#include "lytdlg/judge/Rule.h"
#include "support/TestFolder.h"

#include <cstdlib>
#include <filesystem>

namespace lytdlg
{

namespace
{

namespace fs = std::filesystem;

const std::string source = LYT_SOURCE_FOLDER;
const std::string version = commandline::projectVersion;

void LayOutCorpus(const TestFolder& folder)
{
    constexpr auto whole = fs::copy_options::recursive;
    fs::copy(source + "/samples/dialogs", folder.Path() + "/samples", whole);
    fs::copy(source + "/tests/unit/lytdlg/sound", folder.Path() + "/sound", whole);
    fs::create_directory(folder.Path() + "/new");
    for (const char* name : {"lytInSym", "lytInPhr", "lytCdGrp", "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"})
        EXPECT_EQ(CommandRun({"new", name, "-o", folder.Path() + "/new"}).code, 0);
    for (const Rule& rule : Rules())
    {
        const std::string name = ExampleName(rule.right);
        folder.Write("examples/" + rule.id + "/" + (name.empty() ? "example.dlg" : name),
                     ExampleDescription(rule.right));
    }
}

CommandRun CheckAgainst(const std::string& other, const std::string& path, const std::vector<std::string>& more = {})
{
    std::vector<std::string> words = {"check", "--against", other, path};
    words.insert(words.end(), more.begin(), more.end());
    return CommandRun(words);
}

} // namespace

TEST(Against, EveryVersionTheCorpusMakesTheSameOfItsTexts)
{
    const TestFolder folder;
    LayOutCorpus(folder);
    const fs::path records = source + "/tests/unit/lytdlg/versions";
    if (std::getenv("LYT_UPDATE") != nullptr)
    {
        const std::string name = "lyt64-" + version + ".json";
        EXPECT_EQ(CheckAgainst(version, folder.Path(), {"--update"}).code, 0);
        fs::copy_file(folder.File(name), records / name, fs::copy_options::overwrite_existing);
    }
    EXPECT_TRUE(fs::exists(records / ("lyt64-" + version + ".json"))) << "LYT_UPDATE=1 in front writes it";
    for (const fs::directory_entry& record : fs::directory_iterator(records))
    {
        const std::string name = record.path().filename().string();
        SCOPED_TRACE(name);
        fs::copy_file(record.path(), folder.File(name), fs::copy_options::overwrite_existing);
        const std::string other = name.substr(6, name.size() - 11);
        const CommandRun run = CheckAgainst(other, folder.Path());
        EXPECT_EQ(run.code, 0) << run;
        // A dialog that is newer, or was changed, is named and passed over. Most are neither.
        const auto isOver = [](const std::string& line) { return line.ends_with("is not compared"); };
        const std::vector<std::string> lines = commandline::LinesOf(run.output);
        constexpr std::ptrdiff_t most = 100;
        EXPECT_LT(std::ranges::count_if(lines, isOver), most) << run;
    }
}

TEST(Against, AnotherVersionADifferenceIsReported)
{
    const TestFolder folder;
    const std::string dialog = folder.Path() + "/code.dlg";
    fs::copy_file(source + "/tests/unit/lytdlg/sound/code.dlg", dialog);
    EXPECT_EQ(CheckAgainst(version, dialog, {"--update"}).output, "1 dialog written down as of " + version + "\n");
    const std::string name = "lyt64-" + version + ".json";
    const std::string record = folder.Read(name);

    std::string changed = record;
    const size_t composed = changed.find("\"composed\": \"") + 13;
    folder.Write(name, changed.replace(composed, 0, "other "));
    const CommandRun run = CheckAgainst(version, dialog);
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.output.starts_with(dialog + ": of \"\" is composed\n  in " + version + ": other ")) << run;
    EXPECT_TRUE(run.output.ends_with(": 1 differ\n")) << run;

    folder.Write(name, record);
    folder.Write("code.dlg", folder.Read("code.dlg") + "; changed\n");
    const CommandRun edited = CheckAgainst(version, dialog);
    EXPECT_EQ(edited.code, 0);
    EXPECT_NE(edited.output.find("was changed after"), std::string::npos) << edited;
    folder.Write(name, "{}");
    EXPECT_NE(CheckAgainst(version, dialog).output.find("is not in"), std::string::npos);
    folder.Write(name, "no record");
    EXPECT_EQ(CheckAgainst(version, dialog).code, 2);
}

TEST(Against, AVersionThatNobodyHasWrittenDownNothingIsCompared)
{
    const TestFolder folder;
    folder.Write("code.dlg", "");
    const CommandRun run = CheckAgainst("0.9.0", folder.Path());
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.errors.find("lytdlg of version 0.9.0 writes it, with --update"), std::string::npos) << run;
    const CommandRun writing = CheckAgainst("0.9.0", folder.Path(), {"--update"});
    EXPECT_EQ(writing.code, 2);
    EXPECT_NE(writing.errors.find("cannot know what 0.9.0 makes of a dialog"), std::string::npos) << writing;
}

} // namespace lytdlg
