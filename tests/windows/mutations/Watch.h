// Tells which case ends the process: one that crashes, or one that does not come back.
#pragma once

#include <windows.h>

#include <atomic>

class Watch
{
public:
    Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch();

    // A case begins.
    void Begin(unsigned number);

private:
    static DWORD WINAPI Run(void* watch);
    static LONG WINAPI TellCrash(EXCEPTION_POINTERS* crash);

    static std::atomic<unsigned> m_current;
    std::atomic<ULONGLONG> m_began;
    HANDLE m_end;
    HANDLE m_thread;
};
