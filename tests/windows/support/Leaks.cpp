#include "support/Leaks.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <windows.h>

namespace
{

// Blocks and bytes of the runtime's heap, which is this process's for all its modules.
struct Heap
{
    size_t bytes = 0;
    size_t blocks = 0;
};

Heap HeapInUse()
{
    Heap heap;
    PROCESS_HEAP_ENTRY entry{};
    HANDLE handle = reinterpret_cast<HANDLE>(_get_heap_handle());
    HeapLock(handle);
    while (HeapWalk(handle, &entry) != FALSE)
    {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) == 0)
            continue;
        heap.bytes += entry.cbData;
        ++heap.blocks;
    }
    HeapUnlock(handle);
    return heap;
}

int ThreadWindows()
{
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND, LPARAM total) -> BOOL
        {
            ++*reinterpret_cast<int*>(total);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

// Entries in use of the table that the process shares with the graphics system; its place is fixed on this platform.
int GraphicsObjects()
{
    struct Entry
    {
        ULONG64 object;
        ULONG owner;
        WORD unique;
        BYTE type;
        BYTE flags;
        ULONG64 user;
    };
    constexpr size_t tableInEnvironment = 0xF8;
    constexpr int tableSize = 16384;
    const BYTE* environment = nullptr;
    asm("movq %%gs:0x60,%0" : "=r"(environment));
    const auto* table = *reinterpret_cast<const Entry* const*>(environment + tableInEnvironment);
    int count = 0;
    for (int index = 0; index < tableSize; ++index)
        count += table[index].unique != 0 && table[index].type != 0 ? 1 : 0;
    return count;
}

} // namespace

void ExpectNoGrowth(const std::function<void()>& once, int rounds)
{
    constexpr int warmUp = 20;
    for (int round = 0; round < warmUp; ++round)
        once();
    const int windows = ThreadWindows();
    const int objects = GraphicsObjects();
    const Heap before = HeapInUse();
    for (int round = 0; round < rounds; ++round)
        once();
    const Heap after = HeapInUse();
    EXPECT_EQ(ThreadWindows(), windows);
    EXPECT_EQ(GraphicsObjects(), objects);
    // A block more or less is the state of the heap's caches; a leak would be one block a round at least.
    EXPECT_LT(after.blocks, before.blocks + static_cast<size_t>(rounds) / 2);
    EXPECT_LT(after.bytes, before.bytes + static_cast<size_t>(rounds) * 16);
}
