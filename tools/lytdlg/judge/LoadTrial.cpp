#include "lytdlg/judge/LoadTrial.h"

#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr unsigned long libraryMissing = 126;

std::string InSmallLetters(const std::string& name)
{
    return CString(name.c_str()).MakeLower().GetString();
}

bool StartsWithAny(const std::string& name, const std::vector<const char*>& starts)
{
    return std::ranges::any_of(starts, [&](const char* start) { return InSmallLetters(name).starts_with(start); });
}

// What a library needs and does not find, also by way of what it does find.
class MissingLibraries
{
public:
    explicit MissingLibraries(const LoadSurroundings& surroundings) : m_folders(surroundings.folders) {}

    void LookFor(const ExportTable& table)
    {
        for (const std::string& name : table.needed)
            Look(name);
    }
    const std::vector<std::string>& All() const { return m_missing; }
    // The library itself, which is there in the word processor.
    bool NeedOwn() const { return m_needOwn; }

private:
    void Look(const std::string& name)
    {
        // The platform makes such a name up for a library of another one.
        m_needOwn = m_needOwn || IsOwnLibrary(name);
        if (IsOwnLibrary(name) || StartsWithAny(name, {"api-ms-", "ext-ms-"}) || IsOneOf(m_seen, name))
            return;
        m_seen.push_back(name);
        if (IsIn(PlatformFolders(), name))
            return;
        const auto folder =
            std::ranges::find_if(m_folders, [&](const fs::path& each) { return !FileIn(each, name).empty(); });
        if (folder == m_folders.end())
            m_missing.push_back(name);
        else
            LookFor(ReadExports(ReadWholeFile(FileIn(*folder, name)).value_or("")));
    }

    static bool IsOneOf(const std::vector<std::string>& names, const std::string& name)
    {
        return std::ranges::any_of(names, [&](const std::string& each) { return IsSameName(each, name); });
    }
    static bool IsIn(const std::vector<fs::path>& folders, const std::string& name)
    {
        return std::ranges::any_of(folders, [&](const fs::path& folder) { return !FileIn(folder, name).empty(); });
    }

    const std::vector<fs::path>& m_folders; // of the caller
    std::vector<std::string> m_seen;
    std::vector<std::string> m_missing;
    bool m_needOwn = false;
};

LoadFailure FailureOfMissing(const std::vector<std::string>& missing)
{
    return {
        "it needs " + Joined(missing) + ", which Windows does not find",
        "link it statically, so that it needs nothing but Windows, or copy what it needs beside the word processor's "
        "program"};
}

} // namespace

std::optional<LoadFailure> TryToLoad(const fs::path& library, const ExportTable& table,
                                     const LoadSurroundings& surroundings)
{
    MissingLibraries libraries(surroundings);
    libraries.LookFor(table);
    std::vector<std::string> missing = libraries.All();
    const std::optional<unsigned long> error = LoadErrorOf(library, surroundings);
    if (!error)
        std::erase_if(missing, [](const std::string& name) { return !StartsWithAny(name, {"lib", "cyg", "msys-"}); });
    if ((!error || error == libraryMissing) && !missing.empty())
        return FailureOfMissing(missing);
    const bool lacksOwn = libraries.NeedOwn() && surroundings.loaded.empty();
    if (!error || error == 0UL || (error == libraryMissing && lacksOwn))
        return std::nullopt;
    return LoadFailure{ReasonOfLoadError(*error),
                       "ask its maker what it needs; what guards this machine may have to allow it"};
}

} // namespace lytdlg
