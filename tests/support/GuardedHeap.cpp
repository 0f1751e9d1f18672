// A heap for checked builds: each block ends at a page that cannot be touched, and a released block cannot be touched
// either until many more were released after it. Reading or writing one byte too far, using a block after its release
// and releasing one twice end the program at once.
//
// A module that is linked with this file has its own such heap under `new` and `delete`.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <windows.h>

namespace
{

constexpr size_t pageSize = 4096;
constexpr size_t arenaPages = size_t{1} << 21;
// Longer blocks come from the process heap, and so does what exceeds the number of areas that the system can hold.
constexpr size_t longestBlock = 16;
constexpr size_t mostBlocks = 16000;
constexpr size_t alignment = 16;
constexpr int freshByte = 0xCD;
constexpr unsigned char slackByte = 0xFD;

[[noreturn]] void Trap()
{
    __builtin_trap();
}

size_t PagesOf(size_t size)
{
    return size == 0 ? 1 : (size + pageSize - 1) / pageSize;
}

// The first pages of released blocks, by length; a stack each.
class FreeBlocks
{
public:
    void Put(uint32_t page) { m_pages[m_count++] = page; }
    bool IsEmpty() const { return m_count == 0; }
    uint32_t Take() { return m_pages[--m_count]; }

private:
    std::array<uint32_t, 2 * mostBlocks> m_pages;
    size_t m_count;
};

class Lock
{
public:
    explicit Lock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock() { ReleaseSRWLockExclusive(&m_lock); }

private:
    SRWLOCK& m_lock;
};

// Zero-initialised, since blocks are wanted before any constructor runs.
struct GuardedHeap
{
    void* Allocate(size_t size);
    void Release(void* block);
    bool Owns(const void* block) const { return block >= arena && block < arena + arenaPages * pageSize; }

    // The first page of the block that a pointer leads to; a block begins in its first page.
    size_t PageOf(const void* block) const
    {
        return static_cast<size_t>(static_cast<const std::byte*>(block) - arena) / pageSize;
    }
    std::byte* EndOf(size_t page) const { return arena + (page + PagesOf(sizes[page] - 1)) * pageSize; }
    bool Reserve();
    size_t TakePages(size_t pages);
    void Quarantine(size_t page, size_t pages);

    SRWLOCK lock;
    std::byte* arena;
    uint32_t* sizes; // by first page: the size of a block in use plus 1
    size_t nextPage;
    size_t blocks; // in use or in quarantine
    std::array<FreeBlocks, longestBlock + 1> freeBlocks;
    std::array<uint32_t, mostBlocks / 4> quarantine; // a ring of first pages
    std::array<uint8_t, mostBlocks / 4> quarantinePages;
    size_t quarantined; // since the start
};

GuardedHeap heap;

bool GuardedHeap::Reserve()
{
    if (arena != nullptr)
        return true;
    sizes = static_cast<uint32_t*>(
        VirtualAlloc(nullptr, arenaPages * sizeof *sizes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (sizes != nullptr)
        arena = static_cast<std::byte*>(VirtualAlloc(nullptr, arenaPages * pageSize, MEM_RESERVE, PAGE_NOACCESS));
    return arena != nullptr;
}

// The page after a block is never given out.
size_t GuardedHeap::TakePages(size_t pages)
{
    if (!freeBlocks[pages].IsEmpty())
        return freeBlocks[pages].Take();
    const size_t page = nextPage;
    nextPage += pages + 1;
    return page;
}

void* GuardedHeap::Allocate(size_t size)
{
    const Lock guard(lock);
    const size_t pages = PagesOf(size);
    if (pages > longestBlock || blocks >= mostBlocks || nextPage + pages >= arenaPages || !Reserve())
        return HeapAlloc(GetProcessHeap(), 0, size != 0 ? size : 1);
    const size_t page = TakePages(pages);
    std::byte* start = arena + page * pageSize;
    if (VirtualAlloc(start, pages * pageSize, MEM_COMMIT, PAGE_READWRITE) == nullptr)
        return nullptr;
    ++blocks;
    sizes[page] = static_cast<uint32_t>(size) + 1;
    std::byte* end = start + pages * pageSize;
    std::byte* block = end - (size == 0 ? alignment : (size + alignment - 1) / alignment * alignment);
    std::memset(block, freshByte, size);
    std::memset(block + size, slackByte, static_cast<size_t>(end - block) - size);
    return block;
}

void GuardedHeap::Release(void* block)
{
    if (block == nullptr)
        return;
    if (!Owns(block))
    {
        HeapFree(GetProcessHeap(), 0, block);
        return;
    }
    const Lock guard(lock);
    const size_t page = PageOf(block);
    if (sizes[page] == 0)
        Trap();
    const size_t size = sizes[page] - 1;
    const size_t pages = PagesOf(size);
    for (const std::byte* slack = static_cast<std::byte*>(block) + size; slack < EndOf(page); ++slack)
    {
        if (static_cast<unsigned char>(*slack) != slackByte)
            Trap();
    }
    sizes[page] = 0;
    VirtualFree(arena + page * pageSize, pages * pageSize, MEM_DECOMMIT);
    Quarantine(page, pages);
}

void GuardedHeap::Quarantine(size_t page, size_t pages)
{
    const size_t place = quarantined++ % quarantine.size();
    if (quarantined > quarantine.size())
    {
        freeBlocks[quarantinePages[place]].Put(quarantine[place]);
        --blocks;
    }
    quarantine[place] = static_cast<uint32_t>(page);
    quarantinePages[place] = static_cast<uint8_t>(pages);
}

} // namespace

void* operator new(size_t size)
{
    void* block = heap.Allocate(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    return heap.Allocate(size);
}

void operator delete(void* block) noexcept
{
    heap.Release(block);
}

void operator delete(void* block, size_t) noexcept
{
    heap.Release(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
    heap.Release(block);
}
