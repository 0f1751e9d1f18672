// Few functions here leave an error; whoever does says so.
#include <windows.h>

namespace
{

DWORD lastError = 0;

} // namespace

DWORD GetLastError()
{
    return lastError;
}

void SetLastError(DWORD error)
{
    lastError = error;
}
