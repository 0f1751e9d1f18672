// What the loader calls: the first code of the library that runs.
#include "exports/StackGuard.h"

#include <windows.h>

extern "C"
{
    // The runtime's own entry: constructors and destructors of process-wide objects, and DllMain.
    BOOL WINAPI DllMainCRTStartup(HINSTANCE module, DWORD reason, void* reserved);

    BOOL WINAPI lytLibraryEntry(HINSTANCE module, DWORD reason, void* reserved);

    // Sets the stack guard before anything protected runs.
    __attribute__((no_stack_protector)) BOOL WINAPI lytLibraryEntry(HINSTANCE module, DWORD reason, void* reserved)
    {
        if (reason == DLL_PROCESS_ATTACH)
            SeedStackGuard();
        return DllMainCRTStartup(module, reason, reserved);
    }
}
