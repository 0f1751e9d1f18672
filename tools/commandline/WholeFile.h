// Files that are read and written whole, without the stream classes, which would double the size of the program.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace commandline
{

// A file of the C library, closed with its owner.
struct FileCloser
{
    void operator()(FILE* file) const { std::fclose(file); }
};

using OwnedFile = std::unique_ptr<FILE, FileCloser>;

// Nothing for a file that cannot be read, nor for one that is not a real file: a device or a pipe may have no end.
std::optional<std::string> ReadWholeFile(const std::string& name);
// Writes beside the file and renames: what was there stays until all is written. False, and nothing changed, when that fails.
bool WriteWholeFile(const std::string& name, const std::string& content);

} // namespace commandline
