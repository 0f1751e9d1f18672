// Which thread has dialogs and message boxes up.
#pragma once

#include <windows.h>

// On the stack around each modal run. All share the state of one form at a time, so that the runs of a process belong to
// one thread until the last of them has ended, or the thread itself.
class ModalWindows
{
public:
    ModalWindows() noexcept;
    ModalWindows(const ModalWindows&) = delete;
    ModalWindows& operator=(const ModalWindows&) = delete;
    ~ModalWindows();

    // False when another thread has windows up: this one must not show any.
    bool AreAllowed() const noexcept { return m_areAllowed; }
    // True when they are up, and belong to another thread than the one that asks.
    static bool AreElsewhere() noexcept;

private:
    bool m_areAllowed;
};
