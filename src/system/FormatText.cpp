#include "system/FormatText.h"

#include <cstdio>

int FormattedLength(const char* format, va_list arguments)
{
    return _vscprintf(format, arguments);
}

void FormatText(char* buffer, size_t size, const char* format, va_list arguments)
{
    _vsnprintf(buffer, size, format, arguments);
}
