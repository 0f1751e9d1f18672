#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/Names.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

void JudgeSeparators(const Case& judged, const ClytScan& scan)
{
    const std::vector<const ClytSeparator*> separators = Records(scan.GetSeparators());
    for (size_t index = 1; index < separators.size(); ++index)
    {
        const std::string text = separators[index]->text.GetString();
        const auto first = separators.begin();
        const auto here = first + static_cast<std::ptrdiff_t>(index);
        const auto before = std::find_if(first, here,
                                         [&](const ClytSeparator* other)
                                         {
                                             const std::string earlier = other->text.GetString();
                                             return earlier == text || (text != "Rest" && text.starts_with(earlier));
                                         });
        if (before == here)
            continue;
        const std::string earlier = (*before)->text.GetString();
        if (earlier == text)
            judged.findings.Add("scan-separator", separators[index]->span,
                                "the separator " + InQuotes(text) + " is here twice", "delete one of them");
        else if (earlier.empty())
            judged.findings.Add("scan-separator", separators[index]->span,
                                "the empty separator before " + InQuotes(text) + " fits everywhere",
                                "put the empty separator last");
        else
            judged.findings.Add("scan-separator", separators[index]->span,
                                "the separator " + InQuotes(earlier) + " before " + InQuotes(text) + " wins",
                                "put the longer one first");
    }
}

void JudgeLength(const Case& judged, const ClytScan& scan)
{
    const bool hasSeparators = !scan.GetSeparators().IsEmpty();
    if (scan.GetLength() != 0 && hasSeparators)
        judged.findings.Add("scan-length", scan.GetLengthSpan(), "the length wins over the separators before it",
                            "cut by a length or at separators, in two statements");
    else if (scan.GetLength() == 0 && hasSeparators && scan.GetLengthSpan().line != 0)
        judged.findings.Add("scan-length", scan.GetLengthSpan(), "the separators after it take the place of the length",
                            "cut by a length or at separators, in two statements");
}

void JudgeNumbers(const Case& judged, const ClytScan& scan)
{
    const ClytSpan& length = scan.GetLengthSpan();
    if (length.line != 0 && judged.description.IsQuoted(length))
        judged.findings.Add("scan-number", length, "this is a length, also in quotes",
                            "no piece can be cut at a number; choose another separator");
    else if (scan.GetLength() < 0)
        judged.findings.Add("scan-number", length, "a length is 1 or more", "write how many characters the piece has");
    for (const ClytSeparator* separator : Records(scan.GetSeparators()))
    {
        if (separator->text == "0" && !judged.description.IsQuoted(separator->span))
            judged.findings.Add("scan-number", separator->span, "0 is no length, and is taken for a separator",
                                "write how many characters the piece has, or \"\" to cut nothing");
    }
}

bool EndsInClosingBracket(const std::string& text)
{
    return !text.empty() && std::string(")]}>").find(text.back()) != std::string::npos;
}

// A piece that goes nowhere was not wanted, and neither was what follows it.
bool IsPieceTaken(const ClytScanRule& rule)
{
    return std::ranges::any_of(Records(rule.rules),
                               [](const ClytConditionFill* fills) { return TakesPiece(*fills->fills.GetHead()); });
}

// The word and the statement after it go, with the comma before them.
void FixRest(const Description& description, Finding& finding)
{
    const std::string& line = description.text.Line(finding.place.line).text;
    const size_t comma = line.rfind(',', static_cast<size_t>(finding.place.column));
    const size_t target = line.find(',', static_cast<size_t>(finding.place.column));
    const size_t end = target != std::string::npos ? line.find_first_of(",=)", target + 1) : target;
    if (comma == std::string::npos || end == std::string::npos)
        return;
    const size_t last = line.find_last_not_of(" \t", end - 1) + 1;
    finding.FixPerhaps({finding.place.line, static_cast<int>(comma), static_cast<int>(last - comma)}, "");
}

void JudgeEnds(const Case& judged, const ClytScanRule& rule)
{
    const ClytScan& scan = rule.scan;
    if (scan.GetLength() != 0 || !IsPieceTaken(rule))
        return;
    const std::vector<const ClytSeparator*> separators = Records(scan.GetSeparators());
    for (const ClytSeparator* separator : separators)
    {
        const std::string text = separator->text.GetString();
        if (separator->target.name != "End" || text.empty() || EndsInClosingBracket(text))
            continue;
        if (text != "Rest")
            judged.findings.Add("scan-dropped", separator->span,
                                "what follows " + InQuotes(text) + " in the text is dropped",
                                "continue with another statement; a piece that takes all is (999, End");
        else if (separators.size() > 1)
            FixRest(judged.description,
                    judged.findings.Add("scan-rest", separator->span,
                                        "\"Rest\" cuts a text that holds these letters, and is not needed here",
                                        "leave it out: the end of the text ends the piece, and the run"));
    }
}

} // namespace

void ApplySeparatorRules(const Case& judged)
{
    for (const InputPart& part : judged.description.inputs)
    {
        for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
        {
            if (judged.description.IsRefused(statement->span.line))
                continue;
            JudgeSeparators(judged, statement->scanRule.scan);
            JudgeLength(judged, statement->scanRule.scan);
            JudgeNumbers(judged, statement->scanRule.scan);
            JudgeEnds(judged, statement->scanRule);
        }
    }
}

} // namespace lytdlg
