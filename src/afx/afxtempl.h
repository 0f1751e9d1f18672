// Typed collections of the class library.
#pragma once

#include <afxcoll.h>

#include <map>

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
public:
    int GetCount() const noexcept { return static_cast<int>(m_entries.size()); }
    bool IsEmpty() const noexcept { return m_entries.empty(); }
    bool Lookup(ARG_KEY key, VALUE& value) const
    {
        const auto entry = m_entries.find(key);
        if (entry == m_entries.end())
            return false;
        value = entry->second;
        return true;
    }
    void SetAt(ARG_KEY key, ARG_VALUE value) { m_entries.insert_or_assign(key, value); }
    void RemoveAll() { m_entries.clear(); }

private:
    std::map<KEY, VALUE> m_entries;
};

// A list of pointers (CObList or CPtrList) that gives them back under their own type. It does not own them.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    POSITION AddTail(TYPE element) { return BASE_CLASS::AddTail(element); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    TYPE GetNext(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetNext(position)); }
    TYPE GetPrev(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(position)); }
};

// A map of pointers (CMapStringToPtr) that gives them back under their own type. It does not own them.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
public:
    bool Lookup(const char* key, VALUE& value) const
    {
        void* found = nullptr;
        if (!BASE_CLASS::Lookup(key, found))
            return false;
        value = static_cast<VALUE>(found);
        return true;
    }
    void SetAt(const char* key, VALUE value) { BASE_CLASS::SetAt(key, value); }
};
