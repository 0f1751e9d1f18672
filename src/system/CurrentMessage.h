// The message that is being handled: a handler passes it on unchanged.
#pragma once

#include <windows.h>

// In force while the object lives. A message sent meanwhile takes its place and then restores it.
class CurrentMessage
{
public:
    explicit CurrentMessage(const MSG& message) : m_previous(m_current) { m_current = &message; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;
    ~CurrentMessage() { m_current = m_previous; }

    // Only while a message is being handled.
    static const MSG& Get() { return *m_current; }

private:
    static inline const MSG* m_current = nullptr;

    const MSG* m_previous; // further down the stack
};
