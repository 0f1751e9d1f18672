#include "lytdlg/judge/FolderTexts.h"

#include "commandline/Text.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace lytdlg
{

namespace
{

auto KeyOf(const ShownText& text)
{
    return std::tie(text.place.line, text.place.column, text.section, text.key, text.role);
}

bool IsBefore(const ShownText& left, const ShownText& right)
{
    return KeyOf(left) < KeyOf(right);
}

bool IsSame(const ShownText& left, const ShownText& right)
{
    return KeyOf(left) == KeyOf(right);
}

} // namespace

DescriptionTexts TextsOf(std::string fileName, const std::string& bytes)
{
    DescriptionTexts texts;
    texts.fileName = std::move(fileName);
    const std::vector<std::string> names = DescriptionText(bytes, {}).DefineNames();
    std::vector<std::vector<std::string>> variants = {{}};
    if (!names.empty())
        variants.push_back(names);
    // Each define is another reading of the whole.
    constexpr size_t mostDefines = 20;
    texts.isWhole = names.size() <= mostDefines;
    for (size_t index = 0; index < std::min(names.size(), mostDefines); ++index)
        variants.push_back({names[index]});
    for (const std::vector<std::string>& defines : variants)
    {
        const Description description("", bytes, defines);
        texts.isWhole = texts.isWhole && description.mistakes.empty();
        texts.sections.insert(description.TextSection());
        for (const ValueStatement& statement : description.values)
        {
            if (RoleOf(description, statement) == Role::Action &&
                lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Dialog)
                texts.opens.insert(FoldedName(statement.values.front()));
        }
        for (ShownText& use : TextUsesOf(description))
        {
            use.control = nullptr;
            texts.uses.push_back(std::move(use));
        }
    }
    std::ranges::sort(texts.uses, IsBefore);
    texts.uses.erase(std::unique(texts.uses.begin(), texts.uses.end(), IsSame), texts.uses.end());
    return texts;
}

const std::vector<std::filesystem::path>& FolderTexts::Files() const
{
    if (!m_files)
        m_files = m_folder.empty() ? std::vector<std::filesystem::path>() : FilesIn(PathOf(m_folder), ".dlg");
    return *m_files;
}

const std::vector<std::string>& FolderTexts::Names() const
{
    if (!m_names)
    {
        m_names.emplace();
        for (const std::filesystem::path& file : Files())
            m_names->push_back(commandline::ToAnsi(file.stem().string()));
    }
    return *m_names;
}

const std::vector<DescriptionTexts>& FolderTexts::All() const
{
    if (m_isAllRead)
        return m_all;
    std::vector<DescriptionTexts> known = std::exchange(m_all, {});
    for (const std::filesystem::path& file : Files())
    {
        const std::string name = file.filename().string();
        const auto found = std::ranges::find(known, name, &DescriptionTexts::fileName);
        m_all.push_back(found != known.end() ? std::move(*found) : Read(file));
    }
    m_isAllRead = true;
    return m_all;
}

DescriptionTexts FolderTexts::Read(const std::filesystem::path& file)
{
    const std::optional<std::string> bytes = ReadWholeFile(file);
    DescriptionTexts texts = TextsOf(file.filename().string(), bytes.value_or(""));
    texts.isRead = bytes.has_value();
    return texts;
}

void FolderTexts::Forget(const std::string& fileName)
{
    m_files.reset();
    m_names.reset();
    m_isAllRead = false;
    std::erase_if(m_all, [&](const DescriptionTexts& texts) { return texts.fileName == fileName; });
}

std::string FolderTexts::FirstOf(const std::string& section) const
{
    const auto first =
        std::ranges::find_if(All(), [&](const DescriptionTexts& texts) { return texts.sections.contains(section); });
    return first != All().end() ? first->fileName : "";
}

bool FolderTexts::Open(const std::string& dialog) const
{
    return std::ranges::any_of(All(),
                               [&](const DescriptionTexts& texts) { return texts.opens.contains(FoldedName(dialog)); });
}

} // namespace lytdlg
