// lyt64.dll, loaded at run time; its functions are found by the names that lyt64.h declares.
#pragma once

#include <windows.h>

#include "lyt64.h"

#include <stdexcept>
#include <string>

namespace lytcall
{

// The call could not be made; the text tells why.
class CallError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The library stays loaded until the program ends: an exception that it raised is ended by code of its own, and that
// may be wanted after the owner of this object is gone.
class LytLibrary
{
public:
    // Loads the library; raises CallError when it cannot.
    explicit LytLibrary(const std::string& fileName);
    LytLibrary(const LytLibrary&) = delete;
    LytLibrary& operator=(const LytLibrary&) = delete;

    // A function by its prototype and name; raises CallError when the library does not export it.
    template <class Function>
    Function* Find(const char* name) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(Address(name)));
    }

private:
    FARPROC Address(const char* name) const;

    std::string m_fileName;
    HMODULE m_module;
};

} // namespace lytcall
