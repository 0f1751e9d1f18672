// A frame round other controls.
#pragma once

#include "controls/ClytWindowControl.h"

class ClytGroupBoxControl : public ClytWindowControl<CButton>
{
public:
    // A caption of two quotation marks is an empty one.
    ClytGroupBoxControl(CString controlName, ClytPosition topLeft, ClytSize extent, CString text);

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
};
