#include "lytdlg/text/LanguageFiles.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// What the platform's profile functions take for a blank.
constexpr std::string_view blanksAround = " \t\n\v\f\r\x1A";

std::string_view WithoutBlanks(std::string_view text)
{
    const size_t start = std::min(text.find_first_not_of(blanksAround), text.size());
    text.remove_prefix(start);
    return text.substr(0, text.find_last_not_of(blanksAround) + 1);
}

std::string_view UpToNul(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

// One pair of quotes round a text falls away.
std::string_view Unquoted(std::string_view text)
{
    const bool isQuoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

bool IsSectionLine(std::string_view text)
{
    return !text.empty() && text.front() == '[' && text.find(']') != std::string_view::npos;
}

// Reads a file from its first line to its last.
class KeyReader
{
public:
    explicit KeyReader(std::string_view content) : m_rest(content) {}

    LanguageLines Read()
    {
        while (!m_rest.empty())
            TakeLine();
        return std::move(m_lines);
    }

private:
    // A line ends at a carriage return, a line feed or both.
    void TakeLine()
    {
        const size_t end = std::min(m_rest.find_first_of("\r\n"), m_rest.size());
        const std::string_view line = m_rest.substr(0, end);
        const size_t endLength = m_rest.substr(end).starts_with("\r\n") ? 2 : 1;
        m_rest.remove_prefix(std::min(end + endLength, m_rest.size()));
        ++m_line;
        const std::string_view text = WithoutBlanks(line);
        if (IsSectionLine(text))
            BeginSection(WithoutBlanks(text.substr(1, text.rfind(']') - 1)), line);
        else if (!text.empty() && text.front() != ';')
            AddKey(text, line);
    }

    // The place of a part of the present line.
    ClytSpan PlaceOf(std::string_view part, std::string_view line) const
    {
        return {m_line, static_cast<int>(part.data() - line.data()), static_cast<int>(part.size())};
    }

    void BeginSection(std::string_view name, std::string_view line)
    {
        m_isReached = m_sections.insert(FoldedName(name)).second && !name.empty();
        m_section = name;
        m_lines.sections.push_back({m_section, PlaceOf(name, line)});
    }

    void AddKey(std::string_view text, std::string_view line)
    {
        const size_t sign = text.find('=');
        const std::string_view name = UpToNul(WithoutBlanks(text.substr(0, sign)));
        LanguageKey key = {m_section, std::string(name), {}, PlaceOf(name, line), false, false, std::string(line)};
        key.hasText = sign != std::string_view::npos;
        if (key.hasText)
            key.text = Unquoted(UpToNul(WithoutBlanks(text.substr(sign + 1))));
        key.isReached = m_isReached && m_reached.insert(TextId(m_section, key.name)).second;
        m_lines.keys.push_back(std::move(key));
    }

    std::string_view m_rest;
    int m_line = 0; // the present one
    std::string m_section;
    bool m_isReached = true;                    // above the first section, what an empty name of a section finds
    std::unordered_set<std::string> m_sections; // folded
    std::unordered_set<std::string> m_reached;  // the texts that the library finds
    LanguageLines m_lines;
};

std::vector<std::filesystem::path> LanguageFilesIn(const std::filesystem::path& folder)
{
    return FilesIn(folder / "lang", ".nls");
}

} // namespace

std::string FoldedName(std::string_view name)
{
    return CString(std::string(WithoutBlanks(name)).c_str()).MakeLower().GetString();
}

bool IsSameName(std::string_view left, std::string_view right)
{
    left = WithoutBlanks(left);
    right = WithoutBlanks(right);
    return left.size() == right.size() && FoldedName(left) == FoldedName(right);
}

std::string TextId(std::string_view section, std::string_view key)
{
    return FoldedName(section) + '\n' + FoldedName(key);
}

LanguageLines ReadLanguageLines(std::string_view content)
{
    return KeyReader(content).Read();
}

LanguageFile::LanguageFile(std::string language, std::string fileName)
    : m_language(std::move(language)), m_fileName(std::move(fileName))
{
    std::string content = ReadWholeFile(PathOf(m_fileName)).value_or("");
    // The platform takes the mark of UTF-16 for what it is, and converts the text; that of UTF-8 it takes for letters.
    if (content.starts_with("\xFF\xFE"))
        content = commandline::ToAnsi(commandline::FromMarkedUnicode(content));
    m_firstLine = content.substr(0, content.find_first_of("\r\n"));
    LanguageLines lines = ReadLanguageLines(content);
    for (const LanguageSection& section : lines.sections)
        m_sections.insert(FoldedName(section.name));
    m_keys = std::move(lines.keys);
    for (size_t index = 0; index < m_keys.size(); ++index)
    {
        if (m_keys[index].isReached)
            m_reached.emplace(TextId(m_keys[index].section, m_keys[index].name), index);
    }
}

bool LanguageFile::HasByteOrderMark() const
{
    return m_firstLine.starts_with(byteOrderMark);
}

bool LanguageFile::HasSection(const std::string& section) const
{
    return m_sections.contains(FoldedName(section));
}

const LanguageKey* LanguageFile::Find(const std::string& section, const std::string& key) const
{
    const auto found = m_reached.find(TextId(section, key));
    return found != m_reached.end() && m_keys[found->second].hasText ? &m_keys[found->second] : nullptr;
}

std::vector<std::string> LanguagesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> languages;
    for (const std::filesystem::path& file : LanguageFilesIn(folder))
        languages.push_back(file.stem().string());
    return languages;
}

LanguageFiles::LanguageFiles(const std::filesystem::path& folder)
{
    for (const std::filesystem::path& file : LanguageFilesIn(folder))
        m_files.emplace_back(file.stem().string(), file.string());
}

std::vector<std::string> LanguageFiles::Languages() const
{
    std::vector<std::string> languages;
    for (const LanguageFile& file : m_files)
        languages.push_back(file.Language());
    return languages;
}

const LanguageFile* LanguageFiles::FileOf(const std::string& language) const
{
    const auto found = std::ranges::find(m_files, language, &LanguageFile::Language);
    return found != m_files.end() ? &*found : nullptr;
}

const LanguageKey* LanguageFiles::Find(const std::string& language, const std::string& section,
                                       const std::string& key) const
{
    const LanguageFile* file = FileOf(language);
    return file != nullptr ? file->Find(section, key) : nullptr;
}

bool LanguageFiles::Has(const std::string& language, const std::string& section, const std::string& key) const
{
    return Find(language, section, key) != nullptr;
}

std::string LanguageFiles::Text(const std::string& language, const std::string& section, const std::string& key) const
{
    const LanguageKey* found = Find(language, section, key);
    return found != nullptr ? found->text : lytNoValue;
}

ClytSpan LanguageFiles::Place(const std::string& language, const std::string& section, const std::string& key) const
{
    const LanguageKey* found = Find(language, section, key);
    return found != nullptr ? found->place : ClytSpan();
}

std::vector<LanguageKey> LanguageFiles::Keys(const std::string& language, const std::string& section) const
{
    std::vector<LanguageKey> keys;
    const LanguageFile* file = FileOf(language);
    if (file == nullptr)
        return keys;
    std::ranges::copy_if(file->Keys(), std::back_inserter(keys),
                         [&](const LanguageKey& key) { return key.isReached && IsSameName(key.section, section); });
    return keys;
}

const std::vector<LibraryText>& LibraryTexts()
{
    static const std::vector<LibraryText> texts = []
    {
        std::vector<LibraryText> all;
        for (const ClytKind button : {ClytKind::Ok, ClytKind::Cancel})
            all.push_back({lytButtonSection, lytTypeOf(button).captionKey});
        all.push_back({"Label", "TreeDlgLabel"});
        for (const ClytErrorRow& error : lytErrors)
            all.push_back({lytErrorSection, error.number});
        return all;
    }();
    return texts;
}

} // namespace lytdlg
