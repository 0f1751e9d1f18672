#include "controls/ClytRadioButtonControl.h"

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
