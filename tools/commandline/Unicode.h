// The forms of Unicode that files are saved in.
#pragma once

#include <string>

namespace commandline
{

// The text of a file, in UTF-8, whose first bytes are the mark of UTF-16 or UTF-8; any other as it is.
std::string FromMarkedUnicode(const std::string& bytes);

} // namespace commandline
