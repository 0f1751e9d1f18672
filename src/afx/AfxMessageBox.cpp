#include <afx.h>

#include "ModalOwner.h"
#include "ModalWindows.h"
#include "Unwound.h"

int AfxMessageBox(const char* text, UINT type, UINT /*help*/)
{
    const Unwound<ModalWindows> windows;
    const Unwound<ModalOwner> owner(GetActiveWindow());
    return MessageBoxA(owner->Get(), text, "lyt64", type);
}
