// The export that guides the user to a new placeholder.
#include "lyt64.h"

#include "dialog/ClytDialog.h"
#include "environment/ProcessState.h"
#include "exports/ExportFrame.h"
#include "exports/NamedDialogs.h"
#include "system/ModernControls.h"
#include "tree/ClytTreeDialog.h"
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

// A longer choice counts as none.
constexpr int longestChoice = 254;

// What is asked after a choice of that type.
struct Step
{
    char type;
    ClytNamed dialog;
    int result;
};

constexpr Step steps[] = {
    {'G', ClytNamed::WizardGroup, moreToCome},
    {'H', ClytNamed::WizardPhrase, phraseText},
    {'S', ClytNamed::WizardSymbol, symbolText},
};

// What follows the first (the second, and so on) `/`; the whole text without one.
CString After(const CString& text, int separators)
{
    int start = 0;
    for (; separators > 0; --separators)
        start = text.Find('/', start) + 1;
    return text.Mid(start);
}

std::optional<CString> Browse()
{
    // The host has its focus back before the dialog opens.
    const HostState host;
    return lytBrowse("W");
}

int AskNext(char* buffer, int size)
{
    const std::optional<CString> choice = Browse();
    if (!choice || choice->GetLength() > longestChoice)
        return nothingOrLast;
    const Step* step = std::ranges::find(steps, (*choice)[0], &Step::type);
    if (step == std::end(steps))
        return nothingOrLast;

    // A choice is its type, key and label, with a `/` between them.
    const ClytNamedDialog& dialog = lytNamed(step->dialog);
    const CString input = After(*choice, dialog.handed == ClytHanded::Label ? 2 : 1);
    if (step->result == moreToCome)
        lytWizardGroup = input.Left(input.Find('/'));
    const std::optional<CString> result = ClytDialog::Show(dialog.description, input);
    if (!result)
        return nothingOrLast;
    CopyText(buffer, size, step->result == moreToCome ? lytWizardQueue.Begin(*result) : *result);
    return step->result;
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
