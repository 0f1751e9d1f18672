// Under Wine a server does part of the work, so it is the time on the wall that counts.
#include "frame/BenchClock.h"

#include <windows.h>

double BenchNanoseconds()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return 1e9 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}
