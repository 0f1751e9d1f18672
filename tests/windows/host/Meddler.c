/* A partner library without manners: it takes cursor and focus of its host when it is loaded and when it is called. */
#include <windows.h>

static void Meddle(void)
{
    SetCursor(LoadCursorA(NULL, IDC_UPARROW));
    SetFocus(NULL);
}

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* reserved)
{
    (void)module;
    (void)reserved;
    if (reason == DLL_PROCESS_ATTACH)
        Meddle();
    return TRUE;
}

__declspec(dllexport) void getLYTVersion(char* text)
{
    Meddle();
    lstrcpyA(text, "1.0");
}
