#include "lytdlg/text/FileForLibrary.h"

#include "lytdlg/text/TextFile.h"

namespace lytdlg
{

FileForLibrary::FileForLibrary(const std::string& content)
{
    auto file = std::make_shared<const TemporaryFile>(content);
    m_name = file->Name();
    m_file = std::move(file);
}

} // namespace lytdlg
