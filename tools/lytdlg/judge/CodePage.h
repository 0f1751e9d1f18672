// Bytes that do not belong into a text in code page 1252.
#pragma once

#include <string>

namespace lytdlg
{

// How many bytes of a UTF-8 sequence begin at a place; 0 when none does.
size_t SequenceLength(const std::string& text, size_t place);
// Whether a byte is no character of the code page; a tab is one.
bool StandsForNothing(char ch);
std::string HexOf(char ch);

} // namespace lytdlg
