// The one form of a description: how its statements are spaced and its comments stand. What is read of it stays the same,
// line for line.
#pragma once

#include "lytdlg/text/DescriptionLines.h"

namespace lytdlg
{

// The content in its form. A line that is refused, or that would be read otherwise, stays as it is, byte for byte. The file
// holds the content, for the library to read.
std::string FormattedDescription(const std::filesystem::path& fileName, const std::string& content);

} // namespace lytdlg
