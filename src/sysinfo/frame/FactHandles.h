// Owners of the handles through which facts of the machine are read.
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
