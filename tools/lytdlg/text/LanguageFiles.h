// The language files of a folder of dialogs (`lang/*.nls`), found and read as the library finds and reads them, and each key
// with its place.
#pragma once

#include "base/ClytSpan.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace lytdlg
{

// A line of a language file that holds a key.
struct LanguageKey
{
    std::string section; // empty above the first section
    std::string name;
    std::string text;       // as the library reads it, in the ANSI code page, but whole
    ClytSpan place;         // of the name
    bool hasText = false;   // without an `=` the key is one that is missing
    bool isReached = false; // false in the second of two sections, or keys, of one name: the library never looks there
    std::string line;       // the whole line that holds it
};

struct LanguageSection
{
    std::string name;
    ClytSpan place; // of the name
};

// The lines of a file's content that say something, in their order.
struct LanguageLines
{
    std::vector<LanguageSection> sections = {};
    std::vector<LanguageKey> keys = {};
};
LanguageLines ReadLanguageLines(std::string_view content);

// The mark that some editors put before a text in UTF-8.
inline constexpr const char* byteOrderMark = "\xEF\xBB\xBF";

// The section that the messages of checks are keys of.
inline constexpr const char* messageSection = "MsgBox";

// How long a text may be, in bytes; the library cuts what is longer.
inline constexpr size_t longestLanguageText = 74;

// The languages of a folder of dialogs, in the order of their names.
std::vector<std::string> LanguagesIn(const std::filesystem::path& folder);

// One language file, read once.
class LanguageFile
{
public:
    LanguageFile(std::string language, std::string fileName);

    const std::string& Language() const { return m_language; }
    const std::string& FileName() const { return m_fileName; }
    // The library takes it for a part of the first line.
    bool HasByteOrderMark() const;
    const std::string& FirstLine() const { return m_firstLine; }
    // Every line with a key, in the order of the file.
    const std::vector<LanguageKey>& Keys() const { return m_keys; }
    // Also for a section without keys.
    bool HasSection(const std::string& section) const;
    // The key that the library finds, or null. Case and the blanks round a name do not count.
    const LanguageKey* Find(const std::string& section, const std::string& key) const;

private:
    std::string m_language;
    std::string m_fileName;
    std::string m_firstLine;
    std::unordered_set<std::string> m_sections; // folded
    std::vector<LanguageKey> m_keys;
    std::unordered_map<std::string, size_t> m_reached; // the texts that the library finds, and their keys
};

class LanguageFiles
{
public:
    // A folder without language files has no languages; files that cannot be read are empty.
    explicit LanguageFiles(const std::filesystem::path& folder);

    // In the order of their names.
    const std::vector<LanguageFile>& Files() const { return m_files; }
    std::vector<std::string> Languages() const;
    // Null for a language without a file.
    const LanguageFile* FileOf(const std::string& language) const;

    // True when the library finds a text, which may be empty.
    bool Has(const std::string& language, const std::string& section, const std::string& key) const;
    // The whole text; without one what the library shows in its place.
    std::string Text(const std::string& language, const std::string& section, const std::string& key) const;
    // Where the key is in its file; line 0 when it is missing.
    ClytSpan Place(const std::string& language, const std::string& section, const std::string& key) const;
    // The keys of a section that the library reaches, in the order of the file.
    std::vector<LanguageKey> Keys(const std::string& language, const std::string& section) const;

private:
    const LanguageKey* Find(const std::string& language, const std::string& section, const std::string& key) const;

    std::vector<LanguageFile> m_files;
};

// Two names of sections or keys that are the same to the library.
bool IsSameName(std::string_view left, std::string_view right);
// Equal for two such names.
std::string FoldedName(std::string_view name);
// Equal for two texts that are the same to the library.
std::string TextId(std::string_view section, std::string_view key);

struct LibraryText
{
    std::string section;
    std::string key;
};

// Buttons, the window of the catalogue and the numbered messages.
const std::vector<LibraryText>& LibraryTexts();

} // namespace lytdlg
