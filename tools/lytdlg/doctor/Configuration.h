// `lyt.ini`, as far as the library itself reads it, with the place of each value.
#pragma once

#include "lytdlg/text/LanguageFiles.h"

#include <filesystem>

namespace lytdlg
{

class Configuration
{
public:
    // A file that is not there, or cannot be read, holds nothing.
    explicit Configuration(const std::filesystem::path& file) : m_file("", file.string()) {}

    bool HasByteOrderMark() const { return m_file.HasByteOrderMark(); }
    const LanguageKey* Find(const std::string& section, const std::string& key) const
    {
        return m_file.Find(section, key);
    }
    // In the order of the file.
    std::vector<const LanguageKey*> KeysOf(const std::string& section) const;
    // Empty when none is set.
    std::string Language() const { return ValueOf("global", "Current Language"); }
    // As the library reads it: a text that is not a number is 0.
    int LogLevel() const;
    // 0 without the key.
    int NumberOf(const std::string& section, const std::string& key) const;

private:
    std::string ValueOf(const std::string& section, const std::string& key) const;

    LanguageFile m_file; // a language file has the same form
};

// Where the value of a key is in its line.
ClytSpan PlaceOfValue(const LanguageKey& key);

} // namespace lytdlg
