// The composition of a dialog's text: choose a rule, take the values of the controls, put them into the format.
#include "dialog/ClytDialog.h"

#include "base/ClytCounted.h"
#include "dialog/FormatReader.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "model/ClytConditionTest.h"
#include "model/ClytObserver.h"

#include <algorithm>

namespace
{

// The places that a rule has for its items.
constexpr int itemPlaces = 25;

// What separates the values of a list when the rule says nothing else.
constexpr const char* listSeparator = "   ";

// The room that a result needs, or more where the format limits an item or leaves it out.
int LengthAtMost(const CString& format, const CStringArray& items)
{
    int length = format.GetLength();
    for (int index = 0; index < items.GetCount(); ++index)
        length += items[index].GetLength();
    return length;
}

} // namespace

const ClytDialogOutput* ClytDialog::SelectRule(const ClytOutput& group)
{
    const ClytDialogOutput* chosen = nullptr;
    for (const ClytDialogOutput& rule : group.rules)
    {
        if (HoldsForOutput(rule))
        {
            chosen = &rule;
            break;
        }
    }
    lytTell(&ClytObserver::OutputChosen, chosen);
    return chosen;
}

bool ClytDialog::HoldsForOutput(const ClytDialogOutput& rule)
{
    const ClytCounted read(readDepth);
    return lytConditionsHold(rule.conditions, ClytRuleKind::Output, rule.span);
}

int ClytDialog::ComposeOutput(const ClytOutput& group, CString& target, int check)
{
    const ClytDialogOutput* rule = SelectRule(group);
    if (rule == nullptr)
        return 0;
    CStringArray texts;
    texts.SetSize(itemPlaces);
    int index = 0;
    for (const ClytOutputItem& item : rule->items)
        texts.SetAt(index++, item.text);
    index = 0;
    for (const ClytOutputItem& item : rule->items)
    {
        if (item.control != nullptr)
        {
            if (check != 0 && item.control->Evaluate() == 0)
            {
                item.control->ShowEvalMessage();
                return 0;
            }
            texts.SetAt(index, TakeItem(item));
        }
        ++index;
    }
    target = FormatOutput(rule->format, texts);
    return 1;
}

// Controls without a name (OK and Cancel) give no value.
CString ClytDialog::TakeItem(const ClytOutputItem& item)
{
    const ClytCounted read(readDepth);
    const bool hasName = !item.control->GetName().IsEmpty();
    if (item.action.IsEmpty())
        return hasName ? item.control->GetValue() : item.text;
    CString values;
    if (hasName)
        item.control->GetAllValues(values, lytMeans<ClytFillAction::Concat>(item.action) ? CString(listSeparator)
                                                                                         : item.action);
    return values;
}

int ClytDialog::ComposeNamedOutput(const CString& groupName, CString& target)
{
    ClytOutput* group = nullptr;
    if (outputMap.Lookup(groupName, group))
        return ComposeOutput(*group, target, 0);
    lytTellMissing(ClytMissing::OutputGroup, groupName);
    return 0;
}

int ClytDialog::ComposeResult()
{
    lytTreeConfirmCount = 0;
    ClytOutput* group = nullptr;
    if (!outputMap.Lookup(lytParentName, group))
    {
        lytTellMissing(ClytMissing::OutputGroup, lytParentName);
        return 0;
    }
    try
    {
        return ComposeOutput(*group, result, 1);
    }
    catch (ClytException* e)
    {
        const ClytCaught failure(e);
        char message[255] = "";
        failure->GetErrorMessage(message, sizeof message);
        lytRaise(lytError("ResultFailed"), message);
    }
}

// A format without any `%` is the result as it is.
CString ClytDialog::FormatOutput(const CString& format, const CStringArray& items)
{
    if (format.Find('%') < 0)
        return format;
    CString text;
    text.Preallocate(LengthAtMost(format, items));
    int nextItem = 0;
    ClytFormatReader reader(format);
    while (!reader.IsAtEnd())
    {
        const ClytFormatPiece piece = reader.Take();
        if (piece.kind == ClytFormatPiece::Kind::Failure)
            AfxThrowInvalidArgException();
        const char* put = format.GetString() + piece.start;
        int length = piece.length;
        if (piece.kind == ClytFormatPiece::Kind::Item)
        {
            const CString& item = items[nextItem++];
            put = item.GetString();
            length = std::min(piece.limit, item.GetLength());
        }
        // An item that is a lone backslash goes the same way.
        const bool isEscape = length == 1 && *put == '\\' && reader.IsBeforeQuote();
        if (!isEscape)
            text.Append(put, length);
    }
    ExpandEscapes(text);
    return text;
}

void ClytDialog::ExpandEscapes(CString& text)
{
    for (int place = text.Find('\\'); place >= 0 && place + 2 < text.GetLength(); place = text.Find('\\', place + 1))
    {
        const char next = text[place + 1];
        if (next != 'n' && next != 't')
            continue;
        text.SetAt(place, next == 'n' ? '\n' : '\t');
        text.SetAt(place + 1, ' ');
    }
}
