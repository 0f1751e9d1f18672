#include "model/ClytScanRule.h"

void ClytScanRule::Bind(const ClytControlMap& controls)
{
    for (POSITION place = rules.GetHeadPosition(); place != nullptr;)
        rules.GetNext(place)->Bind(controls);
}

void ClytScanRule::ApplyFills(const CString& piece) const
{
    for (POSITION place = rules.GetHeadPosition(); place != nullptr;)
    {
        if (rules.GetNext(place)->Apply(piece) == 0 && place != nullptr)
            rules.GetNext(place);
    }
}
