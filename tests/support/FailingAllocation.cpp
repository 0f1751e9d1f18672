#include "support/FailingAllocation.h"

#include <cstddef>

namespace
{

constexpr int never = -1;

int allocationsLeft = never;
bool hasFailed = false;

} // namespace

// The linker puts the first in the place of `operator new` wherever that is called, and the second is what it was.
extern "C" void* AllocateOrFail(std::size_t size) __asm__("__wrap__Znwy");
extern "C" void* Allocate(std::size_t size) __asm__("__real__Znwy");

void* AllocateOrFail(std::size_t size)
{
    if (allocationsLeft == 0)
    {
        allocationsLeft = never;
        hasFailed = true;
        throw std::bad_alloc();
    }
    if (allocationsLeft > 0)
        --allocationsLeft;
    return Allocate(size);
}

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
