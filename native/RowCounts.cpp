#include "RowCounts.h"

#include <bit>

namespace platform
{

namespace
{

size_t LowestBit(size_t number)
{
    return number & (~number + 1);
}

} // namespace

void RowCounts::Append()
{
    const size_t number = m_sums.size() + 1;
    ++m_total;
    m_sums.push_back(m_total - Before(number - LowestBit(number)));
}

void RowCounts::Add(size_t index, size_t difference)
{
    m_total += difference;
    for (size_t number = index + 1; number <= m_sums.size(); number += LowestBit(number))
        m_sums[number - 1] += difference;
}

size_t RowCounts::Before(size_t index) const
{
    size_t rows = 0;
    for (size_t number = index; number != 0; number -= LowestBit(number))
        rows += m_sums[number - 1];
    return rows;
}

size_t RowCounts::Find(size_t& row) const
{
    size_t index = 0;
    for (size_t step = std::bit_floor(m_sums.size()); step != 0; step /= 2)
    {
        if (index + step > m_sums.size() || m_sums[index + step - 1] > row)
            continue;
        index += step;
        row -= m_sums[index - 1];
    }
    return index;
}

} // namespace platform
