// Files that the drawing commands write.
#pragma once

#include <string>

namespace lytdlg
{

// The extension of a file name in lower case, with its point.
std::string ExtensionOf(const std::string& file);
// Writes to standard output for an empty name. Throws std::runtime_error when the file cannot be written.
void WriteOut(const std::string& file, const std::string& bytes);

} // namespace lytdlg
