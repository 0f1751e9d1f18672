// Texts between the library's code page and the UTF-8 of scripts, terminals and files.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace commandline
{

std::string ToUtf8(const std::string& ansi);
std::string ToAnsi(const std::string& utf8);
// A text that may be in either.
std::string AsUtf8(const std::string& text);
std::string AsAnsi(const std::string& text);
// The lines of a text, without their ends.
std::vector<std::string> LinesOf(const std::string& text);

// The length of the UTF-8 character that begins there; 0 when none does.
size_t LengthOfCharacter(const std::string& utf8, size_t place);
// A text from outside as it may be printed in a line: a line end is a blank, and any other control character but a tab, like
// a byte that is not UTF-8, is the replacement character.
std::string Printable(const std::string& utf8);
// The same of a text in the library's code page.
std::string Shown(const std::string& ansi);

// The text between quotes on one line: line feeds, tabs, quotes and backslashes are written with a backslash, and any other
// control character by its number, as \x1B.
std::string Quoted(const std::string& utf8);
// Reads such a text, whose first quote is at the place, and moves the place after its last one. Nothing without a last one.
std::optional<std::string> TakeQuoted(const std::string& line, size_t& place);
// Prints a line with texts from outside in it.
void PrintLine(const std::string& utf8);
// Prints "name = value" on a separate line, in UTF-8.
void PrintText(const std::string& name, const std::string& ansi);
void PrintNumber(const std::string& name, int value, const std::string& meaning = "");

// The text of a file, in UTF-8, whose first bytes are the mark of UTF-16 or UTF-8; any other as it is.
std::string FromMarkedUnicode(const std::string& bytes);

} // namespace commandline
