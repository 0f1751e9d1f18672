#include "liveform/UserActs.h"

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

bool HasFocus(const CWnd& window)
{
    return ::GetFocus() == window.m_hWnd || ::IsChild(window.m_hWnd, ::GetFocus()) != FALSE;
}

// Keys go to the window with the focus.
bool TakesFocus(const CWnd& window)
{
    robot::Focus(window.m_hWnd);
    return HasFocus(window);
}

Entered Type(const CWnd& field, const CString& text)
{
    if (!TakesFocus(field))
        return Entered::NotFocused;
    robot::ReplaceText(field.m_hWnd, text.GetString());
    return Entered::Done;
}

// A value that no item has is typed, where the box takes free text.
Entered ChooseOrType(const CComboBox& box, ClytControl& control, const CString& value)
{
    if (Choose(box, control, value, CBN_SELCHANGE))
        return Entered::Done;
    const bool isFree = ::GetWindow(box.m_hWnd, GW_CHILD) != nullptr;
    return isFree ? Type(box, value) : Entered::NotOffered;
}

// By the space key: a box without a label has no height, so the mouse never meets it.
Entered Mark(const CButton& box)
{
    if (!TakesFocus(box))
        return Entered::NotFocused;
    box.SendMessage(WM_KEYDOWN, VK_SPACE);
    box.SendMessage(WM_KEYUP, VK_SPACE);
    return Entered::Done;
}

Entered Press(const CButton& button, ClytControl& control, const CString& value)
{
    const bool isCheckBox = dynamic_cast<const ClytCheckBoxControl*>(&button) != nullptr;
    if (isCheckBox && control.GetValue() == value)
        return Entered::Done;
    if (isCheckBox || dynamic_cast<const ClytRadioButtonControl*>(&button) != nullptr)
        return Mark(button);
    if (dynamic_cast<const ClytGroupBoxControl*>(&button) != nullptr)
        return Entered::NotOffered;
    button.SendMessage(BM_CLICK);
    return Entered::Done;
}

Entered EnterInWindow(const CWnd& window, ClytControl& control, const CString& input)
{
    if (dynamic_cast<const CEdit*>(&window) != nullptr)
        return Type(window, input);
    if (const auto* list = dynamic_cast<const CListBox*>(&window))
        return Choose(*list, control, input, LBN_SELCHANGE) ? Entered::Done : Entered::NotOffered;
    if (const auto* box = dynamic_cast<const CComboBox*>(&window))
        return ChooseOrType(*box, control, input);
    const auto* button = dynamic_cast<const CButton*>(&window);
    return button != nullptr ? Press(*button, control, input) : Entered::NotOffered;
}

} // namespace

ClytControl* FocusedControl(const ClytForm& form)
{
    for (ClytControl& control : form.GetControlList())
    {
        const auto* window = dynamic_cast<const CWnd*>(&control);
        if (window != nullptr && window->m_hWnd != nullptr && HasFocus(*window))
            return &control;
    }
    return nullptr;
}

Entered EnterAsUser(ClytControl& control, const CString& input)
{
    if (dynamic_cast<ClytOptionGroup*>(&control) != nullptr)
    {
        const std::vector<ClytControl*> options = OptionsOf(control);
        const auto option = std::ranges::find_if(options, [&](ClytControl* one) { return one->GetValue() == input; });
        return option != options.end() ? EnterAsUser(**option, input) : Entered::NotOffered;
    }
    const auto* window = dynamic_cast<const CWnd*>(&control);
    if (window == nullptr || !window->IsWindowEnabled() || !window->IsWindowVisible())
        return Entered::OutOfReach;
    return EnterInWindow(*window, control, input);
}

std::vector<ClytControl*> OptionsOf(const ClytControl& control)
{
    std::vector<ClytControl*> options;
    if (const auto* group = dynamic_cast<const ClytOptionGroup*>(&control))
    {
        for (ClytRadioButtonControl& button : group->GetButtons())
            options.push_back(&button);
    }
    return options;
}

bool IsSeenEnabled(ClytControl& control)
{
    const auto* window = dynamic_cast<const CWnd*>(&control);
    return window != nullptr && window->m_hWnd != nullptr ? window->IsWindowEnabled() != FALSE
                                                          : control.IsActive() != 0;
}

bool IsSeen(ClytControl& control)
{
    const auto isShown = [](const ClytControl* one)
    {
        const auto* window = dynamic_cast<const CWnd*>(one);
        return window != nullptr && window->IsWindowVisible() != FALSE;
    };
    if (dynamic_cast<ClytOptionGroup*>(&control) == nullptr)
        return isShown(&control);
    return std::ranges::any_of(OptionsOf(control), isShown);
}
