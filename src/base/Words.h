// How words of the description language compare, and how numbers are read from any text, decided here for every reader,
// rule, control and probe.
#pragma once

#include <afx.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

// Keywords, state words and option words compare byte for byte.
inline bool lytSameWord(const CString& text, const char* word)
{
    return text == word;
}

// A number at the start of the text; 0 for a word, and the nearest 32-bit number when it is out of range. `rest`, when it
// is asked for, is where the number ends: the start of the text for a word.
inline int lytNumberOf(const char* text, const char** rest = nullptr)
{
    char* end = nullptr;
    const long number = std::strtol(text, &end, 10);
    if (rest != nullptr)
        *rest = end;
    return static_cast<int>(std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// White space as the C locale has it, in every locale of the host.
constexpr bool lytIsSpace(char ch)
{
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}
