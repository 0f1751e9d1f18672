// Local time, where platforms differ in how they show that a time has none.
#pragma once

#include <ctime>

// False when the time cannot be given as a date; `local` is then of no use.
[[nodiscard]] bool lytLocalTimeOf(std::time_t time, std::tm& local);
