// One table of cases for the platform's profile functions and for the native substitute: natively these tests show that
// the substitute answers like the platform, on Windows that the table is right.
#include "environment/ProfileFile.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <ostream>
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

// What the buffer holds of the section, without the lines' last NUL; a `|` is each NUL between lines.
struct Section
{
    int count;
    std::string lines;
    bool operator==(const Section&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Section& section)
{
    return out << section.count << " <" << section.lines << ">";
}

Section ReadSection(const std::string& content, const char* section = "s", int size = 64)
{
    constexpr size_t guardLength = 16;
    const TestFolder folder;
    std::string buffer(static_cast<size_t>(size) + guardLength, '#');
    const int count = lytReadProfileSection(section, buffer.data(), size, folder.Write("test.ini", content).c_str());
    EXPECT_EQ(buffer.substr(static_cast<size_t>(size)), std::string(guardLength, '#'));

    const size_t end = buffer.find("\0\0"s);
    EXPECT_LE(end, static_cast<size_t>(size));
    std::string lines = buffer.substr(0, end);
    std::ranges::replace(lines, '\0', '|');
    return {count, lines};
}

} // namespace

TEST(ProfileText, TakesBlanksAndOnePairOfQuotesOffAValue)
{
    static const struct
    {
        const char* written;
        const char* read;
    } cases[] = {
        {"v", "v"},
        {"  v  ", "v"},
        {"\tv\t", "v"},
        {"\x0Bv\x0C", "v"},
        {"a\tb  c", "a\tb  c"},
        {"\xA0v\xA0", "\xA0v\xA0"},
        {"\"v\"", "v"},
        {"'v'", "v"},
        {"\" v \"", " v "},
        {"' v '", " v "},
        {"  \" v \"  ", " v "},
        {"\"\"v\"\"", "\"v\""},
        {"\"'v'\"", "'v'"},
        {"'\"v\"'", "\"v\""},
        {"\"a\"b\"", "a\"b"},
        {"'it''s'", "it''s"},
        {"\"v'", "\"v'"},
        {"\"v", "\"v"},
        {"v\"", "v\""},
        {"\"a\" b", "\"a\" b"},
        {"a \"b\"", "a \"b\""},
        {"\"\"", ""},
        {"''", ""},
        {"\"  \"", "  "},
        {"\"", "\""},
        {"'", "'"},
        {"", ""},
        {"   ", ""},
        {"a=b", "a=b"},
        {"= b", "= b"},
        {"==", "=="},
        {"v;c", "v;c"},
        {"v ; c", "v ; c"},
        {";v", ";v"},
        {"\x80\x81\x82\x9F", "\x80\x81\x82\x9F"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.written);
        EXPECT_EQ(ReadValue(c.written), c.read);
    }
}

TEST(ProfileText, FindsAKeyByItsNameWithoutBlanksAndCase)
{
    static const struct
    {
        const char* line;
        const char* key;
        const char* read;
    } cases[] = {
        {"k=v", "k", "v"},
        {"k=v", "K", "v"},
        {"K=v", "k", "v"},
        {" k = v", "k", "v"},
        {"\tk\t=\tv", "k", "v"},
        {"\x0Bk=v", "k", "v"},
        {"k=v", " k ", "v"},
        {"a b=v", "a b", "v"},
        {"a  b=v", "a b", defaultText},
        {"k.1=v", "k", defaultText},
        {"\"k\"=v", "k", defaultText},
        {"\"k\"=v", "\"k\"", "v"},
        {"\xA0k=v", "k", defaultText},
        {"other=v", "k", defaultText},
        {"=v", "", "v"},
        {" = v", "", "v"},
        {"k=v", "", defaultText},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(ReadText("[s]\r\n"s + c.line + "\r\nz=2\r\n", "s", c.key), c.read);
    }
}

TEST(ProfileText, FindsNoKeyInAComment)
{
    EXPECT_EQ(ReadText("[s]\r\n;k=v\r\n", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[s]\r\n ; k=v\r\n", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[s]\r\n#k=v\r\n", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[s]\r\n;k=v\r\nk=w\r\n", "s", "k"), "w");
}

TEST(ProfileText, TakesTheFirstOfTwoKeysWithOneName)
{
    EXPECT_EQ(ReadText("[s]\r\nk=1\r\nk=2\r\n", "s", "k"), "1");
    EXPECT_EQ(ReadText("[s]\r\nK=1\r\nk=2\r\n", "s", "k"), "1");
    EXPECT_EQ(ReadText("[s]\r\nk=\r\nk=2\r\n", "s", "k"), "");
}

TEST(ProfileText, AKeyLineWithoutAnEqualsSignHasNoValue)
{
    EXPECT_EQ(ReadText("[s]\r\nk\r\n", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[s]\r\nk v\r\n", "s", "k v"), defaultText);
    EXPECT_EQ(ReadText("[s]\r\nk\r\nk=2\r\n", "s", "k"), defaultText);
}

TEST(ProfileText, FindsASectionByTheNameInItsBrackets)
{
    static const struct
    {
        const char* line;
        const char* section;
        bool found;
    } cases[] = {
        {"[s]", "s", true},        {"[s]", "S", true},    {"[S]", "s", true},     {"[s]", " s ", true},
        {" [s] ", "s", true},      {"\t[s]", "s", true},  {"[ s ]", "s", true},   {"[s]x", "s", true},
        {"[s] ; note", "s", true}, {"[s]k=w", "s", true}, {"[a]b]", "a]b", true}, {"[a]b]", "a", false},
        {"[s]]", "s]", true},      {"[s]]", "s", false},  {"[[s]", "[s", true},   {"[[s]", "s", false},
        {"[\"s\"]", "s", false},   {"[s;c]", "s", false}, {"[s", "s", false},     {"s]", "s", false},
        {"x[s]", "s", false},      {";[s]", "s", false},  {"[]", "s", false},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.line);
        EXPECT_EQ(ReadText("[first]\r\na=1\r\n"s + c.line + "\r\nk=v\r\n", c.section, "k"),
                  c.found ? "v" : defaultText);
    }
}

TEST(ProfileText, LooksOnlyIntoTheFirstOfTwoSectionsWithOneName)
{
    EXPECT_EQ(ReadText("[s]\r\na=1\r\n[s]\r\nk=2\r\n", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[s]\r\nk=1\r\n[s]\r\nk=2\r\n", "s", "k"), "1");
}

TEST(ProfileText, AnEmptySectionNameMeansWhatStandsAheadOfTheFirstSection)
{
    EXPECT_EQ(ReadText("k=v\r\n[s]\r\nk=w\r\n", "", "k"), "v");
    EXPECT_EQ(ReadText("k=v\r\n[]\r\nk=w\r\n", "", "k"), "v");
    EXPECT_EQ(ReadText("[]\r\nk=w\r\n", "", "k"), defaultText);
    EXPECT_EQ(ReadText("k=v", "", "k"), "v");
}

TEST(ProfileText, GivesTheDefaultWhenSomethingIsMissing)
{
    const TestFolder folder;
    const std::string& path = folder.Path();
    EXPECT_EQ(ReadText("", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[s]", "s", "k"), defaultText);
    EXPECT_EQ(ReadText("[t]\r\nk=v\r\n", "s", "k"), defaultText);
    EXPECT_EQ(lytReadProfileText("s", "k", "no file", 75, (path + "\\none.ini").c_str()), "no file");
    EXPECT_EQ(lytReadProfileText("s", "k", "no folder", 75, (path + "\\none\\none.ini").c_str()), "no folder");
    EXPECT_EQ(lytReadProfileText("s", "k", "a folder", 75, path.c_str()), "a folder");
    EXPECT_EQ(lytReadProfileText("s", "k", "no name", 75, ""), "no name");
}

TEST(ProfileText, TakesBlanksOffTheEndOfADefaultAndItsQuotes)
{
    static const struct
    {
        const char* given;
        const char* read;
    } cases[] = {
        {"d  ", "d"}, {"  d  ", "  d"},   {"d\t", "d\t"},       {"", ""}, {"   ", " "}, {"\"d\"", "d"},
        {"'d'", "d"}, {"\" d \"", " d "}, {" \"d\"", " \"d\""},
    };
    const TestFolder folder;
    const std::string file = folder.Write("test.ini", "[s]\r\nempty=\r\n");
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.given);
        EXPECT_EQ(lytReadProfileText("s", "k", c.given, 75, file.c_str()), c.read);
        EXPECT_EQ(lytReadProfileText("s", "empty", c.given, 75, file.c_str()), "");
    }
}

TEST(ProfileText, EndsALineAtAnyLineEnd)
{
    EXPECT_EQ(ReadText("[s]\nk=v\nz=1\n", "s", "k"), "v");
    EXPECT_EQ(ReadText("[s]\rk=v\rz=1\r", "s", "k"), "v");
    EXPECT_EQ(ReadText("[s]\n\rk=v\n\rz=1", "s", "z"), "1");
    EXPECT_EQ(ReadText("[s]\r\n\r\n  \r\nk=v", "s", "k"), "v");
    EXPECT_EQ(ReadText("[s]\r\nk=a\rb=c\r\n", "s", "k"), "a");
    EXPECT_EQ(ReadText("[s]\r\nk=a\rb=c\r\n", "s", "b"), "c");
    EXPECT_EQ(ReadText("[s]\r\nk=a\x0B"
                       "b=c\r\n",
                       "s", "b"),
              defaultText);
}

TEST(ProfileText, ControlZIsABlank)
{
    EXPECT_EQ(ReadText("[s]\r\nk=v\x1A\r\n", "s", "k"), "v");
    EXPECT_EQ(ReadText("[s]\r\nk=a\x1A"
                       "b\r\n",
                       "s", "k"),
              "a\x1A"
              "b");
    EXPECT_EQ(ReadText("[s]\r\n\x1A\r\nk=v\r\n", "s", "k"), "v");
    EXPECT_EQ(ReadText("\x1A[s]\r\n\x1Ak=v\r\n\x1A", "s", "k"), "v");
}

TEST(ProfileText, ANulEndsNameAndValueAndNotTheFile)
{
    EXPECT_EQ(ReadText("[s]\r\nk=a\0b\r\nz=1\r\n"s, "s", "k"), "a");
    EXPECT_EQ(ReadText("[s]\r\nk=a\0b\r\nz=1\r\n"s, "s", "z"), "1");
    EXPECT_EQ(ReadText("[s]\r\nk\0x=a\r\n"s, "s", "k"), "a");
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

TEST(ProfileSection, GivesTheLinesAsNameAndValue)
{
    static const struct
    {
        const char* content;
        Section section;
    } cases[] = {
        {"[s]\r\na=1\r\nb=2\r\n", {8, "a=1|b=2"}},
        {"[S]\r\nA=1\r\n", {4, "A=1"}},
        {"[s]\r\n a = 1 \r\n", {4, "a=1"}},
        {"[s]\r\na = b = c\r\n", {8, "a=b = c"}},
        {"[s]\r\n\"a\"=\"1\"\r\n", {8, "\"a\"=\"1\""}},
        {"[s]\r\na=' 1 '\r\n", {8, "a=' 1 '"}},
        {"[s]\r\na=1;c\r\n", {6, "a=1;c"}},
        {"[s]\r\na=\r\n", {3, "a="}},
        {"[s]\r\na=  \r\n", {3, "a="}},
        {"[s]\r\n=v\r\n", {3, "=v"}},
        {"[s]\r\n = v\r\n", {3, "=v"}},
        {"[s]\r\n=\r\n", {2, "="}},
        {"[s]\r\na==\r\n", {4, "a=="}},
        {"[s]\r\na\r\nb\r\n", {4, "a|b"}},
        {"[s]\r\na b\r\n", {4, "a b"}},
        {"[s]\r\n#x\r\n", {3, "#x"}},
        {"[s]\r\n[bad\r\nb=1\r\n", {9, "[bad|b=1"}},
        {"[s]\r\na=1\r\na=2\r\n", {8, "a=1|a=2"}},
        {"[s]\r\na=1\r\n[s]\r\nb=2\r\n", {4, "a=1"}},
        {"[s]\r\na=1\r\n[ ]\r\nb=2\r\n", {4, "a=1"}},
        {"[s]\ra=1\rb=2", {8, "a=1|b=2"}},
        {"[s]\na=1\n\n\nb=2\n", {8, "a=1|b=2"}},
        {"[s]\r\na=1\x1A\r\n\x1A\r\nb=2\x1A", {8, "a=1|b=2"}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.content);
        EXPECT_EQ(ReadSection(c.content), c.section);
    }
}

TEST(ProfileSection, LeavesOutCommentsAndBlankLines)
{
    EXPECT_EQ(ReadSection("[s]\r\n;c\r\n ; d=2\r\n;\r\n\r\n   \r\na=1\r\n"), (Section{4, "a=1"}));
    EXPECT_EQ(ReadSection("[s]\r\n;c\r\n\r\n"), (Section{0, ""}));
}

TEST(ProfileSection, ANulEndsALine)
{
    EXPECT_EQ(ReadSection("[s]\r\nk=a\0b\r\nz=1\r\n"s), (Section{8, "k=a|z=1"}));
    EXPECT_EQ(ReadSection("[s]\r\na\0b=1\r\nz=1\r\n"s), (Section{8, "a=1|z=1"}));
}

TEST(ProfileSection, AnEmptyNameMeansWhatStandsAheadOfTheFirstSection)
{
    EXPECT_EQ(ReadSection("a=1\r\n[s]\r\nb=2\r\n", ""), (Section{4, "a=1"}));
    EXPECT_EQ(ReadSection("[]\r\nb=2\r\n", ""), (Section{0, ""}));
}

TEST(ProfileSection, IsEmptyWhenSomethingIsMissing)
{
    char buffer[] = "#####";
    const TestFolder folder;
    EXPECT_EQ(lytReadProfileSection("s", buffer, 3, (folder.Path() + "\\none.ini").c_str()), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(lytReadProfileSection("s", buffer, 3, folder.Path().c_str()), 0);
    EXPECT_EQ(ReadSection(""), (Section{0, ""}));
    EXPECT_EQ(ReadSection("[s]\r\n"), (Section{0, ""}));
    EXPECT_EQ(ReadSection("[t]\r\na=1\r\n"), (Section{0, ""}));
}

TEST(ProfileSection, CutsTheLinesToTwoBytesLessThanTheBuffer)
{
    static const struct
    {
        int size;
        Section section;
    } cases[] = {
        {2, {0, ""}},      {3, {1, "a"}},       {4, {2, "a="}},       {5, {3, "a=1"}},      {6, {4, "a=1"}},
        {7, {5, "a=1|b"}}, {9, {7, "a=1|b=2"}}, {10, {8, "a=1|b=2"}}, {64, {8, "a=1|b=2"}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.size);
        EXPECT_EQ(ReadSection("[s]\r\na=1\r\nb=2\r\n", "s", c.size), c.section);
    }
}

TEST(ProfileSection, ReportsTheCutOfALargeSectionAsTwoLessThanTheBuffer)
{
    for (const size_t length : {2042, 2043, 2044, 2045, 2046, 5000})
    {
        SCOPED_TRACE(length);
        const Section section = ReadSection("[s]\r\na=" + std::string(length, 'x') + "\r\n", "s", 2048);
        EXPECT_EQ(section.count, length == 2042 ? 2045 : 2046);
        EXPECT_EQ(section.lines, "a=" + std::string(std::min<size_t>(length, 2044), 'x'));
    }
}

TEST(ProfileText, IsWrittenOverItsOldValueOrAtTheEndOfItsSection)
{
    static const struct
    {
        const char* section;
        const char* before;
        const char* after;
    } cases[] = {
        {"s", "", "[s]\r\nk=v\r\n"},
        {"s", "[s]\r\nk=old\r\na=1\r\n", "[s]\r\nk=v\r\na=1\r\n"},
        {"s", "[s]\r\na=1\r\n[t]\r\nk=2\r\n", "[s]\r\na=1\r\nk=v\r\n[t]\r\nk=2\r\n"},
        {"t", "[s]\r\nk=1\r\n[t]\r\nb=2\r\n", "[s]\r\nk=1\r\n[t]\r\nb=2\r\nk=v\r\n"},
        {"u", "[s]\r\na=1", "[s]\r\na=1\r\n[u]\r\nk=v\r\n"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.after);
        const TestFolder folder;
        ASSERT_TRUE(::WritePrivateProfileStringA(c.section, "k", "v", folder.Write("test.ini", c.before).c_str()));
        EXPECT_EQ(folder.Read("test.ini"), c.after);
    }
}
