#include "system/FormatText.h"

#include <cstdio>

int FormattedLength(const char* format, va_list arguments)
{
    return std::vsnprintf(nullptr, 0, format, arguments);
}

void FormatText(char* buffer, size_t size, const char* format, va_list arguments)
{
    std::vsnprintf(buffer, size, format, arguments);
}
