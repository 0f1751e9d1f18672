#include <afx.h>

#include "system/ModalOwner.h"
#include "system/ModalWindows.h"
#include "system/Unwound.h"

int AfxMessageBox(const char* text, UINT type, UINT /*help*/)
{
    const Unwound<ModalWindows> windows;
    const Unwound<ModalOwner> owner(GetActiveWindow());
    return MessageBoxA(owner->Get(), text, "lyt64", type);
}
