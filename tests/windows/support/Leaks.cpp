#include "support/Leaks.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <windows.h>

namespace
{

// Blocks and bytes of the runtime's heap, which is this process's for all its modules. The system's own heap is not
// looked at: a plain message box of the newer common controls costs 24 bytes there for good.
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

// Handles come in steps of four, and the lowest free one is given out next.
int KernelHandles()
{
    constexpr ULONG_PTR step = 4;
    constexpr ULONG_PTR last = 0x4000;
    int count = 0;
    for (ULONG_PTR value = step; value <= last; value += step)
    {
        DWORD flags = 0;
        count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE ? 1 : 0;
    }
    return count;
}

// The next slot to be given out: slots in use stand before it.
DWORD NextThreadSlot()
{
    const DWORD slot = TlsAlloc();
    TlsFree(slot);
    return slot;
}

DWORD NextFiberSlot()
{
    const DWORD slot = FlsAlloc(nullptr);
    FlsFree(slot);
    return slot;
}

// Classes stand in a table with the names of the process; the next one takes the lowest free place.
ATOM NextWindowClass()
{
    WNDCLASSA kind = {};
    kind.lpfnWndProc = DefWindowProcA;
    kind.lpszClassName = "a class of the leak test";
    const ATOM place = RegisterClassA(&kind);
    UnregisterClassA(kind.lpszClassName, nullptr);
    return place;
}

} // namespace

void ExpectNoGrowth(const std::function<void()>& once, int rounds)
{
    constexpr int warmUp = 20;
    for (int round = 0; round < warmUp; ++round)
        once();
    const int windows = ThreadWindows();
    const int objects = GraphicsObjects();
    const int handles = KernelHandles();
    const DWORD threadSlot = NextThreadSlot();
    const DWORD fiberSlot = NextFiberSlot();
    const ATOM windowClass = NextWindowClass();
    const Heap before = HeapInUse();
    for (int round = 0; round < rounds; ++round)
        once();
    const Heap after = HeapInUse();
    EXPECT_EQ(ThreadWindows(), windows);
    EXPECT_EQ(GraphicsObjects(), objects);
    EXPECT_EQ(KernelHandles(), handles);
    EXPECT_EQ(NextThreadSlot(), threadSlot);
    EXPECT_EQ(NextFiberSlot(), fiberSlot);
    EXPECT_EQ(NextWindowClass(), windowClass);
    // A block more or less is the state of the heap's caches; a leak would be one block a round at least.
    EXPECT_LT(after.blocks, before.blocks + static_cast<size_t>(rounds) / 2);
    EXPECT_LT(after.bytes, before.bytes + static_cast<size_t>(rounds) * 16);
}
