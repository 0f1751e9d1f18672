#include "Description.h"

namespace
{

constexpr DelimiterSet allDelimiters(" ,\t\n();:");
constexpr DelimiterSet valueDelimiters("=,\t\n();:");
constexpr DelimiterSet outputDelimiters("=,\n():<>");

std::string Tokens(const char* line, const DelimiterSet& delimiters = allDelimiters)
{
    ClytDialogFile file(nullptr);
    file.Tokenize(line, delimiters);
    return Shown(file.GetTokens());
}

class Tokenize : public WithErrorTexts
{
};

} // namespace

TEST_F(Tokenize, KeepsTheDelimiterOfEachToken)
{
    EXPECT_EQ(Tokens("A(1,2): B\n"), "[A]([1],[2])[]:[B]/");
    EXPECT_EQ(Tokens("A=B\n", valueDelimiters), "[A]=[B]/");
    EXPECT_EQ(Tokens("a<b>c\n", outputDelimiters), "[a]<[b]>[c]/");
}

TEST_F(Tokenize, GivesNoTokensForALineOfBlanksOrAComment)
{
    for (const char* line : {"", "\n", "   \n", " \t\v\f\r\n", "; note\n", "   ; a, b\n", ";"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(Tokens(line), "");
        EXPECT_EQ(Tokens(line, outputDelimiters), "");
    }
}

TEST_F(Tokenize, DoesNotLookForCommentsInsideQuotes)
{
    EXPECT_EQ(Tokens("\"a;b\",c\n"), "[a;b],[c]/");
}

TEST_F(Tokenize, EndsTheLineAtASemicolonThatDelimits)
{
    EXPECT_EQ(Tokens("a;b,c\n"), "[a];");
    EXPECT_EQ(Tokens("a ; b,c\n"), "[a] ");
}

TEST_F(Tokenize, TakesASemicolonThatDelimitsNothingAsContentUnlessItBeginsAToken)
{
    EXPECT_EQ(Tokens("a;b,c;\n", outputDelimiters), "[a;b],[c;]/");
    EXPECT_EQ(Tokens("a,;b\n", outputDelimiters), "[a],");
}

TEST_F(Tokenize, KeepsTheBackslashOfAQuoteInsideQuotes)
{
    EXPECT_EQ(Tokens("\"a\\\"b\",\n"), "[a\\\"b],");
}

TEST_F(Tokenize, DoesNotCloseAQuoteAfterTwoBackslashesEither)
{
    EXPECT_EQ(Tokens("\"a\\\\\",b\"c,d\n"), "[a\\\\\",b],[d]/");
    EXPECT_EQ(RaisedMessage([] { Tokens("\"a\\\\\",b\n"); }), "210 ''");
}

TEST_F(Tokenize, CutsBlanksAlsoInsideQuotes)
{
    EXPECT_EQ(Tokens("\"  a  \",\n"), "[a],");
    EXPECT_EQ(Tokens("\" \t \",\n"), "[],");
}

TEST_F(Tokenize, GivesAnEmptyTokenForEmptyQuotes)
{
    EXPECT_EQ(Tokens("\"\",a\n"), "[],[a]/");
}

TEST_F(Tokenize, DropsWhatStandsBetweenAClosingQuoteAndTheDelimiter)
{
    EXPECT_EQ(Tokens("\"a\"bcd,e\n"), "[a],[e]/");
}

TEST_F(Tokenize, TakesAQuoteInsideATokenAsContent)
{
    EXPECT_EQ(Tokens("a\"b,c\"\n", valueDelimiters), "[a\"b],[c\"]/");
}

TEST_F(Tokenize, GivesAnEmptyTokenBetweenTwoDelimiters)
{
    EXPECT_EQ(Tokens("a,,b\n"), "[a],[],[b]/");
    EXPECT_EQ(Tokens("a ,b\n"), "[a] [],[b]/");
    EXPECT_EQ(Tokens("(a)\n"), "[]([a])");
}

TEST_F(Tokenize, KeepsBlanksInsideATokenWhereTheyDoNotDelimit)
{
    EXPECT_EQ(Tokens("Ctrl HIDDEN\n", valueDelimiters), "[Ctrl HIDDEN]/");
    EXPECT_EQ(Tokens("Ctrl HIDDEN\n", allDelimiters), "[Ctrl] [HIDDEN]/");
}

TEST_F(Tokenize, EndsALastTokenWithoutADelimiterLikeALine)
{
    EXPECT_EQ(Tokens("a,b"), "[a],[b]/");
    EXPECT_EQ(Tokens("a,\"b\""), "[a],[b]/");
    EXPECT_EQ(Tokens("a,\"b\"c"), "[a],[b]/");
}

TEST_F(Tokenize, RaisesAQuoteThatIsNotClosed)
{
    for (const char* line : {"\"a\n", "a,\"\n", "\"a\\\"\n", "\""})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(RaisedMessage([&] { Tokens(line); }), "210 ''");
    }
}

TEST_F(Tokenize, ForgetsTheTokensOfTheLineBefore)
{
    ClytDialogFile file(nullptr);
    file.Tokenize("a,b\n", allDelimiters);
    file.Tokenize("c\n", allDelimiters);
    EXPECT_EQ(Shown(file.GetTokens()), "[c]/");
    CStringList taken;
    EXPECT_EQ(file.TakeTokens(taken), 1);
    EXPECT_EQ(file.TakeTokens(taken), 0);
    EXPECT_EQ(Joined(taken), "c");
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
}

namespace
{

std::string Groups(const char* text, const char* delimiters)
{
    ClytTokenList tokens;
    lytTokenizeGrouped(text, delimiters, tokens);
    return Shown(tokens);
}

class TokenizeGrouped : public WithErrorTexts
{
};

} // namespace

TEST_F(TokenizeGrouped, CutsAtTheDelimiters)
{
    EXPECT_EQ(Groups("a,b\n", ",\n"), "[a],[b]/");
    EXPECT_EQ(Groups("a/b,c\n", "/\n"), "[a]/[b,c]/");
    EXPECT_EQ(Groups("a,,b\n", ",\n"), "[a],[],[b]/");
    EXPECT_EQ(Groups("a,\n", ",\n"), "[a],[]/");
}

TEST_F(TokenizeGrouped, KeepsTheBlanksOfATokenWithoutBrackets)
{
    EXPECT_EQ(Groups("  a , b \n", ",\n"), "[a ],[ b ]/");
}

TEST_F(TokenizeGrouped, KnowsNoQuotesAndNoComments)
{
    EXPECT_EQ(Groups(";a,\"b,c\"\n", ",\n"), "[;a],[\"b],[c\"]/");
}

TEST_F(TokenizeGrouped, KeepsAGroupInBracketsTogether)
{
    EXPECT_EQ(Groups("x(a,b),c\n", ",\n"), "[x(a,b)])[c]/");
    EXPECT_EQ(Groups("x(a(b,c),d) ,e\n", ",\n"), "[x(a(b,c),d)])[e]/");
    EXPECT_EQ(Groups(" (a)y \n", ",\n"), "[(a)y])");
}

TEST_F(TokenizeGrouped, EndsAGroupAtACommaThatIsNoDelimiter)
{
    EXPECT_EQ(Groups("x(a),b/c\n", "/\n"), "[x(a)])[b]/[c]/");
}

TEST_F(TokenizeGrouped, EndsTheTextAfterAGroupAtTheNextBracket)
{
    EXPECT_EQ(Groups("x(a)y(b),c\n", ",\n"), "[x(a)y])[b)],[c]/");
}

TEST_F(TokenizeGrouped, GivesNothingForBlanks)
{
    EXPECT_EQ(Groups("\n", ",\n"), "");
    EXPECT_EQ(Groups("", ",\n"), "");
}

TEST_F(TokenizeGrouped, EndsALastTokenWithoutADelimiterLikeALine)
{
    EXPECT_EQ(Groups("a,b", ","), "[a],[b]/");
    EXPECT_EQ(Groups("x(a)y", ","), "[x(a)y])");
}

TEST_F(TokenizeGrouped, RaisesABracketThatIsNotClosed)
{
    for (const char* text : {"a(b,c\n", "(\n", "a((b)\n"})
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(RaisedMessage([&] { Groups(text, ",\n"); }), "242 ''\n241 ''");
    }
}
