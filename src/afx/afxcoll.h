// Collections of the class library, thin over the standard containers.
//
// A POSITION names an element and stays valid until that element is removed. Taking an element where nothing is (a
// null POSITION, the head of an empty list, an index outside an array) raises the invalid-argument exception.
#pragma once

#include <afx.h>

#include <functional>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

// The common body of the lists; CObList, CPtrList and CStringList are its published forms.
template <class TYPE>
class CListBody : public CObject
{
public:
    int GetCount() const noexcept { return static_cast<int>(m_nodes.size()); }
    bool IsEmpty() const noexcept { return m_nodes.empty(); }

    POSITION AddTail(TYPE element)
    {
        Node& node = m_nodes.emplace_back(std::move(element));
        node.self = std::prev(m_nodes.end());
        return Place(node);
    }

    const TYPE& GetHead() const { return Checked(GetHeadPosition())->element; }
    const TYPE& GetTail() const { return Checked(m_nodes.empty() ? nullptr : Place(m_nodes.back()))->element; }
    TYPE RemoveHead() { return Take(GetHeadPosition()); }
    void RemoveAt(POSITION position) { Take(position); }
    void RemoveAll() { m_nodes.clear(); }

    POSITION GetHeadPosition() const { return m_nodes.empty() ? nullptr : Place(m_nodes.front()); }
    const TYPE& GetAt(POSITION position) const { return Checked(position)->element; }
    void SetAt(POSITION position, TYPE element) { Checked(position)->element = std::move(element); }

    // Gives the element and moves the position to the next (previous) one, null after the last.
    const TYPE& GetNext(POSITION& position) const
    {
        const Node* node = Checked(position);
        const auto next = std::next(node->self);
        position = next == m_nodes.end() ? nullptr : Place(*next);
        return node->element;
    }
    const TYPE& GetPrev(POSITION& position) const
    {
        const Node* node = Checked(position);
        position = node->self == m_nodes.begin() ? nullptr : Place(*std::prev(node->self));
        return node->element;
    }

    // Null when there is no element at the index, such as a negative one.
    POSITION FindIndex(int index) const
    {
        if (index < 0 || index >= GetCount())
            return nullptr;
        return Place(*std::next(m_nodes.begin(), index));
    }

protected:
    // Each list takes over the elements of the other; their POSITIONs go with them.
    void Swap(CListBody& other) noexcept { m_nodes.swap(other.m_nodes); }

private:
    struct Node
    {
        explicit Node(TYPE&& content) : element(std::move(content)) {}

        TYPE element;
        typename std::list<Node>::const_iterator self;
    };

    // A POSITION names an element of a constant list as well, and leads back into the list that it came from.
    static POSITION Place(const Node& node)
    {
        return static_cast<POSITION>(static_cast<void*>(const_cast<Node*>(&node)));
    }
    static Node* Checked(POSITION position)
    {
        if (position == nullptr)
            AfxThrowInvalidArgException();
        return static_cast<Node*>(static_cast<void*>(position));
    }
    TYPE Take(POSITION position)
    {
        Node* node = Checked(position);
        TYPE element = std::move(node->element);
        m_nodes.erase(node->self);
        return element;
    }

    std::list<Node> m_nodes;
};

class CObList : public CListBody<CObject*>
{
};

class CPtrList : public CListBody<void*>
{
};

class CStringList : public CListBody<CString>
{
};

// The common body of the arrays.
template <class TYPE>
class CArrayBody : public CObject
{
public:
    int GetCount() const noexcept { return static_cast<int>(m_elements.size()); }
    bool IsEmpty() const noexcept { return m_elements.empty(); }

    const TYPE& GetAt(int index) const { return m_elements[Checked(index)]; }
    const TYPE& operator[](int index) const { return GetAt(index); }
    void SetAt(int index, TYPE element) { m_elements[Checked(index)] = std::move(element); }

    int Add(TYPE element)
    {
        m_elements.push_back(std::move(element));
        return GetCount() - 1;
    }
    // Beyond the end the array grows by empty elements up to the index.
    void InsertAt(int index, TYPE element)
    {
        if (index < 0)
            AfxThrowInvalidArgException();
        if (index > GetCount())
            SetSize(index);
        m_elements.insert(m_elements.begin() + index, std::move(element));
    }
    void RemoveAt(int index) { m_elements.erase(m_elements.begin() + static_cast<std::ptrdiff_t>(Checked(index))); }
    void RemoveAll() { m_elements.clear(); }
    void SetSize(int size)
    {
        if (size < 0)
            AfxThrowInvalidArgException();
        m_elements.resize(static_cast<size_t>(size));
    }

private:
    size_t Checked(int index) const
    {
        if (index < 0 || index >= GetCount())
            AfxThrowInvalidArgException();
        return static_cast<size_t>(index);
    }

    std::vector<TYPE> m_elements;
};

class CStringArray : public CArrayBody<CString>
{
};

// Keys are compared byte for byte, up to their first NUL.
class CMapStringToPtr : public CObject
{
public:
    int GetCount() const noexcept { return static_cast<int>(m_entries.size()); }
    bool IsEmpty() const noexcept { return m_entries.empty(); }
    // True and the value when the key is there; the value is left alone otherwise.
    bool Lookup(const char* key, void*& value) const
    {
        const auto entry = m_entries.find(std::string_view(key));
        if (entry == m_entries.end())
            return false;
        value = entry->second;
        return true;
    }
    void SetAt(const char* key, void* value) { m_entries.insert_or_assign(key, value); }
    void RemoveAll() { m_entries.clear(); }

private:
    // Finds a key without making a string of it.
    struct Hash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };

    std::unordered_map<std::string, void*, Hash, std::equal_to<>> m_entries;
};
