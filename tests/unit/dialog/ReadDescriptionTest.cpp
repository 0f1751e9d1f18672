#include "Form.h"

#include "model/ClytScale.h"

#include <climits>

namespace
{

class Construction : public FormTest
{
protected:
    Construction() { text.input = "Start: x = End\n"; }
};

class Scale
{
public:
    Scale(float x, float y)
    {
        lytScaleX = x;
        lytScaleY = y;
    }
    Scale(const Scale&) = delete;
    Scale& operator=(const Scale&) = delete;
    ~Scale()
    {
        lytScaleX = 1.0F;
        lytScaleY = 1.0F;
    }
};

std::string Place(const HeadlessControl& control)
{
    const ClytPosition position = control.GetPosition();
    const ClytSize size = control.GetSize();
    return std::to_string(position.x) + "," + std::to_string(position.y) + "," + std::to_string(size.width) + "," +
           std::to_string(size.height);
}

std::string Names(const ClytDialogRules& form)
{
    std::string names;
    for (POSITION place = form.GetControlList().GetHeadPosition(); place != nullptr;)
        names += std::string(form.GetControlList().GetNext(place)->GetName().GetString()) + " ";
    return names;
}

} // namespace

TEST_F(Construction, ReadsAWholeDescription)
{
    text.layout = "Text 10, 10, 80, 12, \"LABEL\", .Label\n"
                  "TextBox 10, 24, 120, 12, .Name\n";
    text.section = "TEXTS";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(opened.width, 200);
    EXPECT_EQ(opened.height, 100);
    EXPECT_EQ(opened.caption, "the title");
    EXPECT_EQ(Names(opened), "Label Name ");
    EXPECT_EQ(opened.Control("Label")->GetLabel(), "a label");
    EXPECT_EQ(opened.GetTextSection(), "TEXTS");
    EXPECT_EQ(lytControlsReady, 1);
    EXPECT_EQ(lytInputApplied, 1);
}

TEST_F(Construction, WithoutATextSectionHasNoTexts)
{
    text.layout = "Text 10, 10, 80, 12, \"LABEL\", .Label\n";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(opened.caption, "");
    EXPECT_EQ(opened.Control("Label")->GetLabel(), "");
    EXPECT_EQ(opened.GetTextSection(), "");
}

TEST_F(Construction, ShowsTheSentinelForAMissingText)
{
    text.section = "TEXTS";
    text.layout = "Text 10, 10, 80, 12, \"UNKNOWN\", .Label\nText 1, 2, 3, 4, .Bare\n";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(opened.Control("Label")->GetLabel(), "no value present");
    EXPECT_EQ(opened.Control("Bare")->GetLabel(), "");
}

TEST_F(Construction, EndsALabelBehindItsApostrophe)
{
    text.section = "TEXTS";
    text.layout = "Text 10, 10, 80, 12, \"QUOTED\", .Label\n";
    const CString& label = Open().Control("Label")->GetLabel();
    EXPECT_STREQ(label.GetString(), "it'");
    EXPECT_EQ(label.GetLength(), 9);
}

TEST_F(Construction, ScalesAndCutsPositionsAndSizes)
{
    const Scale scale(0.7557F, 1.0818F);
    text.layout = "TextBox 100, 100, 100, 100, .A\nTextBox -1, -10, 10000, 3, .B\n";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(Place(*opened.Control("A")), "75,108,75,108");
    EXPECT_EQ(Place(*opened.Control("B")), "0,-10,7557,3");
    // The window's face scales the size of the window itself.
    EXPECT_EQ(opened.width, 200);
}

TEST_F(Construction, KeepsNumbersOutOfRangeInRange)
{
    const Scale scale(1.3159F, 1.3159F);
    text.layout = "TextBox 2147483647, -2147483648, 99999999999, 0, .A\n";
    EXPECT_EQ(Place(*Open().Control("A")), "2147483647,-2147483648,2147483647,0");
}

TEST_F(Construction, ScalesWithinTheRangeOfAnInteger)
{
    EXPECT_EQ(lytScaled(100, 0.7557F), 75);
    EXPECT_EQ(lytScaled(-100, 0.7557F), -75);
    EXPECT_EQ(lytScaled(INT_MAX, 1.0818F), INT_MAX);
    EXPECT_EQ(lytScaled(INT_MIN, 1.0818F), INT_MIN);
    EXPECT_EQ(lytScaled(lytScaled(INT_MAX, 1.0818F), 1.0818F), INT_MAX);
}

TEST_F(Construction, IgnoresAnUnknownTypeWordAndStatementsThatNameIt)
{
    text.layout = "Gadget 1, 2, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\n";
    text.values = "A = x\nB = y\n";
    text.dependencies = "A/ACTIVE = B(1)\n";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(Names(opened), "B ");
    EXPECT_EQ(opened.Value("B"), "y");
}

TEST_F(Construction, KeepsTwoControlsOfOneNameAndFindsTheLater)
{
    text.layout = "TextBox 1, 0, 3, 4, .A\nTextBox 2, 0, 3, 4, .A\n";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(Names(opened), "A A ");
    EXPECT_EQ(Place(*opened.Control("A")), "2,0,3,4");
}

TEST_F(Construction, GivesEveryRuleTheLaterOfTwoControlsOfOneName)
{
    text.layout = "TextBox 1, 0, 3, 4, .A\nTextBox 2, 0, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\nTextBox 1, 2, 3, 4, .C\n";
    text.values = "A = x\nB = y\n";
    text.dependencies = "B/ACTIVE = A(x)\nA/ACTIVE = C(never)\n";
    text.evaluation = "B(y) = A(x): CLASH\n";
    text.input = "Start: A(x) = Hit, End\nHit: (\";\", End, Rest, End = C, A = x\n";
    text.output = "(\"%s\", B)\n$OUTPUT, other\n(\"<%s>\", A)\n";
    HeadlessForm& opened = Open("piece");
    auto* first = dynamic_cast<HeadlessControl*>(opened.GetControlList().GetHead());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->GetValue(), "");
    EXPECT_TRUE(first->isEnabled);
    EXPECT_FALSE(opened.IsEnabled("A"));
    EXPECT_TRUE(opened.IsEnabled("B"));
    EXPECT_EQ(opened.Value("C"), "piece");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "do not do that;");
    EXPECT_EQ(Compose("other"), "<x>");
}

TEST_F(Construction, FindsTheLastNamelessControlUnderTheEmptyName)
{
    text.layout = "TextBox 1, 0, 3, 4\nTextBox 2, 0, 3, 4\n";
    text.values = "=x\n";
    const HeadlessForm& opened = Open();
    EXPECT_EQ(Place(*opened.Control("")), "2,0,3,4");
    EXPECT_EQ(opened.Value(""), "x");
}

TEST_F(Construction, GivesNamelessControlsNoneOfTheEmptyLines)
{
    text.layout = "TextBox 1, 0, 3, 4\n";
    text.values = "=x\n\n; note\n";
    text.evaluation = "= NULL: EMPTY\n\n; note\n";
    text.output = "(\"%s\", \"\")\n";
    HeadlessForm& opened = Open();
    EXPECT_EQ(opened.Value(""), "x");
    opened.Enter("", "");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "please fill in;");
}

TEST_F(Construction, KeepsTheOkButtonUnderItsNameWithoutGivingItOne)
{
    text.layout = "OKButton 1, 2, 3, 4, .Ok\n";
    text.output = "(\"%s\", Ok)\n";
    HeadlessForm& opened = Open();
    EXPECT_EQ(opened.Control("Ok")->GetName(), "");
    EXPECT_EQ(Compose(), "Ok");
    EXPECT_TRUE(opened.Confirm());
}

TEST_F(Construction, TakesOptionsAndPresetTexts)
{
    text.layout = "TextBox 1, 2, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\nTextBox 1, 2, 3, 4, .C\nTextBox 1, 2, 3, 4, .D\n";
    text.values = "A = HIDDEN\nB = DISPLAYONLY\nC = INVISIBLE\nD = INACTIVE\nA = text\nUnknown = x\n";
    const HeadlessForm& opened = Open();
    EXPECT_FALSE(opened.IsShown("A"));
    EXPECT_TRUE(opened.IsEnabled("A"));
    EXPECT_FALSE(opened.IsEnabled("B"));
    EXPECT_FALSE(opened.IsShown("C"));
    EXPECT_FALSE(opened.IsEnabled("D"));
    EXPECT_EQ(opened.Value("A"), "text");
}

TEST_F(Construction, LetsARuleInheritTheConditionsOfOneThatIsNotStored)
{
    text.layout = "TextBox 1, 2, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\nTextBox 1, 2, 3, 4, .C\n";
    text.values = "A = 1\n";
    // The rule on the unknown control goes, and its false condition joins the rule on C.
    text.dependencies = "B/ACTIVE = A(1)\nUnknown/ACTIVE = A(2)\n\nC/ACTIVE = A(1)\nB/VISIBLE = A(1)\n";
    const HeadlessForm& opened = Open();
    EXPECT_TRUE(opened.IsEnabled("B"));
    EXPECT_FALSE(opened.IsEnabled("C"));
    EXPECT_TRUE(opened.IsShown("B"));
}

TEST_F(Construction, ReplacesAnEarlierEvaluationOfTheSameControl)
{
    text.layout = "TextBox 1, 2, 3, 4, .A\n";
    text.evaluation = "A = x: CLASH\nA = NULL: EMPTY\n";
    text.output = "(\"%s\", A)\n";
    HeadlessForm& opened = Open();
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "please fill in;");
    opened.Enter("A", "x");
    EXPECT_TRUE(opened.Confirm());
}

TEST_F(Construction, StartsEachEvaluationStatementAfresh)
{
    text.layout = "TextBox 1, 2, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\n";
    text.evaluation = "A(x) = B(y): CLASH\nB(z)\n";
    text.output = "(\"%s%s\", A, B)\n";
    HeadlessForm& opened = Open();
    opened.Enter("A", "x");
    opened.Enter("B", "y");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "do not do that;");
    opened.Enter("B", "z");
    // The second control of this rule is unknown, so it fails, and there is no key for its message.
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "no value present;");
}

TEST_F(Construction, ReadsTheStretchesOfItsDefines)
{
    text.layout = "<X\nTextBox 1, 2, 3, 4, .A\n>\n<!X\nTextBox 1, 2, 3, 4, .B\n>\n";
    EXPECT_EQ(Names(Open()), "B ");
    defines = "W,X";
    EXPECT_EQ(Names(Open()), "A ");
}

TEST_F(Construction, RaisesAFileThatCannotBeOpened)
{
    const std::string missing = folder.Path() + "/missing.dlg";
    HeadlessForm none(missing.c_str());
    // The message is cut at 74 characters, so the folder's name may be all that is left of the path.
    EXPECT_EQ(RaisedMessage([&] { none.Construct(); }), ("207 '" + missing + "'").substr(0, 74));
    HeadlessForm ofFolder(folder.Path().c_str());
    EXPECT_EQ(RaisedMessage([&] { ofFolder.Construct(); }), ("207 '" + folder.Path() + "'").substr(0, 74));
    HeadlessForm ofNothing("");
    EXPECT_EQ(RaisedMessage([&] { ofNothing.Construct(); }), "207 ''");
}

TEST_F(Construction, ShowsOneMessageForAFailure)
{
    HeadlessForm none("missing.dlg");
    EXPECT_FALSE(none.Open());
    EXPECT_EQ(Messages(), "207 'missing.dlg';");
}

TEST_F(Construction, RaisesEachMissingSection)
{
    EXPECT_EQ(OpenTextFailure(""), "214 ''");
    EXPECT_EQ(OpenTextFailure("\x01\x02\xff binary \x1b junk"), "214 ''");
    EXPECT_EQ(OpenTextFailure("$LAYOUT\n"), "213 ''");
    EXPECT_EQ(OpenTextFailure("$VERSION 1\n$LAYOUT\n"), "215 ''");
    EXPECT_EQ(OpenTextFailure("$VERSION 1\n$LAYOUT\nBegin Window Box 1, 2, T, M\n"), "205 ''");
    const std::string begin = "$VERSION 1\n$LAYOUT\nBegin Dialog Box 1, 2, T, M\n";
    EXPECT_EQ(OpenTextFailure(begin), "216 ''");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n"), "217 '$DEPENDANCES'");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n$DEPENDANCES\n"), "217 '$EVALUATION'");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n$DEPENDANCES\n$EVALUATION, x\n"), "217 '$INPUT'");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n$DEPENDANCES\n$EVALUATION, x\n$INPUT\n"), "217 '$OUTPUT'");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n$DEPENDANCES\n$EVALUATION, x\n$INPUT\n$OUTPUT\n"), "217 '$END'");
}

TEST_F(Construction, RaisesSectionsInTheWrongOrder)
{
    const std::string begin = "$VERSION 1\n$LAYOUT\nBegin Dialog Box 1, 2, T, M\n";
    EXPECT_EQ(OpenTextFailure(begin + "$DEPENDANCES\n$VALUES\n"), "212 '4'");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n$EVALUATION, x\n$DEPENDANCES\n"), "217 '$EVALUATION'");
    EXPECT_EQ(OpenTextFailure(begin + "$VALUES\n$DEPENDANCES\n$INPUT\n"), "212 '6'");
}

TEST_F(Construction, RaisesAnEvaluationHeaderWithoutItsWord)
{
    std::string description = text();
    description.replace(description.find("$EVALUATION, x"), 14, "$EVALUATION");
    EXPECT_EQ(OpenTextFailure(description), "204 ''");
}

TEST_F(Construction, WithoutAParentPartRaisesItsNameWhenTheInputIsApplied)
{
    std::string description = text();
    description.replace(description.find("$INPUT"), 6, "$INPUT, other");
    EXPECT_EQ(OpenTextFailure(description), "217 'parent'");
    EXPECT_EQ(lytInputApplied, 0);
    Open();
    EXPECT_EQ(lytInputApplied, 1);
}

TEST_F(Construction, RunsTheLaterOfTwoPartsOfOneName)
{
    text.layout = "TextBox 1, 2, 3, 4, .A\n";
    text.input =
        "Start: (\";\", End, Rest, End = A = first\n$INPUT, parent\nStart: (\";\", End, Rest, End = A = second\n"
        "$INPUT, other\nStart: (\";\", End, Rest, End = A = third\n";
    HeadlessForm& opened = Open("x");
    EXPECT_EQ(opened.Value("A"), "second");
    EXPECT_EQ(opened.GetInputMap().GetCount(), 2);
    EXPECT_EQ(opened.RunInput("other", ""), 1);
    EXPECT_EQ(opened.Value("A"), "third");
    EXPECT_EQ(opened.RunInput("missing", ""), 0);
}

TEST_F(Construction, ResetsTheTreesConfirmations)
{
    lytTreeConfirmCount = -1;
    MakeForm(text());
    EXPECT_EQ(lytTreeConfirmCount, 0);
}
