#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/StatementText.h"

#include <set>

namespace lytdlg
{

namespace
{

// The rule that the form of a section's statements has, and the forms that they may have.
struct FormRule
{
    RuleName rule;
    const char* forms;
};

const FormRule formRules[] = {
    {"version-form", "write \"$VERSION 1\""},
    {"control-form", "write TYPE LEFT, TOP, WIDTH, HEIGHT, \"TEXT\", .NAME, or OptionGroup .NAME"},
    {"value-form", "write NAME = VALUE, or NAME: KEYWORD = VALUE"},
    {"rule-form", "write NAME/STATE = CONTROL(VALUE, VALUE), CONTROL"},
    {"check-form", "write NAME = VALUE: MESSAGE, or NAME(VALUE, VALUE) = CONTROL(VALUE, VALUE): MESSAGE"},
    {"scan-form",
     "write NAME: (\"SEPARATOR\", NEXT = CONTROL, or NAME: CONTROL(VALUE) = NEXT, OTHER, or NAME: x = NEXT"},
    {"output-form", "write (\"FORMAT\", ITEM, ITEM), with conditions CONTROL(VALUE), CONTROL(VALUE) = before it"},
};

// Headers, the line of the dialog, and marks that are indented, have separate rules.
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
    if (mistake.number == lytError("QuoteOpen"))
    {
        judged.findings.Add("quote-open", mistake.place, "the quote is not closed", "write a quote after the text")
            .number = lytError("QuoteOpen");
        return;
    }
    const bool isOfForm = mistake.number == lytError("LineForm") || mistake.number.empty();
    if (!isOfForm || !IsStatement(description, line))
        return;
    const FormRule& form = formRules[static_cast<size_t>(line.section)];
    Finding& finding =
        judged.findings.Add(form.rule, description.PlaceOf(line.number),
                            WhatIsWrong(line.text, line.section, mistake.place.column, mistake.due), form.forms);
    if (mistake.place.column >= finding.place.column)
        finding.place = mistake.place;
    finding.number =
        mistake.number.empty() && line.section == Section::Input ? lytError("ReadingFailed") : mistake.number;
}

} // namespace

void ApplyStatementRules(const Case& judged)
{
    // The part of a line over its limit is read as a separate line.
    std::set<int> told;
    for (const Mistake& mistake : judged.description.mistakes)
    {
        if (told.insert(mistake.place.line).second)
            AddMistake(judged, mistake);
    }
}

} // namespace lytdlg
