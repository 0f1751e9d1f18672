// Cuts lines and the texts of values into tokens, each in one pass.
#pragma once

#include "base/DelimiterSet.h"
#include "dlgfile/ClytToken.h"

// Replaces the tokens by the tokens of the line. Null, or the quote that is not closed; the tokens before it are in the list
// then.
[[nodiscard]] const char* lytTokenize(const char* line, const DelimiterSet& delimiters, ClytTokenList& tokens);

// Replaces the tokens by the tokens of a value's text, where a round bracket keeps what it holds together. Brackets that are
// not closed raise 241.
void lytTokenizeGrouped(const char* text, const char* delimiters, ClytTokenList& tokens);
