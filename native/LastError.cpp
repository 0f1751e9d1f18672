// Few functions here set the last error; those that do say so.
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
