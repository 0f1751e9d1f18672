// Functions of a loaded system library that not every Windows has.
#pragma once

#include <windows.h>

// Null when the library is not loaded or has no such function. `Function` is the function's own type.
template <class Function>
Function* FindSystemFunction(const char* module, const char* name)
{
    const HMODULE library = GetModuleHandleA(module);
    if (library == nullptr)
        return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}
