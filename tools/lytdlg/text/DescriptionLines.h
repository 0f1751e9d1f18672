// The lines of a description as a text, each with what it is read as according to the library's own readers,
// once for each choice of the defines that the file names.
#pragma once

#include "dlgfile/Sections.h"

#include <afx.h>

#include <bitset>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace lytdlg
{

using LineKinds = std::bitset<std::size(lytLineForms)>;

struct DescriptionLine
{
    std::string text;
    std::string end; // as the file has it; empty for a last line without one
    // What it is read as; nothing for a line that no reader reads: after the end of the description, or a mark of a define.
    LineKinds kinds;
    bool isRefused = false; // by a reader, under some choice of the defines
};

struct DescriptionLines
{
    std::vector<DescriptionLine> lines;
    std::string unread; // what follows an end of text (Ctrl-Z) and the line that it is in
};

// A description that names more defines than can be tried in every choice.
class TooManyDefines : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Opens a description as the library does; throws std::runtime_error when it cannot.
void OpenDescription(CStdioFile& file, const std::filesystem::path& fileName);

// The lines of a file with its content, which has been read byte for byte.
DescriptionLines ReadDescriptionLines(const std::filesystem::path& fileName, const std::string& content);

// The names of the defines that the lines ask for, in their order, each once.
std::vector<std::string> DefinesOf(const std::vector<DescriptionLine>& lines);
// Every choice of these defines, as the lists that a reader takes.
std::vector<std::string> ChoicesOf(const std::vector<std::string>& defines);

// The content in its form. A line that is refused, or that would be read differently, stays as it is, byte for byte. The file
// holds the content, for the library to read.
std::string FormattedDescription(const std::filesystem::path& fileName, const std::string& content);

} // namespace lytdlg
