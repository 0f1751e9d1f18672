// The scan form of an input statement, after its `(`:
//
//     length, target [, ...]      a piece of fixed length
//     text, target [, ...]        a piece that ends at a separator
//     ... = fill rule, ...        fill rule: [ (piece, ...) ] fill
//
//     fill:  control              takes the piece
//            control = value      takes the value instead
//            control (word, operand, operand, operand)
#include "dlgfile/ClytDialogFile.h"

#include "base/Words.h"
#include "model/ClytScanRule.h"

#include <cstring>

void ClytDialogFile::ReadScanRule(POSITION token, ClytScanRule& rule)
{
    const char end = ReadScanList(token, rule.scan);
    if (end == ')' && token != nullptr && tokens.GetAt(token).IsBare('='))
        Next(token);
    while (token != nullptr)
        ReadConditionFill(token, rule.rules.AddTail(std::make_unique<ClytConditionFill>()));
}

// The list is read in pairs of a length or separator and its target, and ends after a target with `=` or at a token with
// `)` that no other follows. A token after a `)` opens a further pair, unless it has a `)` itself. Gives the delimiter
// that ended the list.
char ClytDialogFile::ReadScanList(POSITION& token, ClytScan& scan)
{
    const ClytToken* inHand = &NextOrFail(token, ClytDue::Piece);
    while (inHand->GetDelimiter() != ')')
    {
        const ClytToken& target = NextOrFail(token, ClytDue::PieceTarget);
        const int length = lytNumberOf(inHand->GetText());
        if (length != 0)
            scan.SetFixedLength(length, target.GetText(), PlaceOf(*inHand));
        else
            scan.AddSeparator(inHand->GetText(), target.GetText(), PlaceOf(*inHand));
        if (target.GetDelimiter() == '=')
            return '=';
        inHand = token != nullptr ? &Next(token) : &target;
        Expect(inHand->GetDelimiter() == ')' || token != nullptr, ClytDue::PieceTarget);
    }
    return ')';
}

void ClytDialogFile::ReadConditionFill(POSITION& token, ClytConditionFill& rule)
{
    rule.span = PlaceOf(tokens.GetAt(token));
    if (tokens.GetAt(token).IsBare('('))
    {
        Next(token);
        char end = ',';
        while (end == ',')
        {
            const ClytToken& value = NextOrFail(token, ClytDue::ListSeparator);
            rule.values.AddTail(value.GetText());
            end = value.GetDelimiter();
        }
        Expect(end == ')', ClytDue::ListSeparator);
        if (token != nullptr && tokens.GetAt(token).IsBare(','))
            Next(token);
    }
    ReadControlFill(token, rule.fills.AddTail(std::make_unique<ClytControlFill>()));
}

void ClytDialogFile::ReadControlFill(POSITION& token, ClytControlFill& fill)
{
    const ClytToken* end = &NextOrFail(token, ClytDue::ControlName);
    fill.controlName = end->GetText();
    fill.span = PlaceOf(*end);
    Expect(!fill.controlName.IsEmpty(), ClytDue::ControlName);
    if (end->GetDelimiter() == '(')
    {
        ReadFillAction(token, fill);
        if (token == nullptr)
            return;
        end = &Next(token);
        Expect(end->GetText().IsEmpty(), ClytDue::FillEnd);
    }
    else if (end->GetDelimiter() == '=')
    {
        end = &NextOrFail(token, ClytDue::ValueAfterSign);
        fill.value = end->GetText();
    }
    const bool isLast = token == nullptr && std::strchr("\t\n;", end->GetDelimiter()) != nullptr;
    Expect(end->GetDelimiter() == ',' || isLast, ClytDue::FillEnd);
}

void ClytDialogFile::ReadFillAction(POSITION& token, ClytControlFill& fill)
{
    const ClytToken* last = &NextOrFail(token, ClytDue::ListSeparator);
    fill.action = last->GetText();
    for (CString& operand : fill.operands)
    {
        if (last->GetDelimiter() != ',')
            break;
        last = &NextOrFail(token, ClytDue::ListSeparator);
        operand = last->GetText();
    }
    Expect(last->GetDelimiter() == ')', ClytDue::ListSeparator);
}
