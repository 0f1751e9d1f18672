#include "model/ClytControlFill.h"

#include "base/Words.h"
#include "model/ClytControl.h"
#include "model/ClytObserver.h"

void ClytControlFill::Apply(const CString& piece, const ClytControlMap& controls) const
{
    ClytControl* control = nullptr;
    if (!controls.Lookup(controlName, control))
    {
        if (lytObserver != nullptr)
            lytObserver->PassedOver(ClytPassedOver::Fill, controlName, span);
        return;
    }
    if (lytObserver != nullptr)
        lytObserver->Filled(*this, piece);
    if (lytSameWord(action, "FILL"))
        control->FillByLibrary();
    else if (lytSameWord(action, "ADD"))
        control->AddItem(CString(), piece, 0, 0);
    else if (lytSameWord(action, "MODIFY"))
        control->ReplaceCurrentItem(piece);
    else if (lytSameWord(action, "CONCAT"))
        control->AddValues(piece + '\n', operands[0] + operands[1] + operands[2] + '\n');
    else
        control->SetValue(value.IsEmpty() ? piece : value);
}
