// Each variant is a lytsrc.dll in a folder of its own beside the tests.
#include "TestSources.h"

#include "support/Library.h"

HMODULE LoadTestSource(const std::string& variant)
{
    SetDllDirectoryA((ProgramFolder() + "\\" + variant).c_str());
    return LoadLibraryA("lytsrc");
}

// The library under test keeps its source for good, so that a fresh start has to take it away from under it.
void TakeTestSourceAway()
{
    while (HMODULE source = GetModuleHandleA("lytsrc"))
        FreeLibrary(source);
    SetDllDirectoryA(nullptr);
}
