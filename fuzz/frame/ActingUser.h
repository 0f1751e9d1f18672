// A user who acts on whatever window is in front, while a call under test shows its windows.
//
// Acts are words divided by blanks: a letter, a character that says whom or what, and for some a text.
//
//     cN, dN    click, double-click a child of the window; `cN,Y` does so at a place from its top
//     fN        move the focus to a child
//     pN        press a child without the mouse
//     sN,I      choose an item of a list
//     bN        press the button of that number; lN,I chooses an item of the list of that number
//     tN,TEXT   replace a field's text
//     kK        a key for the window with the focus: t r e s b, or an arrow u d l r as U D L R, h and n for home and end
//     wC        type a character
//     aC        an access key
//     o, x      OK, Cancel
//
// Children count from the character 0. Message boxes are closed as they come, without an act.
#pragma once

#include <windows.h>

#include <set>
#include <sstream>

class ActingUser
{
public:
    explicit ActingUser(const std::string& acts);
    ActingUser(const ActingUser&) = delete;
    ActingUser& operator=(const ActingUser&) = delete;
    ~ActingUser();

private:
    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Act();
    // OK for each window once; then nothing more, and what is still open is cancelled for want of messages.
    void Finish(HWND window);

    std::istringstream m_acts;
    std::set<HWND> m_finished;
    UINT_PTR m_timer;
};
