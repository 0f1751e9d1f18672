// What this process holds of the platform and of its heap at one moment: what was done in between two such moments, and
// is over, must not have left anything.
#pragma once

#include <array>
#include <cstddef>
#include <string>

class Holdings
{
public:
    // How often something is done that must leave nothing: a hundred times, and over real windows ten times, since
    // they take minutes. LYT_LONG_RUN in the environment asks for the hundred there as well.
    static int Rounds();

    // Counts.
    Holdings();

    // A line for each kind of which there is more, or fewer, than before; empty without any. Of the heap only
    // growth counts, and only when half of the rounds in between can have lost a block, or fifty of many: some blocks
    // more or less are the state of caches.
    std::string GrowthSince(const Holdings& before, int rounds) const;
    // All figures in one line.
    std::string Text() const;

private:
    // What has to be the same. Of slots and classes the next one counts that would be given out.
    enum Kind
    {
        windows,
        menus,
        icons, // and cursors
        graphicsObjects,
        kernelHandles,
        threadSlots,
        fiberSlots,
        windowClasses,
        contextsHeld, // activation contexts, each as often as it is held
        contextsOn,
        kinds
    };

    // No containers: they would be in the heap that is looked at. What a platform cannot tell stays 0.
    std::array<size_t, kinds> m_counted = {};
    size_t m_heapBytes = 0;
    size_t m_heapBlocks = 0;
};
