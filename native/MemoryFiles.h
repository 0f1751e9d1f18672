// Files that a program holds in memory: the system is asked nothing when one of them is opened, read or written. A fuzzer
// puts a new file there thousands of times a second.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace platform
{

// A name that begins with this is that of a file in memory, whether there is one or not. In names `\` and `/` are the same.
inline constexpr std::string_view memoryFolder = "memory:";

// From now on this is the file of that name.
void PutMemoryFile(const char* name, std::string content);
void RemoveMemoryFile(const char* name);
void RemoveMemoryFiles();

// What the functions over files ask. Paths have `/` between folders.
bool IsInMemory(std::string_view path);
// Null when there is no such file.
const std::string* FindMemoryFile(const std::string& path);
// Null, with `errno` set, for a file that is not there.
std::FILE* OpenMemoryFileToRead(const std::string& path);
// Opens the file at its end, and makes the one that is not there.
std::FILE* OpenMemoryFileToAppend(const std::string& path);

} // namespace platform
