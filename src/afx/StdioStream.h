// What CStdioFile asks of the platform: text translation and sharing differ, so each platform has a file of its own.
#pragma once

#include <afx.h>

// Opens a stream under the flags of CFile; null with `errno` set when that fails, as it does for a folder.
[[nodiscard]] std::FILE* OpenTextStream(const char* fileName, UINT flags);

// Reads up to and including a line end, at most `count` characters and a NUL; false at the end of the text.
[[nodiscard]] bool ReadTextLine(std::FILE* stream, char* buffer, UINT count);

// Writes a text whole, or holds it back until the stream is sought or closed; false when it cannot be written.
[[nodiscard]] bool WriteText(std::FILE* stream, const char* text);
