// Push button, check box, option button, group box: the style says which of them a button is.
#pragma once

#include "Window.h"

namespace platform
{

class ButtonWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCreated() override { TellKind(Kind()); }
    void OnStyleChanged() override { TellKind(Kind()); }

private:
    DWORD Kind() const { return style & BS_TYPEMASK; }
    // Tells the dialog whether this is a default button.
    void TellKind(DWORD kind) const;
    LRESULT DialogCodes() const;
    void Press();
    void Release(bool isOutside);
    void LoseCapture();
    void SetCheck(UINT check);
    void UncheckOthers() const;
    bool IsInside(LPARAM point) const;

    UINT m_check = BST_UNCHECKED;
    bool m_isPushed = false; // looks pressed
    bool m_isHeld = false;   // by the mouse or the space key
};

} // namespace platform
