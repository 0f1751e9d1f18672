#include "Description.h"

#include "model/ClytControlDep.h"

namespace
{

std::string Value(const std::string& line)
{
    Description file(line);
    CString name = "old";
    CString keyword = "old";
    CStringList values;
    values.AddTail("old");
    if (file.ReadValueStatement(name, keyword, values) == 0)
        return "end";
    return std::string(name.GetString()) + "|" + keyword.GetString() + "|" + Joined(values, " ");
}

std::string ValueFailure(const std::string& line)
{
    return RaisedMessage([&] { Value(line); });
}

std::string Dependency(const std::string& line)
{
    Description file(line);
    ClytControlDep rule;
    if (file.ReadDependencyStatement(rule) == 0)
        return "end";
    return std::string(rule.controlName.GetString()) + "/" + rule.stateWord.GetText().GetString() + ": " +
           Shown(rule.conditions);
}

std::string DependencyFailure(const std::string& line)
{
    return RaisedMessage([&] { Dependency(line); });
}

class ValueStatement : public WithErrorTexts
{
};

class DependencyStatement : public WithErrorTexts
{
};

} // namespace

TEST_F(ValueStatement, TakesTwoTokensAsNameAndValue)
{
    EXPECT_EQ(Value("A=B\n"), "A||B");
    EXPECT_EQ(Value("A: B\n"), "A||B");
    EXPECT_EQ(Value("A, \"b c\"\n"), "A||b c");
}

TEST_F(ValueStatement, TakesTheSecondOfThreeTokensAsKeyword)
{
    EXPECT_EQ(Value("A=B,C\n"), "A|B|C");
}

TEST_F(ValueStatement, TakesBracketsLikeCommas)
{
    EXPECT_EQ(Value("A(B,C,D)\n"), "A|B|C D");
    EXPECT_EQ(Value("EditName = FILLEDBY, lib, func\n"), "EditName|FILLEDBY|lib func");
}

TEST_F(ValueStatement, TakesAColonLikeAnEqualsSign)
{
    EXPECT_EQ(Value("A: B = C\n"), "A|B|C");
}

TEST_F(ValueStatement, DoesNotCutAtBlanks)
{
    EXPECT_EQ(Value("A = B C\n"), "A||B C");
}

TEST_F(ValueStatement, IsMissingOnAnEmptyOrCommentLine)
{
    EXPECT_EQ(Value("\n"), "||");
    EXPECT_EQ(Value(" ; A=B\n"), "||");
}

TEST_F(ValueStatement, EndsWithTheDependenciesHeader)
{
    EXPECT_EQ(Value("$DEPENDANCES\n"), "end");
    EXPECT_EQ(Value("$DEPENDANCES = 1\n"), "end");
    EXPECT_EQ(Value("\"$DEPENDANCES\"\n"), "end");
}

TEST_F(ValueStatement, OfOneTokenRaises)
{
    EXPECT_EQ(ValueFailure("A\n"), "212 '1'");
    EXPECT_EQ(ValueFailure("A=\n"), "212 '1'");
    EXPECT_EQ(ValueFailure("$DEPENDENCIES\n"), "212 '1'");
}

TEST_F(DependencyStatement, TakesNameWordAndConditions)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE = EditName(NOTNULL), Kind(1,2)\n"), "Ok/ACTIVE: EditName(NOTNULL) Kind(1,2)");
    EXPECT_EQ(Dependency("EditName/CLEAR = Kind\n"), "EditName/CLEAR: Kind");
    EXPECT_EQ(Dependency("A/VISIBLE = B, C, D(1)\n"), "A/VISIBLE: B C D(1)");
}

TEST_F(DependencyStatement, MixesConditionsWithAndWithoutValues)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE = A(1), B\n"), "Ok/ACTIVE: A(1) B");
}

TEST_F(DependencyStatement, MayHaveNoConditions)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE =\n"), "Ok/ACTIVE: ");
}

TEST_F(DependencyStatement, PassesOverAWordAfterABracket)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE = A(1) B\n"), "Ok/ACTIVE: A(1)");
    EXPECT_EQ(Dependency("Ok/ACTIVE = A(1) B, C\n"), "Ok/ACTIVE: A(1) C");
}

TEST_F(DependencyStatement, TakesASemicolonInsideATokenAsContent)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE = A(1;2)\n"), "Ok/ACTIVE: A(1;2)");
    EXPECT_EQ(Dependency("Ok/ACTIVE = ;A(1)\n"), "Ok/ACTIVE: ");
}

TEST_F(DependencyStatement, TakesEmptyValues)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE = A(), B(,1)\n"), "Ok/ACTIVE: A() B(,1)");
}

TEST_F(DependencyStatement, AllowsACommaAtTheEnd)
{
    EXPECT_EQ(Dependency("Ok/ACTIVE = A(1),\n"), "Ok/ACTIVE: A(1)");
    EXPECT_EQ(Dependency("Ok/ACTIVE = A,\n"), "Ok/ACTIVE: A");
}

TEST_F(DependencyStatement, IsMissingOnAnEmptyOrCommentLine)
{
    EXPECT_EQ(Dependency("\n"), "/: ");
    EXPECT_EQ(Dependency("; Ok/ACTIVE = A\n"), "/: ");
}

TEST_F(DependencyStatement, EndsWithTheEvaluationHeader)
{
    EXPECT_EQ(Dependency("$EVALUATION, x\n"), "end");
}

TEST_F(DependencyStatement, NeedsADelimiterAfterTheEvaluationHeader)
{
    EXPECT_EQ(DependencyFailure("$EVALUATION x\n"), "212 '1'");
}

TEST_F(DependencyStatement, OfWrongFormRaises)
{
    for (const char* line : {"Ok\n", "Ok = A\n", "Ok/ACTIVE\n", "Ok/ACTIVE, A\n", "Ok/ACTIVE/A = B\n",
                             "Ok/ACTIVE = A)\n", "Ok/ACTIVE = A=\n", "Ok/ACTIVE = A/B\n", "Ok/ACTIVE = A(1\n",
                             "Ok/ACTIVE = A(1=2)\n", "Ok/ACTIVE = A(1)=B\n", "Ok/ACTIVE = A(1)(2)\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(DependencyFailure(line), "212 '1'");
    }
}

TEST_F(DependencyStatement, EndsNoConditionWithATab)
{
    for (const char* line :
         {"Ok/ACTIVE = A\t\n", "Ok/ACTIVE = A\t, B\n", "Ok/ACTIVE = A\tB\n", "Ok/ACTIVE = A(1) B\tC\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(DependencyFailure(line), "212 '1'");
    }
    EXPECT_EQ(Dependency("Ok/ACTIVE =\tA,\tB\n"), "Ok/ACTIVE: A B");
}

TEST_F(DependencyStatement, FailsInTheClassLibraryWhereALineEndsTooEarly)
{
    EXPECT_EQ(DependencyFailure("Ok/\n"), missingArgument);
    EXPECT_EQ(DependencyFailure("Ok/ACTIVE = A(1,\n"), missingArgument);
    EXPECT_EQ(DependencyFailure("Ok/ACTIVE = A(\n"), missingArgument);
}
