// Each variant is a lytsrc.dll in a separate folder beside the tests.
#include "TestSources.h"

#include "support/Library.h"

HMODULE LoadTestSource(const std::string& variant)
{
    SetDllDirectoryA((ProgramFolder() + "\\" + variant).c_str());
    return LoadLibraryA("lytsrc");
}

// A button whose action names the library under test leaves it loaded once more with each press, and the library keeps
// its source for good.
void TakeLibrariesAway()
{
    for (const char* name : {"lyt64", "lytsrc"})
    {
        while (HMODULE library = GetModuleHandleA(name))
            FreeLibrary(library);
    }
    SetDllDirectoryA(nullptr);
}
