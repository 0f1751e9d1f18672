// Locks of the class library.
#pragma once

#include <mutex>

class CCriticalSection
{
public:
    bool Lock()
    {
        m_mutex.lock();
        return true;
    }
    void Unlock() { m_mutex.unlock(); }

private:
    std::recursive_mutex m_mutex;
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
