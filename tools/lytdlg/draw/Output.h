// Files that the drawing commands write.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

// The extension of a file name in lower case, with its point.
std::string ExtensionOf(const std::string& file);
// Writes to standard output for an empty name. Throws std::runtime_error when the file cannot be written.
void WriteOut(const std::string& file, const std::string& bytes);
// Has another program make the file of a source: it is told -o, the file to write and the file to read. Throws
// std::runtime_error with the way out when there is no such program.
void WriteByProgram(const std::string& file, std::vector<std::string> words, const std::string& source,
                    const char* wayOut);

} // namespace lytdlg
