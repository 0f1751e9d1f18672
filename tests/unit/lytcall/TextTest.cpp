#include "commandline/Text.h"

#include "support/Cases.h"

namespace
{

// What comes back of a text in quotes, and what follows it; nothing where a quote is open.
std::string Unquoted(const std::string& text)
{
    size_t place = 0;
    const auto taken = commandline::TakeQuoted(text, place);
    return taken ? *taken + "|" + text.substr(place) : "open";
}

} // namespace

TEST(Text, IsPrintedWithoutControlCharacters)
{
    const std::string replaced = "\xEF\xBF\xBD";
    ExpectEach(commandline::Printable,
               {
                   {"", ""},
                   {"plain, a\ttab", "plain, a\ttab"},
                   {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"},
                   {"two\nlines\r\n", "two lines  "},
                   {"\x1B[2J", replaced + "[2J"},
                   {"a\x7F-", "a" + replaced + "-"},
                   {"\xC2\x9B-", replaced + "-"},
                   {"\x9B-", replaced + "-"},
                   {"\xC3", replaced},
               });
}

TEST(Text, BetweenQuotesComesBackAsItWas)
{
    const std::string plain[] = {"", "a \"b\" \\ c", "\n\t\r", "\x1B[2J\x7F\xC2\x9B", "\xC3\xA9"};
    const std::string quoted[] = {R"("")", R"("a \"b\" \\ c")", R"("\n\t\r")", R"("\x1B[2J\x7F\x9B")", "\"\xC3\xA9\""};
    for (size_t index = 0; index < std::size(plain); ++index)
    {
        EXPECT_EQ(commandline::Quoted(plain[index]), quoted[index]);
        EXPECT_EQ(Unquoted(quoted[index] + "..."), plain[index] + "|...");
    }
}

TEST(Text, BetweenQuotesIsReadAsFarAsItGoes)
{
    EXPECT_EQ(Unquoted(R"("\x1 \xZZ \a\x4A" b)"), "x1 xZZ aJ| b");
    ExpectAll(Unquoted, "open", {"\"", "\"a", "\"a\\", "\"a\\\"", "\"\\x1"});
}
