#include "support/ImportHook.h"

#include "support/Image.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace
{

void** FindImport(HMODULE module, const char* name)
{
    const Image image(module);
    for (const auto* import = image.Imports(); import->Name != 0; ++import)
    {
        const auto* names = image.At<ULONGLONG>(import->OriginalFirstThunk);
        auto* places = image.At<void*>(import->FirstThunk);
        for (size_t index = 0; names[index] != 0; ++index)
        {
            const auto* entry = image.At<IMAGE_IMPORT_BY_NAME>(names[index]);
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
