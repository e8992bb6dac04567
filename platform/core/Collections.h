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

    // The index of the new element.
    int Add(ARG_TYPE value) {
        platform::Allocating([&] { m_items.push_back(value); });
        return GetSize() - 1;
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

// A linked list. A POSITION stays good until the list is emptied.
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

    POSITION AddTail(ARG_TYPE value) {
        Node* added = platform::Allocating([&] { return new Node{nullptr, value}; });
        (m_tail ? m_tail->next : m_head) = added;
        m_tail = added;
        ++m_count;
        return Place(added);
    }
    void RemoveAll() {
        while (m_head)
            delete std::exchange(m_head, m_head->next);
        m_tail = nullptr;
        m_count = 0;
    }

    POSITION GetHeadPosition() const { return Place(m_head); }
    // The element at the position, which moves on and is null after the last one.
    TYPE& GetNext(POSITION& position) {
        Node* current = NodeOf(position);
        position = Place(current->next);
        return current->value;
    }
    const TYPE& GetNext(POSITION& position) const { return const_cast<CList*>(this)->GetNext(position); }
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
        Node* next;
        TYPE value;
    };

    static POSITION Place(Node* at) { return reinterpret_cast<POSITION>(at); }
    static Node* NodeOf(POSITION position) {
        if (!position)
            AfxThrowInvalidArgException();
        return reinterpret_cast<Node*>(position);
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
