// What the fuzzers do with their input. The bodies stand here, so that the gathered inputs replay as ordinary tests.
#pragma once

#include <cstddef>
#include <cstdint>

// The input is a whole description: it is read into a live form, its controls are entered into and its result is
// composed.
void FuzzDescription(const uint8_t* data, size_t size);
// The input is the statements of an input part up to a line "$OUTPUT", and after it the text that they scan.
void FuzzScan(const uint8_t* data, size_t size);
// The input is a format and its items, a line each; the lines are also expanded and cut into groups.
void FuzzFormat(const uint8_t* data, size_t size);
