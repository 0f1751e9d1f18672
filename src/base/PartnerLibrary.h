// The one place that loads libraries: the partners beside the host, or that a description names.
#pragma once

#include <afxwin.h>

// A run of records or items that has not ended by then counts as ended, so that no library can hang its caller.
inline constexpr int lytLongestRun = 1'000'000;

// While it lives, the system shows no box on this thread for a file that is not a library or for a drive without
// a disk. What else the host has set stays in force, and its mode is back at the end.
class ClytErrorBoxesOff
{
public:
    ClytErrorBoxesOff() { ::SetThreadErrorMode(::GetThreadErrorMode() | SEM_FAILCRITICALERRORS, &hostMode); }
    ClytErrorBoxesOff(const ClytErrorBoxesOff&) = delete;
    ClytErrorBoxesOff& operator=(const ClytErrorBoxesOff&) = delete;
    ~ClytErrorBoxesOff() { ::SetThreadErrorMode(hostMode, nullptr); }

private:
    DWORD hostMode = 0;
};

// Libraries that a program contains and offers in place of files.
class ClytOwnLibraries
{
public:
    // Null for any other library. The handle is one that the platform's loader does not know.
    virtual HMODULE Load(const char* name) = 0;
    virtual bool Owns(HMODULE library) const = 0;
    // Null when the library has no function of that name.
    virtual FARPROC Find(HMODULE library, const char* function) = 0;

protected:
    ~ClytOwnLibraries() = default;
};

// The shipped library has none, and then looking for them costs a test of one pointer; a tool sets its own while it works.
inline ClytOwnLibraries* lytOwnLibraries = nullptr;

// Null when the library cannot be loaded, and for a name that is empty or longer than the platform takes. The system
// shows no message, for any file of that name.
[[nodiscard]] HMODULE lytLoadLibrary(const char* name);

// False for a library that somebody has unloaded since it was loaded: its functions are gone, too.
[[nodiscard]] bool lytIsLoaded(HMODULE library);

FARPROC lytFunctionAddress(HMODULE library, const char* name);
// The function under the type that the partner's header gives it; null when the library has none of that name.
template <class FUNCTION>
FUNCTION* lytFindFunction(HMODULE library, const char* name)
{
    return reinterpret_cast<FUNCTION*>(reinterpret_cast<void*>(lytFunctionAddress(library, name)));
}
