// The named control that represents a group of option buttons: rules and output use it in place of its
// buttons. It has no window.
#pragma once

#include "model/ClytForm.h"

#include <afxtempl.h>
#include <afxwin.h>

class ClytRadioButtonControl;

class ClytOptionGroup : public CWnd, public ClytControl
{
public:
    // Makes the group the one that the option buttons of the layout join.
    explicit ClytOptionGroup(CString controlName);
    ~ClytOptionGroup() override;

    // 1 for the first button after an "OptionGroup" statement, 0 for those that follow it.
    static int TakeFirstOfGroup();
    // A button joins the group of the last "OptionGroup" statement; without one it is alone.
    static void AddToCurrentGroup(ClytRadioButtonControl& button);
    void Remove(const ClytRadioButtonControl& button);
    // In the order of the layout.
    const CTypedPtrList<CPtrList, ClytRadioButtonControl*>& GetButtons() const { return buttons; }
    // Whether the button is the group's last, whose window comes last, too.
    bool EndsWith(const ClytRadioButtonControl& button) const { return buttons.GetTail() == &button; }
    // The user has chosen a button: it is the only one that is checked.
    void Choose(const ClytRadioButtonControl& chosen);
    // The Tab key reaches the chosen option, or the first while none is chosen. It asks one option after the other, so
    // what sets many of them calls it once.
    void PlaceTabStop();

    void CreateControl(ClytForm* owner) override;
    // The value preselects the button whose own value it is, so the statement comes after the buttons' statements.
    void SetOption(const CStringList& values, const CString& keyword) override;
    void SaveState() override { savedValue = GetValue(); }
    // A control without a window gets no focus.
    void SetControlFocus() override { SetFocus(); }
    void SetValue(const CString& value) override;
    // The value of the first checked button, or empty.
    CString GetValue() override;
    int IsChanged() override { return GetValue() == savedValue ? 0 : 1; }
    // Any state word, also one that hides the group, decides whether it counts as active.
    void SetState(const ClytStateWord& word, int on) override;
    int IsActive() override { return active; }
    int HasContent() override { return 1; }

private:
    // The first checked button, or null.
    ClytRadioButtonControl* Checked() const;

    CTypedPtrList<CPtrList, ClytRadioButtonControl*> buttons; // owned by the dialog; each leaves the list when it dies
    CString savedValue;
    int active = 1;
};
