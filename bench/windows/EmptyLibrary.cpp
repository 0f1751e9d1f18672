// What a C++ library of this toolchain weighs before anything is in it.
#include <windows.h>

#include <string>

extern "C" __declspec(dllexport) int Nothing(const char* text)
{
    return static_cast<int>(std::string(text).size());
}

extern "C" BOOL __stdcall DllMain(HINSTANCE module, DWORD reason, void* /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(module);
    return TRUE;
}
