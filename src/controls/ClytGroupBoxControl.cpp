#include "controls/ClytGroupBoxControl.h"

#include "dialog/ClytDialog.h"

ClytGroupBoxControl::ClytGroupBoxControl(CString controlName, ClytPosition topLeft, ClytSize extent, CString text)
    : ClytWindowControl(std::move(controlName), topLeft, extent, std::move(text))
{
    if (caption == "\"\"")
        caption.Empty();
}

void ClytGroupBoxControl::CreateControl(ClytDialog* owner)
{
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect) { return Create(caption, BS_GROUPBOX, rect, owner, 0); });
    ApplyOptionFlags();
}

void ClytGroupBoxControl::SetOption(const CStringList& values, const CString& /*keyword*/)
{
    TakeCommonOption(values.GetHead());
}
