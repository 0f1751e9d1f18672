// The runtime's streams as the native build has them.
#pragma once

#include <cstdio>
#include <unistd.h>

inline int _fileno(std::FILE* stream)
{
    return fileno(stream);
}
inline int _isatty(int stream)
{
    return isatty(stream);
}

// Streams have one mode here.
inline constexpr int _O_BINARY = 0;
inline int _setmode(int /*stream*/, int mode)
{
    return mode;
}
