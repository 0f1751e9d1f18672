#include "Description.h"

namespace
{

std::string Evaluation(const std::string& line)
{
    Description file(line);
    ClytCtrlValList own;
    ClytCtrlValList other;
    CString messageKey;
    if (file.ReadEvaluationStatement(own, other, messageKey) == 0)
        return "end";
    return Shown(own) + "; " + Shown(other) + "; " + messageKey.GetString();
}

std::string EvaluationFailure(const std::string& line)
{
    return RaisedMessage([&] { Evaluation(line); });
}

class EvaluationStatement : public WithErrorTexts
{
};

} // namespace

TEST_F(EvaluationStatement, TakesTheLongForm)
{
    EXPECT_EQ(Evaluation("Kind(1,2) = EditName(a,b): MSG_CLASH\n"), "Kind(1,2); EditName(a,b); MSG_CLASH");
}

TEST_F(EvaluationStatement, MayStopAfterTheFirstValues)
{
    EXPECT_EQ(Evaluation("A(1)\n"), "A(1); ; ");
}

TEST_F(EvaluationStatement, PassesOverAWordAfterEitherList)
{
    EXPECT_EQ(Evaluation("A(1) word = B(2): KEY\n"), "A(1); B(2); KEY");
    EXPECT_EQ(Evaluation("A(1) = B(2) word: KEY\n"), "A(1); B(2); KEY");
    EXPECT_EQ(EvaluationFailure("A(1) word, B(2): KEY\n"), "212 '1'");
    EXPECT_EQ(EvaluationFailure("A(1) = B(2) word, KEY\n"), "212 '1'");
}

TEST_F(EvaluationStatement, TakesTheShortForm)
{
    EXPECT_EQ(Evaluation("EditName = NULL: MSG_EMPTY\n"), "EditName(NULL); ; MSG_EMPTY");
    EXPECT_EQ(Evaluation("A = x: KEY\n"), "A(x); ; KEY");
}

TEST_F(EvaluationStatement, AllowsAnyDelimiterAfterNull)
{
    EXPECT_EQ(Evaluation("A = NULL, KEY\n"), "A(NULL); ; KEY");
    EXPECT_EQ(Evaluation("A = NULL (KEY)\n"), "A(NULL); ; KEY");
}

TEST_F(EvaluationStatement, NeedsAColonAfterAnyOtherValue)
{
    EXPECT_EQ(EvaluationFailure("A = x y\n"), "212 '1'");
    EXPECT_EQ(EvaluationFailure("A = x, KEY\n"), "212 '1'");
    EXPECT_EQ(EvaluationFailure("A = null, KEY\n"), "212 '1'");
}

TEST_F(EvaluationStatement, EndsAtASemicolon)
{
    EXPECT_EQ(Evaluation("A = x: KEY;more\n"), "A(x); ; KEY");
    EXPECT_EQ(Evaluation("A = x: \"KEY;more\"\n"), "A(x); ; KEY;more");
}

TEST_F(EvaluationStatement, IsMissingOnAnEmptyOrCommentLine)
{
    EXPECT_EQ(Evaluation("\n"), "; ; ");
    EXPECT_EQ(Evaluation(" ; A = x: KEY\n"), "; ; ");
}

TEST_F(EvaluationStatement, EndsWithTheInputHeader)
{
    EXPECT_EQ(Evaluation("$INPUT, parent\n"), "end");
    EXPECT_EQ(Evaluation("$INPUT\n"), "end");
}

TEST_F(EvaluationStatement, OfWrongFormRaises)
{
    for (const char* line :
         {"A\n", "A, B\n", "A: KEY\n", "A = \n", "A = x:\n", "A = NULL\n", "A(1\n", "A(1=2)\n", "A(1), B\n", "A(1) =\n",
          "A(1) = B\n", "A(1) = B: KEY\n", "A(1) = B(2\n", "A(1) = B(2)\n", "A(1) = B(2), KEY\n", "A(1) = B(2):\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(EvaluationFailure(line), "212 '1'");
    }
}

TEST_F(EvaluationStatement, FailsInTheClassLibraryWhereAListEndsTooEarly)
{
    EXPECT_EQ(EvaluationFailure("A(1,\n"), missingArgument);
    EXPECT_EQ(EvaluationFailure("A(1) = B(\n"), missingArgument);
}
