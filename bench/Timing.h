// Times of two pieces of work that are run in turn, so that whatever else the machine does falls on both alike.
#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

inline double Milliseconds()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

template <class Work>
double TimeOf(Work work)
{
    const double start = Milliseconds();
    work();
    return Milliseconds() - start;
}

inline double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
