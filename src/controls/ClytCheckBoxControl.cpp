#include "controls/ClytCheckBoxControl.h"

void ClytCheckBoxControl::CreateControl(ClytForm* owner)
{
    CreateCommon(owner, ClytFit::ToCaptionWithMargin,
                 [&](const CRect& rect, CWnd* parent)
                 { return Create(caption, WS_TABSTOP | BS_AUTOCHECKBOX, rect, parent, 0); });
    ApplyOptionFlags();

    // Texts that were never given are equal: a box without any statement starts checked.
    if (defaultValue == onValue)
        SetCheck(BST_CHECKED);
    else if (defaultValue == offValue)
        SetCheck(BST_UNCHECKED);
    else if (!defaultValue.IsEmpty())
        lytRaise(lytError("BoxText"), ClytPrefix(lytError("ActionFailed")), name);
}

void ClytCheckBoxControl::SetOption(const CStringList& values, const CString& keyword)
{
    const CString& value = values.GetHead();
    if (TakeCommonOption(value) != 0)
        return;
    if (lytMeans<ClytKeyword::On>(keyword))
        onValue = value;
    else if (lytMeans<ClytKeyword::Off>(keyword))
        offValue = value;
    else
        defaultValue = value;
}

std::optional<int> ClytCheckBoxControl::StateOf(const CString& value) const
{
    if (value == onValue || lytMeans<ClytValueWord::On>(value))
        return BST_CHECKED;
    if (value == offValue || lytMeans<ClytValueWord::Off>(value))
        return BST_UNCHECKED;
    return std::nullopt;
}

void ClytCheckBoxControl::SetValue(const CString& value)
{
    if (const std::optional<int> state = StateOf(value))
        SetCheck(*state);
}
