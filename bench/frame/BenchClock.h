// The clock of the benches, in nanoseconds.
#pragma once

double BenchNanoseconds();
