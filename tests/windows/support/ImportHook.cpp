#include "support/ImportHook.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace
{

void** FindImport(HMODULE module, const char* name)
{
    const auto at = [module](ULONGLONG offset) { return reinterpret_cast<char*>(module) + offset; };
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(at(0));
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(at(static_cast<ULONGLONG>(dos->e_lfanew)));
    const DWORD table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(table)); import->Name != 0; ++import)
    {
        const auto* names = reinterpret_cast<const ULONGLONG*>(at(import->OriginalFirstThunk));
        auto* places = reinterpret_cast<void**>(at(import->FirstThunk));
        for (size_t index = 0; names[index] != 0; ++index)
        {
            const auto* entry = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(at(names[index]));
            if (!IMAGE_SNAP_BY_ORDINAL64(names[index]) && std::strcmp(entry->Name, name) == 0)
                return places + index;
        }
    }
    throw std::runtime_error(std::string(name) + " is not imported");
}

} // namespace

ImportHook::ImportHook(HMODULE module, const char* name, void* own)
    : m_place(FindImport(module, name)), m_original(*m_place)
{
    Put(own);
}

ImportHook::~ImportHook()
{
    Put(m_original);
}

void ImportHook::Put(void* function) const
{
    DWORD protection = 0;
    VirtualProtect(m_place, sizeof *m_place, PAGE_READWRITE, &protection);
    *m_place = function;
    VirtualProtect(m_place, sizeof *m_place, protection, &protection);
}
