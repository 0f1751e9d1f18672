// Locks of the class library.
#pragma once

#include <windows.h>

class CCriticalSection
{
public:
    CCriticalSection() { ::InitializeCriticalSection(&m_sect); }
    CCriticalSection(const CCriticalSection&) = delete;
    CCriticalSection& operator=(const CCriticalSection&) = delete;
    ~CCriticalSection() { ::DeleteCriticalSection(&m_sect); }

    bool Lock()
    {
        ::EnterCriticalSection(&m_sect);
        return true;
    }
    void Unlock() { ::LeaveCriticalSection(&m_sect); }

private:
    CRITICAL_SECTION m_sect;
};

// Holds a critical section from construction with `initialLock` set until its own end.
class CSingleLock
{
public:
    explicit CSingleLock(CCriticalSection* section, bool initialLock = false) : m_section(section)
    {
        if (initialLock)
            Lock();
    }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;
    ~CSingleLock() { Unlock(); }

    bool Lock()
    {
        if (!m_locked)
            m_locked = m_section->Lock();
        return m_locked;
    }
    void Unlock()
    {
        if (m_locked)
            m_section->Unlock();
        m_locked = false;
    }

private:
    CCriticalSection* m_section; // outlives the lock
    bool m_locked = false;
};
