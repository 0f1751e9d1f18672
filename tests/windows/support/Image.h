// A module of this process as its file describes it.
#pragma once

#include <set>
#include <span>
#include <string>
#include <string_view>

#include <windows.h>

class Image
{
public:
    explicit Image(HMODULE module) : m_module(module) {}

    // What is at an offset from the start.
    template <class T>
    T* At(ULONGLONG offset) const
    {
        return reinterpret_cast<T*>(reinterpret_cast<char*>(m_module) + offset);
    }
    const IMAGE_NT_HEADERS64& Headers() const
    {
        return *At<IMAGE_NT_HEADERS64>(static_cast<ULONGLONG>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }
    std::span<const IMAGE_SECTION_HEADER> Sections() const
    {
        return {IMAGE_FIRST_SECTION(&Headers()), Headers().FileHeader.NumberOfSections};
    }
    std::string_view Code() const
    {
        const IMAGE_OPTIONAL_HEADER64& header = Headers().OptionalHeader;
        return {At<char>(header.BaseOfCode), header.SizeOfCode};
    }
    // The offset of a table, such as that of the exports, or 0.
    DWORD Directory(int which) const { return Headers().OptionalHeader.DataDirectory[which].VirtualAddress; }
    const IMAGE_EXPORT_DIRECTORY& Exports() const
    {
        return *At<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
    }
    std::set<std::string> ExportedNames() const
    {
        const auto* names = At<DWORD>(Exports().AddressOfNames);
        std::set<std::string> exported;
        for (DWORD index = 0; index < Exports().NumberOfNames; ++index)
            exported.insert(At<char>(names[index]));
        return exported;
    }
    // The first entry of the table of imports, which ends with one without a name; null when there is no table.
    const IMAGE_IMPORT_DESCRIPTOR* Imports() const
    {
        const DWORD table = Directory(IMAGE_DIRECTORY_ENTRY_IMPORT);
        return table != 0 ? At<IMAGE_IMPORT_DESCRIPTOR>(table) : nullptr;
    }

private:
    HMODULE m_module;
};
