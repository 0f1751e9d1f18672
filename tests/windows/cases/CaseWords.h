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

// A letter with a number in braces is so many of it: "ab{3}" is "abbb".
inline void WriteOutRuns(std::string& text)
{
    for (size_t brace = text.find('{'); brace != std::string::npos; brace = text.find('{', brace + 1))
    {
        const size_t end = text.find_first_not_of("0123456789", brace + 1);
        if (brace == 0 || end == std::string::npos || end == brace + 1 || text[end] != '}')
            continue;
        const size_t count = std::stoul(text.substr(brace + 1));
        text.replace(brace - 1, end - brace + 2, count, text[brace - 1]);
    }
}

inline void Exchange(std::string& text, const std::string& words, const std::string& others)
{
    for (size_t place = text.find(words); place != std::string::npos; place = text.find(words, place + others.size()))
        text.replace(place, words.size(), others);
}
