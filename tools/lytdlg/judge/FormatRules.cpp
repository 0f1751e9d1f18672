#include "lytdlg/judge/Families.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/FormatPieces.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/StatementText.h"

#include <cctype>

namespace lytdlg
{

namespace
{

constexpr size_t mostItems = 25;

// Where a format is in the line of its rule.
ClytSpan PlaceOf(const Description& description, const ClytDialogOutput& rule)
{
    const std::string quoted = InQuotes(rule.format.GetString());
    const ClytSpan found = description.PlaceOf(rule.span.line, quoted, rule.span.column);
    if (found.length == static_cast<int>(quoted.size()))
        return {found.line, found.column + 1, found.length - 2};
    return description.PlaceOf(rule.span.line, rule.format.GetString(), rule.span.column);
}

void AddPiece(const Case& judged, const FormatPiece& piece, const ClytSpan& place, const std::string& text)
{
    Findings& findings = judged.findings;
    switch (piece.kind)
    {
    case FormatPieceKind::LoneS:
        findings
            .Add("format-letter-s", place, "in a format with %, this s takes an item",
                 "write a capital S without an item for it, or put the word among the items")
            .FixPerhaps(place, "S");
        break;
    case FormatPieceKind::LonePoint:
        findings.Add("format-point", place, "in a format with %, a lone point makes the composition fail",
                     "put the text with the point among the items");
        break;
    case FormatPieceKind::OpenPercent:
        findings.Add("format-percent", place, "no s comes after this %, and the composition fails",
                     "put the sign among the items: (\"%s%s\", Name, %)");
        break;
    case FormatPieceKind::NoConversion:
        findings.Add("format-conversion", place,
                     InQuotes(text) + " is no conversion: it goes into the text without the %",
                     "write %s, or %.5s for the first five characters, and an item for it");
        // A number without its point is the limit, and one letter is what another language takes.
        if (text.size() == 2 || text.find_first_not_of("0123456789", 1) == text.size() - 1)
            findings.All().back().FixPerhaps(place, text.size() == 2 ? "%s" : "%." + text.substr(1));
        break;
    case FormatPieceKind::NoLimit:
        findings.Add("format-conversion", place, InQuotes(text) + " takes an item and leaves nothing of it",
                     "write %s, or %.5s for the first five characters, and an item for it");
        break;
    case FormatPieceKind::LimitAndText:
        findings.Add("format-conversion", place,
                     "after its limit " + InQuotes(text) + " continues to the next s, and that part is lost",
                     "write %.5s for the first five characters, and an item for it");
        break;
    default: break;
    }
}

void JudgePieces(const Case& judged, const ClytDialogOutput& rule)
{
    const std::string format = rule.format.GetString();
    const ClytSpan place = PlaceOf(judged.description, rule);
    for (const FormatPiece& piece : PiecesOf(format))
    {
        const ClytSpan at = {place.line, place.column + static_cast<int>(piece.start), static_cast<int>(piece.length)};
        AddPiece(judged, piece, at, format.substr(piece.start, piece.length));
    }
}

std::string Counted(size_t count, const char* what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void JudgeCount(const Case& judged, const OutputGroup& group, const ClytDialogOutput& rule)
{
    const size_t taken = TakenItems(rule.format.GetString());
    const size_t given = rule.items.size();
    const ClytSpan place = PlaceOf(judged.description, rule);
    if (taken > mostItems || given > mostItems)
    {
        judged.findings.Add("format-limit", given > mostItems ? rule.items[mostItems].span : place,
                            given > mostItems
                                ? "this is item 26, and the composition fails"
                                : "the format takes " + Counted(taken, "item") + ", and the composition fails",
                            "25 at most; write the rest into the format");
        return;
    }
    if (taken > given)
        judged.findings.Add("format-items", place,
                            "the format takes " + Counted(taken, "item") + ", the rule has " + std::to_string(given),
                            "add the missing items, or delete conversions");
    for (size_t index = taken; index < given; ++index)
    {
        const ClytOutputItem& item = rule.items[index];
        if (group.name != lytParentName || !judged.description.Index().HasCheck(item.text.GetString()))
            judged.findings.Add("format-surplus", item.span,
                                "the format does not take " + InQuotes(item.text.GetString()) +
                                    ", and no check asks for it",
                                "delete it, or add a %s for it");
    }
}

void JudgeEscapes(const Case& judged, const ClytDialogOutput& rule)
{
    const std::string format = rule.format.GetString();
    const ClytSpan place = PlaceOf(judged.description, rule);
    const bool isPlain = format.find('%') == std::string::npos;
    for (size_t at = format.find('\\'); at != std::string::npos; at = format.find('\\', at + 1))
    {
        const std::string sign = format.substr(at, 2);
        const bool isAtEnd = at + 2 == format.size();
        if ((sign != "\\n" && sign != "\\t") || (!isPlain && !isAtEnd))
            continue;
        judged.findings.Add("format-escape", {place.line, place.column + static_cast<int>(at), 2},
                            isPlain ? sign + " stays as it is in a format without a %"
                                    : sign + " stays as it is at the end of the text",
                            isPlain ? "write \"%s\" and put the text among the items" : "let some text follow it");
    }
}

// The tokens of a line show it: the reader keeps no rule with an empty format, and no word before one.
void JudgeTokens(const Case& judged)
{
    for (const SourceLine* line : judged.description.text.LinesOf(Section::Output))
    {
        const std::vector<LineToken> tokens = TokensOf(line->text, Section::Output);
        for (size_t index = 0; index + 1 < tokens.size(); ++index)
        {
            const bool isOpen = tokens[index].text.empty() && tokens[index].delimiter == '(';
            const bool isRightSide = index == 0 || tokens[index - 1].delimiter == '=';
            const bool isWord =
                !tokens[index].text.empty() && tokens[index].delimiter == '(' && index > 0 && isRightSide;
            if (isWord && !judged.description.IsRefused(line->number))
                judged.findings.Add("format-word",
                                    {line->number, tokens[index].column, static_cast<int>(tokens[index].text.size())},
                                    InQuotes(tokens[index].text) + " before the format is passed over",
                                    "put values in brackets after their control, before the equals sign");
            if (isOpen && isRightSide && tokens[index + 1].text.empty() && !judged.description.IsRefused(line->number))
                judged.findings.Add("format-empty", judged.description.PlaceOf(line->number),
                                    "the format is empty, and the rule is not kept",
                                    "write (\"%s\", \"\") for an empty text");
        }
    }
}

} // namespace

void ApplyFormatRules(const Case& judged)
{
    for (const OutputGroup& group : judged.description.outputs)
    {
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            if (judged.description.IsRefused(rule->span.line))
                continue;
            JudgePieces(judged, *rule);
            JudgeCount(judged, group, *rule);
            JudgeEscapes(judged, *rule);
        }
    }
    JudgeTokens(judged);
}

} // namespace lytdlg
