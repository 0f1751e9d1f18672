// Lets a range-based loop go over a list of the class library: for (const CString& text : texts). A list of pointers gives
// what they point to. The element that the loop has reached must not be removed.
#pragma once

#include <afxtempl.h>

#include <type_traits>

template <class LIST>
class ClytIterator
{
public:
    ClytIterator(const LIST& walkedList, POSITION start) : list(walkedList), position(start) {}

    decltype(auto) operator*() const
    {
        if constexpr (std::is_pointer_v<decltype(list.GetAt(position))>)
            return *list.GetAt(position);
        else
            return list.GetAt(position);
    }
    ClytIterator& operator++()
    {
        list.GetNext(position);
        return *this;
    }
    bool operator!=(const ClytIterator& other) const { return position != other.position; }

private:
    const LIST& list;
    POSITION position; // null at the end
};

inline ClytIterator<CStringList> begin(const CStringList& list)
{
    return {list, list.GetHeadPosition()};
}

inline ClytIterator<CStringList> end(const CStringList& list)
{
    return {list, nullptr};
}

template <class BASE_CLASS, class TYPE>
ClytIterator<CTypedPtrList<BASE_CLASS, TYPE>> begin(const CTypedPtrList<BASE_CLASS, TYPE>& list)
{
    return {list, list.GetHeadPosition()};
}

template <class BASE_CLASS, class TYPE>
ClytIterator<CTypedPtrList<BASE_CLASS, TYPE>> end(const CTypedPtrList<BASE_CLASS, TYPE>& list)
{
    return {list, nullptr};
}
