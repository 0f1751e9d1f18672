// Owners of handles that must be closed.
#pragma once

#include <afxwin.h>

#include <utility>

// Keeps the thread's last error over a clean-up: the code around it may be about to ask for it.
class ClytKeptError
{
public:
    ClytKeptError() = default;
    ClytKeptError(const ClytKeptError&) = delete;
    ClytKeptError& operator=(const ClytKeptError&) = delete;
    ~ClytKeptError() { SetLastError(error); }

private:
    DWORD error = GetLastError();
};

// Owns one handle and closes it on every way out. KIND names the type, the value for no handle, and the way to
// close: `Handle`, `None()`, `Close(handle)`.
template <class KIND>
class ClytHandle
{
public:
    using Handle = typename KIND::Handle;

    ClytHandle() = default;
    explicit ClytHandle(Handle handle) noexcept : owned(handle) {}
    ClytHandle(const ClytHandle&) = delete;
    ClytHandle& operator=(const ClytHandle&) = delete;
    ClytHandle(ClytHandle&& other) noexcept : owned(other.Release()) {}
    ClytHandle& operator=(ClytHandle&& other) noexcept
    {
        Reset(other.Release());
        return *this;
    }
    ~ClytHandle() { Reset(); }

    bool IsOpen() const noexcept { return owned != KIND::None(); }
    Handle Get() const noexcept { return owned; }
    // Passes the handle to the caller, who closes it.
    [[nodiscard]] Handle Release() noexcept { return std::exchange(owned, KIND::None()); }
    // Closes the handle and takes over another.
    void Reset(Handle handle = KIND::None()) noexcept
    {
        const Handle old = std::exchange(owned, handle);
        if (old == KIND::None())
            return;
        const ClytKeptError kept;
        KIND::Close(old);
    }

private:
    Handle owned = KIND::None();
};

// A loaded library.
struct ClytModuleKind
{
    using Handle = HMODULE;
    static Handle None() noexcept { return nullptr; }
    static void Close(Handle module) noexcept { FreeLibrary(module); }
};
using ClytModuleHandle = ClytHandle<ClytModuleKind>;
