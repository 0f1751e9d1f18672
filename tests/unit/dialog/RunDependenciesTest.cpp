#include "Form.h"

#include "base/ClytCounted.h"
#include "support/DataFunction.h"
#include "support/Dice.h"

#include <algorithm>
#include <array>
#include <vector>

namespace
{

std::string FieldName(int index)
{
    return "F" + std::to_string(index);
}

// A statement that lets the library fill B; what follows it names the rule for its parameter.
const std::string filledB = "B = " + std::string(DataFunction::source);

// So many runs are nested at most: the platform drops what nests much deeper.
constexpr int deepestNesting = 10;

CString Numbered(const char* text, int number)
{
    CString numbered;
    numbered.Format("%s%d", text, number);
    return numbered;
}

// The order of a chain's rules in the file.
enum class Order
{
    AsTheChangesGo,
    AgainstTheChanges
};

// Fields that fill each other, by rules that nest as deep as they like. Each fill writes its number, so the texts tell
// which rule acted when.
class UnlimitedNesting
{
public:
    // A chain through all fields in a separate order, each with one more field that sets it off.
    UnlimitedNesting(int fields, unsigned seed) : texts(fields), m_saved(fields)
    {
        Dice dice(seed);
        for (int index = 1; index < fields; ++index)
            m_rules.push_back({.target = index, .sources = {index - 1, static_cast<int>(dice.Below(fields))}});
        for (size_t index = m_rules.size(); index > 1; --index)
            std::swap(m_rules[index - 1], m_rules[dice.Below(index)]);
    }

    std::string Description() const
    {
        std::string lines;
        for (const Rule& rule : m_rules)
            lines += FieldName(rule.target) + "/FILL = " + FieldName(rule.sources[0]) + ", " +
                     FieldName(rule.sources[1]) + "\n";
        return lines;
    }
    void Enter(int field, const std::string& text)
    {
        texts[field] = text;
        const ClytCounted run(m_runs);
        deepestRun = std::max(deepestRun, m_runs);
        for (Rule& rule : m_rules)
        {
            if (rule.isActing || !(HasChanged(rule.sources[0]) || HasChanged(rule.sources[1])))
                continue;
            rule.isActing = true;
            Enter(rule.target, std::to_string(++m_fills));
            rule.isActing = false;
        }
        for (const Rule& rule : m_rules)
        {
            for (const int source : rule.sources)
                m_saved[source] = texts[source];
        }
    }

    std::vector<std::string> texts;
    int deepestRun = 0;

private:
    struct Rule
    {
        int target;
        std::array<int, 2> sources;
        bool isActing = false;
    };
    bool HasChanged(int field) const { return texts[field] != m_saved[field]; }

    std::vector<Rule> m_rules;
    std::vector<std::string> m_saved;
    int m_runs = 0;
    int m_fills = 0;
};

class Rules : public FormTest
{
protected:
    Rules()
    {
        text.layout = "TextBox 1, 2, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\nTextBox 1, 2, 3, 4, .C\n"
                      "ListBox 1, 2, 3, 4, .L\nListBox 1, 2, 3, 4, .M\nPushButton 1, 2, 3, 4, .P\n"
                      "OKButton 1, 2, 3, 4, .Ok\n";
        text.input = "Start: x = End\n";
    }

    void DescribeFields(int fields, const std::string& value)
    {
        text.layout.clear();
        text.values.clear();
        text.dependencies.clear();
        for (int index = 0; index < fields; ++index)
        {
            text.layout += "TextBox 1, 2, 3, 4, ." + FieldName(index) + "\n";
            text.values += FieldName(index) + " = " + value + "\n";
        }
    }

    // Fields of which each empties the next, so that each change begins a run inside the one before.
    void DescribeChain(int fields, Order order)
    {
        DescribeFields(fields, "text");
        for (int step = 1; step < fields; ++step)
        {
            const int index = order == Order::AsTheChangesGo ? step : fields - step;
            text.dependencies += FieldName(index) + "/CLEAR = " + FieldName(index - 1) + "\n";
        }
    }
};

} // namespace

TEST_F(Rules, SwitchBothWaysAtEveryCommand)
{
    text.dependencies = "B/ACTIVE = A(NOTNULL)\nC/VISIBLE = A(x,y)\n";
    LiveForm& opened = Open();
    EXPECT_FALSE(opened.IsEnabled("B"));
    EXPECT_FALSE(opened.IsShown("C"));
    opened.Enter("A", "x");
    EXPECT_TRUE(opened.IsEnabled("B"));
    EXPECT_TRUE(opened.IsShown("C"));
    opened.Enter("A", "");
    EXPECT_FALSE(opened.IsEnabled("B"));
    EXPECT_FALSE(opened.IsShown("C"));
    // The field tells that it gets the focus, and twice of each change.
    EXPECT_EQ(opened.runCount, 5);
    EXPECT_EQ(lytCommandSeen, 1);
}

TEST_F(Rules, RunInOnePassInFileOrder)
{
    // The first rule sees the disabled C at the next command only; the last one in the same pass.
    text.values = "C = x\n";
    text.dependencies = "A/ACTIVE = C\nC/ACTIVE = B(NOTNULL)\nM/ACTIVE = C\n";
    LiveForm& opened = Open();
    EXPECT_TRUE(opened.IsEnabled("A"));
    EXPECT_FALSE(opened.IsEnabled("C"));
    EXPECT_FALSE(opened.IsEnabled("M"));
    opened.Command();
    EXPECT_FALSE(opened.IsEnabled("A"));
}

TEST_F(Rules, AreNotEnteredAgainWhileTheyAreCarriedOut)
{
    // The library always writes another text, so every run nested in the fill finds the field changed again.
    text.values = "A = " + std::string(DataFunction::source) + "\n";
    text.dependencies = "A/FILL = A\n";
    int calls = 0;
    const DataFunction library([&](const CString&) { return Numbered("fill ", ++calls); });
    LiveForm& opened = Open();
    opened.Enter("A", "x");
    EXPECT_EQ(opened.Value("A"), "fill 1");
    // The mark is taken back, so the rule works again.
    opened.Enter("A", "y");
    EXPECT_EQ(opened.Value("A"), "fill 2");
    EXPECT_EQ(calls, 2);
}

TEST_F(Rules, EndInAChainOfAThousand)
{
    DescribeChain(1000, Order::AsTheChangesGo);
    LiveForm& opened = Open();
    opened.Enter("F0", "x");
    EXPECT_EQ(opened.Value("F1"), "");
    EXPECT_EQ(opened.Value("F999"), "");
    EXPECT_EQ(opened.deepestRun, deepestNesting);
}

TEST_F(Rules, GoOnPastTheDeepestRunInEitherOrder)
{
    for (const Order order : {Order::AsTheChangesGo, Order::AgainstTheChanges})
    {
        SCOPED_TRACE(order == Order::AsTheChangesGo ? "as the changes go" : "against the changes");
        DescribeChain(200, order);
        LiveForm& opened = Open();
        opened.Enter("F0", "x");
        for (int index = 1; index < 200; ++index)
            EXPECT_EQ(opened.Value(FieldName(index).c_str()), "") << index;
        EXPECT_EQ(opened.deepestRun, deepestNesting);
    }
}

TEST_F(Rules, MakeUpForAThousandRunsAtMost)
{
    DescribeChain(1020, Order::AgainstTheChanges);
    LiveForm& opened = Open();
    opened.Enter("F0", "x");
    EXPECT_EQ(opened.Value("F1010"), "");
    EXPECT_EQ(opened.Value("F1011"), "text");
}

// Fifteen rules that show, read and hide a list would begin runs inside each other for hours.
TEST_F(Rules, RepeatAThousandRunsAtMostForOneCommandWhereverTheyWereRefused)
{
    text.values = "L = a\nL = b\nL = c\n";
    text.input = "Start: (\"#\", End, Rest, End = L\n";
    for (int round = 0; round < 3; ++round)
        text.dependencies += "L/VISIBLE = A(NULL)\nB/ACTIVE = L(x)\nL/HIDE = A\nL/VISIBLE = \nL/VISIBLE = C(q)\n";
    LiveForm& opened = Open("no item");
    opened.Enter("A", "x");
    EXPECT_EQ(opened.deepestRun, deepestNesting);
    EXPECT_LT(opened.runCount, 2000) << "for the commands of one letter";
}

TEST_F(Rules, ComeToWhatRunsWithoutALimitWouldComeTo)
{
    for (unsigned seed = 1; seed <= 20; ++seed)
    {
        SCOPED_TRACE(seed);
        UnlimitedNesting expected(200, seed);
        DescribeFields(200, DataFunction::source);
        text.dependencies = expected.Description();
        int fills = 0;
        const DataFunction library([&](const CString&) { return Numbered("", ++fills); });
        LiveForm& opened = Open();
        opened.Enter("F0", "x");
        expected.Enter(0, "x");
        for (int index = 0; index < 200; ++index)
            EXPECT_EQ(opened.Value(FieldName(index).c_str()), expected.texts[index]) << index;
        EXPECT_GT(expected.deepestRun, deepestNesting) << "or the limit is not reached";
        EXPECT_EQ(opened.deepestRun, deepestNesting);
    }
}

TEST_F(Rules, AreEnteredAgainAfterAFailure)
{
    text.values = filledB + ", x, Parameter\n";
    text.dependencies = "B/FILL = A\n";
    text.output = "(\"x\")\n$OUTPUT, Parameter\nA(x) = (\"100%\")\nA(y) = (\"%s\", A)\n";
    const DataFunction library([](const CString& parameter) { return "filled by " + parameter; });
    LiveForm& opened = Open();
    opened.Enter("A", "x");
    EXPECT_EQ(Messages(), missingArgument + std::string(";") + missingArgument + ";") << "once for each command";
    opened.Enter("A", "y");
    EXPECT_EQ(opened.Value("B"), "filled by y");
}

TEST_F(Rules, DoNotRunForAFocusThatReadingAValueMoves)
{
    // Neither list has a selection, so reading the value of each pulls the focus there.
    text.dependencies = "A/ACTIVE = L(x)\nB/ACTIVE = M(NULL)\n";
    LiveForm& opened = Open();
    lytCommandSeen = 0;
    opened.Command();
    EXPECT_EQ(opened.runCount, 1);
    EXPECT_EQ(lytCommandSeen, 1);
    EXPECT_EQ(opened.Focus(), "M");
    EXPECT_FALSE(opened.IsEnabled("A"));
    EXPECT_TRUE(opened.IsEnabled("B"));
}

TEST_F(Rules, DoNotRunForAFocusThatComposingInsideARunMoves)
{
    // The parameter is composed first; the function that is not there then changes nothing.
    text.values = "B = FILLEDBY, unit-tests.exe, NoFunction, x, Parameter\n";
    text.dependencies = "B/FILL = A\n";
    text.output = "(\"x\")\n$OUTPUT, Parameter\n(\"%s\", L)\n";
    LiveForm& opened = Open();
    opened.MoveFocusTo("A");
    const int runsBefore = opened.runCount;
    opened.Enter("A", "x");
    EXPECT_EQ(opened.Focus(), "L");
    EXPECT_EQ(opened.runCount - runsBefore, 2) << "one for each command of the changed field";
}

TEST_F(Rules, RunForAFocusThatComposingOutsideARunMoves)
{
    text.output = "(\"%s\", L)\n";
    LiveForm& opened = Open();
    EXPECT_TRUE(opened.Confirm());
    EXPECT_EQ(opened.Focus(), "L");
    EXPECT_EQ(opened.runCount, 1);
}

TEST_F(Rules, NestInARunThatAReadBegan)
{
    text.values = "B = text\nC = text\n";
    text.dependencies = "C/CLEAR = B\nB/CLEAR = A\nP/ACTIVE = M(x)\n";
    text.output = "(\"%s\", L)\n";
    LiveForm& opened = Open();
    lytInputApplied = 0;
    opened.Enter("A", "x");
    lytInputApplied = 1;
    ASSERT_EQ(opened.runCount, 0);
    EXPECT_TRUE(opened.Confirm());
    EXPECT_EQ(opened.Value("C"), "") << "cleared by the run nested in the clearing of B";
    // Reading M moved the focus on, in each of the runs, and began none: there is one for the focus that reading L
    // moved, and two for each field that was emptied.
    EXPECT_EQ(opened.Focus(), "M");
    EXPECT_EQ(opened.runCount, 5);
}

TEST_F(Rules, DoNotRunWhileTheControlsAreCreated)
{
    text.values = "A = one\nB = two\n";
    text.dependencies = "C/ACTIVE = A\n";
    EXPECT_EQ(Open().runCount, 0);
}

TEST_F(Rules, DoNotRunWhileTheInputIsScanned)
{
    text.input = "Start: (\";\", End, Rest, End = A, B\n";
    text.dependencies = "C/CLEAR = A\n";
    text.values = "C = stays\n";
    const LiveForm& opened = Open("x");
    EXPECT_EQ(opened.runCount, 0);
    EXPECT_EQ(opened.Value("A"), "x");
    // What was scanned is the baseline, so nothing counts as changed.
    EXPECT_EQ(opened.Value("C"), "stays");
}

TEST_F(Rules, StayOffAfterAConstructionThatFailedHalfway)
{
    LiveForm& outer = Open();
    {
        DescriptionText circle;
        circle.input = "Start: x = Start\n";
        LiveForm failing(folder.Write("circle.dlg", circle()).c_str());
        EXPECT_FALSE(failing.Open());
        EXPECT_EQ(Messages(), "The input statements go round in a circle.\n206 '';");
    }
    EXPECT_EQ(lytInputApplied, 0);
    outer.Command();
    EXPECT_EQ(outer.runCount, 0);
    LiveForm inner(folder.Write("inner.dlg", text()).c_str());
    EXPECT_TRUE(inner.Open());
    outer.Command();
    EXPECT_EQ(outer.runCount, 1);
}

TEST_F(Rules, NameTheButtonThatHasTheReturnKey)
{
    text.dependencies = "P/DEFBUTTON = A, B\nP/ACTIVE =\nOk/DEFBUTTON = C, B\n";
    const LiveForm& opened = Open();
    EXPECT_EQ(opened.DefaultButtonFor("A"), "P");
    EXPECT_EQ(opened.DefaultButtonFor("B"), "P");
    EXPECT_EQ(opened.DefaultButtonFor("C"), "Ok");
    EXPECT_EQ(opened.DefaultButtonFor("L"), "");
    EXPECT_EQ(opened.DefaultButtonFor(""), "");
}

TEST_F(Rules, MayNameAButtonForAWindowThatIsNoControl)
{
    text.dependencies = "P/DEFBUTTON = (x)\n";
    EXPECT_EQ(Open().DefaultButtonFor(""), "P");
}
