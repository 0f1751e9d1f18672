// The OK or the Cancel button of a dialog. Its label comes from the language file, and its identifier is the one by
// which the platform ends a dialog; rules cannot change it.
#pragma once

#include "model/ClytControl.h"

#include <afxwin.h>

class ClytDefaultControl : public CButton, public ClytControl
{
public:
    // The kind is 1 for OK and 0 for Cancel; any other kind never shows.
    ClytDefaultControl(ClytPosition topLeft, ClytSize extent, int buttonKind);

    void CreateControl(ClytForm* owner) override;
    int IsActive() override { return 0; }
    int HasContent() override { return 0; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};
