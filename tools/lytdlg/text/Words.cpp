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

std::string LineEndOf(const std::string& text)
{
    return text.find("\r\n") != std::string::npos ? "\r\n" : "\n";
}

std::string WithLineEnds(const std::string& text, const std::string& end)
{
    std::string ended;
    for (const char ch : text)
        ended += ch == '\n' ? end : std::string(1, ch);
    return ended;
}

size_t SequenceLength(const std::string& text, size_t place)
{
    const auto at = [&](size_t index) { return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U; };
    const unsigned first = at(place);
    const size_t size = first >= 0xC2 && first < 0xE0 ? 2U : first >= 0xE0 && first < 0xF0 ? 3U : 0U;
    for (size_t index = 1; index < size; ++index)
    {
        if ((at(place + index) & 0xC0U) != 0x80U)
            return 0;
    }
    return size;
}

bool StandsForNothing(char ch)
{
    const auto byte = static_cast<unsigned char>(ch);
    return (byte < 0x20 && ch != '\t') || byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

std::string HexOf(char ch)
{
    constexpr const char* digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(ch);
    return {digits[byte / 16], digits[byte % 16]};
}

} // namespace lytdlg
