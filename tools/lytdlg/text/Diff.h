// What differs between two versions of a file, line by line, in the form of `diff -u`.
#pragma once

#include <string>

namespace lytdlg
{

// Empty when they are the same. The texts are in the library's code page, the result is in UTF-8.
std::string DiffOf(const std::string& name, const std::string& before, const std::string& after);

} // namespace lytdlg
