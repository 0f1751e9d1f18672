#include "controls/ClytPushButtonControl.h"

#include "base/Words.h"
#include "controls/ClytFocusKeeper.h"
#include "controls/ClytWaitCursor.h"
#include "environment/ProcessState.h"

#include <utility>

void ClytPushButtonControl::CreateControl(ClytForm* owner)
{
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect, CWnd* parent) { return Create(caption, WS_TABSTOP, rect, parent, 0); });
    ApplyOptionFlags();
}

void ClytPushButtonControl::SetOption(const CStringList& values, const CString& keyword)
{
    if (TakeCommonOption(values.GetHead()) == 0)
        action.Set(keyword, values, StatementSpan());
}

void ClytPushButtonControl::SetState(const ClytStateWord& word, int on)
{
    if (word.GetMeaning() == ClytState::Active || word.GetMeaning() == ClytState::Visible)
        ClytWindowControl::SetState(word, on);
}

void ClytPushButtonControl::Click()
{
    if (armed == 1)
    {
        armed = 0;
        const ClytFocusKeeper keeper(*dialog);
        if (RunAction() == After::Nothing)
            return;
        dialog->RunRules();
    }
    lytSetCursor(IDC_ARROW);
}

// A click and what the window then reports to the dialog are one command of the user.
LRESULT ClytPushButtonControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (dialog == nullptr)
        return CButton::WindowProc(message, wParam, lParam);
    const ClytCounted inCommand = dialog->BeginCommand();
    try
    {
        TakeMessage(message, wParam);
    }
    catch (...)
    {
        // The button comes up before the message of what failed.
        CButton::WindowProc(message, wParam, lParam);
        throw;
    }
    return CButton::WindowProc(message, wParam, lParam);
}

void ClytPushButtonControl::TakeMessage(UINT message, WPARAM wParam)
{
    if (message == BM_SETSTATE && wParam == TRUE)
        Arm();
    else if (message == BM_SETSTATE)
    {
        lytCommandSeen = 1;
        Click();
    }
    else if (message == WM_SETFOCUS)
        passesOverReturn = ::GetKeyState(VK_RETURN) < 0;
    else if (message == WM_KEYUP)
        TakeKeyUp(wParam);
}

void ClytPushButtonControl::TakeKeyUp(WPARAM key)
{
    if (key == VK_SPACE)
    {
        // The window answers the space key with a second click, which is no longer armed.
        lytCommandSeen = 1;
        lytGiveReturnKey(*this, *dialog);
    }
    // The Return that ended a nested dialog or a message comes up over the button that opened it, which would open it
    // again.
    else if (key == VK_RETURN && !std::exchange(passesOverReturn, false))
        lytGiveReturnKey(*this, *dialog);
}

void lytClickControl(ClytControl& target, ClytForm& dialog)
{
    if (auto* button = dynamic_cast<ClytPushButtonControl*>(&target))
    {
        button->Arm();
        button->Click();
        return;
    }
    dialog.RunRules();
    lytSetCursor(IDC_ARROW);
}

void lytGiveReturnKey(ClytControl& target, ClytForm& dialog)
{
    if (lytCommandSeen != 1)
        return;
    lytClickControl(target, dialog);
    lytCommandSeen = 0;
}
