#include <afx.h>

#include "ModalOwner.h"
#include "ModalWindows.h"

int AfxMessageBox(const char* text, UINT type, UINT /*help*/)
{
    const ModalWindows windows;
    const ModalOwner owner(GetActiveWindow());
    return MessageBoxA(owner.Get(), text, "lyt64", type);
}
