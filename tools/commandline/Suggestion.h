// Help with words that are not known.
#pragma once

#include <string>
#include <vector>

namespace commandline
{

// "did you mean ...?" when one of the known words is close, else a list of them all.
std::string Suggestion(const std::string& word, const std::vector<std::string>& known);

} // namespace commandline
