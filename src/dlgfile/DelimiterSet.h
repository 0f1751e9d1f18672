// The characters that end a token; each section of a description has a set of its own.
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

    constexpr void Add(char ch) { m_contains[Index(ch)] = true; }
    constexpr bool Contains(char ch) const { return m_contains[Index(ch)]; }
    // The first delimiter at or after `text`, or the end of the text.
    constexpr const char* FindIn(const char* text) const
    {
        while (*text != '\0' && !Contains(*text))
            ++text;
        return text;
    }

private:
    static constexpr size_t Index(char ch) { return static_cast<unsigned char>(ch); }

    std::array<bool, 256> m_contains{};
};
