// How long a library may go on delivering.
#pragma once

// A run of records or items that has not ended by then counts as ended, so that no library can hang its caller.
inline constexpr int lytLongestRun = 1'000'000;
