// One run of calls: lyt64.dll, loaded at run time and given its folders, and what the command line asks for.
#pragma once

#include <windows.h>

#include "commandline/CommandLine.h"
#include "lyt64.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lytcall
{

using commandline::Request;

// The call could not be made; the text tells why.
class CallError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Functions are found by the names that lyt64.h declares. The library stays loaded until the program ends: an exception
// that it raised is ended by its code, which may be wanted after the owner of this object is gone.
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

class Session
{
public:
    // Loads the library and initialises its environment. Raises CallError when it cannot.
    explicit Session(const Request& commandLine);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    const Request& Asked() const { return m_request; }
    const LytLibrary& Library() const { return m_library; }
    // A buffer as the options ask for it, with room beyond its stated size.
    std::vector<char> Buffer(const char* sizeOption) const;
    int SizeOf(const char* sizeOption) const;
    // Makes a call that opens windows, with the script and the picture that the options ask for.
    int WithWindows(const std::function<int()>& call) const;

private:
    std::string InitFolder();

    const Request& m_request;
    std::string m_ownFolder; // holds lyt.ini in another language; gone with the session
    LytLibrary m_library;
};

// The folder of this program, without a `\` at its end.
std::string ProgramFolder();

} // namespace lytcall
