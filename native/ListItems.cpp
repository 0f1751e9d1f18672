#include "ListItems.h"

#include "FaultPlan.h"

#include <cstring>
#include <strings.h>

namespace platform
{

int ListItems::Select(int index)
{
    if (index != -1 && !Has(index))
        return -1;
    m_current = index;
    return m_current;
}

int ListItems::Insert(int index, const char* text)
{
    const int place = index == -1 ? Count() : index;
    if (place < 0 || place > Count())
        return -1;
    if (IsToFail(FaultKind::Item))
        return LB_ERRSPACE;
    m_items.insert(m_items.begin() + place, {text != nullptr ? text : "", 0});
    if (m_current >= place)
        ++m_current;
    return place;
}

int ListItems::Delete(int index)
{
    if (!Has(index))
        return -1;
    m_items.erase(m_items.begin() + index);
    if (m_current == index)
        m_current = -1;
    else if (m_current > index)
        --m_current;
    return Count();
}

void ListItems::Clear()
{
    m_items.clear();
    m_current = -1;
}

int ListItems::SortedPlace(const char* text) const
{
    int place = 0;
    while (place < Count() && strcasecmp(At(place).text.c_str(), text) <= 0)
        ++place;
    return place;
}

int ListItems::FindPrefix(const std::string& prefix, int start) const
{
    for (int step = 0; step < Count(); ++step)
    {
        const int index = (start + step) % Count();
        if (strncasecmp(At(index).text.c_str(), prefix.c_str(), prefix.size()) == 0)
            return index;
    }
    return -1;
}

LRESULT ListItems::CopyOut(int index, LPARAM buffer) const
{
    if (!Has(index))
        return -1;
    const std::string& text = At(index).text;
    std::memcpy(reinterpret_cast<char*>(buffer), text.c_str(), text.size() + 1);
    return static_cast<LRESULT>(text.size());
}

} // namespace platform
