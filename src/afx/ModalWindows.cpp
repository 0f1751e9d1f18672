#include "ModalWindows.h"

#include <atomic>

namespace
{

std::atomic<DWORD> modalThread = 0; // 0 for none
int runs = 0;                       // of that thread, one inside the other

bool ClaimForThisThread() noexcept
{
    DWORD holder = 0;
    const DWORD self = ::GetCurrentThreadId();
    return modalThread.compare_exchange_strong(holder, self) || holder == self;
}

} // namespace

ModalWindows::ModalWindows() noexcept : m_areAllowed(ClaimForThisThread())
{
    if (m_areAllowed)
        ++runs;
}

ModalWindows::~ModalWindows()
{
    if (m_areAllowed && --runs == 0)
        modalThread = 0;
}

bool ModalWindows::AreElsewhere() noexcept
{
    const DWORD holder = modalThread;
    return holder != 0 && holder != ::GetCurrentThreadId();
}
