#include "Description.h"

#include "model/ClytDialogOutput.h"

namespace
{

std::string Output(const std::string& line)
{
    Description file(line);
    CString group;
    ClytDialogOutput rule;
    if (file.ReadOutputStatement(group, rule) == 0)
        return "end";
    if (!group.IsEmpty())
        return "group " + std::string(group.GetString()) + " " + Shown(rule.conditions);
    std::string shown = Shown(rule.conditions) + " = " + rule.format.GetString();
    for (const ClytOutputItem& item : rule.items)
    {
        shown += ", " + std::string(item.text.GetString());
        if (!item.action.IsEmpty())
            shown += ":" + std::string(item.action.GetString());
    }
    return shown;
}

std::string OutputFailure(const std::string& line)
{
    return RaisedMessage([&] { Output(line); });
}

class OutputStatement : public WithErrorTexts
{
};

} // namespace

TEST_F(OutputStatement, TakesConditionsFormatAndItems)
{
    EXPECT_EQ(Output("Kind(1), EditName = (\"%s;%.3s\", EditName, Kind)\n"),
              "Kind(1) EditName = %s;%.3s, EditName, Kind");
    EXPECT_EQ(Output("Kind(1,2), A(3) = (\"%s\", x)\n"), "Kind(1,2) A(3) = %s, x");
}

TEST_F(OutputStatement, MayBeAFormatAlone)
{
    EXPECT_EQ(Output("(\"text\")\n"), " = text");
}

TEST_F(OutputStatement, JoinsTheTextsOfAnAction)
{
    EXPECT_EQ(Output("(\"%s\", x(a,b))\n"), " = %s, x:ab");
    EXPECT_EQ(Output("Kind(2) = (\"%s\", EditName(\"/\"))\n"), "Kind(2) = %s, EditName:/");
    EXPECT_EQ(Output("(\"%s\", x(a<b,c), y)\n"), " = %s, x:bc, y");
}

TEST_F(OutputStatement, TakesAnEmptyActionAsAJoin)
{
    EXPECT_EQ(Output("(\"%s\", EditName())\n"), " = %s, EditName:CONCAT");
    EXPECT_EQ(Output("(\"%s\", EditName(\" \"))\n"), " = %s, EditName:CONCAT");
}

TEST_F(OutputStatement, PassesOverAWordAfterAnAction)
{
    EXPECT_EQ(Output("(\"%s\", x(a) y, z)\n"), " = %s, x:a, z");
}

TEST_F(OutputStatement, PassesOverAWordBeforeTheRightSide)
{
    EXPECT_EQ(Output("A(1) = word(\"x\", a)\n"), "A(1) = x, a");
    EXPECT_EQ(Output("A = word (\"x\")\n"), "A = x");
}

TEST_F(OutputStatement, GoesOnAfterAListWithACommaOrAnEqualsSignOnly)
{
    for (const char* line : {"A(1): B = (\"x\")\n", "A(1) (B = (\"x\")\n", "A(1)) B = (\"x\")\n", "A(1)< B = (\"x\")\n",
                             "A(1)> B = (\"x\")\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(OutputFailure(line), "212 '1'");
    }
}

TEST_F(OutputStatement, TakesABareNameAsTheLastCondition)
{
    EXPECT_EQ(Output("A = (\"x\")\n"), "A = x");
    EXPECT_EQ(Output("A, (\"x\")\n"), "A = x");
    EXPECT_EQ(OutputFailure("A, B = (\"x\")\n"), "212 '1'");
}

TEST_F(OutputStatement, TakesSemicolonsAsContentUnlessTheyBeginAToken)
{
    EXPECT_EQ(Output("(\"a;b\", x)\n"), " = a;b, x");
    EXPECT_EQ(Output("(a;b, x;y)\n"), " = a;b, x;y");
    EXPECT_EQ(OutputFailure("(;b, x)\n"), "212 '1'");
}

TEST_F(OutputStatement, MayBeAGroupHeader)
{
    EXPECT_EQ(Output("$OUTPUT, second\n"), "group second ");
    EXPECT_EQ(Output("A(1), $OUTPUT, second\n"), "group second A(1)");
}

TEST_F(OutputStatement, IsMissingOnAnEmptyOrCommentLine)
{
    EXPECT_EQ(Output("\n"), " = ");
    EXPECT_EQ(Output("  ; (\"x\")\n"), " = ");
}

TEST_F(OutputStatement, EndsWithTheEndWord)
{
    EXPECT_EQ(Output("$END\n"), "end");
    EXPECT_EQ(Output("$END"), "end");
}

TEST_F(OutputStatement, OfWrongFormRaises)
{
    for (const char* line : {"(\n",
                             "A\n",
                             "A)\n",
                             "A:x\n",
                             "A<x\n",
                             "= (\"x\")\n",
                             ", (\"x\")\n",
                             "A(1)\n",
                             "A(1\n",
                             "A(1:2) = (\"x\")\n",
                             "A(1):(\"x\")\n",
                             "A(1) =\n",
                             "A(1),\n",
                             "A(1) = (\n",
                             "A(1) = x\n",
                             "A = x)\n",
                             "(\"x\", a\n",
                             "(\"x\", a=b)\n",
                             "(\"x\", a:b)\n",
                             "(\"x\", a<b)\n",
                             "$OUTPUT\n"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(OutputFailure(line), "212 '1'");
    }
}

TEST_F(OutputStatement, FailsInTheClassLibraryWhereALineEndsTooEarly)
{
    EXPECT_EQ(OutputFailure("A(1,\n"), missingArgument);
    EXPECT_EQ(OutputFailure("(\"x\", a(b)\n"), missingArgument);
    EXPECT_EQ(OutputFailure("(\"x\", a(b\n"), missingArgument);
    EXPECT_EQ(OutputFailure("(\"x\", a(\n"), missingArgument);
}
