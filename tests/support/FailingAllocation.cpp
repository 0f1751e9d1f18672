#include "support/FailingAllocation.h"

#include <cstdlib>

namespace
{

constexpr int never = -1;

int allocationsLeft = never;
bool hasFailed = false;

void* Allocate(std::size_t size)
{
    if (allocationsLeft == 0)
    {
        allocationsLeft = never;
        hasFailed = true;
        throw std::bad_alloc();
    }
    if (allocationsLeft > 0)
        --allocationsLeft;
    void* memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

} // namespace

FailingAllocation::FailingAllocation(int allocationsBefore)
{
    hasFailed = false;
    allocationsLeft = allocationsBefore;
}

FailingAllocation::~FailingAllocation()
{
    allocationsLeft = never;
}

bool FailingAllocation::HasFailed()
{
    return hasFailed;
}

void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
