// Statements of the output section:
//
//     $OUTPUT, group
//     ("format", item, ...)
//     control (value, ...), ... = ("format", item, ...)
//     control = ("format", item, ...)
//
//     item:  word                 the value of a control, or the word itself
//            word ("separators")  all values of a control with that between them
//            word ()              all values of a control with blanks between them
#include "dlgfile/ClytDialogFile.h"

#include "model/ClytDialogOutput.h"
#include "model/ClytWords.h"

int ClytDialogFile::ReadOutputStatement(CString& groupName, ClytDialogOutput& rule)
{
    return ReadStatement(
        [&]
        {
            POSITION token = nullptr;
            if (ReadSectionLine(token, ClytLineKind::Output) == 0)
                return 0;
            if (token != nullptr)
                ReadOutput(token, groupName, rule);
            return 1;
        });
}

void ClytDialogFile::ReadOutput(POSITION token, CString& groupName, ClytDialogOutput& rule)
{
    bool isRightSide = tokens.GetAt(token).IsBare('(');
    while (true)
    {
        const ClytToken& first = NextOrFail(token, isRightSide ? ClytDue::Format : ClytDue::FormatSign);
        if (lytSameWord(first.GetText(), lytWordOf(ClytSection::Output)))
        {
            groupName = NextOrFail(token, ClytDue::Token).GetText();
            return;
        }
        if (isRightSide)
        {
            Expect(first.GetDelimiter() == '(', ClytDue::Format);
            break;
        }
        isRightSide = ReadOutputCondition(first, token, rule.conditions);
    }
    rule.span = GetStatementPlace();
    rule.format = NextOrFail(token, ClytDue::ListSeparator).GetText();
    while (token != nullptr)
        ReadOutputItem(token, rule);
}

// True when the right side follows. A control without values is always the last condition, also before a comma.
bool ClytDialogFile::ReadOutputCondition(const ClytToken& control, POSITION& token, ClytConditions& conditions)
{
    auto condition = std::make_unique<ClytCtrlValList>(control.GetText(), PlaceOf(control));
    if (control.GetDelimiter() == '(')
    {
        ReadValueList(token, condition->GetValues());
        conditions.AddTail(std::move(condition));
        const char end = NextOrFail(token, ClytDue::FormatSign).GetDelimiter();
        Expect(end == ',' || end == '=', ClytDue::FormatSign);
        return end == '=';
    }
    const bool isBareName = control.GetDelimiter() == ',' || control.GetDelimiter() == '=';
    Expect(!control.GetText().IsEmpty(), ClytDue::ControlName);
    Expect(isBareName, ClytDue::FormatSign);
    conditions.AddTail(std::move(condition));
    return true;
}

void ClytDialogFile::ReadOutputItem(POSITION& token, ClytDialogOutput& rule)
{
    const ClytToken& item = Next(token);
    CString action;
    if (item.GetDelimiter() == '(')
        action = ReadItemAction(token);
    else
        Expect(item.GetDelimiter() == ',' || item.GetDelimiter() == ')', ClytDue::ListSeparator);
    rule.items.push_back({item.GetText(), action, PlaceOf(item)});
}

// A line that ends inside the brackets or right after them is the class library's failure. The token after them is
// ignored, with any text.
CString ClytDialogFile::ReadItemAction(POSITION& token)
{
    CString action;
    char end = '\0';
    while (end != ')')
    {
        const ClytToken& text = Next(token, ClytDue::ListSeparator);
        end = text.GetDelimiter();
        if (end == ',' || end == ')')
            action += text.GetText();
    }
    Next(token, ClytDue::ListSeparator);
    return action.IsEmpty() ? CString(lytTextOf(ClytFillAction::Concat)) : action;
}
