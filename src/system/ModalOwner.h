// The owner of a modal run.
#pragma once

#include <windows.h>

// The owner comes out of a modal run enabled, or disabled, as it went in: not every platform looks when a dialog or a
// message box ends.
class ModalOwner
{
public:
    explicit ModalOwner(HWND owner) : m_owner(owner), m_wasEnabled(::IsWindowEnabled(owner)) {}
    ModalOwner(const ModalOwner&) = delete;
    ModalOwner& operator=(const ModalOwner&) = delete;
    ~ModalOwner()
    {
        if (m_owner != nullptr && ::IsWindowEnabled(m_owner) != m_wasEnabled)
            ::EnableWindow(m_owner, m_wasEnabled);
    }

    HWND Get() const { return m_owner; }

private:
    HWND m_owner;
    BOOL m_wasEnabled;
};
