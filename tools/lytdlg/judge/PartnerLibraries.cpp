#include "lytdlg/judge/PartnerLibraries.h"

#include "commandline/Text.h"
#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

namespace lytdlg
{

PartnerLibraries::PartnerLibraries(const std::vector<std::string>& folders)
{
    for (const std::string& folder : folders)
        m_surroundings.folders.push_back(PathOf(folder));
}

const Partner* PartnerLibraries::Find(const std::string& fileName)
{
    static const Partner own = {{LibraryForm::Library, OwnFunctions(), {}}, {}};
    if (IsOwnLibrary(fileName))
        return &own;
    const auto known = m_partners.find(fileName);
    if (known != m_partners.end())
        return &known->second;
    for (const std::filesystem::path& folder : m_surroundings.folders)
    {
        const std::filesystem::path file = FileIn(folder, commandline::ToUtf8(fileName));
        if (!file.empty())
            return &(m_partners[fileName] = Read(file));
    }
    return nullptr;
}

std::vector<std::string> PartnerLibraries::Names() const
{
    std::vector<std::string> names;
    for (const std::filesystem::path& folder : m_surroundings.folders)
    {
        for (const std::filesystem::path& file : FilesIn(folder, ".dll"))
            names.push_back(commandline::ToAnsi(file.stem().string()));
    }
    return names;
}

Partner PartnerLibraries::Read(const std::filesystem::path& file) const
{
    const ExportTable table = ReadExports(ReadWholeFile(file).value_or(""));
    const bool isTried = table.form == LibraryForm::Library;
    return {table, isTried ? TryToLoad(file, table, m_surroundings) : std::nullopt};
}

} // namespace lytdlg
