// A file of the C library, closed with its owner: the stream classes would double the size of the program.
#pragma once

#include <cstdio>
#include <memory>

namespace commandline
{

struct FileCloser
{
    void operator()(FILE* file) const { std::fclose(file); }
};

using OwnedFile = std::unique_ptr<FILE, FileCloser>;

} // namespace commandline
