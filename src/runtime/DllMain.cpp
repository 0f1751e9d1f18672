// Notes which module holds the resources, and switches the calls for threads off.
//
// Without it no dialog finds its template, since the class library would look for it in the host: every test that opens
// one fails, such as `ctest --preset windows -R dialog-tests`.
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
