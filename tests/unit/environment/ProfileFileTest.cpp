// Tables of cases for the platform's profile functions and for the native substitute: natively these tests show that
// the substitute answers like the platform, on Windows that the table is right.
#include "environment/ProfileFile.h"

#include "support/TestFolder.h"
#include "unit/Readings.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>

namespace
{

using namespace std::string_literals;

constexpr const char* defaultText = "default";

std::string ReadText(const std::string& content, const char* section, const char* key, int size = 75)
{
    const TestFolder folder;
    return lytReadProfileText(section, key, defaultText, size, folder.Write("test.ini", content).c_str()).GetString();
}

// The value that the text after `k=` reads as.
std::string ReadValue(const std::string& value)
{
    return ReadText("[s]\r\na=1\r\nk=" + value + "\r\nz=2\r\n", "s", "k");
}

// A line and a key: what is read of the key below the line.
std::string ReadKey(const std::string& text)
{
    const std::vector<std::string> columns = ColumnsOf(text);
    return ReadText("[s]\r\n" + columns.at(0) + "\r\nz=2\r\n", "s", columns.at(1).c_str());
}

// The line of a section, and its name.
std::string ReadBelow(const std::string& text)
{
    const std::vector<std::string> columns = ColumnsOf(text);
    return ReadText("[first]\r\na=1\r\n" + columns.at(0) + "\r\nk=v\r\n", columns.at(1).c_str(), "k");
}

// A file, its section and the key.
std::string ReadFromFile(const std::string& text)
{
    const std::vector<std::string> columns = ColumnsOf(text);
    return ReadText(columns.at(0), columns.at(1).c_str(), columns.at(2).c_str());
}

// The default of a missing value; an empty one has none.
std::string ReadDefault(const std::string& given)
{
    const TestFolder folder;
    const std::string file = folder.Write("test.ini", "[s]\r\nempty=\r\n");
    EXPECT_EQ(lytReadProfileText("s", "empty", given.c_str(), 75, file.c_str()), "");
    return lytReadProfileText("s", "k", given.c_str(), 75, file.c_str()).GetString();
}

// What the buffer holds of the section, without the lines' last NUL, after their count; a `|` is each NUL between lines.
std::string ReadSection(const std::string& content, const std::string& section, int size)
{
    constexpr size_t guardLength = 16;
    const TestFolder folder;
    std::string buffer(static_cast<size_t>(size) + guardLength, '#');
    const int count =
        lytReadProfileSection(section.c_str(), buffer.data(), size, folder.Write("test.ini", content).c_str());
    EXPECT_EQ(buffer.substr(static_cast<size_t>(size)), std::string(guardLength, '#'));

    const size_t end = buffer.find("\0\0"s);
    EXPECT_LE(end, static_cast<size_t>(size));
    std::string lines = buffer.substr(0, end);
    std::ranges::replace(lines, '\0', '|');
    return std::to_string(count) + " " + lines;
}

// A file, its section and the size of the buffer.
std::string ReadLines(const std::string& text)
{
    const std::vector<std::string> columns = ColumnsOf(text);
    return ReadSection(columns.at(0), columns.at(1), std::stoi(columns.at(2)));
}

// A section and the file before the value is written: the file after it.
std::string Write(const std::string& text)
{
    const std::vector<std::string> columns = ColumnsOf(text);
    const TestFolder folder;
    const std::string file = folder.Write("test.ini", columns.at(1));
    EXPECT_TRUE(::WritePrivateProfileStringA(columns.at(0).c_str(), "k", "v", file.c_str()));
    return folder.Read("test.ini");
}

} // namespace

TEST(Profile, ReadsAsTheTablesSay)
{
    static const std::string file = "environment/profile.cases";
    ExpectReadings(file, "Value", ReadValue);
    ExpectReadings(file, "Key", ReadKey);
    ExpectReadings(file, "SectionName", ReadBelow);
    ExpectReadings(file, "Text", ReadFromFile);
    ExpectReadings(file, "Default", ReadDefault);
    ExpectReadings(file, "Lines", ReadLines);
    ExpectReadings(file, "Written", Write);
}

TEST(ProfileText, GivesTheDefaultWhenSomethingIsMissing)
{
    const TestFolder folder;
    const std::string& path = folder.Path();
    EXPECT_EQ(lytReadProfileText("s", "k", "no file", 75, (path + "\\none.ini").c_str()), "no file");
    EXPECT_EQ(lytReadProfileText("s", "k", "no folder", 75, (path + "\\none\\none.ini").c_str()), "no folder");
    EXPECT_EQ(lytReadProfileText("s", "k", "a folder", 75, path.c_str()), "a folder");
    EXPECT_EQ(lytReadProfileText("s", "k", "no name", 75, ""), "no name");
}

TEST(ProfileText, CutsAValueToOneByteLessThanTheBuffer)
{
    static const struct
    {
        size_t length;
        int size;
        size_t read;
    } cases[] = {
        {73, 75, 73},       {74, 75, 74},       {75, 75, 74}, {3000, 75, 74}, {1022, 1024, 1022}, {1023, 1024, 1023},
        {1024, 1024, 1023}, {3000, 1024, 1023}, {5, 6, 5},    {5, 5, 4},      {5, 2, 1},          {5, 1, 0},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.length);
        EXPECT_EQ(ReadText("[s]\r\nk=" + std::string(c.length, 'x') + "\r\n", "s", "k", c.size),
                  std::string(c.read, 'x'));
    }
}

TEST(ProfileText, CutsAfterTheOpeningQuoteAndKeepsInnerBlanks)
{
    const std::string text(80, 'x');
    EXPECT_EQ(ReadValue("\"" + text + "\""), text.substr(0, 74));
    EXPECT_EQ(ReadValue(text.substr(0, 73) + "   y"), text.substr(0, 73) + " ");
}

TEST(ProfileText, FindsLongNamesAndLateKeys)
{
    const std::string name(300, 'n');
    EXPECT_EQ(ReadText("[" + name + "]\r\n" + name + "=v\r\n", name.c_str(), name.c_str()), "v");

    std::string lines = "[s]\r\n";
    for (int i = 0; i < 2000; ++i)
        lines += "k" + std::to_string(i) + "=" + std::string(50, 'q') + "\r\n";
    EXPECT_EQ(ReadText(lines + "last=v\r\n", "s", "last"), "v");
}

TEST(ProfileSection, IsEmptyWhenSomethingIsMissing)
{
    char buffer[] = "#####";
    const TestFolder folder;
    EXPECT_EQ(lytReadProfileSection("s", buffer, 3, (folder.Path() + "\\none.ini").c_str()), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(lytReadProfileSection("s", buffer, 3, folder.Path().c_str()), 0);
}

TEST(ProfileSection, ReportsTheCutOfALargeSectionAsTwoLessThanTheBuffer)
{
    for (const size_t length : {2042, 2043, 2044, 2045, 2046, 5000})
    {
        SCOPED_TRACE(length);
        EXPECT_EQ(ReadSection("[s]\r\na=" + std::string(length, 'x') + "\r\n", "s", 2048),
                  (length == 2042 ? "2045 a=" : "2046 a=") + std::string(std::min<size_t>(length, 2044), 'x'));
    }
}
