// What the page about descriptions says of the words of the language. It is part of the program.
#pragma once

#include "lytdlg/language/NamedWord.h"

namespace lytdlg
{

// In Markdown, in UTF-8: of a section's word the beginning of its chapter, of any other word the lines that have it. Empty for a
// word that the language does not have.
std::string HelpOn(const NamedWord& word, Section section);

} // namespace lytdlg
