// A user who acts on the window in front, while a call under test shows its windows.
//
// Acts are words separated by blanks: a letter, a character that says whom or what, and for some a text.
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
//     X, q      press the Cancel button, where there is one; close the window by its frame
//
// Children count from the character 0. Message boxes are closed as they come, without an act, as many as an act may have.
#pragma once

#include <windows.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace robot
{

class ActingUser
{
public:
    // After the acts the user leaves each window that is still open: by these acts, one after the other, of which the last
    // must close it, with two messages at most.
    ActingUser(const std::string& acts, std::vector<std::string> leaving);
    ActingUser(const ActingUser&) = delete;
    ActingUser& operator=(const ActingUser&) = delete;
    ~ActingUser();

    // What a user would despair of; empty when there was nothing. All windows were ended then.
    const std::string& Despair() const { return m_despair; }
    // The texts of the messages, in order.
    const std::vector<std::string>& Messages() const { return m_messages; }

private:
    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Act();
    void Answer(HWND box);
    void Leave(HWND window);
    void EndAll();

    std::istringstream m_acts;
    std::vector<std::string> m_leaving;
    std::map<HWND, size_t> m_left; // how many of the leaving acts each window has seen
    std::vector<std::string> m_messages;
    std::string m_despair;
    HWND m_closing = nullptr; // the window that the last of the leaving acts is to close
    bool m_isClosingList = false;
    int m_idleTicks = 0;
    int m_rounds = 0; // of ending all windows
    UINT_PTR m_timer;
};

} // namespace robot
