// The characters that end a run of plain text, such as a token: each section of a description has its own set, and
// so has each statement that scans.
#pragma once

#include <array>
#include <cstddef>

class DelimiterSet
{
public:
    constexpr explicit DelimiterSet(const char* characters)
    {
        for (; *characters != '\0'; ++characters)
            Add(*characters);
    }

    constexpr void Add(char ch) { m_ends[Index(ch)] = true; }
    constexpr void AddAll() { m_ends.fill(true); }
    constexpr bool Contains(char ch) const { return ch != '\0' && m_ends[Index(ch)]; }
    // The first delimiter at or after `text`, or the end of the text.
    constexpr const char* FindIn(const char* text) const
    {
        while (!m_ends[Index(*text)])
            ++text;
        return text;
    }

private:
    static constexpr size_t Index(char ch) { return static_cast<unsigned char>(ch); }

    std::array<bool, 256> m_ends{true}; // the NUL ends every run, and so one look a character is enough
};
