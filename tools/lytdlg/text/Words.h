// Words of a list, marks in a text, the name of a line, and bytes that are not text.
#pragma once

#include "base/ClytSpan.h"

#include <string>
#include <vector>

namespace lytdlg
{

std::string Joined(const std::vector<std::string>& words, const char* between = ", ");
// How often a mark is in a text.
size_t CountOf(const std::string& text, const std::string& mark);
// The text without the blanks and tabs around it.
std::string Trimmed(const std::string& text);
std::string LineText(const ClytSpan& place);
// How the lines of a text end, and another text with such ends in place of its line feeds.
std::string LineEndOf(const std::string& text);
std::string WithLineEnds(const std::string& text, const std::string& end);

// What is wrong with bytes that do not belong into a text in code page 1252: what to do.
inline constexpr const char* saveAsAnsi = "save the file in code page 1252, which editors call ANSI or Windows-1252";
// The same of a description or a language file.
inline constexpr const char* encodeAsAnsi =
    "save the file in code page 1252, which editors call ANSI or Windows-1252, or let `lytdlg texts FOLDER --encode` "
    "convert it";

// How many bytes of a UTF-8 sequence begin at a place; 0 when none does.
size_t SequenceLength(const std::string& text, size_t place);
// Whether a byte is not a character of the code page; a tab is one.
bool StandsForNothing(char ch);
std::string HexOf(char ch);

} // namespace lytdlg
