#include "support/Holdings.h"

#include <algorithm>

namespace
{

constexpr size_t smallestBlock = 16;

// In the order of Holdings::Kind.
const char* const names[] = {
    "windows",          "menus",           "cursors and icons", "graphics objects",         "kernel handles",
    "next thread slot", "next fiber slot", "next window class", "activation contexts held", "activation contexts on"};

std::string Change(const std::string& kind, size_t before, size_t after)
{
    return kind + ": " + std::to_string(before) + " before, " + std::to_string(after) + " after\n";
}

} // namespace

std::string Holdings::GrowthSince(const Holdings& before, int rounds) const
{
    std::string growth;
    for (size_t kind = 0; kind < kinds; ++kind)
    {
        if (m_counted[kind] != before.m_counted[kind])
            growth += Change(names[kind], before.m_counted[kind], m_counted[kind]);
    }
    constexpr int many = 100;
    const auto limit = static_cast<size_t>(std::min(rounds, many));
    if (m_heapBlocks > before.m_heapBlocks + limit / 2)
        growth += Change("blocks of the heap", before.m_heapBlocks, m_heapBlocks);
    if (m_heapBytes > before.m_heapBytes + limit * smallestBlock)
        growth += Change("bytes of the heap", before.m_heapBytes, m_heapBytes);
    return growth;
}

std::string Holdings::Text() const
{
    std::string text;
    for (size_t kind = 0; kind < kinds; ++kind)
        text += names[kind] + (" " + std::to_string(m_counted[kind])) + ", ";
    return text + "heap " + std::to_string(m_heapBytes) + " bytes in " + std::to_string(m_heapBlocks) + " blocks";
}
