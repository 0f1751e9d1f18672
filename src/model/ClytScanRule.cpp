#include "model/ClytScanRule.h"

void ClytScanRule::ApplyFills(const CString& piece, const ClytControlMap& controls) const
{
    for (POSITION place = rules.GetHeadPosition(); place != nullptr;)
    {
        if (rules.GetNext(place)->Apply(piece, controls) == 0 && place != nullptr)
            rules.GetNext(place);
    }
}
