#include "LogFixture.h"

#include <filesystem>
#include <regex>

namespace fs = std::filesystem;

namespace
{

// One message of a log, as a pattern.
std::string Block(const std::string& text)
{
    const std::string rule(77, '-');
    const std::string moment = "Date \\d\\d/\\d\\d/\\d\\d           Time \\d\\d:\\d\\d:\\d\\d\r\n";
    return "\r\n" + rule + "\r\nSTART\\.\\.\\.  " + moment + rule + "\r\n\r\n" + text + "\r\n" + rule +
           "\r\nEND\\.\\.\\.    " + moment + "\r\n";
}

bool IsLog(const std::string& log, const std::string& pattern)
{
    return std::regex_match(log, std::regex(pattern));
}

} // namespace

TEST_F(LogFile, GetsAMessageUpToItsLevel)
{
    static const struct
    {
        const char* level;
        int messageLevel;
        bool isWritten;
    } cases[] = {
        {"0", 0, false}, {"0", -1, false}, {"loud", -1, false}, {"2", 3, false},           {"2", 2, true},
        {"2", 0, true},  {"-1", -1, true}, {"-1", 0, false},    {"4294967296", 100, true},
    };
    writeToLog("without a level", 0);
    EXPECT_FALSE(folder.Has("doc.log"));
    for (const auto& c : cases)
    {
        SCOPED_TRACE(testing::Message() << c.level << " " << c.messageLevel);
        // The level is read again for each message.
        SetLevel(c.level);
        writeToLog("text", c.messageLevel);
        EXPECT_EQ(fs::remove(folder.Path() + "/doc.log"), c.isWritten);
    }
}

TEST_F(LogFile, GetsABlockForEachMessageAfterWhatIsThere)
{
    SetLevel("2");
    folder.Write("doc.log", "what was there\r\n");
    writeToLog("first", 2);
    writeToLog(nullptr, 1);
    // The text is kept as it is, but for its line ends.
    writeToLog("  %s\tone\ntwo\r\n\xE4  ", 1);
    EXPECT_TRUE(IsLog(folder.Read("doc.log"),
                      "what was there\r\n" + Block("first") + Block("") + Block("  %s\tone\r\ntwo\r\r\n\xE4  ")))
        << folder.Read("doc.log");
}

TEST_F(LogFile, HoldsMoreThanAStreamHoldsBack)
{
    SetLevel("1");
    const std::string text(100'000, 'x');
    writeToLog(text.c_str(), 1);
    EXPECT_NE(folder.Read("doc.log").find("\r\n\r\n" + text + "\r\n---"), std::string::npos);
}

TEST_F(LogFile, IsNamedByTheDocumentUpToTheFirstDotOfThePath)
{
    static const struct
    {
        const char* document;
        const char* log;
    } cases[] = {
        {"doc.rtf", "doc.log"},
        {"a.b.rtf", "a.log"},
        {"sub\\doc.rtf", "sub/doc.log"},
        {"c.d\\doc.rtf", "c.log"},
        {"folder\\nodot", ".log"},
        {"nodot", ".log"},
        {"", ".log"},
    };
    SetLevel("1");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    fs::create_directory("sub");
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.document);
        initialise(c.document, folder.Path().c_str(), folder.Path().c_str());
        writeToLog("text", 1);
        EXPECT_TRUE(IsLog(folder.Read(c.log), Block("text")));
        fs::remove(c.log);
    }
    fs::current_path(before);
}

TEST_F(LogFile, OfAFolderWithADotIsBesideThatFolder)
{
    SetLevel("1");
    SetDocument("a.b\\doc.rtf");
    writeToLog("text", 1);
    EXPECT_TRUE(folder.Has("a.log"));
}

TEST_F(LogFile, ThatCannotBeOpenedRaises207ToTheCaller)
{
    SetLevel("1");
    WriteTexts("[Dialog_Error]\r\n207=open ''\r\n");
    for (int i = 0; i < 100; ++i)
    {
        initialise("none\\doc.rtf", folder.Path().c_str(), folder.Path().c_str());
        EXPECT_EQ(Failure("text", 1), "The file was not found: none\\doc.log\nopen 'none\\doc.log'");
    }
    SetDocument("doc.rtf");
    EXPECT_EQ(Failure("text", 1), "");
    EXPECT_TRUE(folder.Has("doc.log"));
    fs::create_directory(folder.Path() + "/taken.log");
    SetDocument("taken.rtf");
    EXPECT_EQ(Failure("text", 1).substr(0, 19), "Access was denied: ");
}
