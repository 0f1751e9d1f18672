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
    const std::string message = "no control is called " + InQuotes(name) + "; the statement is passed over";
    if (!isBlank)
    {
        AddUnknown(statement.judged, "value-control-unknown", statement.PlaceOfName(), message,
                   {name, ControlNames(description), "use the name of a control"});
        return;
    }
    const ClytSpan place = statement.PlaceOfName();
    statement.judged.findings
        .Add("value-control-unknown", place, message,
             "a blank does not separate: write " + InQuotes(first + ":") + " before the rest")
        .FixSafely({place.line, place.column + static_cast<int>(first.size()), 0}, ":");
}

// A list takes any word before its value for the key of a text.
void JudgeWords(const PlacedValue& statement)
{
    const ValueStatement& value = statement.value;
    if (IsMeantAsOption(value))
    {
        Finding& finding = AddUnknown(
            statement.judged, "option-word", statement.PlaceOfValue(),
            InQuotes(value.values.front()) + " is taken for a value",
            {value.values.front(), WordsOf<ClytOption>(), "write HIDDEN, INVISIBLE, DISPLAYONLY or INACTIVE"});
        if (finding.fix)
            finding.fix->isSafe = false;
        return;
    }
    if (statement.role == Role::Nothing)
    {
        const bool takesNone = lytTypeOf(statement.kind).isDefault;
        Finding& finding = statement.judged.findings.Add(
            "value-unused", statement.PlaceOfName(),
            std::string(lytTypeOf(statement.kind).name) + " makes nothing of this statement",
            takesNone ? "it takes no statements; delete it" : "it takes HIDDEN, INVISIBLE, DISPLAYONLY and INACTIVE");
        if (takesNone)
            finding.FixSafely(statement.judged.description.PlaceOf(value.span.line), "");
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
    const std::string without = isWordless ? "write " + InQuotes(value.name + " = " + value.values.front())
                                           : std::string("delete the statement");
    const std::string hint = isOption           ? "write an option in a separate statement, with no other word"
                             : isKnownElsewhere ? without
                                                : MeantOr(value.keyword, known, without);
    Finding& finding = statement.judged.findings.Add(
        "keyword-unknown", statement.PlaceOfKeyword(),
        InQuotes(value.keyword) + " means nothing to " + lytTypeOf(statement.kind).name, hint);
    if (!isOption && !isKnownElsewhere)
        FixWord(statement.judged, finding, {value.keyword, known, ""});
    // The word beside it is the value, or the key of an item.
    if (finding.fix)
        finding.fix->isSafe = false;
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
            judged.findings
                .Add("value-twice", judged.description.PlaceOf(before->span.line),
                     "line " + std::to_string(value.span.line) + " undoes this statement", "delete one of the two")
                .FixSafely(judged.description.PlaceOf(before->span.line), "");
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
    if (words.empty() || words.front().delimiter == ':')
        return;
    const ClytSpan place = statement.PlaceOfName();
    Finding& finding =
        statement.judged.findings.Add("value-colon", place, "no colon follows " + statement.Name(),
                                      "write \"" + statement.value.name + ": " + statement.value.keyword + " = ...\"");
    const size_t end = static_cast<size_t>(place.column) + static_cast<size_t>(place.length);
    const size_t sign = line.text.find(words.front().delimiter, end);
    if (sign != std::string::npos)
        finding.FixSafely({place.line, static_cast<int>(line.text.find_last_not_of(" \t", sign - 1)) + 1,
                           static_cast<int>(sign - line.text.find_last_not_of(" \t", sign - 1))},
                          ":");
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
