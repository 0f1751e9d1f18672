#include "lytcall/LytLibrary.h"

namespace lytcall
{

LytLibrary::LytLibrary(const std::string& fileName) : m_fileName(fileName), m_module(LoadLibraryA(fileName.c_str()))
{
    if (m_module == nullptr)
        throw CallError(fileName + " cannot be loaded (error " + std::to_string(GetLastError()) +
                        "); name it with --library, as a 64-bit DLL");
}

FARPROC LytLibrary::Address(const char* name) const
{
    FARPROC address = GetProcAddress(m_module, name);
    if (address == nullptr)
        throw CallError(m_fileName + " does not export " + name);
    return address;
}

} // namespace lytcall
