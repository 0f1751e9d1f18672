#include "lytdlg/language/LanguageHelp.h"

#include "commandline/Text.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/language/LanguagePage.h"

#include <algorithm>
#include <cctype>

namespace lytdlg
{

namespace
{

constexpr size_t mostLines = 12;

// Each line, list item and row of a table by itself; a line that continues an item is joined to it.
std::vector<std::string> ChapterOf(Section section)
{
    const std::string heading = section == Section::Head     ? "## The file"
                                : section == Section::Layout ? "## Controls"
                                                             : std::string("## ") + lytWordOf(section);
    std::vector<std::string> chapter;
    bool isInside = false;
    for (const std::string& line : commandline::LinesOf({std::begin(languagePage), std::end(languagePage)}))
    {
        if (line.starts_with("## "))
            isInside = line == heading;
        else if (isInside && !line.empty())
        {
            const bool continues = line.starts_with("  ") && !line.starts_with("    ") && !chapter.empty();
            if (continues)
                chapter.back() += line.substr(1);
            else
                chapter.push_back(line);
        }
    }
    return chapter;
}

bool HasWord(const std::string& line, const std::string& word)
{
    const auto isLetter = [&](size_t place)
    { return place < line.size() && std::isalnum(static_cast<unsigned char>(line[place])) != 0; };
    for (size_t place = line.find(word); place != std::string::npos; place = line.find(word, place + 1))
    {
        if (!isLetter(place - 1) && !isLetter(place + word.size()))
            return true;
    }
    return false;
}

bool IsOfLanguage(const NamedWord& word)
{
    const CString text(word.text.c_str());
    switch (word.meaning)
    {
    case Meaning::SectionWord: return true;
    case Meaning::TypeWord: return lytTypeOf(word.text).kind != ClytKind::Unknown;
    case Meaning::Keyword:
        return lytMeaningOf<ClytKeyword>(text) != ClytKeyword::Other ||
               lytMeaningOf<ClytAction>(text) != ClytAction::Other;
    case Meaning::Option: return lytMeaningOf<ClytOption>(text) != ClytOption::Other;
    case Meaning::State: return lytMeaningOf<ClytState>(text) != ClytState::Other;
    case Meaning::Fill: return lytMeaningOf<ClytFillAction>(text) != ClytFillAction::Other;
    case Meaning::Value: return lytMeans<ClytValueWord::Null>(text) || lytMeans<ClytValueWord::NotNull>(text);
    default: return false;
    }
}

// Of a line of a list, a table or an example.
std::string AsMarkdown(const std::string& line)
{
    if (line.starts_with("    "))
        return "    " + line.substr(4) + "\n";
    return line.starts_with("- ") || line.starts_with("| ") ? "\n- " + line.substr(2) + "\n\n" : "\n" + line + "\n";
}

} // namespace

std::string HelpOn(const NamedWord& word, Section section)
{
    if (!IsOfLanguage(word))
        return "";
    std::string help = "**" + commandline::ToUtf8(word.text) + "**\n\n";
    size_t count = 0;
    for (const std::string& line : ChapterOf(section))
    {
        if ((word.meaning == Meaning::SectionWord || HasWord(line, word.text)) && ++count <= mostLines)
            help += AsMarkdown(line);
    }
    return help;
}

} // namespace lytdlg
