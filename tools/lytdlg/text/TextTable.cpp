#include "lytdlg/text/TextTable.h"

#include "lytdlg/judge/FolderTexts.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace lytdlg
{

namespace
{

// What a translation keeps.
struct Mark
{
    const char* text;
    const char* name;
};
constexpr std::array marks = {Mark{"'", "apostrophes"}, Mark{"%", "per cent signs"}, Mark{"\\n", "line ends (\\n)"},
                              Mark{"&", "ampersands"}};

} // namespace

TextTable::TextTable(const std::filesystem::path& folder) : m_languages(folder)
{
    if (m_languages.Files().empty())
        throw std::runtime_error("there is no language file (*.nls) in " + (folder / "lang").string() +
                                 "; name the folder of the dialogs, which holds the folder lang");
    for (const LibraryText& text : LibraryTexts())
        RowOf(text.section, text.key).uses.emplace_back();
    const FolderTexts dialogs(folder.string());
    for (const DescriptionTexts& dialog : dialogs.All())
    {
        if (!dialog.isRead)
            throw std::runtime_error("cannot read " + (folder / dialog.fileName).string() + "; check its rights");
        for (const ShownText& use : dialog.uses)
            AddUse(use, dialog.fileName);
    }
    for (const LanguageFile& file : m_languages.Files())
        AddKeys(file);
    for (TextRow& row : m_rows)
        Judge(row);
}

size_t TextTable::CountMissing() const
{
    size_t count = 0;
    for (const TextRow& row : m_rows)
        count += static_cast<size_t>(
            std::ranges::count_if(m_languages.Files(), [&](const LanguageFile& file) { return IsMissing(row, file); }));
    return count;
}

bool TextTable::IsMissing(const TextRow& row, const LanguageFile& file) const
{
    const auto has = [&](const LanguageFile& each) { return each.Find(row.section, row.key) != nullptr; };
    return !has(file) && (!row.uses.empty() || std::ranges::any_of(m_languages.Files(), has));
}

TextRow& TextTable::RowOf(const std::string& section, const std::string& key)
{
    const auto [place, isNew] = m_places.try_emplace(TextId(section, key), m_rows.size());
    return isNew ? m_rows.emplace_back(TextRow{section, key, {}, {}}) : m_rows[place->second];
}

void TextTable::AddUse(const ShownText& text, const std::string& fileName)
{
    // The texts of the two buttons belong to the library.
    if (text.role != TextRole::Button)
        RowOf(text.section, text.key).uses.push_back({fileName, text.place.line, text.role == TextRole::Caption});
}

void TextTable::AddKeys(const LanguageFile& file)
{
    for (const LanguageKey& key : file.Keys())
    {
        TextRow& row = RowOf(key.section, key.name);
        if (!key.isReached)
            row.remarks.push_back("never read in " + file.Language() + ", line " + std::to_string(key.place.line) +
                                  ": its key or section is there twice");
        else if (!key.hasText)
            row.remarks.push_back("no = in " + file.Language() + ", line " + std::to_string(key.place.line));
    }
}

void TextTable::Judge(TextRow& row) const
{
    if (row.uses.empty())
        row.remarks.insert(row.remarks.begin(), "unused");
    const bool isCaption = std::ranges::any_of(row.uses, &TextUse::isCaption);
    std::array<std::vector<std::string>, marks.size()> counts;
    for (const LanguageFile& file : m_languages.Files())
    {
        const LanguageKey* key = file.Find(row.section, row.key);
        if (key == nullptr)
            continue;
        if (key->text.size() > longestLanguageText)
            row.remarks.push_back("cut in " + file.Language() + ": " + std::to_string(key->text.size()) + " bytes, " +
                                  std::to_string(longestLanguageText) + " are shown");
        if (isCaption && key->text.find('\'') != std::string::npos)
            row.remarks.push_back("an apostrophe in " + file.Language() + ", where the caption ends");
        for (size_t i = 0; i < marks.size(); ++i)
            counts.at(i).push_back(file.Language() + " " + std::to_string(CountOf(key->text, marks.at(i).text)));
    }
    for (size_t i = 0; i < marks.size(); ++i)
    {
        const auto numberOf = [](const std::string& count) { return count.substr(count.rfind(' ')); };
        const auto& ofMark = counts.at(i);
        if (std::ranges::adjacent_find(ofMark, std::ranges::not_equal_to(), numberOf) != ofMark.end())
            row.remarks.push_back(std::string("different ") + marks.at(i).name + ": " + Joined(ofMark));
    }
}

} // namespace lytdlg
