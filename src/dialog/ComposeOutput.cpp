// The composition of a dialog's text: choose a rule, take the values of the controls, put them into the format.
#include "dialog/ClytDialog.h"

#include "base/ClytCounted.h"
#include "base/Words.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "model/ClytConditionTest.h"
#include "model/ClytObserver.h"

#include <algorithm>

namespace
{

// The places that a rule has for its items.
constexpr int itemPlaces = 25;

// What stands between the values of a list when the rule says nothing else.
constexpr const char* listSeparator = "   ";

// Reads a conversion of a format, what follows its `%`: "s", or a limit before it (".5s", "0.5s"). Anything else is
// plain text.
struct Conversion
{
    explicit Conversion(const CString& piece)
    {
        if (lytSameWord(piece, "s"))
        {
            takesItem = true;
            return;
        }
        const int point = piece[0] == '0' && piece.GetLength() > 1 ? 1 : 0;
        isLimited = piece[point] == '.';
        takesItem = isLimited;
        if (isLimited)
            limit = lytNumberOf(piece.Mid(point + 1));
    }

    bool takesItem = false;
    bool isLimited = false;
    int limit = 0;
};

// Walks a format piece by piece. A conversion is one piece, every other character is one of its own.
class FormatReader
{
public:
    explicit FormatReader(const CString& format) : m_format(format) {}

    bool IsAtEnd() const { return m_place >= m_format.GetLength(); }
    bool IsBeforeQuote() const { return !IsAtEnd() && m_format[m_place] == '"'; }
    CString TakePiece()
    {
        if (m_format[m_place] != '%')
            return m_format.Mid(m_place++, 1);
        const int end = m_format.Find('s', m_place);
        if (end < 0)
            AfxThrowInvalidArgException();
        const CString piece = m_format.Mid(m_place + 1, end - m_place);
        m_place = end + 1;
        return piece;
    }

private:
    const CString& m_format;
    int m_place = 0;
};

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
        if (!HoldsForOutput(rule))
            continue;
        chosen = &rule;
        break;
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

// In a format with any `%`, an ordinary `s` takes an item as `%s` does, and an ordinary point is a limit without its
// `s`. Formats in use rely on the former.
CString ClytDialog::FormatOutput(const CString& format, const CStringArray& items)
{
    if (format.Find('%') < 0)
        return format;
    CString text;
    text.Preallocate(LengthAtMost(format, items));
    int nextItem = 0;
    FormatReader reader(format);
    while (!reader.IsAtEnd())
    {
        const CString piece = reader.TakePiece();
        const Conversion conversion(piece);
        if (conversion.isLimited && piece.Find('s') < 0)
            AfxThrowInvalidArgException();
        const CString& put = conversion.takesItem ? items[nextItem++] : piece;
        const int length = conversion.isLimited ? std::clamp(conversion.limit, 0, put.GetLength()) : put.GetLength();
        // An item that is a lone backslash goes the same way.
        const bool isEscape = length == 1 && put[0] == '\\' && reader.IsBeforeQuote();
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
