#include "lytdlg/text/TextFile.h"

#include "commandline/Program.h"
#include "lytdlg/text/OpenTexts.h"
#include "lytdlg/text/Paths.h"

#include <nlohmann/json.hpp>

#include <afx.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

// A name that no file in the folder has, and that no other process tries.
fs::path FreeName(const fs::path& folder, const std::string& stem)
{
    for (int number = 1;; ++number)
    {
        fs::path name =
            folder / PathOf(stem + "." + std::to_string(GetCurrentProcessId()) + "." + std::to_string(number) + ".tmp");
        std::error_code ignored;
        if (!fs::exists(fs::symlink_status(name, ignored)))
            return name;
    }
}

std::error_code WriteDraft(const fs::path& name, const std::string& content)
{
    errno = 0;
    std::ofstream file(name, std::ios::binary);
    file << content;
    file.close();
    if (!file.fail())
        return {};
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

// The file that a link leads to. Throws when it is there and cannot be replaced.
fs::path TargetOf(const fs::path& name)
{
    std::error_code failure;
    const fs::path found = fs::canonical(name, failure);
    if (failure)
        return name;
    if (!fs::is_regular_file(found, failure))
        throw std::runtime_error(name.string() + " is no file that could be replaced; choose another");
    if (IsWriteProtected(found))
        throw std::runtime_error(name.string() + " is write-protected; it stays as it was");
    return found;
}

// Gone with its owner, unless it was renamed before.
struct Draft
{
    const fs::path name;
    ~Draft()
    {
        std::error_code ignored;
        fs::remove(name, ignored);
    }
};

// Writes the content beside the target, and renames it after a last look at what is there.
template <class CHECK>
void Put(const fs::path& target, const std::string& content, const CHECK& checkAgain)
{
    const Draft draft{FreeName(target.parent_path(), target.filename().string())};
    std::error_code failure = WriteDraft(draft.name, content);
    if (!failure)
    {
        std::error_code ignored;
        if (fs::exists(target, ignored))
            fs::permissions(draft.name, fs::status(target, ignored).permissions(), ignored);
        checkAgain();
        fs::rename(draft.name, target, failure);
    }
    if (failure)
        throw std::runtime_error(FailureToWrite(target, failure));
}

bool HasExtension(const fs::path& name, const std::string& extension)
{
    return CString(name.extension().string().c_str()).CompareNoCase(extension.c_str()) == 0;
}

// Of a control character that JSON allows in a text.
std::string EscapeOf(char ch)
{
    std::array<char, 7> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(ch)));
    return escape.data();
}

} // namespace

std::optional<std::string> ReadWholeFile(const fs::path& name)
{
    const std::string* open = OpenTexts::Find(name);
    return open != nullptr ? *open : ReadSavedFile(name);
}

std::optional<std::string> ReadSavedFile(const fs::path& name)
{
    std::error_code ignored;
    const fs::file_status status = fs::status(name, ignored);
    std::ifstream file;
    // Also for what has no entry in a folder, such as a stream of a file.
    if (fs::is_regular_file(status) || !fs::exists(status))
        file.open(name, std::ios::binary);
    std::string content;
    char block[8192];
    while (file.is_open() && (file.read(block, sizeof block) || file.gcount() > 0))
        content.append(block, static_cast<size_t>(file.gcount()));
    return file.is_open() && !file.bad() ? std::optional(std::move(content)) : std::nullopt;
}

void WriteWholeFile(const fs::path& name, const std::string& content)
{
    Put(TargetOf(name), content, [] {});
}

void ReplaceWholeFile(const fs::path& name, const std::string& before, const std::string& content)
{
    const fs::path target = TargetOf(name);
    Put(target, content,
        [&]
        {
            if (ReadWholeFile(target) != before)
                throw std::runtime_error(name.string() +
                                         " was changed by somebody else meanwhile, and stays so; try again");
        });
}

void WriteNewFile(const fs::path& name, const std::string& content)
{
    std::error_code ignored;
    fs::create_directories(name.parent_path(), ignored);
    Put(name, content,
        [&]
        {
            if (fs::exists(fs::symlink_status(name, ignored)))
                throw std::runtime_error(name.string() +
                                         " is there meanwhile, and stays as it is; choose another name");
        });
}

std::string FailureToWrite(const fs::path& name, const std::error_code& reason)
{
    const char* wayOut = "check the rights of its folder";
    if (reason == std::errc::no_space_on_device || reason == std::errc::file_too_large)
        wayOut = "make room on the disk, or choose another folder";
    else if (reason == std::errc::no_such_file_or_directory)
        wayOut = "make its folder first, or choose another";
    std::error_code ignored;
    const char* kept = fs::exists(name, ignored) ? " and stays as it was" : "";
    return name.string() + " cannot be written" + kept + " (" + reason.message() + "); " + wayOut;
}

bool IsWriteProtected(const fs::path& name)
{
    std::error_code ignored;
    return (fs::status(name, ignored).permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::vector<fs::path> FilesIn(const fs::path& folder, const std::string& extension)
{
    std::vector<fs::path> files;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
    {
        std::error_code ignored;
        if (HasExtension(entry->path(), extension) && entry->is_regular_file(ignored))
            files.push_back(entry->path());
    }
    std::ranges::copy_if(OpenTexts::NamesIn(folder), std::back_inserter(files),
                         [&](const fs::path& name) { return HasExtension(name, extension); });
    std::ranges::sort(files);
    files.erase(std::unique(files.begin(), files.end()), files.end());
    return files;
}

std::vector<fs::path> FilesBelow(const fs::path& folder, const std::vector<std::string>& extensions)
{
    const auto isWanted = [&](const fs::path& name)
    { return std::ranges::any_of(extensions, [&](const std::string& each) { return HasExtension(name, each); }); };
    std::vector<fs::path> files;
    std::error_code failure;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, failure);
    for (const fs::recursive_directory_iterator end; !failure && entry != end; entry.increment(failure))
    {
        std::error_code ignored;
        if (entry->is_directory(ignored) && entry->path().filename().string().starts_with('.'))
            entry.disable_recursion_pending();
        else if (isWanted(entry->path()) && entry->is_regular_file(ignored))
            files.push_back(entry->path());
    }
    std::ranges::sort(files);
    return files;
}

TemporaryFile::TemporaryFile(const std::string& content) : m_name(FreeName(fs::temp_directory_path(), "lytdlg"))
{
    if (const std::error_code failure = WriteDraft(m_name, content))
        throw std::runtime_error(FailureToWrite(m_name, failure));
}

TemporaryFile::~TemporaryFile()
{
    std::error_code ignored;
    fs::remove(m_name, ignored);
}

std::string ExtensionOf(const std::string& file)
{
    std::string extension = PathOf(file).extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    return extension;
}

void WriteOut(const std::string& file, const std::string& bytes)
{
    if (file.empty())
    {
        std::fwrite(bytes.data(), 1, bytes.size(), stdout);
        return;
    }
    WriteWholeFile(PathOf(file), bytes);
}

void WriteByProgram(const std::string& file, std::vector<std::string> words, const std::string& source,
                    const char* wayOut)
{
    const TemporaryFile given(source);
    const TemporaryFile made("");
    words.insert(words.end(), {"-o", made.Name().string(), given.Name().string()});
    const int code = commandline::RunProgram(words);
    if (code < 0)
        throw std::runtime_error(wayOut);
    if (code > 0)
        throw std::runtime_error(words.front() + " could not make \"" + file + "\"");
    WriteWholeFile(PathOf(file), ReadWholeFile(made.Name()).value_or(""));
}

std::string TextOf(const Json& json, int indent)
{
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

void PrintJson(const Json& json)
{
    const std::string text = TextOf(json, 2);
    std::string printed;
    for (size_t place = 0; place < text.size(); ++place)
    {
        const bool isSecondRange = text[place] == '\xC2' && static_cast<unsigned char>(text[place + 1]) < 0xA0U;
        if (isSecondRange || text[place] == '\x7F')
            printed += EscapeOf(text[isSecondRange ? ++place : place]);
        else
            printed += text[place];
    }
    std::puts(printed.c_str());
}

} // namespace lytdlg
