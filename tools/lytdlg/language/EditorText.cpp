#include "lytdlg/language/EditorText.h"

#include "commandline/Text.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// A byte that is not UTF-8 counts as a letter.
std::string LetterAt(const std::string& utf8, size_t place)
{
    return utf8.substr(place, std::max<size_t>(1, commandline::LengthOfCharacter(utf8, place)));
}

// An editor counts a letter beyond the first plane as two.
size_t UnitsOf(const std::string& letter)
{
    return letter.size() > 3 ? 2 : 1;
}

std::string BytesOf(const std::string& utf8)
{
    std::string bytes;
    for (size_t place = 0; place < utf8.size();)
    {
        const std::string letter = LetterAt(utf8, place);
        const std::string byte = letter.size() == 1 ? letter : commandline::ToAnsi(letter);
        const bool isLost = letter.size() > 1 && commandline::ToUtf8(byte) != letter;
        bytes += isLost ? std::string(UnitsOf(letter), '?') : byte;
        place += letter.size();
    }
    return bytes;
}

// Where the letter with that unit begins.
size_t PlaceOfUnit(const std::string& utf8, size_t unit)
{
    size_t place = 0;
    for (size_t units = 0; units < unit && place < utf8.size();)
    {
        const std::string letter = LetterAt(utf8, place);
        units += UnitsOf(letter);
        place += letter.size();
    }
    return place;
}

} // namespace

TextRange RangeOf(const ClytSpan& place)
{
    const int line = std::max(0, place.line - 1);
    return {{line, place.column}, {line, place.column + place.length}};
}

EditorText::EditorText(const std::string& utf8) : m_bytes(BytesOf(utf8)), m_utf8(utf8) {}

void EditorText::Replace(const TextRange& range, const std::string& utf8)
{
    const size_t begin = OffsetOf(range.begin);
    const size_t end = std::max(begin, OffsetOf(range.end));
    const size_t place = PlaceOfUnit(m_utf8, begin);
    m_utf8.replace(place, PlaceOfUnit(m_utf8, end) - place, utf8);
    m_bytes.replace(begin, end - begin, BytesOf(utf8));
}

bool EditorText::IsWhole(const TextRange& range) const
{
    const size_t begin = OffsetOf(range.begin);
    const size_t end = OffsetOf(range.end);
    const size_t place = PlaceOfUnit(m_utf8, begin);
    return commandline::ToUtf8(m_bytes.substr(begin, end - begin)) ==
           m_utf8.substr(place, PlaceOfUnit(m_utf8, end) - place);
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
