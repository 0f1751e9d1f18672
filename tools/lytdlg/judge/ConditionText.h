// Conditions as rules about them need them.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

// The records of a list, in its order. They live as long as the list.
template <class RECORD>
std::vector<const RECORD*> RecordsOf(const ClytOwnedList<RECORD>& list)
{
    std::vector<const RECORD*> records;
    for (POSITION place = list.GetHeadPosition(); place != nullptr;)
        records.push_back(list.GetNext(place));
    return records;
}

// Whether the last value is NOTNULL, which decides alone.
bool AsksForContent(const ClytCtrlValList& condition);
// The values in brackets, with an empty text for NULL, and without a NOTNULL at the end.
std::vector<std::string> ValuesAskedBy(const ClytCtrlValList& condition);
// Whether no value of a control satisfies both. What two conditions of one control have in common can be empty only when
// both name their values.
bool ExcludeEachOther(const ClytCtrlValList& left, const ClytCtrlValList& right);

} // namespace lytdlg
