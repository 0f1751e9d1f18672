#include "lytdlg/judge/Fills.h"

namespace lytdlg
{

bool AddsItems(const ClytControlFill& fill)
{
    const ClytFillAction action = fill.action.GetMeaning();
    return action == ClytFillAction::Add || action == ClytFillAction::Modify || action == ClytFillAction::Concat;
}

bool TakesPiece(const ClytControlFill& fill)
{
    return AddsItems(fill) || (fill.action.GetMeaning() == ClytFillAction::Other && fill.value.IsEmpty());
}

} // namespace lytdlg
