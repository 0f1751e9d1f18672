// What names a person or a machine by its shape alone: mail addresses, network addresses, security identifiers.
#pragma once

#include <cstddef>
#include <string>

namespace lytcall
{

// Bytes beyond ASCII belong to letters.
bool IsLetterOrDigit(char c);
// Letters, digits, and what else may be in the name of a machine or a user.
bool IsPartOfName(char c);

// The text at a place, as far as it has such a shape.
struct FoundShape
{
    const char* word = nullptr; // that replaces it; null for any other shape
    size_t length = 0;
};
// The text is in small letters, and no letter or digit is before the place.
FoundShape ShapeAt(const std::string& small, size_t place);

} // namespace lytcall
