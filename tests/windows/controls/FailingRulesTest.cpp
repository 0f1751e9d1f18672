// What fails inside the rules is told once for each command of the user, who can always leave the dialog.
#include "Form.h"

#include <gtest/gtest.h>

namespace
{

// What a change of the field A sets off fails.
struct Failure
{
    const char* source;    // of the field B, which a rule fills when A changes
    const char* parameter; // the output rule that composes the parameter
    const char* message;
};

const Failure failures[] = {
    {"nasty,FailingText,x,Parameter", "(\"number\")",
     "The library 'nasty' failed in its function 'FailingText': an unknown exception"},
    {"nasty,FailingText,x,Parameter", "(\"memory\")",
     "The library 'nasty' failed in its function 'FailingText': std::bad_alloc"},
    {"nasty,FailingText,x,Parameter", "(\"other\")",
     "The library 'nasty' failed in its function 'FailingText': out of order"},
    {"nasty,EchoText,x,Parameter", "(\"%s.5%q\", A)", invalidArgument},
    {"nasty,EchoText,x,Parameter", "Ghost(1) = (\"%s\", A)", "245 'Ghost'"},
};

const struct
{
    const char* name;
    void (*act)(HWND dialog);
} waysOut[] = {
    {"the button", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDCANCEL)); }},
    {"Escape", [](HWND) { robot::PressKey(VK_ESCAPE); }},
    {"the frame", [](HWND dialog) { PostMessageA(dialog, WM_CLOSE, 0, 0); }},
};

class FailingRules : public testing::Test
{
protected:
    void Describe(const Failure& failure)
    {
        form.main = {};
        form.main.layout = {"TextBox A", "TextBox B"};
        form.main.values = {std::string("B=FILLEDBY,") + failure.source};
        form.main.rules = {"B/FILL = A"};
        form.main.output = {"(\"done\")", "$OUTPUT, Parameter", failure.parameter};
    }
    // A field tells of a letter before it shows it, and after: two commands.
    void TypeLetter()
    {
        form.Then(
            [this]
            {
                robot::Focus(form["A"]);
                robot::TypeText("x");
            });
        form.Message().Message();
    }

    Form form;
};

} // namespace

TEST_F(FailingRules, AreToldOnceForEachCommandAndEveryWayOutEndsTheDialog)
{
    for (const Failure& failure : failures)
    {
        for (const auto& wayOut : waysOut)
        {
            SCOPED_TRACE(std::string(failure.message) + ", " + wayOut.name);
            Describe(failure);
            TypeLetter();
            form.Then([act = wayOut.act] { act(robot::ActiveDialog()); }).Message();
            const Form::Outcome outcome = form.Open();
            EXPECT_EQ(outcome.answer, 0);
            EXPECT_EQ(outcome.messages, Texts(3, failure.message));
        }
    }
}

TEST_F(FailingRules, KeepOkFromBeingCarriedOutUntilTheChangeIsTakenBack)
{
    Describe(failures[4]);
    TypeLetter();
    form.Then([] { robot::PressKey(VK_RETURN); }).Message();
    form.Then([this] { robot::ReplaceText(form["A"], ""); });
    const Form::Outcome outcome = form.Ok().Open();
    EXPECT_EQ(outcome.text, "done");
    EXPECT_EQ(outcome.messages, Texts(3, failures[4].message));
}

TEST_F(FailingRules, AreToldOnceForAPressOfAButton)
{
    Describe(failures[4]);
    form.main.layout.emplace_back("PushButton Go");
    form.main.values.emplace_back("Go=REJECT,x");
    TypeLetter();
    form.Then([this] { robot::Press(form["Go"]); }).Message();
    form.Then([] { robot::PressKey(VK_ESCAPE); }).Message();
    EXPECT_EQ(form.Open().messages, Texts(4, failures[4].message));
}

// A button has no value. The rules ask several times, in each of the runs that one command sets off.
TEST_F(FailingRules, ReportTheSameOnceForEachCommand)
{
    form.main.layout = {"CheckListBox Values", "PushButton Refill", "TextBox A", "Text Label"};
    form.main.values = {"Values=a,a", "Values=b,b"};
    form.main.rules = {"Nobody/VISIBLE = Refill(NULL)", "Values/ACTIVE = Label(NULL)", "Label/DEFBUTTON = Values(NULL)",
                       "Values/ACTIVE = Ok(NOTNULL), Label(a)", "A/VISIBLE = Refill(x)"};
    form.Message();
    form.Then([] { robot::PressKey(VK_ESCAPE); }).Message();
    const Form::Outcome outcome = form.Open();
    EXPECT_EQ(outcome.answer, 0);
    EXPECT_EQ(outcome.messages, Texts(2, "201 ''"));
}

// The closing window moves the focus, and so tells the dialog that the list loses it.
TEST_F(FailingRules, AreNotTriedAgainWhileTheDialogCloses)
{
    form.main.layout = {"CheckListBox A", "TextBox B", "Text Label"};
    form.main.values = {"A=FILLEDBY,nasty,Open,NextNone,Parameter", "A=a,a", "A=b,b"};
    form.main.rules = {"A/FILL = B, A", "Label/CLEAR = B, A(b)"};
    form.main.output = {"(\"done\")", "$OUTPUT, Parameter", "(\"%s.5%q\", A)"};
    form.Then(
        [this]
        {
            robot::Focus(form["A"]);
            SendMessageA(form["A"], LB_SETCURSEL, 1, 0);
            PostMessageA(robot::ActiveDialog(), WM_COMMAND, IDCANCEL, 0);
        });
    form.Message();
    const Form::Outcome outcome = form.Open();
    EXPECT_EQ(outcome.answer, 0);
    EXPECT_EQ(outcome.messages, Texts{invalidArgument});
}

// The statement jumps to itself and takes nothing, ten thousand times.
TEST_F(FailingRules, AreNotTheOnlyOnesToReportTheSameOnce)
{
    form.main.layout = {"ListBox L"};
    form.main.values = {"L=FILLEDBY,\"\",x"};
    form.main.input = {"Start: (2, Start = L(FILL)"};
    form.Message().Message();
    EXPECT_EQ(form.Open("text").messages, (Texts{"251 'L'", "The input statements go round in a circle.\n206 ''"}));
}

TEST_F(FailingRules, OfAFailedConstructionDoNotRun)
{
    form.main.layout = {"TextBox E", "TextBox V"};
    form.main.values = {"V=FILLEDBY,\"\",x", "E=text"};
    form.main.rules = {"V/FILL = E, V", "E/CLEAR = E"};
    form.main.evaluation = {"E: x"};
    form.Message();
    EXPECT_EQ(form.Open().messages, Texts{"212 '16'"});
}
