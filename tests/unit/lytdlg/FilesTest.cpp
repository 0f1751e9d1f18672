// Files that cannot be read or written, and files that are somebody else's.
#include "CommandRun.h"
#include "lytdlg/text/TextFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>

namespace
{

namespace fs = std::filesystem;

constexpr const char* hint = "`lytdlg --help` lists commands and options.\n";
constexpr const char* unformatted = "$VERSION  1\n$LAYOUT S\n";

size_t CountFiles(const TestFolder& folder)
{
    return static_cast<size_t>(std::distance(fs::directory_iterator(folder.Path()), {}));
}

std::string FailureOf(const std::function<void()>& act)
{
    try
    {
        act();
    }
    catch (const std::runtime_error& failure)
    {
        return failure.what();
    }
    return "";
}

// Files take no more than so many bytes while it lives, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full = {bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_limit = {};
    void (*m_signal)(int);
};

} // namespace

TEST(Files, StayAsTheyWereOnAFullDisk)
{
    const TestFolder folder;
    const std::string kept = folder.Write("kept.txt", "before");
    static const struct
    {
        const char* file;
        void (*write)(const fs::path& name, const std::string& content);
    } writers[] = {
        {"kept.txt", lytdlg::WriteWholeFile},
        {"kept.txt",
         [](const fs::path& name, const std::string& content) { lytdlg::ReplaceWholeFile(name, "before", content); }},
        {"new.txt", lytdlg::WriteWholeFile},
        {"new.txt", lytdlg::WriteNewFile},
    };
    for (const auto& writer : writers)
    {
        const std::string name = folder.File(writer.file);
        const std::string stays = name == kept ? " and stays as it was" : "";
        std::string failure;
        {
            const FullDisk disk(100);
            failure = FailureOf([&] { writer.write(name, std::string(10000, 'x')); });
        }
        EXPECT_EQ(failure, name + " cannot be written" + stays +
                               " (File too large); make room on the disk, or choose another folder");
    }
    EXPECT_EQ(folder.Read("kept.txt"), "before");
    EXPECT_EQ(CountFiles(folder), 1U);
}

TEST(Files, TellWhatToDoAboutEachFailure)
{
    const auto told = [](std::errc reason)
    { return lytdlg::FailureToWrite("nowhere/a", std::make_error_code(reason)); };
    EXPECT_EQ(told(std::errc::no_space_on_device),
              "nowhere/a cannot be written (No space left on device); make room on the disk, or choose another folder");
    EXPECT_EQ(told(std::errc::permission_denied),
              "nowhere/a cannot be written (Permission denied); check the rights of its folder");
    EXPECT_EQ(told(std::errc::no_such_file_or_directory),
              "nowhere/a cannot be written (No such file or directory); make its folder first, or choose another");
}

TEST(Files, AreNotReplacedWhenSomebodyElseWasThere)
{
    const TestFolder folder;
    const std::string file = folder.Write("a.txt", "theirs");
    EXPECT_EQ(FailureOf([&] { lytdlg::ReplaceWholeFile(file, "before", "ours"); }),
              file + " was changed by somebody else meanwhile, and stays so; try again");
    EXPECT_EQ(FailureOf([&] { lytdlg::WriteNewFile(file, "ours"); }),
              file + " is there meanwhile, and stays as it is; choose another name");
    for (const char* device : {"/dev/full", "/dev/null", "/dev"})
        EXPECT_EQ(FailureOf([&] { lytdlg::WriteWholeFile(device, "ours"); }),
                  std::string(device) + " is no file that could be replaced; choose another");
    EXPECT_EQ(folder.Read("a.txt"), "theirs");
    EXPECT_EQ(CountFiles(folder), 1U);
}

TEST(Files, OfKnownFindingsOverwriteNothingElse)
{
    const TestFolder folder;
    const std::string dialog = folder.Write("a.dlg", unformatted);
    const CommandRun refused({"check", dialog, "--write-baseline", dialog});
    EXPECT_EQ(refused.code, 2);
    EXPECT_EQ(refused.errors, "lytdlg: \"" + dialog +
                                  "\" is no file of known findings, and stays as it is; choose another name\n" + hint);
    EXPECT_EQ(folder.Read("a.dlg"), unformatted);
    for (int times = 0; times < 2; ++times)
        EXPECT_EQ(CommandRun({"check", dialog, "--write-baseline", folder.File("known.txt")}).code, 0);
    EXPECT_EQ(CommandRun({"check", dialog, "--baseline", folder.File("known.txt")}).code, 0);
}

// Also root cannot read the memory of a process as a file.
TEST(Files, ThatCannotBeReadAreToldAndTheOthersJudged)
{
    const TestFolder folder;
    folder.Write("c.dlg", unformatted);
    folder.Write("a.dlg", unformatted);
    fs::create_symlink("/proc/self/mem", folder.File("b.dlg"));
    const std::string told = "lytdlg: cannot read " + folder.File("b.dlg") + "; check its rights\n";
    const CommandRun check({"check", folder.Path()});
    EXPECT_EQ(check.code, 1);
    EXPECT_EQ(check.errors, told);
    EXPECT_NE(check.output.find("2 descriptions judged"), std::string::npos);
    EXPECT_EQ(CommandRun({"check", folder.File("b.dlg"), "--write-baseline", folder.File("known.txt")}).code, 1);
    EXPECT_EQ(CommandRun({"fmt", folder.Path()}),
              CommandRun(1, folder.File("a.dlg") + ": formatted\n" + folder.File("c.dlg") + ": formatted\n", told));
    EXPECT_EQ(CommandRun({"graph", folder.File("b.dlg")}), CommandRun(1, "", told));
}

TEST(Files, ThatAreDevicesOrPipesAreRefused)
{
    const TestFolder folder;
    const std::string dialog = folder.Write("a.dlg", unformatted);
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& name : {pipe, std::string("/dev/zero")})
    {
        for (const auto& words : std::vector<std::vector<std::string>>{{"check", name},
                                                                       {"fmt", name},
                                                                       {"graph", name},
                                                                       {"run", name},
                                                                       {"run", dialog, "--script", name},
                                                                       {"roundtrip", dialog, "--inputs", name},
                                                                       {"check", dialog, "--baseline", name},
                                                                       {"test", name}})
        {
            const CommandRun run(words);
            EXPECT_EQ(run.code, 2) << words.front() << run;
            EXPECT_NE(run.errors.find(name), std::string::npos) << words.front() << run;
        }
    }
}

TEST(Files, OfDialogsBegunSideBySideLoseNothing)
{
    constexpr int many = 12;
    const TestFolder folder;
    for (int number = 0; number < many; ++number)
    {
        if (fork() == 0)
            _exit(lytdlg::Run({"new", "dialog" + std::to_string(number), "-o", folder.Path()}));
    }
    for (int number = 0; number < many; ++number)
    {
        int status = 1;
        wait(&status);
        EXPECT_EQ(status, 0);
    }
    const std::string texts = folder.Read("lang/English.nls");
    for (int number = 0; number < many; ++number)
        EXPECT_NE(texts.find("[dialog" + std::to_string(number) + "]"), std::string::npos) << number;
}
