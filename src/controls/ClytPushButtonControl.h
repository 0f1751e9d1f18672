// The control that acts: a click runs the action of its statement, on other controls, with a library function or in a
// nested dialog, and then the dialog's rules.
#pragma once

#include "controls/ClytWindowControl.h"

class ClytPushButtonControl : public ClytWindowControl<CButton>
{
public:
    using ClytWindowControl::ClytWindowControl;

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SetControlFocus() override { SetFocus(); }
    // Unlike other controls, a button knows only the words "ACTIVE" and "VISIBLE".
    void SetState(const ClytStateWord& word, int on) override;

    // Makes the next click take effect.
    void Arm() { armed = 1; }
    // Runs the action, and the rules after it. A click that was not armed does nothing.
    void Click();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // Whether the rules run after the action.
    enum class After
    {
        RunRules,
        Nothing
    };
    struct Action;
    static const Action actions[];

    // Acts on a message of mouse or keyboard before the window sees it.
    void TakeMessage(UINT message, WPARAM wParam);
    void TakeKeyUp(WPARAM key);
    After RunAction();

    After ToggleVisible();
    After ToggleActive();
    After AddShownText();
    After DeleteItem();
    After MoveUp();
    After MoveDown();
    After CallFunction();
    After Reject();
    After Fill();
    After OpenDialog();

    // The n-th value of the statement, from 0; a missing one raises the invalid-argument exception.
    CString Value(int index) const;
    // The control that the first value names, or null.
    ClytControl* Target() const { return Find(Value(0)); }
    ClytControl* Find(const CString& target) const;
    void ToggleCaption();
    void FocusNextControl() const;

    int armed = 0;
    bool passesOverReturn = false; // got the focus while a Return that was pressed elsewhere is down
};

// Arms and clicks a button that a double click or a key means. A control that is not a button has no action to run; the
// rules still run.
void lytClickControl(ClytControl& target, ClytForm& dialog);
// The Return key, on a button or by a default-button rule: it acts once for each command that reached the dialog.
void lytGiveReturnKey(ClytControl& target, ClytForm& dialog);
