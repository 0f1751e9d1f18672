// The functions that a library file exports, and the libraries that it needs, read from its tables without loading it.
// Nothing in the file is trusted.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lytdlg
{

enum class LibraryForm
{
    NoLibrary, // not a library, or damaged, such as a file that was copied in part
    OtherBits, // a library that a 64-bit program cannot load
    Library
};

struct ExportTable
{
    LibraryForm form = LibraryForm::NoLibrary;
    std::vector<std::string> names;  // as far as the table can be read
    std::vector<std::string> needed; // the libraries that are loaded with it, likewise
};

// The bytes of a whole file.
ExportTable ReadExports(std::string_view bytes);

// The bits of the processor's programs, 64 or 32, that a library or program is made for; 0 for another processor, and for a
// file that is neither.
int BitsOf(std::string_view bytes);

} // namespace lytdlg
