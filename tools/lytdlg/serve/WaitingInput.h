// The standard input as it comes, byte for byte.
#pragma once

#include <cstddef>

namespace lytdlg
{

// Whether there is something to read, be it the end.
bool IsInputWaiting();
// Waits for input. 0 at the end.
size_t ReadInput(char* buffer, size_t size);

} // namespace lytdlg
