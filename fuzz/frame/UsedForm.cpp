#include "fuzz/frame/UsedForm.h"

#include "controls/ClytPushButtonControl.h"
#include "environment/ProcessState.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Despair.h"
#include "liveform/LiveForm.h"
#include "lytdlg/text/Paths.h"

namespace
{

template <class OPERATION>
void Act(OPERATION operation)
{
    robot::BeginAct();
    Attempt(operation);
}

// Outside the rules a composition reports each value that a control does not have: one for each item and condition.
template <class OPERATION>
void ActOnOutput(OPERATION operation)
{
    constexpr int mostBoxes = 2000;
    robot::Robot user;
    user.AnswerAll(mostBoxes);
    Act(operation);
    DemandNone(user.HasGivenUp() ? user.Log() : "");
}

void Use(LiveForm& form)
{
    for (POSITION place = form.GetControlList().GetHeadPosition(); place != nullptr;)
    {
        ClytControl& control = *form.GetControlList().GetNext(place);
        // A button may call a library that shows its own dialog, which no one would close.
        if (dynamic_cast<ClytPushButtonControl*>(&control) == nullptr)
            Act([&] { form.Enter(control, "1"); });
    }
    Act([&] { form.RunInput("other", "a,b;(c)\"d"); });
    ActOnOutput([&] { form.Confirm(); });
    CString composed;
    ActOnOutput([&] { form.ComposeNamedOutput("other", composed); });
}

} // namespace

void UseForm(const std::string& description, const std::string& input)
{
    const lytdlg::FileForLibrary file(description);
    lytInputKey = input.c_str();
    const FillsAreActs fills;
    robot::Robot user;
    // To enter a value is two acts: the focus moves, and the text changes.
    user.AnswerAll(2 * robot::mostBoxesOfAct);
    LiveForm form(file.Name().string().c_str(), "X,Y");
    if (form.Open())
        Use(form);
    DemandNone(user.HasGivenUp() ? user.Log() : "");
    lytInputKey.Empty();
}
