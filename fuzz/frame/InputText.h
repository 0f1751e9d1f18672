// Takes an input apart: its lines one after the other, and what is left.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

class InputText
{
public:
    explicit InputText(const std::string& input) : m_input(input) {}

    // The next line, without its end; empty after the last.
    std::string Line()
    {
        const size_t feed = std::min(m_input.find('\n', m_place), m_input.size());
        std::string line = m_input.substr(m_place, feed - m_place);
        m_place = std::min(feed + 1, m_input.size());
        return line;
    }
    // The number that the next line begins with, within the limits.
    int Number(int lowest = std::numeric_limits<int>::min(), int highest = std::numeric_limits<int>::max())
    {
        return static_cast<int>(std::clamp<long long>(LongNumber(), lowest, highest));
    }
    long long LongNumber() { return std::strtoll(Line().c_str(), nullptr, 0); }
    bool IsAtEnd() const { return m_place == m_input.size(); }
    // What comes after the lines that were taken.
    std::string Rest() const { return m_input.substr(m_place); }

private:
    const std::string& m_input;
    size_t m_place = 0;
};
