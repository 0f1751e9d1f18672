// Ends every window of the library that comes up on this thread: OK first, in the catalogue with its first entry, and Cancel
// if it stays.
#pragma once

#include <windows.h>

#include <set>
#include <string>

class Attendant
{
public:
    Attendant();
    Attendant(const Attendant&) = delete;
    Attendant& operator=(const Attendant&) = delete;
    ~Attendant();

    // The captions of the windows that were ended, and the texts of the messages.
    const std::string& Seen() const { return m_seen; }

private:
    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void End(HWND window);

    UINT_PTR m_timer;
    std::set<HWND> m_confirmed; // the dialogs on which OK was pressed
    std::string m_seen;
};
