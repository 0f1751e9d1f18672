#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/PlacedValue.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

void JudgeUnknown(const PlacedValue& statement)
{
    const Description& description = statement.judged.description;
    const std::string& name = statement.value.name;
    const std::string first = name.substr(0, name.find(' '));
    const bool isBlank = first != name && description.FindControl(first) != nullptr;
    statement.judged.findings.Add("value-control-unknown", statement.PlaceOfName(),
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
        statement.judged.findings.Add("option-word", statement.PlaceOfValue(),
                                      InQuotes(value.values.front()) + " is taken for a value",
                                      MeantOr(value.values.front(), WordsOf<ClytOption>(), ""));
        return;
    }
    if (statement.role == Role::Nothing)
    {
        statement.judged.findings.Add("value-unused", statement.PlaceOfName(),
                                      std::string(lytTypeOf(statement.kind).name) + " makes nothing of this statement",
                                      lytTypeOf(statement.kind).isDefault
                                          ? "it takes no statements; delete it"
                                          : "it takes HIDDEN, INVISIBLE, DISPLAYONLY and INACTIVE");
        return;
    }
    if (statement.role == Role::Item && value.keyword.empty())
    {
        statement.judged.findings.Add("item-without-text", statement.PlaceOfName(),
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
    const std::vector<std::string>& known = statement.kind == Kind::CheckBox     ? checkWords
                                            : lytTypeOf(statement.kind).hasItems ? listWords
                                            : statement.kind == Kind::Field      ? fieldWords
                                                                                 : noWords;
    const std::string hint = isOption           ? "write an option in a separate statement, with no other word"
                             : isKnownElsewhere ? "delete the word"
                                                : MeantOr(value.keyword, known, "delete the word");
    statement.judged.findings.Add("keyword-unknown", statement.PlaceOfKeyword(),
                                  InQuotes(value.keyword) + " means nothing to " + lytTypeOf(statement.kind).name,
                                  hint);
}

// Statements of a role of which the last one counts.
bool IsSingle(Role role)
{
    return role != Role::Nothing && role != Role::Option && role != Role::Item;
}

using Told = std::map<std::pair<std::string, Role>, const ValueStatement*>;

void JudgeValuesTwice(const Case& judged)
{
    Told last;
    for (const ValueStatement& value : judged.description.values)
    {
        const PlacedValue statement(judged, value);
        // What was meant otherwise is reported by itself.
        const bool isMeantOtherwise =
            IsMeantAsOption(value) || (statement.role == Role::Default && !value.keyword.empty());
        if (!IsSingle(statement.role) || isMeantOtherwise)
            continue;
        const ValueStatement*& before = last[{value.name, statement.role}];
        if (before != nullptr)
            judged.findings.Add("value-twice", judged.description.PlaceOf(before->span.line),
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
        statement.judged.findings.Add("value-colon", statement.PlaceOfName(), "no colon follows " + statement.Name(),
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

} // namespace

void ApplyValueRules(const Case& judged)
{
    for (const ValueStatement& value : judged.description.values)
        JudgeStatement(PlacedValue(judged, value));
    JudgeValuesTwice(judged);
}

} // namespace lytdlg
