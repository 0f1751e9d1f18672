#include "lytdlg/judge/Fills.h"

#include "lytdlg/judge/Lists.h"

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

std::vector<const ClytControlFill*> FillsOf(const Description& description, const std::string& name)
{
    std::vector<const ClytControlFill*> found;
    for (const InputPart& input : description.inputs)
    {
        for (const ClytDialogInput* statement : Records(input.part.GetStatements()))
        {
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                for (const ClytControlFill* fill : Records(rule->fills))
                {
                    if (fill->controlName == name.c_str())
                        found.push_back(fill);
                }
            }
        }
    }
    return found;
}

} // namespace lytdlg
