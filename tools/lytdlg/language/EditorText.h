// A text as an editor has it, and in the code page: one byte of the code page for each unit of UTF-16, so that a column
// is the same in both.
#pragma once

#include "base/ClytSpan.h"

#include <string>

namespace lytdlg
{

// A place of a text as editors count: both from 0.
struct TextPosition
{
    int line = 0;
    int character = 0;

    auto operator<=>(const TextPosition&) const = default; // NOLINT(modernize-use-nullptr): the compiler writes a 0
};

struct TextRange
{
    TextPosition begin;
    TextPosition end;

    bool operator==(const TextRange&) const = default;
};

TextRange RangeOf(const ClytSpan& place);

class EditorText
{
public:
    explicit EditorText(const std::string& utf8);

    // In the code page. A letter that it lacks is a question mark for each of its units.
    const std::string& Bytes() const { return m_bytes; }
    const std::string& Utf8() const { return m_utf8; }
    // Puts a text in the place of a range. What is outside of the text counts as its nearest place.
    void Replace(const TextRange& range, const std::string& utf8);
    // Whether the code page has all letters of the range.
    bool IsWhole(const TextRange& range) const;

private:
    size_t OffsetOf(const TextPosition& position) const;

    std::string m_bytes;
    std::string m_utf8;
};

// The place of a text at which an offset is, and the whole of it.
TextPosition PositionAt(const std::string& bytes, size_t offset);
TextRange WholeOf(const std::string& bytes);

} // namespace lytdlg
