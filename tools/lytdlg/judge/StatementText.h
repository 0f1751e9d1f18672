// What is wrong with the form of a statement, in words, and the forms that its section has.
#pragma once

#include "lytdlg/judge/LineTokens.h"

namespace lytdlg
{

// The column is where the reader gave up: a word, or the end of the line.
std::string WhatIsWrong(const std::string& line, Section section, int column);
std::string FormsOf(Section section);

} // namespace lytdlg
