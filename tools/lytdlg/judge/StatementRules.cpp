#include "lytdlg/judge/StatementRules.h"

#include "lytdlg/judge/StatementText.h"

#include <set>

namespace lytdlg
{

namespace
{
namespace statement_rules
{

constexpr Rule quote = {"quote-open",
                        Level::Error,
                        "A quote is not closed on its line.",
                        "A text in quotes ends on the line that it begins on. A quote inside it is written as \\\".",
                        "$VALUES\nName = \"a field",
                        "$VALUES\nName = \"a field\""};

constexpr Rule head = {"version-form",
                       Level::Error,
                       "$VERSION must be followed by exactly one word.",
                       "The version must be there, but means nothing: write $VERSION 1.",
                       "$VERSION ",
                       "$VERSION 1"};

constexpr Rule layout = {
    "control-form",
    Level::Error,
    "A control's statement has the wrong form.",
    "A control needs its type word and four numbers; text and name may be missing. Only OptionGroup\n"
    "has none. The library refuses the description at the first such line.",
    "$LAYOUT\nTextBox 500, 12, 100, .Extra",
    "$LAYOUT\nTextBox 500, 12, 100, 19, .Extra"};

constexpr Rule values = {"value-form",
                         Level::Error,
                         "A statement of $VALUES has the wrong form.",
                         "A statement names a control and says something about it. A blank does not separate the two.",
                         "$VALUES\nUnitLabel INVISIBLE",
                         "$VALUES\nUnitLabel = INVISIBLE"};

constexpr Rule dependencies = {
    "rule-form",
    Level::Error,
    "A rule of $DEPENDANCES has the wrong form.",
    "A rule names a control, a slash, a state word, and after the equals sign the conditions, with commas\n"
    "between them. The values of a condition stand in brackets.",
    "$DEPENDANCES\nUnit/ACTIVE Name(NOTNULL)",
    "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)"};

constexpr Rule evaluation = {
    "check-form",
    Level::Error,
    "A check of $EVALUATION has the wrong form.",
    "A check names a control with the values that are refused, and after a colon the key of the message. A\n"
    "second control with values of its own may stand between them.",
    "$EVALUATION, x\nUnit = NULL",
    "$EVALUATION, x\nUnit = NULL: NameMissing"};

constexpr Rule input = {
    "scan-form",
    Level::Error,
    "A statement of $INPUT has the wrong form.",
    "A statement has a name and a colon. Then it cuts a piece, after an opening bracket, or it asks what a\n"
    "control holds, or it names the statement that goes on.",
    "$INPUT, parent\nUnit: (999, End = Unit) Form",
    "$INPUT, parent\nUnit: (999, End = Unit, Form"};

constexpr Rule output = {
    "output-form",
    Level::Error,
    "A rule of $OUTPUT has the wrong form.",
    "A rule is a format with its items in brackets, and before it, if there are any, the conditions\n"
    "and the equals sign.",
    "$OUTPUT, parent\nForm(NULL) (\"%s\", Name)",
    "$OUTPUT, parent\nForm(NULL) = (\"%s\", Name)"};

const Rule& RuleOf(Section section)
{
    switch (section)
    {
    case Section::Head: return head;
    case Section::Layout: return layout;
    case Section::Values: return values;
    case Section::Dependencies: return dependencies;
    case Section::Evaluation: return evaluation;
    case Section::Input: return input;
    default: return output;
    }
}

// Headers, the line of the dialog, and marks that are indented, have rules of their own.
bool IsStatement(const Description& description, const SourceLine& line)
{
    const size_t start = line.text.find_first_not_of(" \t");
    const bool isMark = start != std::string::npos && (line.text[start] == '<' || line.text[start] == '>');
    const bool isVersion = line.isHeader && line.section == Section::Head;
    return line.number != description.dialogHeader.line && (!line.isHeader || isVersion) && line.meant.empty() &&
           !isMark;
}

void AddMistake(const Case& judged, const Mistake& mistake)
{
    const Description& description = judged.description;
    const SourceLine& line = description.text.Line(mistake.place.line);
    if (mistake.number == "210")
    {
        judged.findings.Add(quote, mistake.place, "the quote is not closed", "write a quote after the text").number =
            "210";
        return;
    }
    const bool isOfForm = mistake.number == "212" || mistake.number.empty();
    if (!isOfForm || !IsStatement(description, line))
        return;
    Finding& finding =
        judged.findings.Add(RuleOf(line.section), description.PlaceOf(line.number),
                            WhatIsWrong(line.text, line.section, mistake.place.column), FormsOf(line.section));
    if (mistake.place.column >= finding.place.column)
        finding.place = mistake.place;
    finding.number = mistake.number.empty() && line.section == Section::Input ? "206" : mistake.number;
}

} // namespace statement_rules
} // namespace

Family StatementRules()
{
    using namespace statement_rules;
    return {{&quote, &head, &layout, &values, &dependencies, &evaluation, &input, &output},
            [](const Case& judged)
            {
                // The part of a line that goes over its limit is read as a line of its own.
                std::set<int> told;
                for (const Mistake& mistake : judged.description.mistakes)
                {
                    if (told.insert(mistake.place.line).second)
                        AddMistake(judged, mistake);
                }
            }};
}

} // namespace lytdlg
