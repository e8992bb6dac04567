// Arrays and lists of the framework. A position outside an array or a null list position throws
// CInvalidArgException; lack of memory throws CMemoryException. Collections of pointers never own what
// the pointers point to.
#pragma once

#include "platform/core/Exception.h"
#include "platform/core/Object.h"
#include "platform/core/String.h"

#include <new>
#include <stdexcept>
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
    void RemoveAll() { std::vector<TYPE>().swap(m_items); }

    const TYPE& GetAt(int index) const { return m_items[Checked(index)]; }
    const TYPE& operator[](int index) const { return m_items[Checked(index)]; }
    TYPE& operator[](int index) { return m_items[Checked(index)]; }
    void SetAt(int index, ARG_TYPE value) { m_items[Checked(index)] = value; }

    // The index of the new element.
    int Add(ARG_TYPE value) {
        platform::Allocating([&] { m_items.push_back(value); });
        return GetUpperBound();
    }
    // The index of the first new element.
    int Append(const CArray& source) {
        const int first = GetSize();
        platform::Allocating([&] {
            const std::vector<TYPE> copy = source.m_items; // the source may be this array
            m_items.insert(m_items.end(), copy.begin(), copy.end());
        });
        return first;
    }
    void Copy(const CArray& source) {
        if (this != &source)
            platform::Allocating([&] { m_items = source.m_items; });
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

    POSITION AddHead(ARG_TYPE value) { return Insert(value, nullptr, m_head); }
    POSITION AddTail(ARG_TYPE value) { return Insert(value, m_tail, nullptr); }

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

    // Null when there is none; the search starts after `startAfter`, or at the head when that is null.
    POSITION Find(ARG_TYPE value, POSITION startAfter = nullptr) const {
        for (Node* at = startAfter ? NodeOf(startAfter)->next : m_head; at; at = at->next)
            if (at->value == value)
                return Place(at);
        return nullptr;
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

    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    int m_count = 0;
};

class CObArray : public CArray<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObArray)
};

class CStringArray : public CArray<CString> {
    DECLARE_DYNCREATE(CStringArray)
};

class CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNCREATE(CUIntArray)
};

class CObList : public CList<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObList)
    using CList::CList;
};
