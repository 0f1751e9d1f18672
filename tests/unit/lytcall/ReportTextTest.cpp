// Reports as texts: their blocks, what differs between two, and names taken out.
#include "lytcall/Redaction.h"
#include "lytcall/ReportDifference.h"

#include <gtest/gtest.h>

using lytcall::ReportLines;

namespace
{

ReportLines Report()
{
    return {"",
            "Memory in use: 40 %",
            "CPU Speed : 2000",
            "Printers",
            "  Printer: Office on LPT1:",
            "PATH    :C:\\Users\\jsmith\\bin;\\\\depot\\tools",
            "COMPUTERNAME:DESK-7",
            "USERNAME:jsmith",
            "File Information:",
            "GUI-HOME                       : C:\\gui",
            "Word 16.0 User Template Dir     : C:\\tpl",
            "Word 16.0 Macro Security        : 2",
            "Word 16.0 User Template Dir     : C:\\tpl",
            "LOCALE.USER.LANGUAGE = 1033",
            "LOCALE.USER.COUNTRY = US"};
}

std::string Outline(const ReportLines& lines)
{
    std::string outline;
    for (const lytcall::ReportBlock& block : lytcall::CutReport(lines))
        outline += block.title + " " + std::to_string(block.lines.size()) + "; ";
    return outline;
}

std::string Redacted(const std::string& line)
{
    ReportLines lines = Report();
    lines.push_back(line);
    return lytcall::Redacted(lines).back();
}

} // namespace

TEST(ReportText, IsCutIntoItsBlocks)
{
    EXPECT_EQ(Outline(Report()),
              "The program and Windows 3; Printers 2; The workstation 3; LYT's files and versions 2; "
              "Word 16.0 2; Word 16.0 1; Locale and languages 2; ");
    EXPECT_EQ(Outline({}), "The program and Windows 0; ");
}

TEST(ReportText, BecomesJson)
{
    EXPECT_EQ(
        lytcall::JsonOf({{"A \"b\"", {"C:\\x\t", "\xC3\xA4"}}, {"C", {}}}),
        "{\"blocks\": [\n  {\"title\": \"A \\\"b\\\"\", \"lines\": [\n    \"C:\\\\x\\u0009\",\n    \"\xC3\xA4\"]},\n"
        "  {\"title\": \"C\", \"lines\": []}]}\n");
}

TEST(ReportDifference, IsEmptyBetweenEqualReports)
{
    const lytcall::ReportDifference difference = lytcall::CompareReports(Report(), Report());
    EXPECT_EQ(difference.text, "");
    EXPECT_EQ(difference.lines, 0U);
}

TEST(ReportDifference, TellsBlockByBlockWhatChangedWasAddedAndTakenAway)
{
    ReportLines other = Report();
    other[4] = "  Printer: Archive on LPT1:";
    other[9] = "GUI-HOME                       : C:\\other";
    other.erase(other.begin() + 12);
    other.push_back("LOCALE.USER.LANGUAGE = 1031");
    const lytcall::ReportDifference difference = lytcall::CompareReports(Report(), other);
    EXPECT_EQ(difference.text, "Printers\n  -   Printer: Office on LPT1:\n  +   Printer: Archive on LPT1:\n"
                               "LYT's files and versions\n"
                               "  - GUI-HOME                       : C:\\gui\n"
                               "  + GUI-HOME                       : C:\\other\n"
                               "Word 16.0 (2)\n  - Word 16.0 User Template Dir     : C:\\tpl\n"
                               "Locale and languages\n  + LOCALE.USER.LANGUAGE = 1031\n");
    EXPECT_EQ(difference.lines, 6U);
    EXPECT_EQ(difference.fromRunToRun, 0U);
}

TEST(ReportDifference, SetsLinesApartThatDifferFromRunToRun)
{
    ReportLines other = Report();
    other[1] = "Memory in use: 41 %";
    const lytcall::ReportDifference difference = lytcall::CompareReports(Report(), other);
    EXPECT_EQ(difference.text, "Lines that differ from run to run\n  - Memory in use: 40 %\n  + Memory in use: 41 %\n");
    EXPECT_EQ(difference.lines, 0U);
    EXPECT_EQ(difference.fromRunToRun, 2U);
}

TEST(ReportDifference, PaysNoHeedToTheOrderInABlock)
{
    ReportLines other = Report();
    std::swap(other[13], other[14]);
    EXPECT_EQ(lytcall::CompareReports(Report(), other).text, "");
}

TEST(Redaction, ReplacesEachNameByTheSameWord)
{
    static const struct
    {
        const char* line;
        const char* redacted;
    } cases[] = {
        {"USERNAME:jsmith", "USERNAME:USER"},
        {"C:\\Users\\JSmith\\x", "C:\\Users\\USER\\x"},
        {"C:\\Users\\JSMITH~1\\x", "C:\\Users\\USER1\\x"},
        {"C:\\Users\\Public\\x", "C:\\Users\\Public\\x"},
        {"jsmithson and jsmith.", "jsmithson and USER."},
        {"\\\\desk-7\\share", "\\\\MACHINE\\share"},
        {"\\\\depot\\a \\\\DEPOT\\b \\\\other\\c", "\\\\SERVER1\\a \\\\SERVER1\\b \\\\SERVER2\\c"},
        {"  Network Printer: Big on attic", "  Network Printer: Big on SERVER2"},
        {"C:\\\\twice", "C:\\\\twice"},
        {"", ""},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(Redacted(c.line), c.redacted);
    }
}
