// Statements of an input part as they are written, run over a text: what is done to the controls.
#include "Controls.h"

#include "model/ClytInputPart.h"
#include "unit/Readings.h"
#include "unit/dlgfile/Description.h"

namespace
{

const std::string circle = "The input statements go round in a circle.\n206 ''";

// That many jumps in a row, from the statement of that name to the one with the number after its name.
std::string Jumps(const std::string& name, int count)
{
    std::string statements = name + ": x = " + name + "1\n";
    for (int number = 1; number < count; ++number)
        statements += name + std::to_string(number) + ": x = " + name + std::to_string(number + 1) + "\n";
    return statements;
}

class Scan : public testing::Test
{
protected:
    Scan()
    {
        for (const char* name : {"", "A", "B", "C", "D", "X", "Start"})
            controls.Add(name);
    }

    // B and C take the rest of the text, unless a later statement of the name says otherwise.
    std::string Run(const std::string& statements, const std::string& text, const char* start = "Start")
    {
        Description file("$INPUT\nB: (\"|\", End = B\nC: (\"|\", End = C\n" + statements + "\n$OUTPUT\n");
        ClytCtrlValList unused;
        CString name;
        EXPECT_EQ(file.ReadEvaluationStatement(unused, unused, name), 0);
        EXPECT_EQ(file.ReadInputHeader(name), 1);
        ClytInputPart part;
        file.ReadInputPart(part);
        part.Bind(controls.map);
        const CString copy = text.c_str();
        const std::string message = RaisedMessage([&] { part.Run(copy, start); });
        EXPECT_EQ(copy, text.c_str());
        const std::string log = controls.TakeLog();
        return message == "nothing was raised" ? log : message;
    }

    // Runs the cases of a table: the statements with these texts around them, and the text that is cut.
    void ExpectRuns(const char* table, const std::string& before, const std::string& after)
    {
        ExpectReadings("model/scan.cases", table,
                       [&](const std::string& text)
                       {
                           const std::vector<std::string> columns = ColumnsOf(text);
                           const std::string log = Run(before + columns.at(0) + after, columns.at(1));
                           return log.substr(0, log.find_last_not_of(' ') + 1);
                       });
    }

    const ErrorTexts texts;
    Controls controls;
};

} // namespace

TEST_F(Scan, CutsPiecesAndGoesOnWhereTheSeparatorLeads)
{
    ExpectRuns("Cuts", "Start: (", " = Start");
}

TEST_F(Scan, CountsTheBracketsOfEarlierPieces)
{
    ExpectRuns("Brackets", "", "");
}

TEST_F(Scan, FillsByTheRulesOfTheStatement)
{
    ExpectRuns("Fills", "Start: (99, End = ", "");
    // A fill without a control.
    ClytScanRule rule;
    rule.rules.AddTail(std::make_unique<ClytConditionFill>()).fills.AddTail(std::make_unique<ClytControlFill>());
    rule.Bind(controls.map);
    rule.ApplyFills("x");
    EXPECT_EQ(controls.TakeLog(), "");
}

TEST_F(Scan, ChoosesATargetByItsConditionsOrJumps)
{
    const char* const choice = "Start: A(1), X(2) = B, C";
    controls.Add("A", "1");
    controls.Add("X", "0");
    EXPECT_EQ(Run(choice, "x"), "B.set(x) ") << "one that holds is enough";
    controls.Add("A", "0");
    EXPECT_EQ(Run(choice, "x"), "C.set(x) ");
    EXPECT_EQ(Run("Start: x = B", "x"), "B.set(x) ");
    EXPECT_EQ(Run("Start: x = B", "x", "Nowhere"), "");
    ClytInputPart().Run("a,b", "Start");
}

TEST_F(Scan, RaisesACircleOfStatementsThatConsumesNothing)
{
    EXPECT_EQ(Run("Start: x = B\nB: x = Start", "text"), circle);
    EXPECT_EQ(Run("Start: x = B\nB: (\",\", Start, Rest, Start = B", "a,b"), circle);
    // The 10000th change of state in a row is one too many.
    EXPECT_EQ(Run(Jumps("Start", 9999) + "Start9999: (\",\", End = A", "a,"), "A.set(a) ");
    EXPECT_EQ(Run(Jumps("Start", 10000) + "Start10000: (\",\", End = A", "a,"), circle);
    // They count from zero once text is consumed.
    EXPECT_EQ(Run(Jumps("Start", 9999) + "Start9999: (\",\", Again = A\n" + Jumps("Again", 9999) +
                      "Again9999: (\",\", End = B",
                  "a,b,"),
              "A.set(a) B.set(b) ");
    std::string text;
    std::string pieces;
    for (int index = 0; index < 20000; ++index)
    {
        text += "x,";
        pieces += "A.set(x) ";
    }
    EXPECT_EQ(Run("Start: (\",\", Start, Rest, End = A", text), pieces + "A.set() ");
}
