#include "lytdlg/doctor/Deployment.h"

#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <sstream>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr int deepest = 3;

// The library opens no file with a longer name. The prefix lifts that for the system alone.
constexpr size_t longestPath = 259;

bool IsTooLong(const fs::path& path)
{
    std::error_code ignored;
    return fs::absolute(path, ignored).u16string().size() > longestPath;
}

// A folder that was named twice, or that holds another one that was named, is gone through once.
class Finder
{
public:
    void GoThrough(const fs::path& folder)
    {
        std::error_code failure;
        fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, failure);
        for (; !failure && entry != fs::recursive_directory_iterator(); entry.increment(failure))
        {
            if (entry.depth() >= deepest)
                entry.disable_recursion_pending();
            std::error_code ignored;
            if (IsTooLong(entry->path()))
                tooLong.push_back(entry->path());
            else if (entry->is_regular_file(ignored) && m_seen.insert(fs::canonical(entry->path(), ignored)).second)
                Take(entry->path());
        }
    }

    std::vector<fs::path> libraries;
    std::vector<fs::path> ownLibraries;
    std::vector<fs::path> configurations;
    std::vector<fs::path> dialogFolders;
    std::vector<fs::path> hiddenEndings;
    std::vector<fs::path> tooLong;
    std::vector<fs::path> checksums;

private:
    void Take(const fs::path& file)
    {
        const std::string name = file.filename().string();
        const std::string extension = file.extension().string();
        if (IsSameName(name, "lyt.ini"))
            configurations.push_back(file);
        else if (IsSameName(extension, ".dll"))
            (IsOwnLibrary(name) ? ownLibraries : libraries).push_back(file);
        else if (IsSameName(extension, ".dlg") &&
                 std::ranges::find(dialogFolders, file.parent_path()) == dialogFolders.end())
            dialogFolders.push_back(file.parent_path());
        else if (IsSameName(name, "SHA256SUMS"))
            checksums.push_back(file);
        else if (IsSameName(extension, ".txt") && IsOfDeployment(file.stem()))
            hiddenEndings.push_back(file);
    }

    static bool IsOfDeployment(const fs::path& name)
    {
        const std::string extension = name.extension().string();
        return IsSameName(extension, ".dlg") || IsSameName(extension, ".nls") || IsSameName(name.string(), "lyt.ini");
    }

    std::set<fs::path> m_seen;
};

// The one that is least deep comes first.
bool IsPathBefore(const fs::path& left, const fs::path& right)
{
    const auto depthOf = [](const fs::path& path) { return std::distance(path.begin(), path.end()); };
    return depthOf(left) != depthOf(right) ? depthOf(left) < depthOf(right) : left < right;
}

Piece PieceOf(std::vector<fs::path> found)
{
    std::ranges::sort(found, IsPathBefore);
    if (found.empty())
        return {};
    return {found.front(), {found.begin() + 1, found.end()}};
}

std::vector<SearchFolder> SearchFoldersOf(const Request& request, const Host& host)
{
    std::vector<SearchFolder> folders;
    if (!host.program.empty())
        folders.push_back({host.program.has_parent_path() ? host.program.parent_path() : ".", "the host's folder"});
    if (!request.Has("--partners"))
    {
        std::ranges::copy(SystemSearchFolders(), std::back_inserter(folders));
        return folders;
    }
    for (const std::string& folder : request.Texts("--partners"))
        folders.push_back(SearchFolderOf(PathOf(folder).native(), "a folder of --partners"));
    return folders;
}

// As the library is given it, without the prefix for long names.
fs::path FolderNamed(std::string name)
{
    const std::string prefix = "\\\\?\\";
    if (name.starts_with(prefix))
        name = IsSameName(name.substr(prefix.size(), 4), "UNC\\") ? "\\\\" + name.substr(prefix.size() + 4)
                                                                  : name.substr(prefix.size());
    if (IsTooLong(PathOf(name)))
        throw commandline::UsageError("the name of " + name + " is longer than the " + std::to_string(longestPath) +
                                      " characters that Windows allows the library; move the deployment");
    return PathOf(name);
}

} // namespace

SearchFolder SearchFolderOf(fs::path::string_type text, const char* name)
{
    const bool isQuoted = std::erase(text, '"') > 0;
    return {text, name, false, isQuoted};
}

Deployment FindDeployment(const Request& request)
{
    Finder finder;
    for (const std::string& folder : request.operands)
    {
        std::error_code ignored;
        if (!fs::is_directory(FolderNamed(folder), ignored))
            throw commandline::UsageError("there is no folder " + folder + "; name the folders of the deployment");
        finder.GoThrough(FolderNamed(folder));
    }
    const auto pieceOf = [&](const char* option, const std::vector<fs::path>& found) {
        return request.Has(option) ? Piece{PathOf(request.Text(option, "")), {}} : PieceOf(found);
    };
    Deployment deployment;
    deployment.library = pieceOf("--library", finder.ownLibraries);
    deployment.configuration = pieceOf("--init", finder.configurations);
    if (request.Has("--init"))
        deployment.configuration.chosen /= "lyt.ini";
    deployment.dialogs = pieceOf("--dialogs", finder.dialogFolders);
    deployment.libraries = std::move(finder.libraries);
    deployment.hiddenEndings = std::move(finder.hiddenEndings);
    deployment.tooLong = std::move(finder.tooLong);
    deployment.checksums = std::move(finder.checksums);
    std::ranges::sort(deployment.libraries, IsPathBefore);
    deployment.document = request.Text("--document", "");
    deployment.defines = request.Texts("--define");
    deployment.host = request.Has("--host") ? Host{PathOf(request.Text("--host", "")), true} : HostOfWorkstation();
    deployment.search = SearchFoldersOf(request, deployment.host);
    return deployment;
}

std::string VersionOf(const std::string& bytes)
{
    // The fixed part of the record begins so; the two halves of the file's version follow, the lower number first.
    const std::string start("\xBD\x04\xEF\xFE\0\0\x01\0", 8);
    const size_t place = bytes.find(start) + start.size();
    if (place < start.size() || place + 8 > bytes.size())
        return "";
    std::string version;
    for (const size_t number : {2U, 0U, 6U, 4U})
    {
        const auto low = static_cast<unsigned char>(bytes[place + number]);
        const auto high = static_cast<unsigned char>(bytes[place + number + 1]);
        version += (version.empty() ? "" : ".") + std::to_string(low + high * 256);
    }
    return version;
}

std::string ChecksumOf(const std::string& bytes)
{
    const std::optional<Sha256> sum = Sha256Of(bytes);
    std::string digits;
    for (const unsigned char byte : sum.value_or(Sha256()))
    {
        std::array<char, 3> two = {};
        std::snprintf(two.data(), two.size(), "%02x", byte);
        digits += two.data();
    }
    return sum ? digits : "";
}

std::optional<std::string> ListedChecksumOf(const std::filesystem::path& sums, const std::filesystem::path& file)
{
    std::istringstream lines(ReadWholeFile(sums).value_or(""));
    std::string sum;
    std::string name;
    std::error_code ignored;
    while (lines >> sum && std::getline(lines >> std::ws, name))
    {
        // A star before the name says that the file was read as bytes.
        name = name.substr(name.find_first_not_of('*'), name.find_last_not_of('\r') - name.find_first_not_of('*') + 1);
        if (std::filesystem::equivalent(sums.parent_path() / PathOf(name), file, ignored))
            return sum;
    }
    return std::nullopt;
}

} // namespace lytdlg
