#include <afx.h>

#include <windows.h>

int AfxMessageBox(const char* text, UINT type, UINT /*help*/)
{
    return MessageBoxA(GetActiveWindow(), text, "lyt64", type);
}
