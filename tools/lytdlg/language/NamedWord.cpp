#include "lytdlg/language/NamedWord.h"

#include "lytdlg/judge/StatementText.h"
#include "lytdlg/language/MarkedLine.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

NamedWord HeaderWord(const SourceLine& line, size_t index)
{
    NamedWord word;
    const bool hasName = index == 1;
    word.meaning = index == 0                                   ? Meaning::SectionWord
                   : hasName && line.section == Section::Layout ? Meaning::TextSection
                   : hasName && line.section == Section::Input  ? Meaning::Part
                   : hasName && line.section == Section::Output ? Meaning::Group
                                                                : Meaning::Nothing;
    word.isDeclared = word.meaning == Meaning::Part || word.meaning == Meaning::Group;
    return word;
}

// The word that is in the line from a column on, or that would be there.
NamedWord ReadWord(const Description& description, const SourceLine& line, ClytSpan place, size_t index)
{
    // The name of a control begins after its point; of an item and its key, the key is a name.
    const auto column = static_cast<size_t>(place.column);
    std::string text = line.text.substr(column, static_cast<size_t>(place.length));
    if (line.section == Section::Layout && text.starts_with('.'))
    {
        text.erase(0, 1);
        ++place.column;
        --place.length;
    }
    std::string marked = line.text;
    marked.replace(static_cast<size_t>(place.column), static_cast<size_t>(place.length), 1, theMark);
    NamedWord word = line.isHeader ? HeaderWord(line, index) : WordUnderMark(description, line, marked, text);
    if (word.meaning == Meaning::TextKey && line.section == Section::Values)
        place.length = static_cast<int>(std::min(text.find('/'), text.size()));
    word.place = place;
    word.home = description.path;
    word.text = text.substr(0, static_cast<size_t>(place.length));
    return word;
}

std::vector<LineToken> TokensIn(const SourceLine& line)
{
    return line.number > 0 ? TokensOf(line.text, line.section) : std::vector<LineToken>();
}

ClytSpan PlaceIn(const SourceLine& line, const LineToken& token)
{
    return {line.number, token.column, static_cast<int>(token.text.size())};
}

} // namespace

NamedWord WordAt(const Description& description, int line, int column)
{
    const SourceLine& whole = description.text.Line(line);
    const size_t length = whole.text.size();
    if (line < 1 || column < 0 || static_cast<size_t>(column) > length || length >= ClytDialogFile::lineSize ||
        static_cast<size_t>(column) > EndOfStatement(whole))
        return {};
    const std::vector<LineToken> tokens = TokensIn(whole);
    for (size_t index = 0; index < tokens.size(); ++index)
    {
        const ClytSpan place = PlaceIn(whole, tokens[index]);
        if (place.column <= column && column <= place.column + place.length)
            return ReadWord(description, whole, place, index);
    }
    return ReadWord(description, whole, {line, column, 0}, tokens.size());
}

std::vector<NamedWord> WordsIn(const Description& description, int line)
{
    const SourceLine& whole = description.text.Line(line);
    std::vector<NamedWord> words;
    if (whole.text.size() >= ClytDialogFile::lineSize)
        return words;
    const std::vector<LineToken> tokens = TokensIn(whole);
    for (size_t index = 0; index < tokens.size(); ++index)
    {
        if (tokens[index].text.empty())
            continue;
        NamedWord word = ReadWord(description, whole, PlaceIn(whole, tokens[index]), index);
        if (word.meaning == Meaning::Item && description.FindControl(word.text) != nullptr)
            word.meaning = Meaning::Control;
        if (word.meaning != Meaning::Nothing && word.meaning != Meaning::Item)
            words.push_back(std::move(word));
    }
    return words;
}

std::vector<NamedWord> AllWordsIn(const Description& description)
{
    std::vector<NamedWord> words;
    for (const SourceLine& line : description.text.Lines())
        std::ranges::move(WordsIn(description, line.number), std::back_inserter(words));
    return words;
}

bool IsSame(const NamedWord& left, const NamedWord& right)
{
    if (left.meaning != right.meaning)
        return false;
    switch (left.meaning)
    {
    case Meaning::TextKey:
    case Meaning::Message:
    case Meaning::TextSection:
    case Meaning::Dialog:
    case Meaning::Library: return IsSameName(left.text, right.text) && IsSameName(left.scope, right.scope);
    default: return left.text == right.text && left.scope == right.scope;
    }
}

std::vector<NamedWord> WordsLike(const Description& description, const NamedWord& word)
{
    std::vector<NamedWord> words;
    const std::string wanted = FoldedName(word.text);
    for (const SourceLine& line : description.text.Lines())
    {
        if (FoldedName(line.text).find(wanted) == std::string::npos)
            continue;
        for (NamedWord& found : WordsIn(description, line.number))
        {
            if (IsSame(found, word))
                words.push_back(std::move(found));
        }
    }
    return words;
}

} // namespace lytdlg
