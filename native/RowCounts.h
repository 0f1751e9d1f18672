// How many rows each of some neighbours takes, kept so that a sum over the first of them, a change, and the search for a
// row each cost the logarithm of their number.
#pragma once

#include <cstddef>
#include <vector>

namespace platform
{

class RowCounts
{
public:
    // A further neighbour after the last, which takes one row.
    void Append();
    // Adds to what a neighbour takes; a difference below zero wraps around, and so takes rows away.
    void Add(size_t index, size_t difference);
    size_t Total() const { return m_total; }
    // The rows of the neighbours before this one.
    size_t Before(size_t index) const;
    // The neighbour that a row falls to, which then counts from that one's first. The row is below the total.
    size_t Find(size_t& row) const;

private:
    // Each sum covers as many neighbours, up to its own, as its number from 1 has in its lowest bit.
    std::vector<size_t> m_sums;
    size_t m_total = 0;
};

} // namespace platform
