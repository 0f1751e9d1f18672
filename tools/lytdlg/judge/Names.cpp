#include "lytdlg/judge/Names.h"

#include "commandline/CommandLine.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>

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

std::string InQuotes(const std::string& text)
{
    return "\"" + text + "\"";
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
