#include "environment/LogFile.h"

#include "support/LanguageFolder.h"
#include "support/RaisedMessage.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <regex>

namespace fs = std::filesystem;

namespace
{

// The log of a document in a separate folder, which is the current one.
class Log : public testing::Test
{
protected:
    Log() { fs::current_path(folder.Path()); }
    ~Log() override { fs::current_path(before); }

    void SetLevel(const std::string& level) const { folder.WriteIni("[LogLevel]\r\nlevel=" + level + "\r\n"); }

    static void WriteMessage(const char* text, int level = 1) { lytWriteToLog(text, level); }
    size_t CountBlocks(const std::string& name) const
    {
        const std::string text = folder.Read(name);
        const std::regex start("START\\.\\.\\.");
        return static_cast<size_t>(
            std::distance(std::sregex_iterator(text.begin(), text.end(), start), std::sregex_iterator()));
    }
    size_t CountFiles() const
    {
        return static_cast<size_t>(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()));
    }

    const fs::path before = fs::current_path();
    const LanguageFolder folder{"[Dialog_Error]\r\n207=open ''\r\n208=write ''\r\n209=close ''\r\n"};
};

} // namespace

TEST_F(Log, IsNotCreatedWithoutALevel)
{
    lytEnvironment.SetDocName("doc.rtf");
    const size_t files = CountFiles();
    WriteMessage("text", 0);
    SetLevel("0");
    WriteMessage("text", 0);
    SetLevel("loud");
    WriteMessage("text", -1);
    EXPECT_EQ(CountFiles(), files);
}

TEST_F(Log, TakesALevelOutOfRangeForTheHighest)
{
    SetLevel("4294967296");
    lytEnvironment.SetDocName("doc.rtf");
    WriteMessage("a detail", 100);
    EXPECT_NE(folder.Read("doc.log").find("a detail"), std::string::npos);
}

TEST_F(Log, GrowsWithASecondMessage)
{
    SetLevel("1");
    lytEnvironment.SetDocName("doc.rtf");
    folder.Write("doc.log", "what was there\r\n");
    WriteMessage("first");
    WriteMessage("second");
    const std::string text = folder.Read("doc.log");
    EXPECT_EQ(text.find("what was there\r\n\r\n---"), 0U);
    EXPECT_LT(text.find("\r\nfirst\r\n"), text.find("\r\nsecond\r\n"));
    EXPECT_EQ(CountBlocks("doc.log"), 2U);
}

TEST_F(Log, IsNamedByTheDocumentUpToTheFirstDotOfThePath)
{
    SetLevel("1");
    static const struct
    {
        const char* document;
        const char* log;
    } cases[] = {
        {"doc.rtf", "doc.log"},    {"a.b.rtf", "a.log"},      {"sub\\doc.rtf", "sub/doc.log"},
        {"c.d\\doc.rtf", "c.log"}, {"folder\\nodot", ".log"}, {"nodot", ".log"},
    };
    fs::create_directory("sub");
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.document);
        fs::remove(c.log);
        lytEnvironment.SetDocName(c.document);
        WriteMessage("text");
        EXPECT_EQ(CountBlocks(c.log), 1U);
    }
}

TEST_F(Log, OfAFolderWithADotStandsBesideThatFolder)
{
    SetLevel("1");
    fs::create_directory("a.b");
    lytEnvironment.SetDocName((folder.Path() + "\\a.b\\doc.rtf").c_str());
    WriteMessage("text");
    EXPECT_EQ(CountBlocks("a.log"), 1U);
}

TEST_F(Log, OfNoDocumentIsDotLogInTheCurrentFolder)
{
    SetLevel("1");
    lytEnvironment.SetDocName("");
    WriteMessage("text");
    EXPECT_EQ(CountBlocks(".log"), 1U);
}

TEST_F(Log, LeavesOutMessagesAboveItsLevel)
{
    SetLevel("2");
    lytEnvironment.SetDocName("doc.rtf");
    WriteMessage("at the level", 2);
    WriteMessage("below", 0);
    WriteMessage("above", 3);
    const std::string text = folder.Read("doc.log");
    EXPECT_NE(text.find("at the level"), std::string::npos);
    EXPECT_NE(text.find("below"), std::string::npos);
    EXPECT_EQ(text.find("above"), std::string::npos);
    EXPECT_EQ(CountBlocks("doc.log"), 2U);
}

TEST_F(Log, TakesANegativeLevelAsALevel)
{
    SetLevel("-1");
    lytEnvironment.SetDocName("doc.rtf");
    WriteMessage("minus one", -1);
    WriteMessage("zero", 0);
    EXPECT_EQ(CountBlocks("doc.log"), 1U);
    EXPECT_NE(folder.Read("doc.log").find("minus one"), std::string::npos);
    EXPECT_EQ(folder.Read("doc.log").find("zero"), std::string::npos);
}

TEST_F(Log, KeepsTheTextAsItStandsButForLineEnds)
{
    SetLevel("1");
    lytEnvironment.SetDocName("doc.rtf");
    WriteMessage("  %s\tone\ntwo\r\n\xE4  ");
    EXPECT_NE(folder.Read("doc.log").find("\r\n\r\n  %s\tone\r\ntwo\r\r\n\xE4  \r\n---"), std::string::npos);
}

TEST_F(Log, WritesMoreThanAStreamHoldsBack)
{
    SetLevel("1");
    lytEnvironment.SetDocName("doc.rtf");
    const std::string text(100'000, 'x');
    WriteMessage(text.c_str());
    EXPECT_NE(folder.Read("doc.log").find("\r\n\r\n" + text + "\r\n---"), std::string::npos);
}

TEST_F(Log, Raises207WhenAFolderStandsInItsPlace)
{
    SetLevel("1");
    fs::create_directory("doc.log");
    lytEnvironment.SetDocName("doc.rtf");
    EXPECT_EQ(RaisedMessage([] { WriteMessage("text"); }), "Access was denied: doc.log\nopen 'doc.log'");
}

TEST_F(Log, RaisesTheInvalidArgumentExceptionForATimeWithoutADate)
{
    EXPECT_EQ(RaisedMessage([] { lytLogBannerLine("START...  ", std::numeric_limits<std::time_t>::max()); }),
              "An argument is missing or out of range.");
}

TEST_F(Log, TellsDateAndTimeOfItsBanners)
{
    EXPECT_TRUE(std::regex_match(lytLogBannerLine("END...    ", 1'000'000'000).GetString(),
                                 std::regex("END\\.\\.\\.    Date 09/0[89]/01           Time \\d\\d:\\d\\d:40\n")));
}
