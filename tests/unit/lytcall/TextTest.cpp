#include "commandline/Text.h"

#include <gtest/gtest.h>

TEST(Text, IsPrintedWithoutControlCharacters)
{
    static const struct
    {
        const char* text;
        const char* printed;
    } cases[] = {
        {"", ""},
        {"plain, a\ttab", "plain, a\ttab"},
        {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"},
        {"two\nlines\r\n", "two lines  "},
        {"\x1B[2J", "\xEF\xBF\xBD[2J"},
        {"a\x7F"
         "b",
         "a\xEF\xBF\xBD"
         "b"},
        {"\xC2\x9B"
         "2J",
         "\xEF\xBF\xBD"
         "2J"},
        {"\x9B"
         "2J",
         "\xEF\xBF\xBD"
         "2J"},
        {"\xC3", "\xEF\xBF\xBD"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(commandline::Printable(c.text), c.printed);
}

TEST(Text, BetweenQuotesComesBackAsItWas)
{
    static const struct
    {
        const char* text;
        const char* quoted;
    } cases[] = {
        {"", R"("")"},
        {"a \"b\" \\ c", R"("a \"b\" \\ c")"},
        {"\n\t\r", R"("\n\t\r")"},
        {"\x1B[2J\x7F\xC2\x9B", R"("\x1B[2J\x7F\x9B")"},
        {"\xC3\xA9", "\"\xC3\xA9\""},
    };
    for (const auto& c : cases)
    {
        EXPECT_EQ(commandline::Quoted(c.text), c.quoted);
        size_t place = 0;
        EXPECT_EQ(commandline::TakeQuoted(c.quoted, place), c.text);
        EXPECT_EQ(place, std::string(c.quoted).size());
    }
}

TEST(Text, BetweenQuotesIsReadAsFarAsItGoes)
{
    size_t place = 2;
    EXPECT_EQ(commandline::TakeQuoted(R"(a "\x1 \xZZ \a\x4A" b)", place), "x1 xZZ aJ");
    EXPECT_EQ(place, 19U);
    for (const char* open : {"\"", "\"a", "\"a\\", "\"a\\\"", "\"\\x1"})
    {
        place = 0;
        EXPECT_EQ(commandline::TakeQuoted(open, place), std::nullopt) << open;
    }
}
