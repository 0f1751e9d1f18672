#include "lytdlg/judge/Families.h"

#include "base/Words.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/StatementText.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <map>

namespace lytdlg
{

namespace
{

ClytSpan PlaceOf(const ClytControlStatement& control, const LineToken& word)
{
    return {control.span.line, word.column, static_cast<int>(word.text.size())};
}

// One control with the words of its statement.
struct LayoutLine
{
    const Case& judged;
    const ClytControlStatement& control;
    const std::vector<LineToken> words;
    const Kind kind;
};

void JudgeType(const LayoutLine& statement)
{
    if (statement.kind == Kind::Unknown)
        AddUnknown(statement.judged, "type-unknown", PlaceOf(statement.control, statement.words[0]),
                   InQuotes(statement.words[0].text) + " is no type of control, and makes none",
                   {statement.words[0].text, TypeWords(), "use one of: " + Joined(TypeWords())});
}

bool IsInQuotes(const LayoutLine& statement, const LineToken& word)
{
    return statement.judged.description.IsQuoted(PlaceOf(statement.control, word));
}

bool IsLayoutNumber(const std::string& word)
{
    const char* rest = nullptr;
    static_cast<void>(lytNumberOf(word.c_str(), &rest));
    return !word.empty() && *rest == '\0';
}

// The first number after the four that a control has; null without one.
const LineToken* FifthNumber(const LayoutLine& statement)
{
    const std::vector<LineToken>& words = statement.words;
    const bool isFifth = words.size() > 5 && IsLayoutNumber(words[5].text) && !IsInQuotes(statement, words[5]);
    return isFifth && IsLayoutNumber(words[4].text) ? &words[5] : nullptr;
}

void JudgeNamePoint(const LayoutLine& statement)
{
    const std::vector<LineToken>& words = statement.words;
    if (const LineToken* fifth = FifthNumber(statement))
    {
        statement.judged.findings.Add("control-surplus", PlaceOf(statement.control, *fifth),
                                      "a fifth number is taken for the key of a text",
                                      "left, top, width and height are all; delete one of the numbers");
        return;
    }
    const bool isShort = words.size() > 1 && words[1].text.starts_with('.');
    const size_t last = isShort ? 1 : words.size() > 5 && words[5].text.starts_with('.') ? 5 : 6;
    if (words.size() > last + 1)
    {
        const LineToken& name = words[last];
        const LineToken& end = words.back();
        const int from = name.column + static_cast<int>(name.text.size());
        statement.judged.findings
            .Add("control-surplus", PlaceOf(statement.control, words[last + 1]), "nothing is read after the name",
                 "delete the words")
            .FixSafely({statement.control.span.line, from, end.column + static_cast<int>(end.text.size()) - from}, "");
    }
    const bool isNameAsText = words.size() == 6 && !statement.control.text.IsEmpty() &&
                              !lytTypeOf(statement.kind).hasCaption && statement.kind != Kind::Unknown &&
                              !IsInQuotes(statement, words[5]);
    const LineToken* name = isNameAsText                                                       ? &words[5]
                            : words.size() > 6 && last == 6 && !words[6].text.starts_with('.') ? &words[6]
                                                                                               : nullptr;
    if (name == nullptr || name->text.empty())
        return;
    const std::string taken = statement.control.name.GetString();
    const ClytSpan place = PlaceOf(statement.control, *name);
    statement.judged.findings
        .Add("name-without-point", place,
             isNameAsText ? InQuotes(name->text) + " is taken for a text, which " + lytTypeOf(statement.kind).name +
                                " does not show"
                          : "the control is called " + InQuotes(taken) + ", without its first letter",
             "write \"." + name->text + "\"")
        .FixSafely({place.line, place.column, 0}, ".");
}

void JudgeNumber(const Case& judged, int line, const LineToken& word, const char* what)
{
    const ClytSpan place = {line, word.column, std::max(1, static_cast<int>(word.text.size()))};
    const char* rest = nullptr;
    const int number = lytNumberOf(word.text.c_str(), &rest);
    const bool isCut = word.text != std::to_string(number) &&
                       (number == std::numeric_limits<int>::max() || number == std::numeric_limits<int>::min());
    if (word.text.empty() || *rest != '\0')
    {
        Finding& finding = judged.findings.Add(
            "number-wrong", place, InQuotes(word.text) + " counts as " + std::to_string(number) + " for the " + what,
            "write a whole number");
        if (std::isdigit(static_cast<unsigned char>(word.text[0])) != 0 && !judged.description.IsQuoted(place))
            finding.FixSafely(place, std::to_string(number));
    }
    else if (isCut)
        judged.findings.Add("number-range", place,
                            "the " + std::string(what) + " " + word.text + " counts as " + std::to_string(number),
                            "write a smaller number");
}

// The words before the size are Begin Dialog Box.
void JudgeHeader(const Case& judged)
{
    const int line = judged.description.dialogHeader.line;
    const std::vector<LineToken> words = TokensOf(judged.description.text.Line(line).text, Section::Layout);
    if (!judged.description.hasDialogHeader || words.size() != 7)
        return;
    JudgeNumber(judged, line, words[3], "width of the dialog");
    JudgeNumber(judged, line, words[4], "height of the dialog");
}

void JudgeNumbers(const LayoutLine& statement)
{
    constexpr const char* names[] = {"left", "top", "width", "height"};
    const bool hasNumbers = statement.words.size() > 4 && !statement.words[1].text.starts_with('.');
    for (size_t index = 0; hasNumbers && index < std::size(names); ++index)
        JudgeNumber(statement.judged, statement.control.span.line, statement.words[index + 1], names[index]);
    const ClytControlStatement& control = statement.control;
    const bool hasSize = control.width > 0 && control.height > 0;
    if (hasSize || !lytTypeOf(statement.kind).hasSize ||
        HasOption(statement.judged.description, control.name.GetString(), ClytOption::Hidden))
        return;
    const bool isWord =
        hasNumbers &&
        std::any_of(statement.words.begin() + 1, statement.words.begin() + 5,
                    [](const LineToken& word) { return std::isalpha(static_cast<unsigned char>(word.text[0])) != 0; });
    if (!isWord)
        statement.judged.findings.Add(
            "size-zero", hasNumbers ? PlaceOf(control, statement.words[control.width > 0 ? 4 : 3]) : control.span,
            lytTypeOf(statement.kind).name + std::string(" without ") + (control.width > 0 ? "a height" : "a width") +
                " cannot be seen",
            "give it a size, or make it HIDDEN in $VALUES");
}

void JudgeCaption(const LayoutLine& statement)
{
    const ClytControlStatement& control = statement.control;
    const bool isBox = statement.kind == Kind::CheckBox || statement.kind == Kind::Option;
    if (!isBox || !control.text.IsEmpty() ||
        HasOption(statement.judged.description, control.name.GetString(), ClytOption::Hidden))
        return;
    statement.judged.findings.Add("box-without-caption", statement.judged.description.PlaceOf(control.span.line),
                                  lytTypeOf(statement.kind).name +
                                      std::string(" without a caption has no height and cannot be clicked"),
                                  "write the key of its text before the name, or make it HIDDEN in $VALUES");
}

void JudgeStatements(const Case& judged)
{
    for (const ClytControlStatement& control : judged.description.controls)
    {
        const LayoutLine statement = {judged, control,
                                      TokensOf(judged.description.text.Line(control.span.line).text, Section::Layout),
                                      KindOf(control)};
        // What is over the limit of a line is a separate control there.
        if (statement.words.empty() || statement.words[0].text != control.type.GetString())
            continue;
        JudgeType(statement);
        JudgeNamePoint(statement);
        JudgeNumbers(statement);
        JudgeCaption(statement);
    }
}

void JudgeNames(const Case& judged)
{
    std::map<std::string, int> lines;
    for (const ClytControlStatement& control : judged.description.controls)
    {
        const std::string name = control.name.GetString();
        if (name.empty() || KindOf(control) == Kind::Unknown)
            continue;
        const auto [first, isNew] = lines.emplace(name, control.span.line);
        if (!isNew)
            judged.findings.Add(
                "name-twice", judged.description.PlaceOf(control.span.line, "." + name, control.span.column),
                "a control of line " + std::to_string(first->second) + " has the name " + InQuotes(name),
                "give each control a different name");
    }
}

void JudgeOptionGroups(const Case& judged)
{
    const ClytControlStatement* group = nullptr;
    bool hasOptions = true;
    const auto judgeGroup = [&]
    {
        if (group != nullptr && !hasOptions)
            judged.findings.Add("group-without-options", judged.description.PlaceOf(group->span.line),
                                "no option follows the group " + InQuotes(group->name.GetString()),
                                "write its options below it");
    };
    for (const ClytControlStatement& control : judged.description.controls)
    {
        const Kind kind = KindOf(control);
        if (kind == Kind::OptionGroup)
        {
            judgeGroup();
            group = &control;
            hasOptions = false;
        }
        hasOptions = hasOptions || kind == Kind::Option;
        if (kind == Kind::Option && group == nullptr)
            judged.findings.Add("option-without-group", judged.description.PlaceOf(control.span.line),
                                "this option belongs to no group", "write an OptionGroup above it");
    }
    judgeGroup();
}

void JudgeButton(const Case& judged, const ClytType& type)
{
    const ClytControlStatement* first = nullptr;
    for (const ClytControlStatement& control : judged.description.controls)
    {
        if (KindOf(control) != type.kind)
            continue;
        if (first != nullptr)
            judged.findings.Add("button-twice", judged.description.PlaceOf(control.span.line),
                                std::string("the dialog has ") + type.name + " already, in line " +
                                    std::to_string(first->span.line),
                                "delete one of them");
        else
            first = &control;
    }
    if (first == nullptr && judged.description.hasDialogHeader)
        judged.findings.Add("button-missing", judged.description.PlaceOf(judged.description.dialogHeader.line),
                            std::string("the dialog has no ") + type.word,
                            std::string("add one: ") + type.word + " LEFT, TOP, 112, 22");
}

} // namespace

void ApplyLayoutRules(const Case& judged)
{
    JudgeHeader(judged);
    JudgeStatements(judged);
    JudgeNames(judged);
    JudgeOptionGroups(judged);
    JudgeButton(judged, lytTypeOf(Kind::Ok));
    JudgeButton(judged, lytTypeOf(Kind::Cancel));
}

} // namespace lytdlg
