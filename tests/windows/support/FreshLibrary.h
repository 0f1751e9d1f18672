// lyt64.dll from load to unload: one that knows of no call before.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

class FreshLibrary
{
public:
    explicit FreshLibrary(const std::string& file = "lyt64.dll") : m_module(LoadLibraryA(file.c_str()))
    {
        EXPECT_NE(m_module, nullptr);
    }
    FreshLibrary(const FreshLibrary&) = delete;
    FreshLibrary& operator=(const FreshLibrary&) = delete;
    ~FreshLibrary()
    {
        FreeLibrary(m_module);
        EXPECT_FALSE(IsLoaded()) << "still loaded";
    }

    static bool IsLoaded() { return GetModuleHandleA("lyt64.dll") != nullptr; }
    HMODULE Module() const { return m_module; }
    template <class Function>
    Function* Get(const char* name) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
    }

private:
    HMODULE m_module;
};
