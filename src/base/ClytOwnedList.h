// A list that owns its records: what leaves it without a new owner is deleted.
#pragma once

#include "base/Iteration.h"

#include <memory>

template <class T, class BASE_CLASS = CObList>
class ClytOwnedList : public CTypedPtrList<BASE_CLASS, T*>
{
    using List = CTypedPtrList<BASE_CLASS, T*>;

public:
    ~ClytOwnedList() override { RemoveAll(); }

    // Takes the record over and returns it as a reference that lives as long as the list holds it.
    T& AddTail(std::unique_ptr<T> record)
    {
        T& added = *record;
        List::AddTail(record.get());
        static_cast<void>(record.release());
        return added;
    }
    std::unique_ptr<T> RemoveHead() { return std::unique_ptr<T>(List::RemoveHead()); }
    void RemoveAt(POSITION position)
    {
        const std::unique_ptr<T> record(List::GetAt(position));
        List::RemoveAt(position);
    }
    void RemoveAll()
    {
        while (!List::IsEmpty())
            RemoveHead();
    }

    // Each list takes over the records of the other.
    void Exchange(ClytOwnedList& other) noexcept { List::Swap(other); }

private:
    using List::SetAt;
};
