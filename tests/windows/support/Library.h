// lyt64.dll as a caller sees it: loaded by name, its functions found by name.
#pragma once

#include <windows.h>

#include <string>

// The folder of the test program, without a separator at its end.
std::string ProgramFolder();

// The address of an exported function; the test fails when it is missing.
FARPROC Exported(const char* name);

// Calls an export with C linkage by its prototype: Call<decltype(lytGetCurrentDocName)>("lytGetCurrentDocName")(...).
template <class Function>
Function* Call(const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(Exported(name)));
}

// A buffer of a stated size with guard bytes after it.
class GuardedBuffer
{
public:
    explicit GuardedBuffer(int size, const char* text = "");

    char* Data() { return m_bytes.data(); }
    int Size() const { return m_size; }
    std::string Text() const { return m_bytes.substr(0, m_bytes.find('\0')); }
    // The byte one beyond the stated size, which some functions may write.
    char ByteBeyond() const { return m_bytes[static_cast<size_t>(m_size)]; }
    // True when nothing was written from `offset` bytes beyond the stated size on.
    bool IsIntact(int offset = 0) const;

    static constexpr char guard = '\x5A';

private:
    std::string m_bytes;
    int m_size;
};
