#include "lytdlg/text/NewDialog.h"

#include "commandline/CommandLine.h"
#include "environment/ErrorTable.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/NewDialogTexts.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <array>
#include <optional>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr size_t longestNewName = 40;

// Names of files that Windows has for its devices, with any extension.
constexpr std::array devices = {"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",
                                "COM8", "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};
// Sections that the library has for itself.
constexpr std::array librarySections = {"Buttons", "Label", messageSection, lytErrorSection};

bool IsLetter(char ch)
{
    return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
}

bool IsInName(char ch)
{
    return IsLetter(ch) || (ch >= '0' && ch <= '9') || ch == '-' || ch == '_';
}

template <class NAMES>
bool IsAmong(const std::string& name, const NAMES& names)
{
    return std::ranges::any_of(names, [&](const char* each) { return IsSameName(name, each); });
}

std::string Named(std::string text, const std::string& name)
{
    for (size_t place = text.find('@'); place != std::string::npos; place = text.find('@', place + name.size()))
        text.replace(place, 1, name);
    return text;
}

// A file that is to be written, and what it was before.
struct Change
{
    fs::path name;
    std::string content;
    std::optional<std::string> before;
};

// All of the changes or none.
void Carry(const std::vector<Change>& changes)
{
    size_t done = 0;
    try
    {
        for (; done < changes.size(); ++done)
        {
            const Change& change = changes[done];
            change.before ? ReplaceWholeFile(change.name, *change.before, change.content)
                          : WriteNewFile(change.name, change.content);
        }
    }
    catch (const std::exception&)
    {
        std::error_code ignored;
        for (size_t i = 0; i < done; ++i)
            changes[i].before ? ReplaceWholeFile(changes[i].name, changes[i].content, *changes[i].before)
                              : static_cast<void>(fs::remove(changes[i].name, ignored));
        throw;
    }
}

void CheckIsFree(const fs::path& file)
{
    const std::string extension = file.extension().string();
    for (const fs::path& other : FilesIn(file.parent_path(), extension))
    {
        if (IsSameName(other.stem().string(), file.stem().string()))
            throw commandline::UsageError(other.string() + " is there already and stays as it is; choose another name");
    }
}

} // namespace

std::string WithKeys(const std::string& content, const std::string& section, const std::string& lines)
{
    const std::string end = LineEndOf(content);
    const std::string added = WithLineEnds(lines, end);
    const std::vector<LanguageKey> keys = ReadLanguageLines(content).keys;
    const auto isInside = [&](const LanguageKey& key) { return key.isReached && IsSameName(key.section, section); };
    const auto last = std::find_if(keys.rbegin(), keys.rend(), isInside);
    if (last == keys.rend())
    {
        const bool isOpen = !content.empty() && !content.ends_with('\n');
        return content + (isOpen ? end : "") + (content.empty() ? "" : end) + "[" + section + "]" + end + added;
    }
    size_t place = 0;
    for (int line = 0; line < last->place.line && place < content.size(); ++line)
        place = std::min(content.find('\n', place), content.size() - 1) + 1;
    const bool isOpen = !content.substr(0, place).ends_with('\n');
    return content.substr(0, place) + (isOpen ? end : "") + added + content.substr(place);
}

namespace
{

std::string WithTexts(const std::string& content, const std::string& language, const std::string& name)
{
    const std::string withMessages = WithKeys(content, messageSection, Named(NewMessages(language), name));
    return WithKeys(withMessages, name, Named(NewTexts(language), name));
}

std::vector<Change> TextChanges(const fs::path& folder, const std::string& name)
{
    const LanguageFiles languages(folder);
    std::vector<Change> changes;
    for (const LanguageFile& file : languages.Files())
    {
        if (file.HasSection(name))
            throw commandline::UsageError(file.FileName() + " holds a section [" + name +
                                          "] already, which stays as it is; choose another name");
        const std::string before = ReadWholeFile(PathOf(file.FileName())).value_or("");
        changes.push_back({PathOf(file.FileName()), WithTexts(before, file.Language(), name), before});
    }
    if (!changes.empty())
        return changes;
    for (const std::string& language : KnownLanguages())
        changes.push_back(
            {folder / "lang" / (language + ".nls"), WithTexts(LibraryTextsOf(language), language, name), {}});
    return changes;
}

Change CaseOf(const fs::path& folder, const std::string& name, const std::vector<std::string>& languages)
{
    std::error_code ignored;
    const fs::path whole = fs::canonical(folder, ignored);
    const bool hasCases = fs::is_directory(whole.parent_path() / "cases", ignored);
    const std::string prefix = hasCases ? "../" + whole.filename().string() + "/" : "";
    const bool hasEnglish = std::ranges::find(languages, "English") != languages.end();
    const std::string language = hasEnglish || languages.empty() ? "English" : languages.front();
    const fs::path place = hasCases ? folder / ".." / "cases" : folder;
    return {(place / (name + ".case")).lexically_normal(), Named(NewCase(name, prefix, language), name), {}};
}

} // namespace

std::string FaultOfName(const std::string& name)
{
    if (name.ends_with(".dlg"))
        return "write the name without .dlg";
    if (name.empty() || !IsLetter(name.front()) || !std::ranges::all_of(name, IsInName))
        return "use letters from A to Z, digits, - and _, with a letter first";
    if (name.size() > longestNewName)
        return "use " + std::to_string(longestNewName) + " letters at most";
    if (IsAmong(name, devices))
        return "Windows keeps this name for a device; choose another";
    if (IsAmong(name, librarySections))
        return "the library has a section of texts with this name for itself; choose another";
    return {};
}

std::vector<MadeFile> MakeDialog(const fs::path& folder, const std::string& name)
{
    const FolderLock others(folder);
    std::vector<Change> changes = TextChanges(folder, name);
    changes.push_back(CaseOf(folder, name, LanguageFiles(folder).Languages()));
    changes.push_back({folder / (name + ".dlg"), Named(NewDescription(name), name), {}});
    std::vector<MadeFile> made;
    for (const Change& change : changes)
    {
        if (!change.before)
            CheckIsFree(change.name);
        made.push_back({change.name, !change.before});
    }
    Carry(changes);
    return made;
}

} // namespace lytdlg
