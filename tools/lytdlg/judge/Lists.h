// The lists of records and texts as the standard library's loops take them.
#pragma once

#include "base/ClytOwnedList.h"

#include <string>
#include <vector>

namespace lytdlg
{

inline std::vector<std::string> Strings(const CStringList& list)
{
    std::vector<std::string> strings;
    for (const CString& text : list)
        strings.emplace_back(text.GetString());
    return strings;
}

// The records stay the list's.
template <class T>
std::vector<const T*> Records(const ClytOwnedList<T>& list)
{
    std::vector<const T*> records;
    for (const T& record : list)
        records.push_back(&record);
    return records;
}

} // namespace lytdlg
