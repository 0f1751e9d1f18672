// A fixed text, which a rule can overwrite. It has no value.
#pragma once

#include "controls/ClytWindowControl.h"

class ClytStaticControl : public ClytWindowControl<CStatic>
{
public:
    using ClytWindowControl::ClytWindowControl;

    void CreateControl(ClytForm* owner) override;
    void SetOption(const CStringList& values, const CString& keyword) override;
    // The window keeps the size that its caption gave it: a longer text is cut.
    void SetValue(const CString& value) override { SetWindowText(value); }
};
