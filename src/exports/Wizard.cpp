// The export that leads through the choice of a new placeholder.
#include "lyt64.h"

#include "dialog/ClytDialog.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "exports/ExportFrame.h"
#include "system/ModernControls.h"
#include "tree/ClytWizardQueue.h"

#include <afxcmn.h>
#include <algorithm>

namespace
{

// Results of lytWizard.
constexpr int nothingOrLast = 0;
constexpr int moreToCome = 1;
constexpr int symbolText = 2;
constexpr int phraseText = 3;

constexpr int choiceSize = 255;

// What follows the first (the second, and so on) `/`; the whole text without one.
CString After(const CString& text, int separators)
{
    int start = 0;
    for (; separators > 0; --separators)
        start = text.Find('/', start) + 1;
    return text.Mid(start);
}

// Shows the dialog over the input text; true when it ended with OK.
bool Ask(const char* file, const CString& input, CString& result)
{
    lytInputKey = input;
    ClytDialog dialog(lytEnvironment.GetDialogPath() + "\\" + file, lytEnvironment.GetDialogDefine());
    if (dialog.DoModal() != IDOK)
        return false;
    result = dialog.GetResult();
    return true;
}

int AskGroup(const CString& choice, CString& text)
{
    const CString input = After(choice, 1);
    lytWizardGroup = input.Left(input.Find('/'));
    CString result;
    if (!Ask("lytWzGrp.dlg", input, result))
        return nothingOrLast;
    text = lytWizardQueue.Begin(result);
    return moreToCome;
}

int AskPhrase(const CString& choice, CString& text)
{
    return Ask("lytWzPhr.dlg", After(choice, 2), text) ? phraseText : nothingOrLast;
}

int AskSymbol(const CString& choice, CString& text)
{
    return Ask("lytWzSym.dlg", After(choice, 1), text) ? symbolText : nothingOrLast;
}

struct Step
{
    char type;
    int (*ask)(const CString& choice, CString& text);
};

constexpr Step steps[] = {
    {'G', AskGroup},
    {'H', AskPhrase},
    {'S', AskSymbol},
};

int AskNext(char* buffer, int size)
{
    char choice[choiceSize + 1] = "";
    if (lytOpenTreeView("W", choice, choiceSize) != 1)
        return nothingOrLast;
    const Step* step = std::ranges::find(steps, choice[0], &Step::type);
    if (step == std::end(steps))
        return nothingOrLast;

    CString text;
    const int result = step->ask(choice, text);
    if (result != nothingOrLast)
        CopyText(buffer, size, text);
    return result;
}

// The first call decides for the whole process which version of the common controls this library uses.
void LoadCommonControls()
{
    const ModernControls modernControls;
    InitCommonControls();
}

int DeliverNext(char* buffer, int size)
{
    const std::optional<CString> text = lytWizardQueue.Deliver();
    if (text)
        CopyText(buffer, size, *text);
    return lytWizardQueue.IsPending() ? moreToCome : nothingOrLast;
}

} // namespace

int __stdcall lytWizard(char* buffer, int size)
{
    LYT_EXPORT_FRAME(0);
    if (!IsUsable(buffer, size))
        return 0;
    LoadCommonControls();
    return lytWizardQueue.IsPending() ? DeliverNext(buffer, size) : AskNext(buffer, size);
}
