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
    // True when they are up, and belong to another thread than the caller's.
    static bool AreElsewhere() noexcept;

    // What else ends with the last run. It is called in the thread of the runs, or in another one after that thread has
    // ended in the middle of them.
    enum class End
    {
        Returned,
        ThreadDied
    };
    static inline void (*atEnd)(End end) noexcept = nullptr;

private:
    bool m_areAllowed;
};
