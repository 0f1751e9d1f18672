#include "controls/ClytStaticControl.h"

void ClytStaticControl::CreateControl(ClytForm* owner)
{
    CreateCommon(owner, ClytFit::ToCaption,
                 [&](const CRect& rect, CWnd* parent) { return Create(caption, SS_LEFT, rect, parent, 0); });
    ApplyOptionFlags();
}

void ClytStaticControl::SetOption(const CStringList& values, const CString& /*keyword*/)
{
    TakeCommonOption(values.GetHead());
}
