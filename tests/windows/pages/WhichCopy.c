/* A resource library that tells the report which file it is, so that a test sees which of several copies was found. */
#include <windows.h>

static const char place[] = "in this library";

__declspec(dllexport) void getLYTVersion(char* text)
{
    HMODULE self = NULL;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, place,
                       &self);
    GetModuleFileNameA(self, text, MAX_PATH);
}
