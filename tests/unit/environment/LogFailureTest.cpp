// A log whose device is full, and one whose file may not grow. Windows has no such means, so these tests run natively.
#include "environment/LogFile.h"

#include "support/LanguageFolder.h"
#include "support/RaisedMessage.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace fs = std::filesystem;

namespace
{

// While it lives, no file of this process grows beyond a size.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

class LogFailure : public testing::Test
{
protected:
    LogFailure()
    {
        fs::current_path(folder.Path());
        lytEnvironment.SetDocName("doc.rtf");
    }
    ~LogFailure() override { fs::current_path(before); }

    static std::string Write(const std::string& text)
    {
        return RaisedMessage([&] { lytWriteToLog(text.c_str(), 1); });
    }
    static size_t CountOpenFiles()
    {
        return static_cast<size_t>(std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
    }

    const fs::path before = fs::current_path();
    const LanguageFolder folder{"[Dialog_Error]\r\n207=open ''\r\n208=write ''\r\n209=close ''\r\n",
                                "[LogLevel]\r\nlevel=1\r\n"};
    const size_t openFiles = CountOpenFiles();
};

} // namespace

TEST_F(LogFailure, OfWritingRaises208AndClosesTheFile)
{
    fs::create_symlink("/dev/full", "doc.log");
    const char* const message = "The disk is full: doc.log\nwrite 'doc.log'";
    EXPECT_EQ(Write("held back until the next step"), message);
    EXPECT_EQ(Write(std::string(100'000, 'x')), message);
    EXPECT_EQ(CountOpenFiles(), openFiles);
}

TEST_F(LogFailure, InTheMiddleOfABlockRaises208AndClosesTheFile)
{
    const FileSizeLimit limit(300); // room for the START banner and the text
    EXPECT_EQ(Write("text"), "The file could not be read or written: doc.log\nwrite 'doc.log'");
    EXPECT_EQ(CountOpenFiles(), openFiles);
}
