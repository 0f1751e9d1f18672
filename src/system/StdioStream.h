// What CStdioFile needs from the platform: text translation and sharing differ, so each platform has its own file.
#pragma once

#include <cstdio>

enum class StreamUse
{
    Read,
    Append,
    Write // what the file held before is lost
};

enum class StreamSharing
{
    All,
    DenyWrite
};

// Null with `errno` set when the file cannot be opened, as for a folder.
[[nodiscard]] std::FILE* OpenTextStream(const char* fileName, StreamUse use, StreamSharing sharing);

// Reads up to and including a line end, at most `count` characters and a NUL; false at the end of the text.
[[nodiscard]] bool ReadTextLine(std::FILE* stream, char* buffer, unsigned count);

// Writes a text whole; false when it cannot be written.
[[nodiscard]] bool WriteText(std::FILE* stream, const char* text);
