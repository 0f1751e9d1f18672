#include "Description.h"

namespace
{

constexpr DelimiterSet allDelimiters(" ,\t\n();:");
constexpr DelimiterSet valueDelimiters("=,\t\n();:");
constexpr DelimiterSet outputDelimiters("=,\n():<>");

std::string TokensBy(const DelimiterSet& delimiters, const std::string& line)
{
    ClytDialogFile file(nullptr);
    return ReadOrRaised(
        [&]
        {
            file.Tokenize(line.c_str(), delimiters);
            return Shown(file.GetTokens());
        });
}

std::string Tokens(const std::string& line)
{
    return TokensBy(allDelimiters, line);
}

std::string OutputTokens(const std::string& line)
{
    return TokensBy(outputDelimiters, line);
}

std::string GroupsBy(const char* delimiters, const std::string& text)
{
    ClytTokenList tokens;
    return ReadOrRaised(
        [&]
        {
            lytTokenizeGrouped(text.c_str(), delimiters, tokens);
            return Shown(tokens);
        });
}

std::string Groups(const std::string& text)
{
    return GroupsBy(",\n", text);
}

std::string GroupsBySlash(const std::string& text)
{
    return GroupsBy("/\n", text);
}

class Tokenize : public WithErrorTexts
{
};

using TokenizeGrouped = Tokenize;

} // namespace

TEST_F(Tokenize, CutsALineAtItsDelimiters)
{
    ExpectEach(Tokens, {
                           {"A(1,2): B\n", "[A]([1],[2])[]:[B]/"},
                           {"a,,b\n", "[a],[],[b]/"},
                           {"a ,b\n", "[a] [],[b]/"},
                           {"(a)\n", "[]([a])"},
                           {"Ctrl HIDDEN\n", "[Ctrl] [HIDDEN]/"},
                           // A semicolon that delimits ends the line, unless it is in quotes.
                           {"a;b,c\n", "[a];"},
                           {"a ; b,c\n", "[a] "},
                           {"\"a;b\",c\n", "[a;b],[c]/"},
                           // No backslash is dropped, and a quote after one or two of them closes nothing.
                           {"\"a\\\"b\",\n", "[a\\\"b],"},
                           {"\"a\\\\\",b\"c,d\n", "[a\\\\\",b],[d]/"},
                           {"\"  a  \",\n", "[a],"},
                           {"\" \t \",\n", "[],"},
                           {"\"\",a\n", "[],[a]/"},
                           // What is between a closing quote and the delimiter goes.
                           {"\"a\"bcd,e\n", "[a],[e]/"},
                           // A last token without a delimiter ends like a line.
                           {"a,b", "[a],[b]/"},
                           {"a,\"b\"", "[a],[b]/"},
                           {"a,\"b\"c", "[a],[b]/"},
                       });
    EXPECT_EQ(TokensBy(valueDelimiters, "A=B\n"), "[A]=[B]/");
    EXPECT_EQ(TokensBy(valueDelimiters, "Ctrl HIDDEN\n"), "[Ctrl HIDDEN]/");
    EXPECT_EQ(TokensBy(valueDelimiters, "a\"b,c\"\n"), "[a\"b],[c\"]/");
    ExpectEach(OutputTokens, {{"a<b>c\n", "[a]<[b]>[c]/"}, {"a;b,c;\n", "[a;b],[c;]/"}, {"a,;b\n", "[a],"}});
    ExpectAll(Tokens, "", {"", "\n", "   \n", " \t\v\f\r\n", "; note\n", "   ; a, b\n", ";"});
    ExpectAll(OutputTokens, "", {"", "\n", "   \n", " \t\v\f\r\n", "; note\n", "   ; a, b\n", ";"});
    ExpectAll(Tokens, "210 ''", {"\"a\n", "a,\"\n", "\"a\\\"\n", "\"", "\"a\\\\\",b\n"});
}

TEST_F(Tokenize, KeepsNothingOfALongerLineBefore)
{
    ClytDialogFile file(nullptr);
    file.Tokenize("a first token of some length,a second one,a third one,a fourth one\n", allDelimiters);
    file.Tokenize("(,b\n", allDelimiters);
    EXPECT_EQ(Shown(file.GetTokens()), "[]([],[b]/");
    EXPECT_EQ(file.GetTokens().GetCount(), 3);
    EXPECT_EQ(file.GetTokens().GetTail().GetColumn(), 2);
    file.Tokenize("\n", allDelimiters);
    EXPECT_EQ(file.GetTokens().GetHeadPosition(), nullptr);

    file.Tokenize("c\n", allDelimiters);
    CStringList taken;
    EXPECT_EQ(file.TakeTokens(taken), 1);
    EXPECT_EQ(file.TakeTokens(taken), 0);
    EXPECT_EQ(Joined(taken), "c");
}

TEST_F(TokenizeGrouped, KeepsAGroupInBracketsTogether)
{
    ExpectEach(Groups, {
                           {"a,b\n", "[a],[b]/"},
                           {"a,,b\n", "[a],[],[b]/"},
                           {"a,\n", "[a],[]/"},
                           {"  a , b \n", "[a ],[ b ]/"},
                           {";a,\"b,c\"\n", "[;a],[\"b],[c\"]/"},
                           {"x(a,b),c\n", "[x(a,b)])[c]/"},
                           {"x(a(b,c),d) ,e\n", "[x(a(b,c),d)])[e]/"},
                           {" (a)y \n", "[(a)y])"},
                           // The text after a group ends at the next bracket.
                           {"x(a)y(b),c\n", "[x(a)y])[b)],[c]/"},
                           {"\n", ""},
                           {"", ""},
                           {"a,b", "[a],[b]/"},
                           {"x(a)y", "[x(a)y])"},
                       });
    // A comma ends a group also where it is no delimiter.
    ExpectEach(GroupsBySlash, {{"a/b,c\n", "[a]/[b,c]/"}, {"x(a),b/c\n", "[x(a)])[b]/[c]/"}});
    ExpectAll(Groups, "242 ''\n241 ''", {"a(b,c\n", "(\n", "a((b)\n"});
}
