// Reports as texts: their blocks, what differs between two, and saved ones.
#include "lytcall/ReportText.h"

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

// The mark and each byte as a number of two bytes.
std::string InUtf16(const std::string& ascii, bool isLowFirst)
{
    std::string bytes = isLowFirst ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : ascii)
        bytes += isLowFirst ? std::string{c, '\0'} : std::string{'\0', c};
    return bytes;
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

TEST(SavedReport, IsReadInEachFormThatItIsSavedIn)
{
    const std::string text = lytcall::TextOf(Report());
    for (const std::string& bytes :
         {text, "\xEF\xBB\xBF" + text, InUtf16(text, true), InUtf16(text, false),
          lytcall::JsonOf(lytcall::CutReport(Report())), InUtf16(lytcall::JsonOf(lytcall::CutReport(Report())), true)})
        EXPECT_EQ(lytcall::ReadSavedReport(bytes), Report()) << bytes;
}

TEST(SavedReport, KeepsTheLettersOfUtf16)
{
    // U+00E4, U+20AC and U+1F600, which takes two numbers.
    const std::string name("\xE4\0\xAC\x20\x3D\xD8\0\xDE", 8);
    const auto lines = lytcall::ReadSavedReport(InUtf16("Printers\nFile Information:\n", true) + name);
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->back(), "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(SavedReport, IsNothingThatIsNoReport)
{
    for (const char* bytes :
         {"", "a text\nof lines\n", "{}", "[1, 2]", R"({"blocks": 1})", R"({"blocks": [{"lines": 2}]})",
          R"({"blocks": [1]})", R"({"verdict": "good", "observations": []})", "\xFF\xFE", "\xFF\xFE\x01"})
        EXPECT_FALSE(lytcall::ReadSavedReport(bytes)) << bytes;
}
