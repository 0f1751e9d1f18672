// Memory that runs out. A program that links this has the allocations of all its C++ code under its control.
#pragma once

#include <new>

// While it lives, one allocation fails: the one after so many others.
class FailingAllocation
{
public:
    explicit FailingAllocation(int allocationsBefore);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    static bool HasFailed();
};

// Acts again and again, each time with a later allocation failing, until none fails. Gives the number of failures.
template <class ACT>
int FailEachAllocation(ACT act)
{
    for (int before = 0;; ++before)
    {
        const FailingAllocation failing(before);
        try
        {
            act();
        }
        catch (const std::bad_alloc&)
        {
        }
        if (!FailingAllocation::HasFailed())
            return before;
    }
}
