// Statements of an input part as they are written, run over a text: what is done to the controls.
#include "Controls.h"

#include "model/ClytInputPart.h"
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

    const ErrorTexts texts;
    Controls controls;
};

} // namespace

TEST_F(Scan, CutsPiecesAndGoesOnWhereTheSeparatorLeads)
{
    static const struct
    {
        const char* start; // the list of the first statement, which fills the control Start
        const char* text;
        const char* log;
    } cases[] = {
        {"\",\", B", "a,b", "Start.set(a) B.set(b) "},
        {"\",\", B", "a", "Start.set(a) "},
        {"\",\", End", "a,b", "Start.set(a) "},
        {"\",\", Nowhere", "a,b", "Start.set(a) "},
        {"\",\", B, Rest, C", "abc", "Start.set(abc) C.set() "},
        {"\",\", B, Rest, C", "", "Start.set() C.set() "},
        {"\",\", B, Rest, C", "a,b", "Start.set(a) B.set(b) "},
        {"Rest, B", "abRestcd", "Start.set(ab) B.set(cd) "},
        // The first separator that fits.
        {"\"->\", B, \"-\", C", "a->b", "Start.set(a) B.set(b) "},
        {"\"-\", C, \"->\", B", "a->b", "Start.set(a) C.set(>b) "},
        // A closing bracket that closes one of its piece is content; others end a piece inside brackets.
        {"\")\", B", "a(b)c)d", "Start.set(a(b)c) B.set(d) "},
        {"\")\", B", "a((b)c)d)e", "Start.set(a((b)c)d) B.set(e) "},
        {"\")\", B", "a)b", "Start.set(a) B.set(b) "},
        {"\")\", B", "((((a", "Start.set(((((a) "},
        {"\"}\", B, \"]\", C", "a{b[c}d]e}f", "Start.set(a{b[c}d]e) B.set(f) "},
        {"\"}\", B, \"]\", C", "a{b]f", "Start.set(a{b) C.set(f) "},
        {"\",\", B", "f(a,b)", "Start.set(f(a) B.set(b)) "},
        // Quotes around a piece go, others stay; inside them there are no separators and no brackets.
        {"\",\", B", "\"a,b\",c", "Start.set(a,b) B.set(c) "},
        {"\",\", B", "x\"a,b\",c", "Start.set(x\"a,b\") B.set(c) "},
        {"\",\", B", "\"a\"\"b\",c", "Start.set(a\"b\") B.set(c) "},
        {"\")\", B", "\"((\")x", "Start.set((() B.set(x) "},
        {"\",\", B, Rest, C", "\"a,b", "Start.set(a,b) C.set() "},
        {"\",\", B, Rest, C", "x\"a,b", "Start.set(x\"a,b) C.set() "},
        {"\",\", B, Rest, C", "\"", "Start.set() C.set() "},
        // A fixed length knows no quotes.
        {"5, B", "abc", "Start.set(abc) B.set() "},
        {"5, B", "abcdefg", "Start.set(abcde) B.set(fg) "},
        {"-3, B", "abc", "Start.set() B.set(abc) "},
        {"3, B", "\"a\"b", "Start.set(\"a\") B.set(b) "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Run(std::string("Start: (") + c.start + " = Start", c.text), c.log) << c.start << " of " << c.text;
}

TEST_F(Scan, CountsTheBracketsOfEarlierPieces)
{
    static const struct
    {
        const char* statements;
        const char* text;
        const char* log;
    } cases[] = {
        {"Start: (\"(\", B = X\nB: (\",\", D, \")\", C = B\nD: (\",\", End, \")\", C = D", "x(a,b)y",
         "X.set(x) B.set(a) D.set(b) C.set(y) "},
        // Two are open when B begins, so the first closing one is content and the second ends the piece.
        {"Start: (2, B = X\nB: (\")\", C = B", "((a)b)c", "X.set((() B.set(a)b) C.set(c) "},
        // The first piece leaves the count at -1, so of the two opened after it only one counts as open.
        {"Start: (\")\", D = X\nD: (2, B = D\nB: (\")\", C = B", "a)((b)c", "X.set(a) D.set((() B.set(b) C.set(c) "},
        // Of a separator only the first character counts.
        {"Start: (\",((\", B = X\nB: (\")\", C = B", "a,((b)c", "X.set(a) B.set(b) C.set(c) "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Run(c.statements, c.text), c.log) << c.statements;
}

TEST_F(Scan, FillsByTheRulesOfTheStatement)
{
    static const struct
    {
        const char* rules;
        const char* piece;
        const char* log;
    } cases[] = {
        {"A", "x", "A.set(x) "},
        {"A = fixed", "x", "A.set(fixed) "},
        {"A(fill)", "x", "A.set(x) "},
        {"A(FILL)", "x", "A.fill() "},
        {"A(ADD)", "x", "A.add(,x,00) "},
        {"A(MODIFY)", "x", "A.replace(x) "},
        // Operands and a line feed are joined to the separators.
        {"A(CONCAT,a,b,c)", "x", "A.values(x\n,abc\n) "},
        {"A(CONCAT)", "", "A.values(\n,\n) "},
        {"Unknown, B", "x", "B.set(x) "},
        {"A, B", "x", "A.set(x) B.set(x) "},
        // A rule that does not hold takes the next one along, and knows no meaning of NULL.
        {"(1,2) A, B, C", "2", "A.set(2) B.set(2) C.set(2) "},
        {"(1,2) A, B, C", "x", "C.set(x) "},
        {"(1,2) A, B, C", "", "C.set() "},
        {"(NULL) A, B", "", ""},
        {"(NULL) A, B", "NULL", "A.set(NULL) B.set(NULL) "},
        {"A, (1) B", "x", "A.set(x) "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Run(std::string("Start: (99, End = ") + c.rules, c.piece), c.log) << c.rules << " of " << c.piece;
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
