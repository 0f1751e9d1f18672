// What a dialog does without a word, as a listener hears it.
#include "Form.h"

#include "support/RecordingObserver.h"

namespace
{

class Observer : public FormTest
{
protected:
    Observer()
    {
        text.layout = "TextBox 1, 2, 3, 4, .A\n";
        text.input = "Start: x = End\n";
    }

    // What is heard of one run of the rules after a user entered something, or while a group is composed.
    std::string Enter(const char* control, const char* input)
    {
        // A user's act sends several commands; no run answers them until the last.
        lytInputApplied = 0;
        form->Enter(control, input);
        lytInputApplied = 1;
        observer.TakeHeard();
        form->Command();
        return observer.TakeHeard();
    }
    std::string Composed(const char* group)
    {
        observer.TakeHeard();
        Compose(group);
        return observer.TakeHeard();
    }
    std::string FirstHeard()
    {
        const std::string heard = observer.TakeHeard();
        return heard.substr(0, heard.find('\n'));
    }

    RecordingObserver observer;
};

// The fields A, B and C.
class RuleObserver : public Observer
{
protected:
    RuleObserver() { text.layout += "TextBox 1, 2, 3, 4, .B\nTextBox 1, 2, 3, 4, .C\n"; }
};

} // namespace

TEST_F(Observer, HearsOfStatementsThatNameNothingKnown)
{
    text.layout += "TextBocks 1, 2, 3, 4, .B\n";
    text.values = "C = x\n";
    text.dependencies = "D/ACTIVE = A\n\n; note\nE/ACTIVE = A\n";
    text.evaluation = "F(1)\n";
    Open();
    EXPECT_EQ(observer.TakeHeard(), "layout TextBocks in line 5\n"
                                    "value C in line 8\n"
                                    "rule D in line 10\n"
                                    "rule E in line 13\n"
                                    "evaluation F in line 15\n"
                                    "Start on to End\n"
                                    "run 1\n"
                                    "end 1\n");
}

TEST_F(Observer, HearsEachStepOfTheScan)
{
    text.input = "Start: (\";\", Second, Rest, End = A\nSecond: (2, Third = A, G\nThird: A(bc) = Fourth, End\n";
    Open("a;bcd");
    EXPECT_EQ(observer.TakeHeard(), "Start cut 'a' before 'bcd', on to Second\n"
                                    "A takes 'a'\n"
                                    "Second cut 'bc' before 'd', on to Third\n"
                                    "A takes 'bc'\n"
                                    "fill G in line 11\n"
                                    "Third on to Fourth\n"
                                    "no statement Fourth in line 12\n"
                                    "run 1\n"
                                    "end 1\n");
}

TEST_F(Observer, HearsNothingOfBlankLines)
{
    text.values = "\n; note\n";
    text.dependencies = "\n; note\n";
    text.evaluation = "\n; note\n";
    Open();
    EXPECT_EQ(observer.TakeHeard(), "Start on to End\nrun 1\nend 1\n");
}

TEST_F(RuleObserver, HearsWhatEachConditionCameToAndWhatWasSet)
{
    text.values = "B = b\nC = INACTIVE\n";
    text.dependencies = "A/ACTIVE = Unknown(x), B(a, b)\nA/VISIBLE = B(x), A\nB/ACTIVE = C\nB/VISIBLE =\n";
    Open();
    EXPECT_EQ(observer.TakeHeard(), "Start on to End\n"
                                    "run 1\n"
                                    "rule in line 12 asks Unknown: unknown control\n"
                                    "rule in line 12 asks B: holds\n"
                                    "A/ACTIVE set to 1\n"
                                    "rule in line 13 asks B: not listed\n"
                                    "A/VISIBLE set to 0\n"
                                    "rule in line 14 asks C: inactive\n"
                                    "B/ACTIVE set to 0\n"
                                    "B/VISIBLE set to 1\n"
                                    "end 1\n");
}

TEST_F(RuleObserver, HearsThatNotNullDecides)
{
    text.dependencies = "B/ACTIVE = A(NOTNULL), B(never)\n";
    Open();
    EXPECT_EQ(Enter("A", "x"), "run 1\nrule in line 10 asks A: has content\nB/ACTIVE set to 1\nend 1\n");
    EXPECT_EQ(Enter("A", ""), "run 1\nrule in line 10 asks A: is empty\nB/ACTIVE set to 0\nend 1\n");
}

TEST_F(RuleObserver, HearsWhichChangeSetsAnEventRuleOffAndTheRunInside)
{
    text.values = "C = text\n";
    text.dependencies = "C/CLEAR = B, A\nB/CLEAR = Unknown, A\n";
    Open();
    // A field tells each change of its text twice.
    const std::string inside = "run 2\n"
                               "C/CLEAR is in progress\n"
                               "rule in line 12 asks Unknown: unknown control\n"
                               "B/CLEAR finds nothing changed\n"
                               "end 2\n";
    EXPECT_EQ(Enter("A", "x"), "run 1\n"
                               "rule in line 11 asks B: unchanged\n"
                               "rule in line 11 asks A: changed\n"
                               "C/CLEAR acts\n" +
                                   inside + inside +
                                   "rule in line 12 asks Unknown: unknown control\n"
                                   "B/CLEAR finds nothing changed\n"
                                   "end 1\n");
}

TEST_F(RuleObserver, HearsTheEndOfARunThatFails)
{
    text.values = "B = FILLEDBY, library, Function, x, Parameter\n";
    text.dependencies = "B/FILL = A\n";
    text.output = "$OUTPUT, Parameter\n(\"100%\")\n";
    Open();
    EXPECT_EQ(Enter("A", "x"), "run 1\n"
                               "rule in line 11 asks A: changed\n"
                               "B/FILL acts\n"
                               "output in line 17\n"
                               "end 1\n");
    EXPECT_EQ(Messages(), missingArgument + std::string(";"));
    // The field that loses the focus with its window sends a last command, and the rule fails again.
    form.reset();
    EXPECT_EQ(Messages(), missingArgument + std::string(";"));
}

TEST_F(RuleObserver, HearsWhichOutputRuleIsChosenAndWhyTheOthersWereNot)
{
    text.values = "A = a\nC = INACTIVE\n";
    text.output =
        "$OUTPUT, some\nC = (\"one\")\nA(a), B(x) = (\"two\")\nA(x) = (\"three\")\nA(a) = (\"four\")\n(\"five\")\n"
        "$OUTPUT, none\nA(x) = (\"one\")\n$OUTPUT, wrong\nUnknown = (\"one\")\n(\"two\")\n";
    Open();
    EXPECT_EQ(Composed("some"), "output in line 17 asks C: inactive\n"
                                "output in line 18 asks A: holds\n"
                                "output in line 18 asks B: not listed\n"
                                "output in line 19 asks A: not listed\n"
                                "output in line 20 asks A: holds\n"
                                "output in line 20\n");
    EXPECT_EQ(Composed("none"), "output in line 23 asks A: not listed\noutput by no rule\n");
    EXPECT_EQ(RaisedMessage([&] { Compose("wrong"); }), "245 'Unknown'");
    EXPECT_EQ(observer.TakeHeard(), "output in line 25 asks Unknown: unknown control\n");
}

TEST_F(Observer, HearsWhichValueStatementNamesWhatIsNotThere)
{
    text.layout += "PushButton 1, 2, 3, 4, .P\nListBox 1, 2, 30, 40, .L\n";
    text.values = "P = DELETE, Absent\n"
                  "L = DBLCLICK, Away\n"
                  "L = FILLEDBY, nowhere, Start, Next\n"
                  "A = FILLEDBY, nowhere, Text\n";
    Open();
    observer.TakeHeard();
    form->Enter("P", "");
    EXPECT_EQ(FirstHeard(), "no target Absent for P in line 9");
    form->Window("L")->SendMessage(WM_LBUTTONDBLCLK);
    EXPECT_EQ(FirstHeard(), "no double click's target Away for L in line 10");
    // After a test that has loaded a library, which controls of that type keep, it is the function that is not there.
    form->FindControl("L")->FillByLibrary();
    EXPECT_TRUE(FirstHeard().ends_with(" in line 11"));
    form->FindControl("A")->FillByLibrary();
    EXPECT_TRUE(FirstHeard().ends_with(" in line 12"));
}

TEST_F(Observer, HearsWhichHeaderBeginsAPartWithoutAStart)
{
    text.input = "Start: x = End\n$INPUT, Other\nNext: x = End\n";
    Open();
    observer.TakeHeard();
    form->RunInput("Other", "text");
    EXPECT_EQ(observer.TakeHeard(), "no statement Start in line 11\n");
}

TEST_F(Observer, HearsOfGroupsAndPartsThatAreNotThere)
{
    Open();
    EXPECT_EQ(Composed("absent"), "no output group absent\n");
    EXPECT_EQ(form->RunInput("absent", "text"), 0);
    EXPECT_EQ(observer.TakeHeard(), "no input part absent\n");
    EXPECT_FALSE(form->Confirm());
    EXPECT_EQ(observer.TakeHeard(), "no output group parent\n");
}
