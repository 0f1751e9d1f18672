// What the platform itself has no count of is found by looking at every handle that there can be.
#include "support/Holdings.h"

#include <cstdlib>

#include <malloc.h>
#include <windows.h>

namespace
{

// Calls an act for each block in use of a heap.
template <class Act>
void ForEachBlock(HANDLE heap, Act act)
{
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry) != FALSE)
    {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
            act(entry);
    }
    HeapUnlock(heap);
}

// What the platform keeps of this thread.
const BYTE* ThreadBlock()
{
    const BYTE* block = nullptr;
    asm("movq %%gs:0x30,%0" : "=r"(block));
    return block;
}

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM count)
{
    ++*reinterpret_cast<size_t*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count)
{
    EnumChildWindows(window, CountWindow, count);
    return CountWindow(window, count);
}

// The windows of this thread, and the windows of this process that only take messages.
size_t Windows()
{
    size_t count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWithChildren, reinterpret_cast<LPARAM>(&count));
    for (HWND window = nullptr; (window = FindWindowExA(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
    {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        count += process == GetCurrentProcessId() ? 1 : 0;
    }
    return count;
}

bool IsIcon(HICON icon)
{
    ICONINFO info = {};
    if (GetIconInfo(icon, &info) == FALSE)
        return false;
    for (HBITMAP bitmap : {info.hbmColor, info.hbmMask})
    {
        if (bitmap != nullptr)
            DeleteObject(bitmap);
    }
    return true;
}

// The handles of menus, cursors and icons are numbers in one small range; the upper half, which tells apart those that
// had the same place one after the other, may be left out.
struct UserObjects
{
    size_t menus = 0;
    size_t icons = 0; // and cursors

    UserObjects()
    {
        constexpr ULONG_PTR first = 0x20;
        constexpr ULONG_PTR end = 0xFFF0;
        constexpr ULONG_PTR step = 2;
        for (ULONG_PTR place = first; place < end; place += step)
        {
            menus += IsMenu(reinterpret_cast<HMENU>(place)) != FALSE ? 1 : 0;
            icons += IsIcon(reinterpret_cast<HICON>(place)) ? 1 : 0;
        }
    }
};

// Entries in use of the table that the process shares with the graphics system; its place is fixed on this platform.
size_t GraphicsObjects()
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
    constexpr size_t environmentInThread = 0x60;
    constexpr size_t tableInEnvironment = 0xF8;
    constexpr int tableSize = 16384;
    const auto* environment = *reinterpret_cast<const BYTE* const*>(ThreadBlock() + environmentInThread);
    const auto* table = *reinterpret_cast<const Entry* const*>(environment + tableInEnvironment);
    size_t count = 0;
    for (int index = 0; index < tableSize; ++index)
        count += table[index].unique != 0 && table[index].type != 0 ? 1 : 0;
    return count;
}

// Handles come in steps of four, and the lowest free one is given out next.
size_t KernelHandles()
{
    constexpr ULONG_PTR step = 4;
    constexpr ULONG_PTR last = 0x4000;
    size_t count = 0;
    for (ULONG_PTR value = step; value <= last; value += step)
    {
        DWORD flags = 0;
        count += GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != FALSE ? 1 : 0;
    }
    return count;
}

// The next slot to be given out: slots in use come before it.
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

// Classes are in a table with the names of the process; the next one takes the lowest free place.
ATOM NextWindowClass()
{
    WNDCLASSA kind = {};
    kind.lpfnWndProc = DefWindowProcA;
    kind.lpszClassName = "a class of the leak test";
    const ATOM place = RegisterClassA(&kind);
    UnregisterClassA(kind.lpszClassName, nullptr);
    return place;
}

// Activation contexts are blocks of the process's heap that begin with a mark of the platform and the number of those
// who hold them.
size_t ActivationContextsHeld()
{
    constexpr ULONG mark = 0xC07E3E11;
    size_t held = 0;
    ForEachBlock(GetProcessHeap(),
                 [&](const PROCESS_HEAP_ENTRY& block)
                 {
                     const auto* head = static_cast<const ULONG*>(block.lpData);
                     if (block.cbData > 2 * sizeof(ULONG) && head[0] == mark)
                         held += head[1];
                 });
    return held;
}

// The contexts that this thread has switched on are in a list.
size_t ActivationContextsOn()
{
    struct Frame
    {
        const Frame* previous;
    };
    struct Stack
    {
        const Frame* active;
    };
    constexpr size_t stackInThread = 0x2C8;
    const auto* stack = *reinterpret_cast<const Stack* const*>(ThreadBlock() + stackInThread);
    size_t count = 0;
    for (const Frame* frame = stack != nullptr ? stack->active : nullptr; frame != nullptr; frame = frame->previous)
        ++count;
    return count;
}

} // namespace

int Holdings::Rounds()
{
    return std::getenv("LYT_LONG_RUN") != nullptr ? 100 : 10;
}

Holdings::Holdings()
{
    const UserObjects objects;
    m_counted[windows] = Windows();
    m_counted[menus] = objects.menus;
    m_counted[icons] = objects.icons;
    m_counted[graphicsObjects] = GraphicsObjects();
    m_counted[kernelHandles] = KernelHandles();
    m_counted[threadSlots] = NextThreadSlot();
    m_counted[fiberSlots] = NextFiberSlot();
    m_counted[windowClasses] = NextWindowClass();
    m_counted[contextsHeld] = ActivationContextsHeld();
    m_counted[contextsOn] = ActivationContextsOn();
    // The runtime's heap, which is this process's for all its modules. Of the system's own heap nothing else is looked
    // at: a plain message box of the newer common controls costs 24 bytes there for good.
    ForEachBlock(reinterpret_cast<HANDLE>(_get_heap_handle()),
                 [this](const PROCESS_HEAP_ENTRY& block)
                 {
                     m_heapBytes += block.cbData;
                     ++m_heapBlocks;
                 });
}
