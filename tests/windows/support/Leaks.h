// Demands that something done over and over takes nothing with it.
#pragma once

#include "support/Holdings.h"

#include <functional>

// Does `once` until everything is warm, then `rounds` times more, and compares what the process holds before and after.
void ExpectNoGrowth(const std::function<void()>& once, int rounds = Holdings::Rounds());
