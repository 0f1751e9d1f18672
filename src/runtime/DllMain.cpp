#include <afxstat_.h>

extern "C" BOOL __stdcall DllMain(HINSTANCE module, DWORD reason, void* /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        *AfxGetStaticModuleState() = {module, module};
        DisableThreadLibraryCalls(module);
    }
    return TRUE;
}
