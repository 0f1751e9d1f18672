#include "controls/ClytEditControl.h"

#include "controls/ClytDataLibrary.h"
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
    if (!lytMeans<ClytKeyword::FilledBy>(keyword))
    {
        if (TakeCommonOption(values.GetHead()) == 0)
            defaultValue = values.GetHead();
        return;
    }
    // Library, function, one value that an edit has no use for, and the rule that composes the function's parameter. A
    // statement that ends early leaves the later fields as they were.
    CString ignored;
    CString* const fields[] = {&library, &function, &ignored, &parameterRule};
    POSITION place = values.GetHeadPosition();
    for (CString* field : fields)
    {
        if (place == nullptr)
            break;
        *field = values.GetNext(place);
    }
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
    CString parameter;
    if (!parameterRule.IsEmpty() && !dialog->ComposeNamedOutput(parameterRule, parameter))
        return;
    if (!editLibrary.Load(library))
        return;
    if (auto* fill = editLibrary.Find<lytDataText>(function))
        SetWindowText(lytCallForText(*fill, parameter));
}
