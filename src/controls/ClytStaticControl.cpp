#include "controls/ClytStaticControl.h"

#include "dialog/ClytDialog.h"

void ClytStaticControl::CreateControl(ClytDialog* owner)
{
    CreateCommon(owner, ClytFit::ToCaption,
                 [&](const CRect& rect) { return Create(caption, SS_LEFT, rect, owner, 0); });
    ApplyOptionFlags();
}

void ClytStaticControl::SetOption(const CStringList& values, const CString& /*keyword*/)
{
    TakeCommonOption(values.GetHead());
}
