// Random choices that are the same for the same number on every machine.
#pragma once

#include <cstddef>
#include <iterator>
#include <random>

class Dice
{
public:
    explicit Dice(unsigned number) : m_engine(number) {}

    // The engine's numbers are the same everywhere; the numbers of the distributions are not.
    size_t Below(size_t end) { return m_engine() % end; }
    bool Is(size_t oneIn) { return Below(oneIn) == 0; }
    template <class LIST>
    const auto& Of(const LIST& list)
    {
        return *std::next(std::begin(list), static_cast<std::ptrdiff_t>(Below(std::size(list))));
    }

private:
    std::mt19937 m_engine;
};
