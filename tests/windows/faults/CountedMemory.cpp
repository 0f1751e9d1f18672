#include "CountedMemory.h"

#include "native/FaultPlan.h"

#include <cstdlib>
#include <new>

namespace
{

// What is before each block: who took it, since anybody may give it back.
struct alignas(std::max_align_t) Head
{
    bool isCounted;
};

std::ptrdiff_t blocks = 0;

} // namespace

std::ptrdiff_t CountBlocks()
{
    return blocks;
}

void* operator new(std::size_t size)
{
    const bool isToFail = platform::IsToFail(platform::FaultKind::Allocation);
    void* const memory = isToFail ? nullptr : std::malloc(sizeof(Head) + size);
    if (memory == nullptr)
        throw std::bad_alloc();
    Head* const head = new (memory) Head{platform::IsProgramAtWork()};
    blocks += head->isCounted ? 1 : 0;
    return head + 1;
}

void operator delete(void* block) noexcept
{
    if (block == nullptr)
        return;
    Head* const head = static_cast<Head*>(block) - 1;
    blocks -= head->isCounted ? 1 : 0;
    std::free(head);
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    operator delete(block);
}
