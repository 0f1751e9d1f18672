#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/StatementText.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <iterator>

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

// The sign that a blank was written for; empty where none is missing.
std::string MissingSign(ClytDue due)
{
    switch (due)
    {
    case ClytDue::Value:
    case ClytDue::ConditionsSign:
    case ClytDue::EvaluationSign: return " =";
    case ClytDue::StateSign: return "/";
    case ClytDue::StatementSign: return ":";
    default: return "";
    }
}

// Another sign where only a comma separates.
void FixComma(const SourceLine& line, const LineToken& word, Finding& finding)
{
    const size_t sign = line.text.find(word.delimiter, static_cast<size_t>(word.column) + word.text.size());
    if (sign != std::string::npos)
        finding.FixSafely({line.number, static_cast<int>(sign), 1}, ",");
}

// The format begins with a bracket and a quote, and nothing before it ends the conditions.
void FixFormatSign(const SourceLine& line, Finding& finding)
{
    const size_t format = line.text.find("(\"");
    if (format != std::string::npos && line.text.find('=') > format &&
        line.text.find("(\"", format + 1) > line.text.size())
        finding.FixSafely({line.number, static_cast<int>(format), 0}, "= ");
}

void FixForm(const Description& description, const SourceLine& line, const Mistake& mistake, Finding& finding)
{
    if (line.section == Section::Head)
    {
        finding.FixSafely({line.number, 0, static_cast<int>(line.text.size())}, "$VERSION 1");
        return;
    }
    const std::vector<LineToken> words = TokensOf(line.text, line.section);
    if (words.empty())
        return;
    const auto refused =
        std::ranges::find_if(words, [&](const LineToken& word) { return word.column >= mistake.place.column; });
    const LineToken& word = refused == words.end() ? words.back() : *refused;
    if (mistake.due == ClytDue::FillEnd || mistake.due == ClytDue::ConditionEnd)
        FixComma(line, word, finding);
    if (mistake.due == ClytDue::FormatSign || mistake.due == ClytDue::Format)
        FixFormatSign(line, finding);
    const std::string sign = MissingSign(mistake.due);
    if (sign.empty())
        return;
    const size_t blank = word.text.find(' ');
    const ClytSpan place = {line.number, word.column, static_cast<int>(word.text.size())};
    if (blank != std::string::npos && !description.IsQuoted(place))
        finding.FixSafely({line.number, word.column + static_cast<int>(blank), sign == " =" ? 0 : 1}, sign);
}

// Where a `;` that was meant as a sign begins a comment; npos without one. A comment is mostly set off by blanks.
size_t MeantSemicolon(const SourceLine& line)
{
    const size_t place = EndOfStatement(line);
    const size_t before = place < line.text.size() ? line.text.find_last_not_of(" \t", place - 1) : std::string::npos;
    if (before == std::string::npos || place == 0)
        return std::string::npos;
    const size_t after = line.text.find_first_not_of(" \t", place + 1);
    const bool isAfterSign = std::string_view("(,=").find(line.text[before]) != std::string_view::npos;
    const bool isBeforeSign =
        after == place + 1 && std::string_view("(),=").find(line.text[after]) != std::string_view::npos;
    return isAfterSign || isBeforeSign ? place : std::string::npos;
}

// Whether a statement was meant to continue in the next line: where it ends, or by what that line begins with.
bool MeansToContinue(const Description& description, const SourceLine& line)
{
    const SourceLine& next = description.text.Line(line.number + 1);
    const std::string text = Trimmed(line.text.substr(0, EndOfStatement(line)));
    const std::string below = Trimmed(next.text);
    const bool isStatement =
        !text.empty() && !line.isHeader && !below.empty() && next.section == line.section && !next.isHeader;
    return isStatement && (text.back() == ',' || std::string_view("),=").find(below.front()) != std::string_view::npos);
}

// A format in the line below its conditions is a whole rule there.
bool HasFormatBelow(const Description& description, const SourceLine& line)
{
    const SourceLine& next = description.text.Line(line.number + 1);
    return line.section == Section::Output && next.section == line.section && !next.isHeader &&
           Trimmed(line.text.substr(0, EndOfStatement(line))).ends_with('=') && Trimmed(next.text).starts_with('(');
}

// Says why the statement ends where it does.
void AddReasonOfEnd(const Description& description, const SourceLine& line, Finding& finding)
{
    const size_t sign = MeantSemicolon(line);
    if (sign != std::string::npos)
    {
        finding.message += "; the `;` begins a comment";
        finding.hint = "write the sign in quotes, as \";\"";
        finding.FixSafely({line.number, static_cast<int>(sign), 1}, "\";\"");
    }
    else if (MeansToContinue(description, line) || HasFormatBelow(description, line))
    {
        finding.message += "; a line cannot continue in the next one";
        finding.hint = "write the whole statement in one line";
    }
}

bool IsAtEnd(const SourceLine& line, const Mistake& mistake)
{
    const std::vector<LineToken> words = TokensOf(line.text, line.section);
    const auto isRefused = [&](const LineToken& word) { return word.column >= mistake.place.column; };
    const auto refused = std::ranges::find_if(words, isRefused);
    return refused == words.end() || std::next(refused) == words.end();
}

void AddMistake(const Case& judged, const Mistake& mistake)
{
    const Description& description = judged.description;
    const SourceLine& line = description.text.Line(mistake.place.line);
    if (mistake.number == lytError("QuoteOpen"))
    {
        const ClytSpan whole = description.PlaceOf(line.number);
        judged.findings.Add("quote-open", mistake.place, "the quote is not closed", "write a quote after the text")
            .FixPerhaps({line.number, whole.column + whole.length, 0}, "\"")
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
    FixForm(description, line, mistake, finding);
    if (MeansToContinue(description, description.text.Line(line.number - 1)))
        finding.message += "; the line above cannot continue here";
    else if (IsAtEnd(line, mistake))
        AddReasonOfEnd(description, line, finding);
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
        const SourceLine& above = judged.description.text.Line(mistake.place.line - 1);
        const bool isContinued = told.contains(above.number) && MeansToContinue(judged.description, above);
        if (told.insert(mistake.place.line).second && !isContinued)
            AddMistake(judged, mistake);
    }
}

} // namespace lytdlg
