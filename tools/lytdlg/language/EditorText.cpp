#include "lytdlg/language/EditorText.h"

#include "commandline/Text.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

// The text is valid, or else a byte counts as one letter.
std::u16string UnitsOf(const std::string& utf8)
{
    std::u16string units;
    for (size_t place = 0; place < utf8.size();)
    {
        const size_t length = std::max<size_t>(1, commandline::LengthOfCharacter(utf8, place));
        const auto first = static_cast<unsigned char>(utf8[place]);
        char32_t letter = length == 1 ? first : first & (0xFFU >> (length + 1));
        for (size_t next = 1; next < length; ++next)
            letter = letter << 6U | (static_cast<unsigned char>(utf8[place + next]) & 0x3FU);
        if (letter >= 0x10000)
        {
            units += static_cast<char16_t>(0xD800U + ((letter - 0x10000U) >> 10U));
            letter = 0xDC00U + ((letter - 0x10000U) & 0x3FFU);
        }
        units += static_cast<char16_t>(letter);
        place += length;
    }
    return units;
}

const std::map<char16_t, char>& CodePage()
{
    static const std::map<char16_t, char> page = []
    {
        std::map<char16_t, char> made;
        for (unsigned byte = 1; byte < 256; ++byte)
            made.emplace(UnitsOf(commandline::ToUtf8(std::string(1, static_cast<char>(byte)))).front(),
                         static_cast<char>(byte));
        made.emplace(u'\0', '\0');
        return made;
    }();
    return page;
}

char ByteOf(char16_t unit)
{
    if (unit < 0x80)
        return static_cast<char>(unit);
    const auto known = CodePage().find(unit);
    return known != CodePage().end() ? known->second : '?';
}

std::string CodePageBytesOf(const std::u16string& units)
{
    std::string bytes(units.size(), '\0');
    std::ranges::transform(units, bytes.begin(), ByteOf);
    return bytes;
}

} // namespace

TextRange RangeOf(const ClytSpan& place)
{
    const int line = std::max(0, place.line - 1);
    return {{line, place.column}, {line, place.column + place.length}};
}

EditorText::EditorText(const std::string& utf8) : m_units(UnitsOf(utf8)), m_bytes(CodePageBytesOf(m_units)) {}

void EditorText::Replace(const TextRange& range, const std::string& utf8)
{
    const size_t begin = OffsetOf(range.begin);
    const size_t length = std::max(begin, OffsetOf(range.end)) - begin;
    const std::u16string units = UnitsOf(utf8);
    m_units.replace(begin, length, units);
    m_bytes.replace(begin, length, CodePageBytesOf(units));
}

bool EditorText::IsWhole(const TextRange& range) const
{
    const size_t end = OffsetOf(range.end);
    for (size_t place = OffsetOf(range.begin); place < end; ++place)
    {
        if (m_bytes[place] == '?' && m_units[place] != u'?')
            return false;
    }
    return true;
}

size_t EditorText::OffsetOf(const TextPosition& position) const
{
    size_t start = 0;
    for (int line = 0; line < position.line && start < m_bytes.size(); ++line)
        start = std::min(m_bytes.find('\n', start), m_bytes.size() - 1) + 1;
    size_t end = std::min(m_bytes.find('\n', start), m_bytes.size());
    if (end > start && end < m_bytes.size() && m_bytes[end - 1] == '\r')
        --end;
    return std::min(start + static_cast<size_t>(std::max(0, position.character)), end);
}

TextPosition PositionAt(const std::string& bytes, size_t offset)
{
    const auto begin = bytes.begin();
    const auto place = begin + static_cast<ptrdiff_t>(std::min(offset, bytes.size()));
    const size_t feed = offset == 0 ? std::string::npos : bytes.rfind('\n', offset - 1);
    const size_t start = feed != std::string::npos ? feed + 1 : 0;
    return {static_cast<int>(std::count(begin, place, '\n')),
            static_cast<int>(place - begin) - static_cast<int>(start)};
}

TextRange WholeOf(const std::string& bytes)
{
    return {{0, 0}, PositionAt(bytes, bytes.size())};
}

} // namespace lytdlg
