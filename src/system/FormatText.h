// The runtime's formatting, as CString uses it. On Windows it is the system's own: the compiler's brings a second one.
#pragma once

#include <cstdarg>
#include <cstddef>

// The length of the formatted text, negative for an invalid format.
[[nodiscard]] int FormattedLength(const char* format, va_list arguments);

// Writes the formatted text and a NUL; `size` counts both.
void FormatText(char* buffer, size_t size, const char* format, va_list arguments);
