#include "controls/ClytGroupBoxControl.h"

ClytGroupBoxControl::ClytGroupBoxControl(CString controlName, ClytPosition topLeft, ClytSize extent, CString text)
    : ClytWindowControl(std::move(controlName), topLeft, extent, std::move(text))
{
    if (caption == "\"\"")
        caption.Empty();
}

void ClytGroupBoxControl::CreateControl(ClytForm* owner)
{
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect, CWnd* parent) { return Create(caption, BS_GROUPBOX, rect, parent, 0); });
    ApplyOptionFlags();
}

void ClytGroupBoxControl::SetOption(const CStringList& values, const CString& /*keyword*/)
{
    TakeCommonOption(values.GetHead());
}
