// Natively all work is done by this process, so the processor's time is taken, on which other programs weigh least.
#include "frame/BenchClock.h"

#include <ctime>

double BenchNanoseconds()
{
    std::timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e9 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec);
}
