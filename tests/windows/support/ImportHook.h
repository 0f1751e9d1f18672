// Puts a function of the test in place of one that a module imports, for its own lifetime.
#pragma once

#include <windows.h>

class ImportHook
{
public:
    // The module must import the function by this name; `own` has the same type.
    template <class Function>
    ImportHook(HMODULE module, const char* name, Function* own) : ImportHook(module, name, reinterpret_cast<void*>(own))
    {
    }
    ImportHook(HMODULE module, const char* name, void* own);
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;
    ~ImportHook();

private:
    void Put(void* function) const;

    void** m_place; // in the module's table of imports
    void* m_original;
};
