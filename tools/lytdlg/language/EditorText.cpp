#include "lytdlg/language/EditorText.h"

#include "commandline/Text.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// The bytes of a text in UTF-8, and for each whether it is the substitute of a letter that the code page lacks.
struct ReadLetters
{
    std::string bytes;
    std::string lost;
};

ReadLetters LettersOf(const std::string& utf8)
{
    ReadLetters read;
    for (size_t place = 0, length = 0; place < utf8.size(); place += length)
    {
        length = std::max<size_t>(1, commandline::LengthOfCharacter(utf8, place));
        const std::string letter = utf8.substr(place, length);
        const std::string byte = length == 1 ? letter : commandline::ToAnsi(letter);
        const bool isLost = length > 1 && commandline::ToUtf8(byte) != letter;
        // An editor counts a letter beyond the first plane as two.
        const size_t units = length > 3 ? 2 : 1;
        read.bytes += isLost ? std::string(units, '?') : byte;
        read.lost += std::string(isLost ? units : 1, isLost ? '1' : '0');
    }
    return read;
}

} // namespace

TextRange RangeOf(const ClytSpan& place)
{
    const int line = std::max(0, place.line - 1);
    return {{line, place.column}, {line, place.column + place.length}};
}

EditorText::EditorText(const std::string& utf8)
{
    ReadLetters read = LettersOf(utf8);
    m_bytes = std::move(read.bytes);
    m_lost = std::move(read.lost);
}

void EditorText::Replace(const TextRange& range, const std::string& utf8)
{
    const size_t begin = OffsetOf(range.begin);
    const size_t length = std::max(begin, OffsetOf(range.end)) - begin;
    const ReadLetters read = LettersOf(utf8);
    m_bytes.replace(begin, length, read.bytes);
    m_lost.replace(begin, length, read.lost);
}

bool EditorText::IsWhole(const TextRange& range) const
{
    return m_lost.find('1', OffsetOf(range.begin)) >= OffsetOf(range.end);
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
