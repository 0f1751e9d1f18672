// What a dialog does without a word, as a listener hears it.
#include "Form.h"

#include "model/ClytControlFill.h"
#include "model/ClytDialogInput.h"
#include "model/ClytObserver.h"

namespace
{

const char* NameOf(ClytPassedOver what)
{
    switch (what)
    {
    case ClytPassedOver::LayoutStatement: return "layout";
    case ClytPassedOver::ValueStatement: return "value";
    case ClytPassedOver::DependencyRule: return "rule";
    case ClytPassedOver::Evaluation: return "evaluation";
    case ClytPassedOver::Fill: return "fill";
    }
    return "";
}

class Listener final : public ClytObserver
{
public:
    Listener() { lytObserver = this; }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { lytObserver = nullptr; }

    void PassedOver(ClytPassedOver what, const CString& name, const ClytSpan& place) override
    {
        heard += std::string(NameOf(what)) + " " + name.GetString() + " in line " + std::to_string(place.line) + "\n";
    }
    void Cut(const ClytDialogInput& statement, const CString& piece, const char* rest,
             const CString& nextStatement) override
    {
        heard += std::string(statement.name) + " cut '" + piece.GetString() + "' before '" + rest + "', on to " +
                 nextStatement.GetString() + "\n";
    }
    void Jumped(const ClytDialogInput& statement, const CString& nextStatement) override
    {
        heard += std::string(statement.name) + " on to " + nextStatement.GetString() + "\n";
    }
    void Filled(const ClytControlFill& fill, const CString& piece) override
    {
        heard += std::string(fill.controlName) + " takes '" + piece.GetString() + "'\n";
    }

    std::string heard;
};

class Observer : public FormTest
{
protected:
    Observer()
    {
        text.layout = "TextBox 1, 2, 3, 4, .A\n";
        text.input = "Start: x = End\n";
    }

    Listener listener;
};

} // namespace

TEST_F(Observer, HearsOfStatementsThatNameNothingKnown)
{
    text.layout += "TextBocks 1, 2, 3, 4, .B\n";
    text.values = "C = x\n";
    text.dependencies = "D/ACTIVE = A\n\n; note\nE/ACTIVE = A\n";
    text.evaluation = "F(1)\n";
    Open();
    EXPECT_EQ(listener.heard, "layout TextBocks in line 5\n"
                              "value C in line 8\n"
                              "rule D in line 10\n"
                              "rule E in line 13\n"
                              "evaluation F in line 15\n"
                              "Start on to End\n");
}

TEST_F(Observer, HearsEachStepOfTheScan)
{
    text.input = "Start: (\";\", Second, Rest, End = A\nSecond: (2, Third = A, G\nThird: A(bc) = Fourth, End\n";
    Open("a;bcd");
    EXPECT_EQ(listener.heard, "Start cut 'a' before 'bcd', on to Second\n"
                              "A takes 'a'\n"
                              "Second cut 'bc' before 'd', on to Third\n"
                              "A takes 'bc'\n"
                              "fill G in line 11\n"
                              "Third on to Fourth\n");
}

TEST_F(Observer, HearsNothingOfBlankLines)
{
    text.values = "\n; note\n";
    text.dependencies = "\n; note\n";
    text.evaluation = "\n; note\n";
    Open();
    EXPECT_EQ(listener.heard, "Start on to End\n");
}
