// Many dialogs one after another take nothing with them.
#include "DialogFixture.h"

#include <commctrl.h>
#include <malloc.h>

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

class Leaks : public DialogFixture
{
protected:
    // Runs `once` until everything is warm, then `rounds` times more, and compares.
    static void ExpectNoGrowth(const std::function<void()>& once, int rounds = 100)
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
};

} // namespace

TEST_F(Leaks, HundredDialogsInARow)
{
    Description description;
    description.controls += "Text 10, 60, 50, 12, \"Label\", .L\nGroupBox 5, 5, 99, 99, \"Label\", .G\n"
                            "PushButton 200, 10, 60, 20, \"Label\", .Go\nListBox 10, 100, 60, 40, .List\n"
                            "ComboBox 90, 100, 60, 40, .Combo\nCheckBox 10, 80, 50, 12, \"Label\", .Box\n"
                            "OptionGroup .Group\nOptionButton 200, 40, 60, 12, \"Label\", .One\n";
    description.rules = "L/VISIBLE = Key(x)\nCombo/ACTIVE = Key(NOTNULL)\n";
    description.checks = "Key = NULL: Refused\n";
    Describe(description);
    ExpectNoGrowth(
        [&]
        {
            // A robot a round: its log would grow.
            robot::Robot user;
            user.On("The title", [](HWND) { robot::PressKey(VK_RETURN); });
            EXPECT_EQ(Show("a"), 2);
        });
}

TEST_F(Leaks, HundredDialogsThatFail)
{
    Description description;
    description.output = "$OUTPUT\n)x\n";
    Describe(description);
    ExpectNoGrowth(
        [&]
        {
            robot::Robot user;
            user.AnswerMessage();
            EXPECT_EQ(Show("a"), 0);
        });
}
