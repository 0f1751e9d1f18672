#include "support/Library.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

constexpr int guardLength = 64;

HMODULE Library()
{
    static const HMODULE library = LoadLibraryA("lyt64.dll");
    return library;
}

} // namespace

std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    return program.substr(0, program.find_last_of("\\/"));
}

FARPROC Exported(const char* name)
{
    FARPROC function = Library() != nullptr ? GetProcAddress(Library(), name) : nullptr;
    EXPECT_NE(function, nullptr) << name << " is not exported by lyt64.dll";
    return function;
}

GuardedBuffer::GuardedBuffer(int size, const char* text)
    : m_bytes(static_cast<size_t>(size) + guardLength, guard), m_size(size)
{
    std::copy_n(text, std::min<size_t>(std::char_traits<char>::length(text) + 1, static_cast<size_t>(size)),
                m_bytes.begin());
}

bool GuardedBuffer::IsIntact(int offset) const
{
    return std::all_of(m_bytes.begin() + m_size + offset, m_bytes.end(), [](char ch) { return ch == guard; });
}
