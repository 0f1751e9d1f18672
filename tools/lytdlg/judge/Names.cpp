#include "lytdlg/judge/Names.h"

#include "commandline/CommandLine.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace lytdlg
{

namespace
{

// Words of other kinds of descriptions, and the words here that mean the same.
struct Synonym
{
    const char* word;
    const char* meant;
};
constexpr Synonym synonyms[] = {
    {"READONLY", "DISPLAYONLY"},
    {"READ-ONLY", "DISPLAYONLY"},
    {"HIDE", "HIDDEN"},
    {"DISABLED", "ACTIVE"},
    {"DISABLED", "INACTIVE"},
    {"GREYED", "INACTIVE"},
    {"GRAYED", "INACTIVE"},
    {"ENABLED", "ACTIVE"},
    {"ENABLE", "ACTIVE"},
    {"SHOW", "VISIBLE"},
    {"SHOWN", "VISIBLE"},
    {"HIDDEN", "VISIBLE"},
    {"HIDE", "VISIBLE"},
    {"EMPTY", "CLEAR"},
    {"EMPTY", "NULL"},
    {"NIL", "NULL"},
    {"NOTEMPTY", "NOTNULL"},
    {"!NULL", "NOTNULL"},
    {"DEFAULT", "DEFBUTTON"},
    {"REMOVE", "DELETE"},
    {"INSERT", "ADD"},
    {"APPEND", "ADD"},
    {"OPEN", "DIALOG"},
    {"CALL", "ACTION"},
    {"REPLACE", "MODIFY"},
    {"SPLIT", "CONCAT"},
    {"DOUBLECLICK", "DBLCLICK"},
    {"DBLCLK", "DBLCLICK"},
    {"Edit", lytTypeOf(Kind::Field).word},
    {"EditBox", lytTypeOf(Kind::Field).word},
    {"Label", lytTypeOf(Kind::Text).word},
    {"Static", lytTypeOf(Kind::Text).word},
    {"Button", lytTypeOf(Kind::Button).word},
    {"RadioButton", lytTypeOf(Kind::Option).word},
    {"Frame", lytTypeOf(Kind::Frame).word},
    {"DropDown", lytTypeOf(Kind::DropList).word},
    {"DropDownList", lytTypeOf(Kind::DropList).word},
    {"DropDownListBox", lytTypeOf(Kind::DropList).word},
    {"CheckedListBox", lytTypeOf(Kind::CheckList).word},
};

std::string DigitsOf(const std::string& text)
{
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), [](unsigned char ch) { return std::isdigit(ch) != 0; });
    return digits;
}

} // namespace

const std::vector<std::string>& ControlNames(const Description& description)
{
    return description.Index().ControlNames();
}

const std::vector<std::string>& GroupNames(const Description& description)
{
    return description.Index().GroupNames();
}

const std::vector<std::string>& PartNames(const Description& description)
{
    return description.Index().PartNames();
}

bool HasGroup(const Description& description, const std::string& name)
{
    return description.Index().HasGroup(name);
}

bool HasPart(const Description& description, const std::string& name)
{
    return description.Index().HasPart(name);
}

Kind KindOfControl(const Description& description, const std::string& name)
{
    const ClytControlStatement* control = description.FindControl(name);
    return control != nullptr ? lytTypeOf(control->type.GetString()).kind : Kind::Unknown;
}

const std::vector<std::string>& TypeWords()
{
    static const std::vector<std::string> words = []
    {
        std::vector<std::string> all;
        for (const ClytType& type : lytTypes)
            all.emplace_back(type.word);
        return all;
    }();
    return words;
}

std::string MeantWord(const std::string& word, const std::vector<std::string>& known)
{
    if (known.size() > mostCandidates)
        return "";
    const auto same =
        std::ranges::find_if(known, [&](const std::string& candidate) { return IsSameName(candidate, word); });
    if (same != known.end())
        return *same;
    for (const Synonym& synonym : synonyms)
    {
        if (IsSameName(synonym.word, word) && std::ranges::find(known, synonym.meant) != known.end())
            return synonym.meant;
    }
    constexpr size_t fewestLetters = 3; // any two shorter words are close
    return word.size() < fewestLetters ? "" : commandline::Nearest(word, known);
}

std::string MeantOr(const std::string& word, const std::vector<std::string>& known, const std::string& otherwise)
{
    const std::string meant = MeantWord(word, known);
    return meant.empty() ? otherwise : "did you mean " + InQuotes(meant) + "?";
}

bool IsSurelyMeant(const std::string& word, const std::string& meant, const std::vector<std::string>& known)
{
    const auto isOther = [&](const std::string& candidate) { return candidate != meant; };
    const auto isSame = [&](const std::string& candidate) { return IsSameName(candidate, word); };
    if (isSame(meant))
        return std::ranges::none_of(known, [&](const std::string& each) { return isOther(each) && isSame(each); });
    // The names of one kind may differ in their numbers only.
    return commandline::IsClose(word, meant) && DigitsOf(word) == DigitsOf(meant) &&
           std::ranges::none_of(known, [&](const std::string& each)
                                { return isOther(each) && commandline::IsClose(word, each); });
}

void FixWord(const Case& judged, Finding& finding, const UnknownWord& word)
{
    const std::string meant = MeantWord(word.text, word.known);
    const std::string& line = judged.description.text.Line(finding.place.line).text;
    const auto column = static_cast<size_t>(finding.place.column);
    const auto length = static_cast<size_t>(finding.place.length);
    const size_t at = std::min(line.find(word.text, column), line.size());
    if (meant.empty() || at + word.text.size() > column + length || line.compare(at, word.text.size(), word.text) != 0)
        return;
    finding.fix = {{finding.place.line, static_cast<int>(at), static_cast<int>(word.text.size())},
                   meant,
                   IsSurelyMeant(word.text, meant, word.known)};
}

Finding& AddUnknown(const Case& judged, RuleName rule, const ClytSpan& place, std::string message,
                    const UnknownWord& word)
{
    Finding& finding =
        judged.findings.Add(rule, place, std::move(message), MeantOr(word.text, word.known, word.otherwise));
    FixWord(judged, finding, word);
    return finding;
}

bool LacksWords(ClytAction action, size_t words)
{
    constexpr size_t wordsOfDialog = 3;
    constexpr size_t wordsOfCall = 4;
    return (action == ClytAction::Dialog && words < wordsOfDialog) ||
           (action == ClytAction::Action && words < wordsOfCall);
}

std::string InQuotes(const std::string& text)
{
    return "\"" + text + "\"";
}

bool IsNamedWhereSwitchedOff(const Description& description, const std::string& word)
{
    const auto hasWord = [&](const SourceLine& line)
    {
        const bool isMark = line.text.starts_with('<') || line.text.starts_with('>');
        return !line.isRead && !isMark && !word.empty() &&
               description.PlaceOf(line.number, word).length == static_cast<int>(word.size()) &&
               line.text.find(word) != std::string::npos;
    };
    return std::ranges::any_of(description.text.Lines(), hasWord);
}

Kind KindOf(const ClytControlStatement& control)
{
    return lytTypeOf(control.type.GetString()).kind;
}

const ClytControlStatement* GroupOf(const Description& description, const ClytControlStatement& option)
{
    return description.Index().GroupOf(option);
}

const std::vector<const ClytControlStatement*>& OptionButtonsOf(const Description& description,
                                                                const std::string& group)
{
    return description.Index().FactsOf(group).optionButtons;
}

} // namespace lytdlg
