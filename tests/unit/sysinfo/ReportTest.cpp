// The frame of the report: its lines as they are read, and the places that it looks at.
#include "sysinfo/frame/Report.h"
#include "sysinfo/frame/ReportFrame.h"

#include "environment/ClytEnvironment.h"
#include "support/Cases.h"

#include <cerrno>

namespace
{

class ReportRead : public testing::Test
{
protected:
    ReportRead()
    {
        lytEnvironment.lytReportLines.RemoveAll();
        for (const char* line : {"zero", "one", "two", "three"})
            AddReportLine(line);
    }
    ~ReportRead() override { lytEnvironment.lytReportLines.RemoveAll(); }

    static std::string Line(int index)
    {
        char target[16] = "untouched";
        const int read = lytReadReportLine(index, target, sizeof target);
        return std::to_string(read) + ":" + target;
    }
    // A target of that size, all of it, after a line was read into it.
    static std::string Target(int index, int size)
    {
        std::string target(static_cast<size_t>(size) + 1, '#');
        EXPECT_EQ(lytReadReportLine(index, target.data(), size), 1);
        EXPECT_EQ(target.back(), '#');
        target.pop_back();
        return target;
    }
    static int Count() { return lytEnvironment.lytReportLines.GetLines().GetCount(); }
};

std::string Joined(const std::vector<CString>& texts)
{
    std::string joined;
    for (const CString& text : texts)
        joined += text + "|";
    return joined;
}

} // namespace

TEST_F(ReportRead, DeliversEachLineByItsIndexInAnyOrder)
{
    static const char* const texts[] = {"1:zero", "1:one", "1:two", "1:three"};
    for (const int index : {0, 1, 2, 3, 3, 2, 0, 3, 1, 1, 0})
        EXPECT_EQ(Line(index), texts[index]);
    EXPECT_EQ(Count(), 4) << "nobody read past the end";
}

TEST_F(ReportRead, FreesTheStorePastTheEndAndStartsAfresh)
{
    for (const int outside : {4, -1})
    {
        EXPECT_EQ(Line(outside), "0:untouched");
        EXPECT_EQ(Count(), 0);
        for (const int index : {0, 3})
            EXPECT_EQ(Line(index), "0:untouched");
        AddReportLine("fresh");
        EXPECT_EQ(Line(0), "1:fresh");
    }
    lytEnvironment.Reset();
    EXPECT_EQ(Line(0), "0:untouched");
}

TEST_F(ReportRead, ReachesLinesAddedAfterTheLastRead)
{
    EXPECT_EQ(Line(3), "1:three");
    CStringList lines;
    lines.AddTail("four");
    lines.AddTail("");
    AddReportLines(lines);
    EXPECT_EQ(Line(4), "1:four");
    EXPECT_EQ(Line(5), "1:");
}

TEST_F(ReportRead, CutsALineToTheTargetWhoseLastByteBecomesZero)
{
    using namespace std::string_literals;
    EXPECT_EQ(Target(3, 5), "thre\0"s);
    EXPECT_EQ(Target(0, 1), "\0"s);
    EXPECT_EQ(Target(1, 16), "one\0###########\0"s);
    AddReportLine(CString('x', 300));
    EXPECT_EQ(Target(4, 256), std::string(255, 'x') + '\0');
}

TEST_F(ReportRead, AnswersAMissingTargetBeforeAnythingElse)
{
    char target[4] = "abc";
    EXPECT_EQ(lytReadReportLine(0, nullptr, 10), 0);
    EXPECT_EQ(lytReadReportLine(9, target, 0), 0);
    EXPECT_EQ(lytReadReportLine(9, target, -1), 0);
    EXPECT_STREQ(target, "abc");
    EXPECT_EQ(Count(), 4);
}

TEST(SearchDirectories, AreThoseOfThePathAndTheInstallation)
{
    static const struct
    {
        const char* path;
        const char* installation;
        const char* directories;
    } cases[] = {
        {"C:\\Windows;C:\\Tools\\", "C:\\Lyt\\", "c:\\windows|c:\\tools\\|c:\\lyt|"},
        {"Value not set.", "C:\\Lyt\\", "value not set.|c:\\lyt|"},
        // Nothing is appended that the path holds already, in any case and as any part.
        {"C:\\WINDOWS;c:\\lYT", "C:\\Lyt\\", "c:\\windows|c:\\lyt|"},
        {"C:\\LytTools\\bin", "C:\\Lyt\\", "c:\\lyttools\\bin|"},
        // An empty piece ends the walk, a separator at the end adds none.
        {"C:\\a;;C:\\b", "C:\\b", "c:\\a|;c:\\b|"},
        {";C:\\a;C:\\b", "C:\\b", ";c:\\a;c:\\b|"},
        {"C:\\a;C:\\b;", "C:\\b\\", "c:\\a|c:\\b|"},
        {"C:\\a;", "C:\\b\\", "c:\\a|;c:\\b|"},
        // Of the installation one separator is cut off.
        {"C:\\a", "C:\\b\\\\", "c:\\a|c:\\b\\|"},
        {"C:\\a", "\\", "c:\\a|"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Joined(SearchDirectories(c.path, c.installation)), c.directories) << c.path;
}

TEST(IniAccess, WordsEachReason)
{
    EXPECT_EQ(IniAccessLine(EACCES, "C:\\lyt.ini"), "Error: Access denied: C:\\lyt.ini");
    EXPECT_EQ(IniAccessLine(ENOENT, "C:\\lyt.ini"), "Error: File name or path not found: C:\\lyt.ini");
    EXPECT_EQ(IniAccessLine(EINVAL, "C:\\lyt.ini"), "Internal Error checking LYT.INI: C:\\lyt.ini");
}

TEST(VersionTexts, AreJoinedByASemicolonAndABlank)
{
    ExpectEach([](const std::string& text) { return Joined(VersionTexts(text.c_str())); },
               {{"", ""}, {"16.0", "16.0|"}, {"8.0; 16.0; 16.0", "8.0|16.0|16.0|"}});
}
