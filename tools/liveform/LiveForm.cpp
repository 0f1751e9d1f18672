#include "liveform/LiveForm.h"

#include "base/Counted.h"
#include "controls/ClytCheckBoxControl.h"
#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytOptionGroup.h"
#include "controls/ClytRadioButtonControl.h"
#include "robot/WindowRobot.h"

#include <algorithm>

namespace
{

void SendCommand(const CWnd& control, int code)
{
    const WPARAM command = MAKEWPARAM(control.GetDlgCtrlID(), code);
    control.GetParent()->SendMessage(WM_COMMAND, command, reinterpret_cast<LPARAM>(control.m_hWnd));
}

// Chooses the item with that value, as a click on it does; false when no item has it. The platform tells nothing of a
// selection that is made by message, so the items can be tried one after another.
template <class LIST>
bool Choose(const LIST& list, ClytControl& control, const CString& value, int code)
{
    const int before = list.GetCurSel();
    for (int index = 0; index < list.GetCount(); ++index)
    {
        list.SetCurSel(index);
        if (control.GetValue() != value)
            continue;
        SendCommand(list, code);
        return true;
    }
    list.SetCurSel(before);
    return false;
}

// A value that no item has is typed, where the box takes free text.
void ChooseOrType(const CComboBox& box, ClytControl& control, const CString& value)
{
    const bool isFree = ::GetWindow(box.m_hWnd, GW_CHILD) != nullptr;
    if (!Choose(box, control, value, CBN_SELCHANGE) && isFree)
        robot::ReplaceText(box.m_hWnd, value.GetString());
}

// By the space key: a box without a label has no height, so the mouse never meets it.
void Mark(const CButton& box)
{
    robot::Focus(box.m_hWnd);
    box.SendMessage(WM_KEYDOWN, VK_SPACE);
    box.SendMessage(WM_KEYUP, VK_SPACE);
}

void Press(const CButton& button, ClytControl& control, const CString& value)
{
    const bool isCheckBox = dynamic_cast<const ClytCheckBoxControl*>(&button) != nullptr;
    if (isCheckBox && control.GetValue() == value)
        return;
    if (isCheckBox || dynamic_cast<const ClytRadioButtonControl*>(&button) != nullptr)
        Mark(button);
    else if (dynamic_cast<const ClytGroupBoxControl*>(&button) == nullptr)
        button.SendMessage(BM_CLICK);
}

} // namespace

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
    // The run that ends the construction is none that a command began.
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
    if (dynamic_cast<ClytOptionGroup*>(&control) != nullptr)
    {
        ClytControl* option = OptionOf(control, input);
        return option != nullptr && Enter(*option, input);
    }
    const auto* window = dynamic_cast<const CWnd*>(&control);
    if (window == nullptr || !window->IsWindowEnabled() || !window->IsWindowVisible())
        return false;
    if (dynamic_cast<const CEdit*>(window) != nullptr)
        robot::ReplaceText(window->m_hWnd, input.GetString());
    else if (const auto* list = dynamic_cast<const CListBox*>(window))
        Choose(*list, control, input, LBN_SELCHANGE);
    else if (const auto* box = dynamic_cast<const CComboBox*>(window))
        ChooseOrType(*box, control, input);
    else if (const auto* button = dynamic_cast<const CButton*>(window))
        Press(*button, control, input);
    return true;
}

// The options of a group stand after it in the layout, up to the next group.
ClytControl* LiveForm::OptionOf(const ClytControl& group, const CString& value) const
{
    bool isOfGroup = false;
    for (POSITION place = GetControlList().GetHeadPosition(); place != nullptr;)
    {
        ClytControl* control = GetControlList().GetNext(place);
        if (dynamic_cast<ClytOptionGroup*>(control) != nullptr)
            isOfGroup = control == &group;
        else if (isOfGroup && dynamic_cast<ClytRadioButtonControl*>(control) != nullptr && control->GetValue() == value)
            return control;
    }
    return nullptr;
}

std::string LiveForm::Value(const CString& name) const
{
    ClytControl* control = FindControl(name);
    return control != nullptr ? control->GetValue().GetString() : "?";
}

// An option group has no window and answers for its buttons.
bool LiveForm::IsEnabled(const CString& name) const
{
    const CWnd* window = Window(name);
    if (window != nullptr && window->m_hWnd != nullptr)
        return window->IsWindowEnabled() != FALSE;
    return window != nullptr && FindControl(name)->IsActive() != 0;
}

bool LiveForm::IsShown(const CString& name) const
{
    const CWnd* window = Window(name);
    return window != nullptr && window->IsWindowVisible() != FALSE;
}

std::string LiveForm::Focus() const
{
    HWND window = ::GetFocus();
    while (window != nullptr && ::GetParent(window) != m_hWnd)
        window = ::GetParent(window);
    const auto* control = dynamic_cast<const ClytControl*>(FromHandlePermanent(window));
    return control != nullptr ? control->GetName().GetString() : "";
}

std::string LiveForm::DefaultButtonFor(const CString& name) const
{
    const ClytControlDep* rule = FindDefaultButtonRule(name);
    return rule != nullptr ? rule->controlName.GetString() : "";
}

void LiveForm::RunDependencies()
{
    const Counted run(m_openRuns);
    ++runCount;
    deepestRun = std::max(deepestRun, m_openRuns);
    ClytDialog::RunDependencies();
}

std::string WindowText(const CWnd& window)
{
    return robot::TextOf(window.m_hWnd);
}
