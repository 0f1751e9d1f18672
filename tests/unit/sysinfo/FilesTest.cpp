// The lines on files: listings, sections of lyt.ini, shell commands and the registry.
#include "sysinfo/files/FileListing.h"
#include "sysinfo/files/IniSection.h"
#include "sysinfo/files/ShellCommand.h"
#include "sysinfo/frame/RegistryDump.h"

#include "environment/ClytINISection.h"
#include "environment/LocalTime.h"
#include "support/Cases.h"
#include "support/TestFolder.h"

#include <cerrno>

namespace
{

using namespace std::string_literals;

std::string Text(const std::optional<CString>& line)
{
    return line ? line->GetString() : "none";
}

std::tm Date(int year)
{
    std::tm time = {};
    time.tm_year = year - 1900;
    time.tm_mon = 1;
    time.tm_mday = 3;
    time.tm_hour = 4;
    return time;
}

std::string Format(const std::tm& time)
{
    char text[128] = "";
    std::strftime(text, sizeof text, "%c", &time);
    return text;
}

// The lines of a section, each ended by a bar.
std::string ConvertSection(const std::string& content)
{
    const TestFolder folder;
    ClytINISection section(folder.Write("test.ini", content).c_str(), "Convert");
    section.Read();
    std::string shown;
    for (const CString& line : IniSectionLines(section))
        shown += line + "|";
    return shown;
}

std::string Command(const ShellCommandFacts& facts)
{
    return Text(ShellCommandLine("printto", facts));
}

// What is after the head of a value of that type.
std::string Worded(unsigned type, const std::string& data)
{
    const std::string line = ValueLine("key", {"v", type, data}).GetString();
    const std::string head = "  key/v" + std::string(40, ' ') + " : ";
    EXPECT_EQ(line.substr(0, head.size()), head);
    return line.substr(head.size());
}

} // namespace

TEST(FileListing, HasALineForAFileAndForADirectoryWhenTheMaskHasNoDot)
{
    static const struct
    {
        const char* directory;
        const char* mask;
        FileEntry entry;
        const char* line;
    } cases[] = {
        {"C:\\lyt\\",
         "*.*",
         {"a.dll", false, 1234, "d"},
         "  C:\\lyt\\a.dll                   Size:       1234 Date: d"},
        {"", "*.*", {"a.dll", false, 0, ""}, "  a.dll                          Size:          0 Date: "},
        {"C:\\a long name of a directory\\",
         "*",
         {"file.txt", false, 4294967295U, "d"},
         "  C:\\a long name of a directory\\file.txt Size: 4294967295 Date: d"},
        {"C:\\lyt\\", "*", {"sub", true, 0, "d"}, "  C:\\lyt\\sub"},
        {"", "lyt", {"lyt", true, 0, "d"}, "  lyt"},
        {"C:\\", "*", {"...", true, 0, ""}, "  C:\\..."},
        {"C:\\lyt\\", "*.*", {"sub", true, 0, "d"}, "none"},
        {"C:\\lyt\\", "lyt*.dot", {"sub", true, 0, "d"}, "none"},
        {"C:\\", "*", {".", true, 0, ""}, "none"},
        {"C:\\", "*", {"..", false, 0, ""}, "none"},
        {"C:\\", "*.*", {".", false, 0, ""}, "none"},
        {"C:\\", "*.*", {"..", true, 0, ""}, "none"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Text(FileLine(c.directory, c.mask, c.entry)), c.line);
    EXPECT_TRUE(IsSubdirectory({"sub", true, 0, ""}));
    EXPECT_FALSE(IsSubdirectory({"sub", false, 0, ""}));
    EXPECT_FALSE(IsSubdirectory({".", true, 0, ""}));
    EXPECT_FALSE(IsSubdirectory({"..", true, 0, ""}));
}

TEST(FileListing, WordsDatesAsTheRuntimeDoes)
{
    for (const int year : {1900, 1969, 2026, 9999})
        EXPECT_EQ(FileDateText(Date(year)), Format(Date(year)).c_str());
    std::tm zero = {};
    ASSERT_TRUE(lytLocalTimeOf(0, zero));
    for (const int year : {1899, 1601, 0})
        EXPECT_EQ(FileDateText(Date(year)), Format(zero).c_str()) << "the time value 0 means " << year;
    for (const int year : {10000, 30827})
        EXPECT_EQ(FileDateText(Date(year)), "") << "the runtime refuses " << year;
}

TEST(DirectoryAccess, IsToldWhenTheDirectoryIsMissingOrShut)
{
    EXPECT_EQ(Text(DirectoryAccessLine(ENOENT, "C:\\none")), "Directory 'C:\\none' does not exist!");
    EXPECT_EQ(Text(DirectoryAccessLine(EACCES, "C:\\shut")), "Directory 'C:\\shut' does not have read / write access!");
    EXPECT_EQ(Text(DirectoryAccessLine(EINVAL, "C:\\odd")), "none");
    EXPECT_EQ(Text(DirectoryAccessLine(0, "C:\\odd")), "none");
}

TEST(IniSectionDump, AlignsValuesAfterTheLongestKey)
{
    const std::string head = "Section [Convert] in lyt.ini:|";
    const std::string empty = head + "Section is EMPTY or not found!|";
    ExpectEach(ConvertSection,
               {{"[Convert]\r\na=1\r\nlonger=two\r\n", head + "  a      = 1|  longer = two|"},
                {"[Convert]\r\nempty=\r\nbare\r\n=odd\r\nk=v\r\n", head + "  empty  |  bare   |  =odd   |  k     = v|"},
                {"[Convert]\r\n", empty},
                {"[Other]\r\na=1\r\n", empty},
                {"", empty}});
}

TEST(ShellCommand, IsShownWithItsVerbOrWithWhatIsMissing)
{
    EXPECT_EQ(Command({}), "Extension .pdf is not registered");
    EXPECT_EQ(Command({true, {}, false, {}}), "none");
    EXPECT_EQ(Command({true, "Reader", false, {}}), "Shell command <printto> not available for extension <.pdf>");
    EXPECT_EQ(Command({true, "Reader", true, {}}), "none");
    EXPECT_EQ(Command({true, "Reader", true, "r \"%1\""}),
              "Shell command <printto> for <.pdf> files executes: <r \"%1\">");
    EXPECT_EQ(Command({true, "Reader", true, ""}), "Shell command <printto> for <.pdf> files executes: <>");
}

TEST(RegistryDump, HeadsALineWithKeyAndName)
{
    EXPECT_EQ(MissingKeyLine("SOFTWARE\\none"),
              ("  SOFTWARE\\none" + std::string(32, ' ') + " :  Key does not exist").c_str());
    EXPECT_EQ(EmptyKeyLine("SOFTWARE\\empty"), "  SOFTWARE\\empty");
    EXPECT_EQ(ValueLine("KEY", {"", 1, "text\0"s}), ("  KEY" + std::string(42, ' ') + " : text").c_str());
    EXPECT_EQ(ValueLine(std::string(44, 'k').c_str(), {"name", 1, "text"}),
              ("  " + std::string(44, 'k') + "/name : text").c_str());
}

TEST(RegistryDump, WordsEachTypeByTheReportedSize)
{
    static const struct
    {
        unsigned type;
        std::string data;
        const char* worded;
    } cases[] = {
        {1, "text\0"s, "text"},
        {1, "no end", "no end"},
        {1, "a\0b\0"s, "a"},
        {1, "", ""},
        {2, "%PATH%\0"s, "%PATH%"},
        {2, "100%s %n", "100%s %n"},
        {3, "\x00\x0F\xA0\xFF"s, "00 0F A0 FF "},
        {3, "", ""},
        {4, "\x01\x02\x00\x00"s, "513"},
        {4, "\xFF\xFF\xFF\xFF"s, "4294967295"},
        {4, "\xFF"s, "255"},
        {4, "\x01\x02\x00\x00\x09"s, "513"},
        {4, "", "0"},
        {11, "\x01\0\0\0\0\0\0\0"s, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Worded(c.type, c.data), c.worded) << c.type;
    for (const unsigned type : {0U, 5U, 6U, 7U, 8U})
        EXPECT_EQ(Worded(type, "data"), "unsupported type") << type;
    for (const unsigned type : {9U, 10U, 12U, 4294967295U})
        EXPECT_EQ(Worded(type, "data"), "") << type;
}
