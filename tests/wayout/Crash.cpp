// What only a library of a platform may do without ending the process.
#include "lytdata.h"

#include <windows.h>

extern "C" __declspec(dllexport) lytDataText Crash;

int Crash(const char*, char*, int)
{
    RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);
    return 1;
}
