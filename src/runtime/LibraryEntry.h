// What the entry of the library calls in the replacements of the tool chain's runtime.
#pragma once

// Gives the value between a function's buffers and its return address, a new one for each load. Nothing that is protected may
// be running.
void SeedStackGuard();

// Takes all that the C++ runtime will ask of a thread library, before it runs; false when the process has none left.
bool PrepareThreadCalls();
// Releases all that was taken for the runtime, for every thread. It must not be used any more.
void ReleaseThreadCalls();
