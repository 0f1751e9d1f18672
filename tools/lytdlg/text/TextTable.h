// The language files of a folder against each other and against the dialogs that ask for their texts.
#pragma once

#include "lytdlg/text/LanguageFiles.h"

#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

namespace lytdlg
{

struct ShownText;

// A place that shows a text.
struct TextUse
{
    std::string file;       // of the dialog, without its folder; empty for the library itself
    int line = 0;           // in the dialog
    bool isCaption = false; // shown up to its first apostrophe
};

struct TextRow
{
    std::string section;
    std::string key;
    std::vector<TextUse> uses;
    std::vector<std::string>
        remarks; // what is wrong with it, a sentence each, without the languages where it is missing
};

class TextTable
{
public:
    // A folder without a language file, or a dialog that cannot be read, throws std::runtime_error.
    explicit TextTable(const std::filesystem::path& folder);

    const LanguageFiles& Languages() const { return m_languages; }
    // In the order of their first use; what nothing uses comes last.
    const std::vector<TextRow>& Rows() const { return m_rows; }
    // True when the language lacks what is used, or what another language has.
    bool IsMissing(const TextRow& row, const LanguageFile& file) const;
    // In all languages together.
    size_t CountMissing() const;

private:
    TextRow& RowOf(const std::string& section, const std::string& key);
    void AddUse(const ShownText& text, const std::string& fileName);
    void AddKeys(const LanguageFile& file);
    void Judge(TextRow& row) const;

    LanguageFiles m_languages;
    std::vector<TextRow> m_rows;
    std::unordered_map<std::string, size_t> m_places; // of each text among the rows
};

} // namespace lytdlg
