#include "lytcall/Redaction.h"

#include <algorithm>
#include <cctype>

namespace lytcall
{

namespace
{

std::string InSmallLetters(std::string text)
{
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// Bytes beyond ASCII belong to letters, in any code page.
bool IsPartOfName(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '-' || c == '~' || c == '.' ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::string NameAt(const std::string& line, size_t start)
{
    const auto begin = line.begin() + static_cast<std::ptrdiff_t>(start);
    return {begin, std::find_if_not(begin, line.end(), IsPartOfName)};
}

class Names
{
public:
    explicit Names(const ReportLines& lines)
    {
        for (const std::string& line : lines)
        {
            NoteAfter(line, "USERNAME:", "USER");
            NoteAfter(line, "COMPUTERNAME:", "MACHINE");
        }
        for (const std::string& line : lines)
        {
            NoteServers(line);
            NoteFolders(line, "\\users\\");
            NoteFolders(line, "\\documents and settings\\");
        }
        // Of two names of which one begins the other, the longer one is looked for first.
        std::ranges::stable_sort(m_names, std::ranges::greater(), [](const Name& name) { return name.text.size(); });
    }

    std::string Replaced(const std::string& line) const
    {
        const std::string small = InSmallLetters(line);
        std::string replaced;
        for (size_t place = 0; place < line.size();)
        {
            const Name* name = NameThatStands(small, place);
            replaced += name != nullptr ? name->word : line.substr(place, 1);
            place += name != nullptr ? name->text.size() : 1;
        }
        return replaced;
    }

private:
    struct Name
    {
        std::string text; // in small letters
        std::string word;
    };

    bool IsKnown(const std::string& text) const
    {
        return std::ranges::find(m_names, text, &Name::text) != m_names.end();
    }

    void Note(const std::string& name, const std::string& word)
    {
        const std::string text = InSmallLetters(name);
        if (!text.empty() && !IsKnown(text))
            m_names.push_back({text, word});
    }

    void NoteNumbered(const std::string& name, const std::string& word, int& count)
    {
        if (!name.empty() && !IsKnown(InSmallLetters(name)))
            Note(name, word + std::to_string(++count));
    }

    // A name of the machine or of the user may hold blanks.
    void NoteAfter(const std::string& line, const std::string& label, const std::string& word)
    {
        if (line.starts_with(label))
            Note(line.substr(label.size()), word);
    }

    void NoteServers(const std::string& line)
    {
        for (size_t place = line.find("\\\\"); place != std::string::npos; place = line.find("\\\\", place + 2))
        {
            // After a drive, or inside a path, two backslashes are a slip and name no server.
            if (place == 0 || !(IsPartOfName(line[place - 1]) || line[place - 1] == ':' || line[place - 1] == '\\'))
                NoteNumbered(NameAt(line, place + 2), "SERVER", m_servers);
        }
        const std::string label = "  Network Printer: ";
        const size_t on = line.rfind(" on ");
        if (line.starts_with(label) && on != std::string::npos && line[on + 4] != '\\')
            NoteNumbered(NameAt(line, on + 4), "SERVER", m_servers);
    }

    void NoteFolders(const std::string& line, const std::string& parent)
    {
        static const ReportLines common = {"public", "default", "all"};
        const std::string small = InSmallLetters(line);
        for (size_t place = small.find(parent); place != std::string::npos; place = small.find(parent, place + 1))
        {
            const std::string name = NameAt(small, place + parent.size());
            if (std::ranges::find(common, name) == common.end())
                NoteNumbered(name, "USER", m_users);
        }
    }

    const Name* NameThatStands(const std::string& small, size_t place) const
    {
        if (place > 0 && IsPartOfName(small[place - 1]))
            return nullptr;
        const auto name =
            std::ranges::find_if(m_names,
                                 [&](const Name& candidate)
                                 {
                                     const size_t end = place + candidate.text.size();
                                     return small.compare(place, candidate.text.size(), candidate.text) == 0 &&
                                            (end == small.size() || !IsPartOfName(small[end]) || small[end] == '.');
                                 });
        return name != m_names.end() ? &*name : nullptr;
    }

    std::vector<Name> m_names;
    int m_servers = 0;
    int m_users = 0;
};

} // namespace

ReportLines Redacted(ReportLines lines)
{
    const Names names(lines);
    for (std::string& line : lines)
        line = names.Replaced(line);
    return lines;
}

} // namespace lytcall
