// Texts between the library's code page and the UTF-8 of scripts, terminals and files.
#pragma once

#include <string>

namespace commandline
{

std::string ToUtf8(const std::string& ansi);
std::string ToAnsi(const std::string& utf8);
// The text between quotes on one line: line feeds, tabs, quotes and backslashes are written with a backslash.
std::string Quoted(const std::string& text);
// Prints "name = value" on a line of its own, in UTF-8.
void PrintText(const std::string& name, const std::string& ansi);
void PrintNumber(const std::string& name, int value, const std::string& meaning = "");

} // namespace commandline
