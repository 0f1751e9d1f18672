#include "Watch.h"

#include "commandline/Program.h"

#include <cstdio>

namespace
{

constexpr unsigned limit = 180000; // milliseconds; a robot gives up earlier, when windows still listen
constexpr DWORD step = 1000;
constexpr UINT hungCode = 3;

} // namespace

std::atomic<unsigned> Watch::m_current = 0;

Watch::Watch()
    : m_began(GetTickCount64()),
      m_end(CreateEventA(nullptr, TRUE, FALSE, nullptr)),
      m_thread(CreateThread(nullptr, 0, Run, this, 0, nullptr))
{
    SetUnhandledExceptionFilter(TellCrash);
}

Watch::~Watch()
{
    SetEvent(m_end);
    WaitForSingleObject(m_thread, INFINITE);
    CloseHandle(m_thread);
    CloseHandle(m_end);
}

void Watch::Begin(unsigned number)
{
    m_current = number;
    m_began = GetTickCount64();
}

DWORD WINAPI Watch::Run(void* watch)
{
    auto* const self = static_cast<Watch*>(watch);
    while (WaitForSingleObject(self->m_end, step) == WAIT_TIMEOUT)
    {
        if (GetTickCount64() - self->m_began < commandline::Patience(limit))
            continue;
        std::printf("case %u does not come back\n", m_current.load());
        TerminateProcess(GetCurrentProcess(), hungCode);
    }
    return 0;
}

LONG WINAPI Watch::TellCrash(EXCEPTION_POINTERS* crash)
{
    std::printf("case %u crashes: exception %08lx at %p\n", m_current.load(), crash->ExceptionRecord->ExceptionCode,
                crash->ExceptionRecord->ExceptionAddress);
    return EXCEPTION_EXECUTE_HANDLER;
}
