// What facts of the machine are read through: handles with their owners, and functions that not every Windows has.
#pragma once

#include "base/ClytHandle.h"

struct ClytFileKind
{
    using Handle = HANDLE;
    static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
    static void Close(Handle file) noexcept { CloseHandle(file); }
};
using ClytFileHandle = ClytHandle<ClytFileKind>;

// A search for files.
struct ClytSearchKind
{
    using Handle = HANDLE;
    static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
    static void Close(Handle search) noexcept { FindClose(search); }
};
using ClytSearchHandle = ClytHandle<ClytSearchKind>;

// A key of the registry.
struct ClytKeyKind
{
    using Handle = HKEY;
    static Handle None() noexcept { return nullptr; }
    static void Close(Handle key) noexcept { RegCloseKey(key); }
};
using ClytKeyHandle = ClytHandle<ClytKeyKind>;

// A function of a system library; null when the library is not loaded or has no such function. `Function` is the
// function's own type.
template <class Function>
Function* FindSystemFunction(const char* module, const char* name)
{
    const HMODULE library = GetModuleHandleA(module);
    if (library == nullptr)
        return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}
