#include "liveform/LiveForm.h"

#include "base/ClytCounted.h"
#include "liveform/UserActs.h"
#include "robot/WindowRobot.h"

#include <algorithm>

LiveForm::LiveForm(const CString& descriptionFile, const CString& defines) : ClytDialog(descriptionFile, defines)
{
    SubclassWindow(::CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
}

// The windows die while their objects are whole.
LiveForm::~LiveForm()
{
    LiveForm::DestroyWindow();
}

void LiveForm::Construct()
{
    ReadDescription();
    // No command began the run that ends the construction.
    --runCount;
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
}

bool LiveForm::Open()
{
    try
    {
        Construct();
        return true;
    }
    catch (CException* e)
    {
        e->ReportError();
        e->Delete();
        return false;
    }
}

void LiveForm::Command() const
{
    SendMessage(WM_COMMAND, MAKEWPARAM(0, EN_CHANGE), 0);
}

void LiveForm::MoveFocusTo(const CString& controlName) const
{
    if (const CWnd* window = Window(controlName))
        robot::Focus(window->m_hWnd);
}

bool LiveForm::Enter(const CString& controlName, const CString& input)
{
    ClytControl* control = FindControl(controlName);
    return control != nullptr && Enter(*control, input);
}

bool LiveForm::Enter(ClytControl& control, const CString& input)
{
    const Entered entered = EnterAsUser(control, input);
    return entered == Entered::Done || entered == Entered::NotOffered;
}

std::string LiveForm::Value(const CString& name) const
{
    ClytControl* control = FindControl(name);
    return control != nullptr ? control->GetValue().GetString() : "?";
}

bool LiveForm::IsEnabled(const CString& name) const
{
    ClytControl* control = FindControl(name);
    return control != nullptr && IsSeenEnabled(*control);
}

bool LiveForm::IsShown(const CString& name) const
{
    const CWnd* window = Window(name);
    return window != nullptr && window->IsWindowVisible() != FALSE;
}

std::string LiveForm::Focus() const
{
    const ClytControl* control = FocusedControl(*this);
    return control != nullptr ? control->GetName().GetString() : "";
}

std::string LiveForm::DefaultButtonFor(const CString& name) const
{
    const ClytControlDep* rule = FindDefaultButtonRule(name);
    return rule != nullptr ? rule->controlName.GetString() : "";
}

void LiveForm::RunDependencies()
{
    const ClytCounted run(m_openRuns);
    ++runCount;
    deepestRun = std::max(deepestRun, m_openRuns);
    ClytDialog::RunDependencies();
}

std::string WindowText(const CWnd& window)
{
    return robot::TextOf(window.m_hWnd);
}
