#include "controls/ClytEditControl.h"

#include "controls/ClytWaitCursor.h"

namespace
{

// All edits of the process use the library that the first of them loaded.
ClytDataLibrary editLibrary;

} // namespace

BOOL ClytEditControl::PreCreateWindow(CREATESTRUCTA& create)
{
    create.dwExStyle |= WS_EX_CLIENTEDGE;
    return CEdit::PreCreateWindow(create);
}

void ClytEditControl::CreateControl(ClytForm* owner)
{
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect, CWnd* parent)
                 { return Create(WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, rect, parent, 0); });
    ApplyOptionFlags();
    SetValue(defaultValue);
}

void ClytEditControl::SetOption(const CStringList& values, const CString& keyword)
{
    if (lytMeans<ClytKeyword::FilledBy>(keyword))
        source.TakeStatement(values, StatementSpan());
    else if (TakeCommonOption(values.GetHead()) == 0)
        defaultValue = values.GetHead();
}

void ClytEditControl::SetValue(const CString& value)
{
    if (lytMeans<ClytValueWord::Fill>(value))
        FillByLibrary();
    else if (!value.IsEmpty())
        SetWindowText(value);
}

CString ClytEditControl::GetValue()
{
    CString text;
    GetWindowText(text);
    return text;
}

void ClytEditControl::DoAction(const ClytStateWord& word)
{
    if (word.GetMeaning() != ClytState::Clear)
    {
        FillByLibrary();
        return;
    }
    SetSel(0, -1);
    Clear();
}

// Every failure leaves the text as it was, without a message.
void ClytEditControl::FillByLibrary()
{
    const ClytWaitCursor waiting;
    lytTell(&ClytObserver::LibraryAsked, *this);
    CString parameter;
    if (!source.parameterRule.IsEmpty() && dialog->ComposeNamedOutput(source.parameterRule, parameter) == 0)
        return;
    if (!editLibrary.Load(source.library, source.span))
        return;
    if (const auto fill = editLibrary.Find<lytDataText>(source.startFunction, source.span))
        SetWindowText(lytCallForText(fill, parameter));
}
