// Demands that something done over and over takes nothing with it: no window, no graphics object, no kernel handle, no
// thread-local slot, no memory.
#pragma once

#include <functional>

// Does `once` until everything is warm, then `rounds` times more, and compares.
void ExpectNoGrowth(const std::function<void()>& once, int rounds = 100);
