#include "system/ModalWindows.h"

#include <atomic>
#include <utility>

namespace
{

std::atomic<DWORD> modalThread = 0; // 0 for none
HANDLE openThread = nullptr;        // that thread: while it is open, no other thread gets its number
int runs = 0;                       // of that thread, one inside the other

void Release(ModalWindows::End end) noexcept
{
    if (ModalWindows::atEnd != nullptr)
        ModalWindows::atEnd(end);
    const HANDLE thread = std::exchange(openThread, nullptr);
    modalThread = 0;
    ::CloseHandle(thread);
}

// True when the holder ended in the middle of its runs. They never return, and their windows are gone.
bool TakeFromTheDead(DWORD holder) noexcept
{
    if (::WaitForSingleObject(openThread, 0) != WAIT_OBJECT_0 ||
        !modalThread.compare_exchange_strong(holder, ::GetCurrentThreadId()))
        return false;
    runs = 0;
    Release(ModalWindows::End::ThreadDied);
    return true;
}

bool ClaimForThisThread() noexcept
{
    DWORD holder = 0;
    return !ModalWindows::AreElsewhere() &&
           (modalThread.compare_exchange_strong(holder, ::GetCurrentThreadId()) || holder == ::GetCurrentThreadId());
}

} // namespace

ModalWindows::ModalWindows() noexcept : m_areAllowed(ClaimForThisThread())
{
    if (m_areAllowed && ++runs == 1)
        openThread = ::OpenThread(SYNCHRONIZE, FALSE, ::GetCurrentThreadId());
}

ModalWindows::~ModalWindows()
{
    if (m_areAllowed && --runs == 0)
        Release(ModalWindows::End::Returned);
}

bool ModalWindows::AreElsewhere() noexcept
{
    const DWORD holder = modalThread;
    return holder != 0 && holder != ::GetCurrentThreadId() && !TakeFromTheDead(holder);
}
