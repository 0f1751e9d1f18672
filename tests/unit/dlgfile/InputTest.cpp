#include "Description.h"

#include "model/ClytInputPart.h"

namespace
{

std::string Shown(const ClytScan& scan)
{
    std::string shown;
    if (scan.GetLength() != 0 || !scan.GetTarget().IsEmpty())
        shown += "[" + std::to_string(scan.GetLength()) + ">" + scan.GetTarget().GetString() + "]";
    for (POSITION place = scan.GetSeparators().GetHeadPosition(); place != nullptr;)
    {
        const ClytSeparator& separator = *scan.GetSeparators().GetNext(place);
        shown += "['" + std::string(separator.text.GetString()) + "'>" + separator.target.GetString() + "]";
    }
    return shown;
}

std::string Shown(const ClytControlFill& fill)
{
    std::string shown = fill.controlName.GetString();
    if (!fill.value.IsEmpty())
        shown += "=" + std::string(fill.value.GetString());
    if (!fill.action.GetText().IsEmpty())
    {
        shown += ":" + std::string(fill.action.GetText().GetString());
        for (const CString& operand : fill.operands)
            shown += "/" + std::string(operand.GetString());
    }
    return shown;
}

std::string Shown(const ClytDialogInput& statement)
{
    std::string shown = std::string(statement.name.GetString()) + ":";
    shown += Shown(statement.scanRule.scan);
    for (POSITION place = statement.scanRule.rules.GetHeadPosition(); place != nullptr;)
    {
        const ClytConditionFill& rule = *statement.scanRule.rules.GetNext(place);
        shown += " ";
        if (!rule.values.IsEmpty())
            shown += "(" + Joined(rule.values, ",") + ")";
        shown += Shown(*rule.fills.GetHead());
    }
    if (!statement.conditions.IsEmpty() || !statement.falseTarget.IsEmpty())
        shown += Shown(statement.conditions) + " ? " + statement.trueTarget.GetString() + " : " +
                 statement.falseTarget.GetString();
    return shown;
}

// All parts of an input section, as the dialog reads them.
std::string Parts(const std::string& section)
{
    Description file(section);
    ClytCtrlValList own;
    ClytCtrlValList other;
    CString key;
    EXPECT_EQ(file.ReadEvaluationStatement(own, other, key), 0);
    std::string shown;
    CString name;
    while (file.ReadInputHeader(name) != 0)
    {
        ClytInputPart part;
        file.ReadInputPart(part);
        shown += "{" + std::string(name.GetString()) + "}";
        for (POSITION place = part.GetStatements().GetHeadPosition(); place != nullptr;)
            shown += Shown(*part.GetStatements().GetNext(place)) + "\n";
    }
    return shown;
}

// One statement that is not the first after its header.
std::string Input(const std::string& line)
{
    const std::string shown = Parts("$INPUT\nFirst: x = End\n" + line + "\n$OUTPUT\n");
    return shown.substr(shown.find('\n') + 1);
}

std::string InputFailure(const std::string& line)
{
    return RaisedMessage([&] { Input(line); });
}

// A file on a disk that fails after a number of lines.
class FailingDescription : public Description
{
public:
    FailingDescription(const std::string& content, int goodLines) : Description(content), m_goodLines(goodLines) {}

    char* ReadString(char* buffer, UINT count) override
    {
        if (m_goodLines-- == 0)
            AfxThrowFileException(CFileException::genericException, 0, "disk");
        return Description::ReadString(buffer, count);
    }

private:
    int m_goodLines;
};

class InputPart : public WithErrorTexts
{
};

class InputStatement : public WithErrorTexts
{
};

} // namespace

TEST_F(InputPart, HoldsAStatementOfEachForm)
{
    EXPECT_EQ(Parts("$INPUT, parent\n"
                    "Start: (\";\", Second, Rest, End = EditName\n"
                    "Second: Kind(1) = Third, Fourth\n"
                    "Third: (3, Fourth = Kind\n"
                    "Fourth: x = End\n"
                    "$OUTPUT\n"),
              "{parent}Start:[';'>Second]['Rest'>End] EditName\n"
              "Second:Kind(1) ? Third : Fourth\n"
              "Third:[3>Fourth] Kind\n"
              "Fourth: ? x : End\n");
}

TEST_F(InputPart, TakesItsNameFromTheHeader)
{
    EXPECT_EQ(Parts("$INPUT\nA: x = End\n$INPUT, other\nB: x = End\n$INPUT\n$OUTPUT\n"),
              "{}A: ? x : End\n{other}B: ? x : End\n{}");
}

TEST_F(InputPart, MayBeEmpty)
{
    EXPECT_EQ(Parts("$INPUT, a\n$OUTPUT\n"), "{a}");
    EXPECT_EQ(Parts("$INPUT, a\n\n; note\n$OUTPUT, x\n"), "{a}");
}

TEST_F(InputPart, KeepsTheStatementInFrontOfTheOutputHeader)
{
    EXPECT_EQ(Parts("$INPUT\n\nA: x = End\n\nB: x = End\n$OUTPUT\n"), "{}A: ? x : End\nB: ? x : End\n");
}

TEST_F(InputPart, KeepsTwoStatementsOfOneNameAndFindsTheLater)
{
    Description file("$INPUT\nA: x = One\nA: x = Two\n$OUTPUT\n");
    ClytCtrlValList unused;
    CString name;
    EXPECT_EQ(file.ReadEvaluationStatement(unused, unused, name), 0);
    EXPECT_EQ(file.ReadInputHeader(name), 1);
    ClytInputPart part;
    file.ReadInputPart(part);
    EXPECT_EQ(part.GetStatements().GetCount(), 2);
    ASSERT_NE(part.Find("A"), nullptr);
    EXPECT_EQ(part.Find("A")->falseTarget, "Two");
    EXPECT_EQ(part.Find("B"), nullptr);
}

TEST_F(InputPart, JoinsAStatementWithoutANameToTheNextOne)
{
    EXPECT_EQ(Parts("$INPUT\n: A(1) = B, C\nX: D(2) = E, F\n$OUTPUT\n"), "{}X:A(1) D(2) ? E : F\n");
}

TEST_F(InputPart, ReadsItsFirstStatementWithoutTabAndSemicolon)
{
    EXPECT_EQ(Parts("$INPUT\nA: (\";\", End = N\t; x\nB: (\";\", End = N\t; x\n$OUTPUT\n"),
              "{}A:[';'>End] N\t; x\nB:[';'>End] N\n");
    EXPECT_EQ(RaisedMessage([&] { Parts("$INPUT\nFirst: x = End\nB: (1\tEnd\tx)\n$OUTPUT\n"); }), "nothing was raised");
    EXPECT_EQ(RaisedMessage([&] { Parts("$INPUT\nB: (1\tEnd\tx)\n$OUTPUT\n"); }), "nothing was raised");
}

TEST_F(InputPart, RaisesTheEndOfTheFileWithTheHeaderThatIsMissing)
{
    EXPECT_EQ(RaisedMessage([&] { Parts("$INPUT\n"); }), "217 '$OUTPUT'");
    EXPECT_EQ(RaisedMessage([&] { Parts("$INPUT\nA: x = End\n"); }), "217 '$OUTPUT'");
}

TEST_F(InputPart, TellsAFailureOfTheClassLibraryAs206)
{
    FailingDescription file("$INPUT\nA: x = End\nB: x = End\n$OUTPUT\n", 2);
    ClytCtrlValList unused;
    CString name;
    EXPECT_EQ(file.ReadEvaluationStatement(unused, unused, name), 0);
    EXPECT_EQ(file.ReadInputHeader(name), 1);
    ClytInputPart part;
    EXPECT_EQ(RaisedMessage([&] { file.ReadInputPart(part); }), "The file could not be read or written: disk\n206 ''");
}

TEST_F(InputStatement, TakesConditionsUpToAnEqualsSign)
{
    EXPECT_EQ(Input("X: A(1,2) = T, F"), "X:A(1,2) ? T : F\n");
    EXPECT_EQ(Input("X: A(1), B(2) = T, F"), "X:A(1) B(2) ? T : F\n");
    EXPECT_EQ(Input("X: , A(1) = T, F"), "X:A(1) ? T : F\n");
    EXPECT_EQ(Input("X: A) = T, F"), "X:A ? T : F\n");
    EXPECT_EQ(Input("X: A, B(1) = T, F"), "X:A(B,1) ? T : F\n");
    EXPECT_EQ(Input("X: A(1) = T, F, more"), "X:A(1) ? T : F\n");
}

TEST_F(InputStatement, IgnoresTheWordOfAJump)
{
    EXPECT_EQ(Input("X: word = Next"), "X: ? word : Next\n");
}

TEST_F(InputStatement, PassesOverAnEqualsSignWithNothingBeforeItAmongItsConditions)
{
    EXPECT_EQ(Input("X: , = A(1) = T, F"), "X:A(1) ? T : F\n");
    EXPECT_EQ(Input("X: A(1), = B(2) = T, F"), "X:A(1) B(2) ? T : F\n");
}

TEST_F(InputStatement, JumpsFromAnEqualsSignWithNothingBeforeIt)
{
    EXPECT_EQ(Input("X: = Next"), "X: ?  : Next\n");
}

TEST_F(InputStatement, OfConditionsWithoutBothTargetsRaises)
{
    for (const char* line :
         {"X: A(1)", "X: A(1) = ", "X: A(1) = T", "X: A(1)=T,", "X: A", "X: A(1", "X: A(1,", "X: ,", "X: word ="})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(InputFailure(line), "212 '3'");
    }
}

TEST_F(InputStatement, WithoutAColonRaises)
{
    for (const char* line : {"X", "X = A", "X, A", "X (\";\", End)", "X:"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(InputFailure(line), "212 '3'");
    }
}

TEST_F(InputStatement, TakesAScanListThatABracketCloses)
{
    EXPECT_EQ(Input("X: (\";\", Second)"), "X:[';'>Second]\n");
    EXPECT_EQ(Input("X: (\";\", Second, \",\", Third)"), "X:[';'>Second][','>Third]\n");
    EXPECT_EQ(Input("X: ()"), "X:\n");
}

TEST_F(InputStatement, LetsTheLaterKindOfScanEntryDecide)
{
    EXPECT_EQ(Input("X: (3, A, \";\", B = N"), "X:[';'>B] N\n");
    EXPECT_EQ(Input("X: (\";\", B, 3, A = N"), "X:[3>A][';'>B] N\n");
    EXPECT_EQ(Input("X: (-3, A = N"), "X:[-3>A] N\n");
}

TEST_F(InputStatement, DoesNotEndAScanListAtABracketWithMoreAfterIt)
{
    EXPECT_EQ(InputFailure("X: (\";\", Second) = N"), "212 '3'");
    EXPECT_EQ(InputFailure("X: (\";\", Second) N"), "212 '3'");
    // The word after the bracket is a further separator, and here it finds a target with an equals sign.
    EXPECT_EQ(Input("X: (\";\", Second) a, Third = N"), "X:[';'>Second]['a'>Third] N\n");
}

TEST_F(InputStatement, TakesFillRulesAfterAListThatALoneWordCloses)
{
    EXPECT_EQ(Input("X: (\";\", Second, x) = N, M"), "X:[';'>Second] N M\n");
    EXPECT_EQ(Input("X: (\";\", Second, x) N"), "X:[';'>Second] N\n");
    EXPECT_EQ(Input("X: () = N"), "X: N\n");
    EXPECT_EQ(Input("X: (\";\", Second) x) = N"), "X:[';'>Second] N\n");
    EXPECT_EQ(Input("X: (\";\", Second, 3)"), "X:[';'>Second]\n");
    EXPECT_EQ(Input("X: (x) = N"), "X: N\n");
}

TEST_F(InputStatement, OfAScanListThatStaysUnfinishedRaises)
{
    for (const char* line :
         {"X: (", "X: (\";\"", "X: (\";\", Second", "X: (\";\", Second,", "X: (\";\", A, \",\"", "X: (3"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(InputFailure(line), "212 '3'");
    }
}

TEST_F(InputStatement, TakesEachFormOfAFillRule)
{
    EXPECT_EQ(Input("X: (1, E = N, M, K"), "X:[1>E] N M K\n");
    EXPECT_EQ(Input("X: (1, E = N = fixed, M"), "X:[1>E] N=fixed M\n");
    EXPECT_EQ(Input("X: (1, E = (a,b) N, M"), "X:[1>E] (a,b)N M\n");
    EXPECT_EQ(Input("X: (1, E = (a), N = f"), "X:[1>E] (a)N=f\n");
    EXPECT_EQ(Input("X: (1, E = N(FILL), M(ADD), K(MODIFY)"), "X:[1>E] N:FILL/// M:ADD/// K:MODIFY///\n");
    EXPECT_EQ(Input("X: (1, E = N(CONCAT,a,b,c)"), "X:[1>E] N:CONCAT/a/b/c\n");
    EXPECT_EQ(Input("X: (1, E = (x) N(CONCAT,\",\"), M"), "X:[1>E] (x)N:CONCAT/,// M\n");
    EXPECT_EQ(Input("X: (1, E = N(word)"), "X:[1>E] N:word///\n");
    EXPECT_EQ(Input("X: (1, E = N ; note"), "X:[1>E] N\n");
    EXPECT_EQ(Input("X: (1, E = N\t; note"), "X:[1>E] N\n");
    EXPECT_EQ(Input("X: (1, E = N,"), "X:[1>E] N\n");
}

TEST_F(InputStatement, OfAWrongFillRuleRaises)
{
    for (const char* line :
         {"X: (1, E = N)", "X: (1, E = = N", "X: (1, E = N: M", "X: (1, E = N =", "X: (1, E = N = f = g",
          "X: (1, E = N(FILL", "X: (1, E = N(", "X: (1, E = N(CONCAT,a,b,c,d)", "X: (1, E = N(FILL) M",
          "X: (1, E = N(FILL) = M", "X: (1, E = (a", "X: (1, E = (a,", "X: (1, E = (a)", "X: (1, E = (a)=N",
          "X: (1, E = N(FILL:x)", "X: (1, E = N,,M", "X: (1, E = (a)(b) N", "X: (1, E = N\tM"})
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(InputFailure(line), "212 '3'");
    }
}
