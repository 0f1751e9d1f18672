#include "controls/ClytRadioButtonControl.h"

#include "base/ClytCounted.h"
#include "controls/ClytOptionGroup.h"

ClytRadioButtonControl::ClytRadioButtonControl(CString controlName, ClytPosition topLeft, ClytSize extent,
                                               int isFirstOfGroup, CString text)
    : ClytWindowControl(std::move(controlName), topLeft, extent, std::move(text)), firstOfGroup(isFirstOfGroup)
{
}

ClytRadioButtonControl::~ClytRadioButtonControl()
{
    if (group != nullptr)
        group->Remove(*this);
}

void ClytRadioButtonControl::CreateControl(ClytForm* owner)
{
    const DWORD style = WS_TABSTOP | BS_AUTORADIOBUTTON | (firstOfGroup != 0 ? WS_GROUP : 0U);
    CreateCommon(owner, ClytFit::ToCaptionWithMargin,
                 [&](const CRect& rect, CWnd* parent) { return Create(caption, style, rect, parent, 0); });
    ApplyOptionFlags();
    // Without a preselected button the whole group starts without a mark, its first button included.
    Check(preselected == 1);
    if (group != nullptr && group->EndsWith(*this))
        group->PlaceTabStop();
}

void ClytRadioButtonControl::SetOption(const CStringList& values, const CString& /*keyword*/)
{
    if (TakeCommonOption(values.GetHead()) == 0)
        optionValue = values.GetHead();
}

void ClytRadioButtonControl::SetValue(const CString& value)
{
    if (value.IsEmpty())
        return;
    Mark(value);
    if (group != nullptr)
        group->PlaceTabStop();
}

void ClytRadioButtonControl::Check(bool isChecked)
{
    const ClytCounted checking(ownChecks);
    SetCheck(isChecked ? BST_CHECKED : BST_UNCHECKED);
}

// A click checks the button by this message, before its command runs the rules. The platform then unchecks the others of
// the group, but skips those that are hidden or disabled, and the group would give the value of one of them.
LRESULT ClytRadioButtonControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = ClytWindowControl::WindowProc(message, wParam, lParam);
    if (message == BM_SETCHECK && wParam == BST_CHECKED && ownChecks == 0 && group != nullptr)
        group->Choose(*this);
    return result;
}

// A button without a group of its dialog is in that of an outer dialog, whose choice is another one.
void ClytRadioButtonControl::YieldTo(const ClytRadioButtonControl& chosen)
{
    if (this != &chosen && dialog == chosen.dialog && GetCheck() != BST_UNCHECKED)
        Check(false);
}
