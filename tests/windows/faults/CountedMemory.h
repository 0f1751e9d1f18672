// The blocks that the program under test holds. A program that links this has each of its allocations counted, and failing
// to plan.
#pragma once

#include <cstddef>

// How many there are at this moment.
std::ptrdiff_t CountBlocks();
