#include "lytdlg/text/Words.h"

namespace lytdlg
{

std::string Joined(const std::vector<std::string>& words, const char* between)
{
    std::string joined;
    for (const std::string& word : words)
        joined += (joined.empty() ? "" : between) + word;
    return joined;
}

size_t CountOf(const std::string& text, const std::string& mark)
{
    size_t count = 0;
    for (size_t place = text.find(mark); place != std::string::npos; place = text.find(mark, place + mark.size()))
        ++count;
    return count;
}

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(" \t");
    return first != std::string::npos ? text.substr(first, text.find_last_not_of(" \t") + 1 - first) : "";
}

std::string LineText(const ClytSpan& place)
{
    return "line " + std::to_string(place.line);
}

} // namespace lytdlg
