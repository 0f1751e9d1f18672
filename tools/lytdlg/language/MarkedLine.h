// A statement of a description with a mark in the place of one of its words.
#pragma once

#include "lytdlg/language/NamedWord.h"

namespace lytdlg
{

inline constexpr char theMark = '\x02';

// What the word under the mark names. The text is the word itself.
NamedWord WordUnderMark(const Description& description, const SourceLine& line, const std::string& marked,
                        const std::string& text);

} // namespace lytdlg
