// Arrays, lists and maps of the framework. A position outside an array, the head of an empty list or a null list
// position throws CInvalidArgException; lack of memory throws CMemoryException. Collections of pointers never own what
// the pointers point to.
#pragma once

#include "platform/core/Exception.h"
#include "platform/core/Object.h"
#include "platform/core/String.h"

#include <initializer_list>
#include <new>
#include <stdexcept>
#include <unordered_map>
#include <utility>
#include <vector>

namespace platform {

// Runs an operation that takes memory; the framework's callers catch CException and nothing of the library's own.
template <typename Operation>
decltype(auto) Allocating(Operation operation) {
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    } catch (const std::length_error&) {
        AfxThrowMemoryException();
    }
}

} // namespace platform

template <typename TYPE, typename ARG_TYPE = const TYPE&>
class CArray : public CObject {
    static_assert(!std::is_same_v<TYPE, bool>, "elements must have addresses: use BOOL");

  public:
    CArray() = default;

    int GetSize() const { return static_cast<int>(m_items.size()); }
    int GetCount() const { return GetSize(); }
    int GetUpperBound() const { return GetSize() - 1; }
    BOOL IsEmpty() const { return m_items.empty(); }
    // New elements are zero, or whatever the type's default constructor makes. `growBy` is accepted and not used.
    void SetSize(int size, int /*growBy*/ = -1) {
        if (size < 0)
            AfxThrowInvalidArgException();
        platform::Allocating([&] { m_items.resize(static_cast<std::size_t>(size)); });
    }
    void FreeExtra() { m_items.shrink_to_fit(); }
    void RemoveAll() { std::vector<TYPE>().swap(m_items); }

    const TYPE& GetAt(int index) const { return m_items[Checked(index)]; }
    TYPE& ElementAt(int index) { return m_items[Checked(index)]; }
    const TYPE& ElementAt(int index) const { return m_items[Checked(index)]; }
    const TYPE& operator[](int index) const { return m_items[Checked(index)]; }
    TYPE& operator[](int index) { return m_items[Checked(index)]; }
    void SetAt(int index, ARG_TYPE value) { m_items[Checked(index)] = value; }
    // Null when the array is empty; good until the size changes.
    TYPE* GetData() { return m_items.empty() ? nullptr : m_items.data(); }
    const TYPE* GetData() const { return m_items.empty() ? nullptr : m_items.data(); }

    void SetAtGrow(int index, ARG_TYPE value) {
        TYPE copy = value; // the value may be one of our own elements, which growing moves
        if (index >= GetSize())
            SetSize(Grown(index, 1));
        m_items[Checked(index)] = std::move(copy);
    }
    // The index of the new element.
    int Add(ARG_TYPE value) {
        platform::Allocating([&] { m_items.push_back(value); });
        return GetUpperBound();
    }
    // The index of the first new element.
    int Append(const CArray& source) {
        const int first = GetSize();
        InsertAt(first, &source);
        return first;
    }
    void Copy(const CArray& source) {
        if (this != &source)
            platform::Allocating([&] { m_items = source.m_items; });
    }

    // Beyond the end, the gap is filled with default elements.
    void InsertAt(int index, ARG_TYPE value, int count = 1) {
        if (index < 0 || count < 0)
            AfxThrowInvalidArgException();
        TYPE copy = value;
        if (index > GetSize())
            SetSize(index);
        platform::Allocating([&] { m_items.insert(m_items.begin() + index, static_cast<std::size_t>(count), copy); });
    }
    void InsertAt(int index, const CArray* source) {
        if (index < 0)
            AfxThrowInvalidArgException();
        const std::vector<TYPE> copy = source->m_items; // the source may be this array
        if (index > GetSize())
            SetSize(index);
        platform::Allocating([&] { m_items.insert(m_items.begin() + index, copy.begin(), copy.end()); });
    }
    void RemoveAt(int index, int count = 1) {
        if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index)
            AfxThrowInvalidArgException();
        m_items.erase(m_items.begin() + index, m_items.begin() + index + count);
    }

    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

  private:
    std::size_t Checked(int index) const {
        if (static_cast<std::size_t>(index) >= m_items.size()) // a negative index is a huge one
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(index);
    }
    static int Grown(int index, int count) {
        if (index < 0 || index > 0x7fffffff - count)
            AfxThrowInvalidArgException();
        return index + count;
    }

    std::vector<TYPE> m_items;
};

// A doubly linked list. A POSITION stays good until its own element is removed.
template <typename TYPE, typename ARG_TYPE = const TYPE&>
class CList : public CObject {
  public:
    // `blockSize` is accepted and not used.
    explicit CList(int /*blockSize*/ = 10) {}
    CList(const CList&) = delete;
    CList& operator=(const CList&) = delete;
    ~CList() override { RemoveAll(); }

    int GetCount() const { return m_count; }
    int GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    TYPE& GetHead() { return NodeOf(GetHeadPosition())->value; }
    const TYPE& GetHead() const { return NodeOf(GetHeadPosition())->value; }
    TYPE& GetTail() { return NodeOf(GetTailPosition())->value; }
    const TYPE& GetTail() const { return NodeOf(GetTailPosition())->value; }

    POSITION AddHead(ARG_TYPE value) { return Insert(value, nullptr, m_head); }
    POSITION AddTail(ARG_TYPE value) { return Insert(value, m_tail, nullptr); }
    // The count is fixed first: a list may be added to itself.
    void AddTail(const CList* source) {
        Node* from = source->m_head;
        for (int left = source->m_count; left > 0; --left, from = from->next)
            AddTail(from->value);
    }
    void AddHead(const CList* source) {
        Node* from = source->m_tail;
        for (int left = source->m_count; left > 0; --left, from = from->previous)
            AddHead(from->value);
    }
    POSITION InsertBefore(POSITION position, ARG_TYPE value) {
        Node* next = NodeOf(position);
        return Insert(value, next->previous, next);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE value) {
        Node* previous = NodeOf(position);
        return Insert(value, previous, previous->next);
    }

    TYPE RemoveHead() { return Take(m_head); }
    TYPE RemoveTail() { return Take(m_tail); }
    void RemoveAt(POSITION position) { Unlink(NodeOf(position)); }
    void RemoveAll() {
        while (m_head)
            Unlink(m_head);
    }

    POSITION GetHeadPosition() const { return Place(m_head); }
    POSITION GetTailPosition() const { return Place(m_tail); }
    // The element at the position, which moves on and is null after the last one.
    TYPE& GetNext(POSITION& position) {
        Node* current = NodeOf(position);
        position = Place(current->next);
        return current->value;
    }
    const TYPE& GetNext(POSITION& position) const { return const_cast<CList*>(this)->GetNext(position); }
    TYPE& GetPrev(POSITION& position) {
        Node* current = NodeOf(position);
        position = Place(current->previous);
        return current->value;
    }
    const TYPE& GetPrev(POSITION& position) const { return const_cast<CList*>(this)->GetPrev(position); }
    TYPE& GetAt(POSITION position) { return NodeOf(position)->value; }
    const TYPE& GetAt(POSITION position) const { return NodeOf(position)->value; }
    void SetAt(POSITION position, ARG_TYPE value) { NodeOf(position)->value = value; }

    // Null when there is none; the search starts after `startAfter`, or at the head when that is null.
    POSITION Find(ARG_TYPE value, POSITION startAfter = nullptr) const {
        for (Node* at = startAfter ? NodeOf(startAfter)->next : m_head; at; at = at->next)
            if (at->value == value)
                return Place(at);
        return nullptr;
    }
    POSITION FindIndex(int index) const {
        if (index < 0 || index >= m_count)
            return nullptr;
        Node* at = m_head;
        while (index-- > 0)
            at = at->next;
        return Place(at);
    }

  private:
    struct Node {
        Node* previous;
        Node* next;
        TYPE value;
    };

    static POSITION Place(Node* at) { return reinterpret_cast<POSITION>(at); }
    static Node* NodeOf(POSITION position) {
        if (!position)
            AfxThrowInvalidArgException();
        return reinterpret_cast<Node*>(position);
    }

    POSITION Insert(ARG_TYPE value, Node* previous, Node* next) {
        Node* added = platform::Allocating([&] { return new Node{previous, next, value}; });
        (previous ? previous->next : m_head) = added;
        (next ? next->previous : m_tail) = added;
        ++m_count;
        return Place(added);
    }
    void Unlink(Node* gone) {
        (gone->previous ? gone->previous->next : m_head) = gone->next;
        (gone->next ? gone->next->previous : m_tail) = gone->previous;
        --m_count;
        delete gone;
    }
    TYPE Take(Node* end) {
        TYPE value = std::move(NodeOf(Place(end))->value);
        Unlink(end);
        return value;
    }

    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    int m_count = 0;
};

// A table by key, in no particular order. A POSITION stays good until its own entry is removed.
template <typename KEY, typename ARG_KEY, typename VALUE, typename ARG_VALUE>
class CMap : public CObject {
  public:
    explicit CMap(int /*blockSize*/ = 10) {}

    int GetCount() const { return static_cast<int>(m_entries.size()); }
    int GetSize() const { return GetCount(); }
    BOOL IsEmpty() const { return m_entries.empty(); }
    void InitHashTable(UINT size, BOOL /*allocateNow*/ = TRUE) {
        platform::Allocating([&] { m_entries.reserve(size); });
    }

    // Returns 0 and leaves the value alone when the key is missing.
    BOOL Lookup(ARG_KEY key, VALUE& value) const {
        const auto found = m_entries.find(key);
        if (found == m_entries.end())
            return FALSE;
        value = found->second;
        return TRUE;
    }
    // The entry of a key; a new one has a default value.
    VALUE& operator[](ARG_KEY key) {
        return platform::Allocating([&]() -> VALUE& { return m_entries[key]; });
    }
    void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }
    BOOL RemoveKey(ARG_KEY key) { return m_entries.erase(key) > 0; }
    void RemoveAll() { m_entries.clear(); }

    POSITION GetStartPosition() const { return Place(m_entries.begin()); }
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const {
        if (!position)
            AfxThrowInvalidArgException();
        const auto* entry = reinterpret_cast<const Entry*>(position);
        key = entry->first;
        value = entry->second;
        position = Place(std::next(m_entries.find(key)));
    }

  private:
    using Entries = std::unordered_map<KEY, VALUE>;
    using Entry = typename Entries::value_type;

    POSITION Place(typename Entries::const_iterator at) const {
        return at == m_entries.end() ? nullptr : reinterpret_cast<POSITION>(const_cast<Entry*>(&*at));
    }

    Entries m_entries;
};

class CObArray : public CArray<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObArray)
};

class CPtrArray : public CArray<void*, void*> {
    DECLARE_DYNCREATE(CPtrArray)
};

class CStringArray : public CArray<CString> {
    DECLARE_DYNCREATE(CStringArray)
};

class CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNCREATE(CUIntArray)
};

class CDWordArray : public CArray<DWORD, DWORD> {
    DECLARE_DYNCREATE(CDWordArray)
};

class CWordArray : public CArray<WORD, WORD> {
    DECLARE_DYNCREATE(CWordArray)
};

class CByteArray : public CArray<BYTE, BYTE> {
    DECLARE_DYNCREATE(CByteArray)
};

class CObList : public CList<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObList)
    using CList::CList;
};

class CPtrList : public CList<void*, void*> {
    DECLARE_DYNCREATE(CPtrList)
    using CList::CList;
};

class CStringList : public CList<CString> {
    DECLARE_DYNCREATE(CStringList)
    using CList::CList;
};

class CMapStringToString : public CMap<CString, const CString&, CString, const CString&> {
    DECLARE_DYNCREATE(CMapStringToString)
    using CMap::CMap;
};

class CMapStringToPtr : public CMap<CString, const CString&, void*, void*> {
    DECLARE_DYNCREATE(CMapStringToPtr)
    using CMap::CMap;
};

class CMapStringToOb : public CMap<CString, const CString&, CObject*, CObject*> {
    DECLARE_DYNCREATE(CMapStringToOb)
    using CMap::CMap;
};

class CMapPtrToPtr : public CMap<void*, void*, void*, void*> {
    DECLARE_DYNCREATE(CMapPtrToPtr)
    using CMap::CMap;
};
