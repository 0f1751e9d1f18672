// Texts of a case, taken apart.
#pragma once

#include <string>
#include <vector>

// The pieces between the separators; one empty piece for an empty text.
inline std::vector<std::string> Split(const std::string& text, const std::string& separator)
{
    std::vector<std::string> pieces;
    size_t start = 0;
    for (size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, start))
    {
        pieces.push_back(text.substr(start, end - start));
        start = end + separator.size();
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

// The first word of a text; the rest stays.
inline std::string TakeWord(std::string& text)
{
    const size_t end = text.find(' ');
    const std::string word = text.substr(0, end);
    text = end == std::string::npos ? "" : text.substr(end + 1);
    return word;
}

inline void Exchange(std::string& text, const std::string& words, const std::string& others)
{
    for (size_t place = text.find(words); place != std::string::npos; place = text.find(words, place + others.size()))
        text.replace(place, words.size(), others);
}
