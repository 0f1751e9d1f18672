#include "lytdlg/doctor/Checks.h"

#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <map>
#include <set>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr const char* aboutMarks = "marks";
// Zones below are the machine, its network and the sites that it trusts.
constexpr char firstForeignZone = '3';

using FilesOfFolders = std::map<fs::path, std::vector<std::string>>;

// A browser or mail program leaves the mark in a stream of the file; where a file cannot have one, in a file beside it.
bool IsFromElsewhere(const fs::path& file)
{
    const std::string mark = ReadWholeFile(fs::path(file) += ":Zone.Identifier").value_or("");
    const std::string key = "ZoneId=";
    const size_t place = mark.find(key);
    return place != std::string::npos && place + key.size() < mark.size() &&
           mark[place + key.size()] >= firstForeignZone;
}

// Each that is there once, whichever way leads to it.
std::vector<fs::path> FilesOf(const Deployment& deployment, const std::vector<fs::path>& partners)
{
    std::vector<fs::path> files = {deployment.library.chosen, deployment.configuration.chosen};
    const auto add = [&](const std::vector<fs::path>& more) { std::ranges::copy(more, std::back_inserter(files)); };
    add(deployment.libraries);
    add(partners);
    if (const fs::path& dialogs = deployment.dialogs.chosen; !dialogs.empty())
    {
        add(FilesIn(dialogs, ".dlg"));
        add(FilesIn(dialogs / "lang", ".nls"));
    }
    std::set<fs::path> seen;
    std::error_code missing;
    std::erase_if(files, [&](const fs::path& file)
                  { return !fs::exists(file, missing) || !seen.insert(fs::canonical(file, missing)).second; });
    return files;
}

void Tell(Verdict verdict, const FilesOfFolders& marked, const std::string& mark, const std::string& hint,
          Diagnosis& diagnosis)
{
    for (const auto& [folder, names] : marked)
        diagnosis.Add(verdict, aboutMarks, folder,
                      Counted(names.size(), "file is ", "files are ") + mark + ": " + Joined(names), hint);
}

} // namespace

void JudgeMarks(const Deployment& deployment, const std::vector<fs::path>& partners, Diagnosis& diagnosis)
{
    FilesOfFolders fromElsewhere;
    FilesOfFolders isProtected;
    const std::vector<fs::path> files = FilesOf(deployment, partners);
    for (const fs::path& file : files)
    {
        if (IsFromElsewhere(file))
            fromElsewhere[file.parent_path()].push_back(file.filename().string());
        if (IsWriteProtected(file))
            isProtected[file.parent_path()].push_back(file.filename().string());
    }
    Tell(Verdict::Warning, fromElsewhere, "marked as downloaded, and Windows may refuse to use such a file",
         "unblock each in its properties, or all by the command Unblock-File of PowerShell", diagnosis);
    Tell(Verdict::Note, isProtected, "write-protected, which hinders an update and nothing else", "", diagnosis);
    if (fromElsewhere.empty() && !files.empty())
        diagnosis.Add(Verdict::Good, aboutMarks, {},
                      Counted(files.size(), "file", "files") + ", none marked as downloaded");
}

} // namespace lytdlg
