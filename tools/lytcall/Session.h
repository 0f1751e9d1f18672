// One run of calls: the library, told where things are, and what the command line asks for.
#pragma once

#include "lytcall/LytLibrary.h"
#include "lytcall/ProgramForm.h"

#include <functional>
#include <string>
#include <vector>

namespace lytcall
{

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
