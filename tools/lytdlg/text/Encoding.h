// In which encoding a file was saved, and what it is in the library's code page.
#pragma once

#include <string>

namespace lytdlg
{

// With its mark, or without one where every second byte of the beginning is a NUL.
bool IsUtf16(const std::string& bytes);

// A text in UTF-16 or UTF-8 as it is in the code page, without its mark; any other as it is. Throws std::runtime_error,
// with the line, for a letter that the code page does not have.
std::string InCodePage(const std::string& bytes);

} // namespace lytdlg
