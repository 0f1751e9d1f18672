// Calls a function of a library as the host of macros does. Texts are copied to bytes in the ANSI code page, one after the
// other in a block that lives for the call; a text that was never set is a null pointer. After the call the bytes are
// copied back, each text with the length that it had.
#pragma once

#include "Module.h"

#include <map>
#include <memory>
#include <windows.h>

namespace macros
{

// What is at a parameter: a variable of the macro, or a temporary of the same shape.
using Arguments = std::vector<std::shared_ptr<Variable>>;

class Libraries
{
public:
    // The texts of the arguments are changed as the function changes them. Raises MacroError when the library cannot be
    // loaded by the name that the declaration has, has no such function, or writes beyond the texts.
    Value Call(const Declaration& declaration, const Arguments& arguments);
    // Of the last call.
    long long LastError() const { return m_lastError; }

private:
    FARPROC Find(const Declaration& declaration);

    std::map<std::string, HMODULE> m_libraries;
    long long m_lastError = 0;
};

} // namespace macros
