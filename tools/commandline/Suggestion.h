// Help with words that are not known.
#pragma once

#include <string>
#include <vector>

namespace commandline
{

// Whether a few letters changed, added, dropped or swapped make one word of the other.
bool IsClose(const std::string& word, const std::string& known);
// The known word that is close; empty when there is none.
std::string Nearest(const std::string& word, const std::vector<std::string>& known);
// "did you mean ...?" when one of the known words is close, else a list of them all.
std::string Suggestion(const std::string& word, const std::vector<std::string>& known);

} // namespace commandline
