#include <afx.h>

#include "ModalWindows.h"

int AfxMessageBox(const char* text, UINT type, UINT /*help*/)
{
    const ModalWindows windows;
    return MessageBoxA(GetActiveWindow(), text, "lyt64", type);
}
