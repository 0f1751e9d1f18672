// The queue of the thread: what was posted comes first, then the quit message, then what the user typed, then timers. Time
// does not move while there is anything to do, and jumps to the next timer when there is nothing.
#pragma once

#include <windows.h>

namespace platform
{

// Takes the next message; false when nothing will ever come.
bool TakeMessage(MSG& message);
// True when only timers are left.
bool IsIdle();
// Takes one message out of turn, if it was posted to the window.
bool TakePosted(HWND window, UINT message);
// Posts the characters of a message of the keyboard.
void TranslateKey(const MSG& message);
void Dispatch(const MSG& message);
// Handles a message as a key of the dialog; false when it is not one, and is to be dispatched.
bool TakeDialogKey(HWND window, const MSG& message);

} // namespace platform
