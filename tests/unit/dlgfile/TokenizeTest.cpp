#include "Description.h"

#include "unit/Readings.h"

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
    ExpectReadings("dlgfile/readings.cases", "Tokens", Tokens);
    EXPECT_EQ(TokensBy(valueDelimiters, "A=B\n"), "[A]=[B]/");
    EXPECT_EQ(TokensBy(valueDelimiters, "Ctrl HIDDEN\n"), "[Ctrl HIDDEN]/");
    EXPECT_EQ(TokensBy(valueDelimiters, "a\"b,c\"\n"), "[a\"b],[c\"]/");
    ExpectReadings("dlgfile/readings.cases", "OutputTokens", OutputTokens);
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
    ExpectReadings("dlgfile/readings.cases", "Groups", Groups);
    // A comma ends a group also where it is no delimiter.
    ExpectReadings("dlgfile/readings.cases", "GroupsBySlash", GroupsBySlash);
}
