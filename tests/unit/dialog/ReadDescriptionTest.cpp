#include "Form.h"

#include "model/ClytScale.h"
#include "support/Cases.h"

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

// Left, top, width and height of a control's window, in the client area of the dialog.
std::string Place(const LiveForm& form, const char* name)
{
    RECT place;
    form.Window(name)->GetWindowRect(&place);
    POINT corner = {place.left, place.top};
    ::MapWindowPoints(nullptr, form.m_hWnd, &corner, 1);
    return std::to_string(corner.x) + "," + std::to_string(corner.y) + "," + std::to_string(place.right - place.left) +
           "," + std::to_string(place.bottom - place.top);
}

std::string TextOf(const LiveForm& form, const char* name)
{
    return WindowText(*form.Window(name));
}

std::string ClientSize(const LiveForm& form)
{
    RECT client;
    form.GetClientRect(&client);
    return std::to_string(client.right) + "," + std::to_string(client.bottom);
}

std::string Names(const ClytDialog& form)
{
    std::string names;
    for (const ClytControl& control : form.GetControlList())
        names += std::string(control.GetName().GetString()) + " ";
    return names;
}

} // namespace

TEST_F(Construction, ReadsAWholeDescription)
{
    text.layout = "Text 10, 10, 80, 12, \"LABEL\", .Label\n"
                  "TextBox 10, 24, 120, 12, .Name\n";
    text.section = "TEXTS";
    const LiveForm& opened = Open();
    EXPECT_EQ(ClientSize(opened), "200,100");
    EXPECT_EQ(WindowText(opened), "the title");
    EXPECT_EQ(Names(opened), "Label Name ");
    EXPECT_EQ(TextOf(opened, "Label"), "a label");
    EXPECT_EQ(opened.GetTextSection(), "TEXTS");
    EXPECT_EQ(lytControlsReady, 1);
    EXPECT_EQ(lytInputApplied, 1);
}

TEST_F(Construction, ShowsTheSentinelForAMissingTextAndNothingWithoutASection)
{
    text.layout = "Text 10, 10, 80, 12, \"UNKNOWN\", .Label\nText 1, 2, 3, 4, .Bare\n";
    for (const char* section : {"TEXTS", ""})
    {
        text.section = section;
        const LiveForm& opened = Open();
        EXPECT_EQ(opened.GetTextSection(), section);
        EXPECT_EQ(WindowText(opened), *section != '\0' ? "the title" : "");
        EXPECT_EQ(TextOf(opened, "Label"), *section != '\0' ? "no value present" : "");
        EXPECT_EQ(TextOf(opened, "Bare"), "");
    }
}

TEST_F(Construction, ScalesAndCutsPositionsAndSizes)
{
    const Scale scale(0.7557F, 1.0818F);
    text.layout = "TextBox 100, 100, 100, 100, .A\nTextBox -1, -10, 10000, 3, .B\n";
    const LiveForm& opened = Open();
    EXPECT_EQ(Place(opened, "A"), "75,108,75,108");
    EXPECT_EQ(Place(opened, "B"), "0,-10,7557,3");
    EXPECT_EQ(ClientSize(opened), "151,108");
}

TEST_F(Construction, CutsNumbersBeyondAnyWindow)
{
    const Scale scale(1.3159F, 1.3159F);
    text.layout = "TextBox 2147483647, -2147483648, 99999999999, 0, .A\n";
    EXPECT_EQ(Place(Open(), "A"), "536870912,-536870912,536870912,0");
}

TEST_F(Construction, ScalesWithinTheRangeOfAnInteger)
{
    EXPECT_EQ(lytScaled(100, 0.7557F), 75);
    EXPECT_EQ(lytScaled(-100, 0.7557F), -75);
    EXPECT_EQ(lytScaled(INT_MAX, 1.0818F), INT_MAX);
    EXPECT_EQ(lytScaled(INT_MIN, 1.0818F), INT_MIN);
    EXPECT_EQ(lytScaled(lytScaled(INT_MAX, 1.0818F), 1.0818F), INT_MAX);
}

TEST_F(Construction, KeepsTwoControlsOfOneNameAndFindsTheLater)
{
    for (const char* name : {"A", ""})
    {
        const std::string suffix = *name != '\0' ? ", .A\n" : "\n";
        text.layout = "TextBox 1, 0, 3, 4" + suffix + "TextBox 2, 0, 3, 4" + suffix;
        text.values = std::string(name) + "=x\n";
        const LiveForm& opened = Open();
        EXPECT_EQ(opened.GetControlList().GetCount(), 2);
        EXPECT_EQ(Place(opened, name), "2,0,3,4");
        EXPECT_EQ(opened.Value(name), "x");
    }
}

TEST_F(Construction, GivesEveryRuleTheLaterOfTwoControlsOfOneName)
{
    text.layout = "TextBox 1, 0, 3, 4, .A\nTextBox 2, 0, 3, 4, .A\nTextBox 1, 2, 3, 4, .B\nTextBox 1, 2, 3, 4, .C\n";
    text.values = "A = x\nB = y\n";
    text.dependencies = "B/ACTIVE = A(x)\nA/ACTIVE = C(never)\n";
    text.evaluation = "B(y) = A(x): CLASH\n";
    text.input = "Start: A(x) = Hit, End\nHit: (\";\", End, Rest, End = C, A = x\n";
    text.output = "(\"%s\", B)\n$OUTPUT, other\n(\"<%s>\", A)\n";
    LiveForm& opened = Open("piece");
    ClytControl* first = opened.GetControlList().GetHead();
    EXPECT_EQ(first->GetValue(), "");
    EXPECT_EQ(first->IsActive(), 1);
    EXPECT_FALSE(opened.IsEnabled("A"));
    EXPECT_TRUE(opened.IsEnabled("B"));
    EXPECT_EQ(opened.Value("C"), "piece");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "do not do that;");
    EXPECT_EQ(Compose("other"), "<x>");
}

TEST_F(Construction, GivesNamelessControlsNoneOfTheEmptyLines)
{
    text.layout = "TextBox 1, 0, 3, 4\n";
    text.values = "=x\n\n; note\n";
    text.evaluation = "= NULL: EMPTY\n\n; note\n";
    text.output = "(\"%s\", \"\")\n";
    LiveForm& opened = Open();
    EXPECT_EQ(opened.Value(""), "x");
    opened.Enter("", "");
    EXPECT_FALSE(opened.Confirm());
    EXPECT_EQ(Messages(), "please fill in;");
}

TEST_F(Construction, RaisesAFileThatCannotBeOpened)
{
    const std::string missing = folder.Path() + "/missing.dlg";
    LiveForm none(missing.c_str());
    // The message is cut at 74 characters, so the folder's name may be all that is left of the path.
    EXPECT_EQ(RaisedMessage([&] { none.Construct(); }), ("207 '" + missing + "'").substr(0, 74));
    LiveForm ofFolder(folder.Path().c_str());
    EXPECT_EQ(RaisedMessage([&] { ofFolder.Construct(); }), ("207 '" + folder.Path() + "'").substr(0, 74));
    LiveForm ofNothing("");
    EXPECT_EQ(RaisedMessage([&] { ofNothing.Construct(); }), "207 ''");
}

TEST_F(Construction, RaisesSectionsThatAreMissingOrInTheWrongOrder)
{
    const std::string begin = "$VERSION 1\n$LAYOUT\nBegin Dialog Box 1, 2, T, M\n";
    const std::string rules = begin + "$VALUES\n$DEPENDANCES\n";
    const std::string parts = rules + "$EVALUATION, x\n$INPUT\n";
    ExpectEach([this](const std::string& description) { return OpenTextFailure(description); },
               {{"", "214 ''"},
                {"\x01\x02\xff binary \x1b junk", "214 ''"},
                {"$LAYOUT\n", "213 ''"},
                {"$VERSION 1\n$LAYOUT\n", "215 ''"},
                {"$VERSION 1\n$LAYOUT\nBegin Window Box 1, 2, T, M\n", "205 ''"},
                {begin, "216 ''"},
                {begin + "$VALUES\n", "217 '$DEPENDANCES'"},
                {rules, "217 '$EVALUATION'"},
                {rules + "$EVALUATION, x\n", "217 '$INPUT'"},
                {parts, "217 '$OUTPUT'"},
                {parts + "$OUTPUT\n", "217 '$END'"},
                {begin + "$DEPENDANCES\n$VALUES\n", "212 '4'"},
                {begin + "$VALUES\n$EVALUATION, x\n$DEPENDANCES\n", "217 '$EVALUATION'"},
                {rules + "$INPUT\n", "212 '6'"},
                {rules + "$EVALUATION\n$INPUT\n", "204 ''"}});
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
