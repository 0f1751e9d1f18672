#include "fuzz/frame/UsedForm.h"

#include "controls/ClytPushButtonControl.h"
#include "environment/ProcessState.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Despair.h"
#include "liveform/LiveForm.h"
#include "lytdlg/text/FileForLibrary.h"

namespace
{

template <class OPERATION>
void Act(OPERATION operation)
{
    robot::BeginAct();
    Attempt(operation);
}

void Use(LiveForm& form)
{
    for (POSITION place = form.GetControlList().GetHeadPosition(); place != nullptr;)
    {
        ClytControl& control = *form.GetControlList().GetNext(place);
        // A button may call a library that shows a dialog of its own, which no one would close.
        if (dynamic_cast<ClytPushButtonControl*>(&control) == nullptr)
            Act([&] { form.Enter(control, "1"); });
    }
    Act([&] { form.RunInput("other", "a,b;(c)\"d"); });
    Act([&] { form.Confirm(); });
    CString composed;
    Act([&] { form.ComposeNamedOutput("other", composed); });
}

} // namespace

void UseForm(const std::string& description, const std::string& input)
{
    const lytdlg::FileForLibrary file(description);
    lytInputKey = input.c_str();
    const FillsAreActs fills;
    robot::Robot user;
    user.AnswerAll();
    LiveForm form(file.Name().string().c_str(), "X,Y");
    if (form.Open())
        Use(form);
    DemandNone(user.HasGivenUp() ? user.Log() : "");
    lytInputKey.Empty();
}
