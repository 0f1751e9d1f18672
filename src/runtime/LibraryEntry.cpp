// What the loader calls: the first code of the library that runs, and the last.
//
// Without it the loader would call the runtime's entry: the guard of the stack would have no value yet when the first
// constructors run, and each load would leave the runtime's reserve for exceptions, 73 KB, in the process. To see that, leave
// the option `--entry` out of the link and run `ctest --preset windows -R 'load-tests|unload-tests'`.
#include "runtime/LibraryEntry.h"

#include <windows.h>

namespace __gnu_cxx // NOLINT(bugprone-reserved-identifier): the runtime's name
{

// Frees the memory that the runtime keeps for exceptions when there is no other.
void __freeres(); // NOLINT(bugprone-reserved-identifier): as above

} // namespace __gnu_cxx

extern "C"
{
    // The runtime's own entry: constructors and destructors of process-wide objects, and DllMain.
    BOOL WINAPI DllMainCRTStartup(HINSTANCE module, DWORD reason, void* reserved);

    BOOL WINAPI lytLibraryEntry(HINSTANCE module, DWORD reason, void* reserved);

    // Sets the stack guard before anything protected runs, and empties the runtime after the last destructor, or when the
    // loading was refused. A process that ends (`reserved` is set then) takes everything with it; its other threads may
    // have died holding a lock.
    __attribute__((no_stack_protector)) BOOL WINAPI lytLibraryEntry(HINSTANCE module, DWORD reason, void* reserved)
    {
        if (reason == DLL_PROCESS_ATTACH)
        {
            SeedStackGuard();
            if (!PrepareThreadCalls())
                return FALSE;
        }
        const BOOL result = DllMainCRTStartup(module, reason, reserved);
        if (reason == DLL_PROCESS_DETACH && reserved == nullptr)
        {
            ReleaseThreadCalls();
            __gnu_cxx::__freeres();
        }
        return result;
    }
}
