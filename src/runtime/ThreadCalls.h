// What the C++ runtime asks of a thread library.
#pragma once

// Takes all that the runtime will need, before it runs; false when the process has none left.
bool PrepareThreadCalls();
// Gives back all that was taken for the runtime, for every thread. It must not be used any more.
void ReleaseThreadCalls();
