#include "model/ClytControlFill.h"

#include "model/ClytControl.h"
#include "model/ClytObserver.h"

void ClytControlFill::Bind(const ClytControlMap& controls)
{
    controls.Lookup(controlName, control);
}

void ClytControlFill::Apply(const CString& piece) const
{
    if (control == nullptr)
    {
        lytTell(&ClytObserver::PassedOver, ClytPassedOver::Fill, controlName, span);
        return;
    }
    lytTell(&ClytObserver::Filled, *this, piece);
    switch (action.GetMeaning())
    {
    case ClytFillAction::Fill: control->FillByLibrary(); break;
    case ClytFillAction::Add: control->AddItem(CString(), piece, 0, 0); break;
    case ClytFillAction::Modify: control->ReplaceCurrentItem(piece); break;
    case ClytFillAction::Concat:
        control->AddValues(piece + '\n', operands[0] + operands[1] + operands[2] + '\n');
        break;
    case ClytFillAction::Other: control->SetValue(value.IsEmpty() ? piece : value);
    }
}
