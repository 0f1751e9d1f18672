#include "lytdlg/text/FileForLibrary.h"

#include "native/MemoryFiles.h"

namespace lytdlg
{

namespace
{

// Several files may be there at a time.
std::string NextName()
{
    static size_t count = 0;
    return std::string(platform::memoryFolder) + "/lytdlg/" + std::to_string(++count);
}

} // namespace

FileForLibrary::FileForLibrary(const std::string& content)
    : m_name(NextName()), m_file(nullptr, [name = m_name](const void*) { platform::RemoveMemoryFile(name.c_str()); })
{
    platform::PutMemoryFile(m_name.c_str(), content);
}

} // namespace lytdlg
