// All mistakes of a description in one reading, each with its place.
#include "Description.h"

#include "dlgfile/ReadAll.h"

namespace
{

std::string Shown(const ClytSpan& place)
{
    return std::to_string(place.line) + ":" + std::to_string(place.column) + "+" + std::to_string(place.length);
}

// Keeps each report as a line: place, number, argument.
class KeepingSink final : public ErrorSink
{
public:
    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place, ClytDue /*due*/) override
    {
        told += Shown(place) + " " + failure->GetNumber().GetString() + " " + failure->GetArgument().GetString() + "\n";
    }
    void TellShortLine(const ClytSpan& place, ClytDue /*due*/) override { told += Shown(place) + " short\n"; }

    std::string told;
};

class Reading
{
public:
    explicit Reading(const std::string& content, const char* defines = nullptr) : m_file(defines, m_sink)
    {
        EXPECT_TRUE(m_file.Open(m_folder.Write("test.dlg", content).c_str(), CFile::modeRead));
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading() { m_file.Close(); }

    ClytDialogFile& File() { return m_file; }
    const std::string& Told() const { return m_sink.told; }

    // The failures of the whole description.
    std::string ToldOfAll()
    {
        ClytDescriptionVisitor nobody;
        lytReadAll(m_file, nobody);
        return Told();
    }

    ClytControlStatement control;
    ClytInputPart part;
    ClytDialogOutput output;

private:
    TestFolder m_folder;
    KeepingSink m_sink;
    ClytDialogFile m_file;
};

} // namespace

TEST(ErrorSink, IsToldOfEveryStatementOfWrongForm)
{
    Reading reading("$VERSION 1\n"
                    "$LAYOUT\n"
                    "Begin Dialog Box 1, 2, \"T\", .M\n"
                    "Text 1, .A\n"
                    "TextBox 1, 2, 3, 4, .B\n"
                    "End\n"
                    "$VALUES\n"
                    "  A\n"
                    "B = x\n"
                    "$DEPENDANCES\n"
                    "A = B\n"
                    "A, \"open\n"
                    "A/ACTIVE = B(1,\n"
                    "$EVALUATION, x\n"
                    "A : x\n"
                    "$INPUT\n"
                    "Start\n"
                    "Next: (\";\", End\n"
                    "$OUTPUT\n"
                    "x<\n");
    EXPECT_EQ(reading.ToldOfAll(), "4:8+2 212 4\n"
                                   "6:3+0 short\n"
                                   "8:0+3 212 8\n"
                                   "11:0+1 212 11\n"
                                   "12:3+5 210 \n"
                                   "13:15+0 short\n"
                                   "15:0+1 212 15\n"
                                   "17:0+5 212 17\n"
                                   "18:12+3 212 18\n"
                                   "20:0+1 212 20\n"
                                   "20:2+0 217 $END\n");
}

TEST(ErrorSink, IsToldWhatIsWrongAboveTheControls)
{
    EXPECT_EQ(Reading("").ToldOfAll().substr(0, 10), "0:0+0 214 ");
    Reading reading("$VERSION 1 2\n"
                    "free text\n"
                    "$LAYOUT\n"
                    "Begin Dialog 1\n");
    EXPECT_EQ(reading.ToldOfAll().substr(0, 26), "1:0+12 212 1\n4:0+14 212 4\n");
}

TEST(ErrorSink, IsToldOfTheEndOfTheFileInEachSection)
{
    Reading reading("$VERSION 1\n$LAYOUT\nBegin Dialog Box 1, 2, \"T\", .M\n");
    EXPECT_EQ(reading.ToldOfAll(), "3:30+0 216 \n3:30+0 217 $DEPENDANCES\n3:30+0 217 $EVALUATION\n"
                                   "3:30+0 217 $INPUT\n3:30+0 217 $END\n");
}

TEST(Places, AreThoseOfTheFileAndNumbersThoseOfTheLinesLeftIn)
{
    Reading reading("<X\nA(1)\n>\nB\n");
    CString text;
    CStringList words;
    EXPECT_EQ(reading.File().ReadValueStatement(text, text, words), 1);
    EXPECT_EQ(reading.Told(), "4:0+1 212 1\n");
}

TEST(Places, AreCountedFromTheStartOfALongLine)
{
    const std::string blanks(398, ' ');
    Reading reading(blanks + "x\n");
    CString text;
    CStringList words;
    EXPECT_EQ(reading.File().ReadValueStatement(text, text, words), 1);
    EXPECT_EQ(reading.File().ReadValueStatement(text, text, words), 1);
    EXPECT_EQ(reading.Told(), "1:0+399 212 1\n");

    Reading pieces(blanks + " ab\n");
    EXPECT_EQ(pieces.File().ReadValueStatement(text, text, words), 1);
    EXPECT_EQ(pieces.File().ReadValueStatement(text, text, words), 1);
    EXPECT_EQ(pieces.Told(), "1:399+2 212 2\n");
}

TEST(Places, StandInTheRecords)
{
    Reading reading("Text 1, 2, 3, 4, .A\n");
    EXPECT_EQ(reading.File().ReadControlStatement(reading.control), 1);
    EXPECT_EQ(Shown(reading.control.span), "1:0+19");

    Reading rules(" A/ACTIVE = B(1), C\n");
    ClytControlDep rule;
    EXPECT_EQ(rules.File().ReadDependencyStatement(rule), 1);
    EXPECT_EQ(Shown(rule.span), "1:1+18");
    EXPECT_EQ(Shown(rule.conditions.GetHead()->GetSpan()), "1:12+1");
    EXPECT_EQ(Shown(rule.conditions.GetTail()->GetSpan()), "1:18+1");

    Reading input("Start: (\";\", Next = A\nNext: A(1) = End, End\n$OUTPUT\n");
    input.File().ReadInputPart(input.part);
    const ClytDialogInput& scan = *input.part.GetStatements().GetHead();
    EXPECT_EQ(Shown(scan.span), "1:0+21");
    EXPECT_EQ(Shown(scan.scanRule.scan.GetSeparators().GetHead()->span), "1:9+1");
    EXPECT_EQ(Shown(scan.scanRule.rules.GetHead()->fills.GetHead()->span), "1:20+1");
    EXPECT_EQ(Shown(input.part.GetStatements().GetTail()->conditions.GetHead()->GetSpan()), "2:6+1");

    Reading output("A = (\"%s\", A, B())\n");
    CString name;
    EXPECT_EQ(output.File().ReadOutputStatement(name, output.output), 1);
    EXPECT_EQ(Shown(output.output.span), "1:0+18");
    EXPECT_EQ(Shown(output.output.items.front().span), "1:11+1");
    EXPECT_EQ(Shown(output.output.items.back().span), "1:14+1");
}

TEST(Places, OfAPartAndItsFillRulesStandInThem)
{
    Reading reading("$INPUT\n  $INPUT, Part\n\n Start: (2, End = (a), A, (b, c), B\n$OUTPUT\n");
    CString name;
    ClytCtrlValList unused;
    EXPECT_EQ(reading.File().ReadEvaluationStatement(unused, unused, name), 0);
    EXPECT_EQ(reading.File().ReadInputHeader(name), 1);
    reading.File().ReadInputPart(reading.part);
    EXPECT_EQ(Shown(reading.part.span), "1:0+6");
    EXPECT_EQ(reading.File().ReadInputHeader(name), 1);
    ClytInputPart part;
    reading.File().ReadInputPart(part);
    EXPECT_EQ(Shown(part.span), "2:2+12");
    const ClytDialogInput& statement = *part.GetStatements().GetHead();
    EXPECT_EQ(Shown(statement.span), "4:1+34");
    EXPECT_EQ(Shown(statement.scanRule.scan.GetLengthSpan()), "4:9+1");
    EXPECT_EQ(Shown(statement.scanRule.rules.GetHead()->span), "4:18+0");
    EXPECT_EQ(Shown(statement.scanRule.rules.GetTail()->span), "4:26+0");
    EXPECT_EQ(Shown(statement.scanRule.rules.GetTail()->fills.GetHead()->span), "4:34+1");
}

TEST(Places, OfAStatementBeginWithItsFirstWord)
{
    Reading reading("  A = KEYWORD, x\n");
    CString text;
    CStringList words;
    EXPECT_EQ(reading.File().ReadValueStatement(text, text, words), 1);
    EXPECT_EQ(Shown(reading.File().GetStatementPlace()), "1:2+14");

    Reading evaluation(" A(1) = B(2) : KEY\n");
    ClytCtrlValList own;
    ClytCtrlValList other;
    EXPECT_EQ(evaluation.File().ReadEvaluationStatement(own, other, text), 1);
    EXPECT_EQ(Shown(own.GetSpan()), "1:1+1");
    EXPECT_EQ(Shown(other.GetSpan()), "1:8+1");
}
