// Windows in memory and the runtime's heap; there is nothing else that could be lost. What the runtime keeps for later
// counts as used; ctest runs the tests without that.
#include "support/Holdings.h"

#include "native/MemoryWindows.h"

#include <malloc.h>

int Holdings::Rounds()
{
    return 100;
}

Holdings::Holdings() : m_heapBytes(mallinfo2().uordblks)
{
    m_counted[windows] = platform::CountWindows();
}
