// What the C++ runtime asks of a thread library.
#pragma once

// Gives back all that was taken for the runtime, for every thread. It must not be used any more.
void ReleaseThreadCalls();
