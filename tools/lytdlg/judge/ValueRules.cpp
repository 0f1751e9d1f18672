#include "lytdlg/judge/ValueRules.h"

#include "lytdlg/judge/LineTokens.h"
#include "lytdlg/judge/PlacedValue.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{
namespace value_rules
{

constexpr Rule unknownControl = {
    "value-control-unknown",
    Level::Warning,
    "A statement of $VALUES names no control, and is passed over.",
    "The name is that of a control of the layout, letter by letter and without its point. A blank\n"
    "does not separate: after the name comes an equals sign or a colon.",
    "$VALUES\nUnti = m",
    "$VALUES\nUnit = m"};

constexpr Rule unused = {
    "value-unused",
    Level::Warning,
    "A control ignores a statement.",
    "OK and Cancel take no statement at all. Texts and frames take HIDDEN, INVISIBLE, DISPLAYONLY and\n"
    "INACTIVE only.",
    "$VALUES\nOk = INACTIVE",
    "$VALUES\nAdd = INACTIVE"};

constexpr Rule colon = {
    "value-colon",
    Level::Note,
    "Another sign stands where a colon should stand.",
    "A colon after the name begins an item, a text of a check box or an action. The library takes any\n"
    "other sign that separates for it; who reads the file does not.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd = ADD = AllRooms, Rooms",
    "$VALUES"};

constexpr Rule optionWord = {
    "option-word",
    Level::Warning,
    "A value was meant as HIDDEN, INVISIBLE, DISPLAYONLY or INACTIVE, but is spelt differently.",
    "Words are compared letter by letter. Any other text is what the control begins with.",
    "$VALUES\nUnit = Hidden",
    "$VALUES\nUnit = HIDDEN"};

constexpr Rule keyword = {
    "keyword-unknown",
    Level::Warning,
    "A word means nothing to its control.",
    "A field knows FILLEDBY, a check box ON and OFF, a list FILLEDBY and DBLCLICK. An option and an\n"
    "option group know none. For a list, any other word is the key of an item's text.",
    "$VALUES\n-Order = s\nOrder: x = s",
    "$VALUES\nOrder = s\n-Order = s"};

constexpr Rule noText = {
    "item-without-text",
    Level::Warning,
    "A statement gives a list an item without a text.",
    "A list takes no value to begin with from $VALUES. A statement with one word makes an item that\n"
    "shows as \"no value present\": an item has the key of its text and its value.",
    "$VALUES\nRooms = x",
    "$VALUES\nRooms: Hall = x"};

constexpr Rule twice = {"value-twice",
                        Level::Warning,
                        "A statement is undone by a later one.",
                        "When several statements say the same thing about a control, the last one counts.",
                        "$VALUES\nUnit = m\nUnit = km",
                        "$VALUES\nUnit = km"};

void JudgeUnknown(const PlacedValue& statement)
{
    const Description& description = statement.judged.description;
    const std::string& name = statement.value.name;
    const std::string first = name.substr(0, name.find(' '));
    const bool isBlank = first != name && description.FindControl(first) != nullptr;
    statement.judged.findings.Add(unknownControl, statement.PlaceOfName(),
                                  "no control is called " + InQuotes(name) + "; the statement is passed over",
                                  isBlank
                                      ? "a blank does not separate: write " + InQuotes(first + ":") + " before the rest"
                                      : MeantOr(name, ControlNames(description), "use the name of a control"));
}

// A list takes any word before its value for the key of a text.
void JudgeWords(const PlacedValue& statement)
{
    const ValueStatement& value = statement.value;
    if (IsMeantAsOption(value))
    {
        statement.judged.findings.Add(optionWord, statement.PlaceOfValue(),
                                      InQuotes(value.values.front()) + " is taken for a value",
                                      MeantOr(value.values.front(), WordsOf<ClytOption>(), ""));
        return;
    }
    if (statement.role == Role::Nothing)
    {
        statement.judged.findings.Add(
            unused, statement.PlaceOfName(), std::string(NameOf(statement.kind)) + " makes nothing of this statement",
            IsDefault(statement.kind) ? "it takes no statements; delete it"
                                      : "it takes HIDDEN, INVISIBLE, DISPLAYONLY and INACTIVE");
        return;
    }
    if (statement.role == Role::Item && value.keyword.empty())
    {
        statement.judged.findings.Add(noText, statement.PlaceOfName(),
                                      "this adds an item without a text to " + statement.Name(),
                                      "write " + InQuotes(value.name + ": KEY = " + value.values.front()));
        return;
    }
    static const std::vector<std::string> listWords = {"FILLEDBY", "DBLCLICK"};
    static const std::vector<std::string> checkWords = {"ON", "OFF"};
    static const std::vector<std::string> fieldWords = {"FILLEDBY"};
    static const std::vector<std::string> noWords;
    const bool isOption = statement.role == Role::Option;
    const bool isWordless = statement.role == Role::Default || statement.role == Role::OptionValue || isOption;
    const bool isItemWord =
        statement.role == Role::Item && (!MeantWord(value.keyword, listWords).empty() || value.values.size() > 1);
    if (value.keyword.empty() || (!isWordless && !isItemWord))
        return;
    const bool isKnownElsewhere = value.keyword == listWords[0] || value.keyword == listWords[1];
    const std::vector<std::string>& known = statement.kind == Kind::CheckBox ? checkWords
                                            : HasItems(statement.kind)       ? listWords
                                            : statement.kind == Kind::Field  ? fieldWords
                                                                             : noWords;
    const std::string hint = isOption           ? "write an option in a statement of its own, and no other word in it"
                             : isKnownElsewhere ? "delete the word"
                                                : MeantOr(value.keyword, known, "delete the word");
    statement.judged.findings.Add(keyword, statement.PlaceOfKeyword(),
                                  InQuotes(value.keyword) + " means nothing to " + NameOf(statement.kind), hint);
}

// Statements of a role of which the last one counts.
bool IsSingle(Role role)
{
    return role != Role::Nothing && role != Role::Option && role != Role::Item;
}

using Told = std::map<std::pair<std::string, Role>, const ValueStatement*>;

void JudgeTwice(const Case& judged)
{
    Told last;
    for (const ValueStatement& value : judged.description.values)
    {
        const PlacedValue statement(judged, value);
        // What was meant otherwise is told by itself.
        const bool isMeantOtherwise =
            IsMeantAsOption(value) || (statement.role == Role::Default && !value.keyword.empty());
        if (!IsSingle(statement.role) || isMeantOtherwise)
            continue;
        const ValueStatement*& before = last[{value.name, statement.role}];
        if (before != nullptr)
            judged.findings.Add(twice, judged.description.PlaceOf(before->span.line),
                                "line " + std::to_string(value.span.line) + " undoes this statement",
                                "delete one of the two");
        before = &value;
    }
}

void JudgeColon(const PlacedValue& statement)
{
    const bool takesColon = statement.role == Role::On || statement.role == Role::Off || statement.role == Role::Item ||
                            statement.role == Role::DoubleClick || statement.role == Role::Action;
    if (!takesColon || statement.value.keyword.empty())
        return;
    const SourceLine& line = statement.judged.description.text.Line(statement.value.span.line);
    const std::vector<LineToken> words = TokensOf(line.text, Section::Values);
    if (!words.empty() && words.front().delimiter != ':')
        statement.judged.findings.Add(colon, statement.PlaceOfName(), "no colon stands after " + statement.Name(),
                                      "write \"" + statement.value.name + ": " + statement.value.keyword + " = ...\"");
}

void JudgeStatement(const PlacedValue& statement)
{
    if (statement.judged.description.FindControl(statement.value.name) == nullptr)
        JudgeUnknown(statement);
    else if (statement.kind != Kind::Unknown)
    {
        JudgeWords(statement);
        JudgeColon(statement);
    }
}

} // namespace value_rules
} // namespace

Family ValueRules()
{
    using namespace value_rules;
    return {{&unknownControl, &unused, &colon, &optionWord, &keyword, &noText, &twice},
            [](const Case& judged)
            {
                for (const ValueStatement& value : judged.description.values)
                    JudgeStatement(PlacedValue(judged, value));
                JudgeTwice(judged);
            }};
}

} // namespace lytdlg
