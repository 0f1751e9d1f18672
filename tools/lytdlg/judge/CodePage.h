// Bytes that do not belong into a text in code page 1252.
#pragma once

#include <string>

namespace lytdlg
{

// The way out.
inline constexpr const char* saveAsAnsi = "save the file in code page 1252, which editors call ANSI or Windows-1252";

// How many bytes of a UTF-8 sequence begin at a place; 0 when none does.
size_t SequenceLength(const std::string& text, size_t place);
// Whether a byte is no character of the code page; a tab is one.
bool StandsForNothing(char ch);
std::string HexOf(char ch);

} // namespace lytdlg
