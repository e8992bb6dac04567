// The elements at a node. Two fit inside, which is what most nodes of a line model need; more go to the heap.
#pragma once

#include <vector>

class CElemento;

class ElementList {
  public:
    ElementList() : m_inside{} {}
    ~ElementList();
    ElementList(const ElementList&) = delete;
    ElementList& operator=(const ElementList&) = delete;

    int Size() const { return static_cast<int>(m_size); }
    CElemento* At(int i) const { return i >= 0 && i < Size() ? begin()[i] : nullptr; }
    // Elements enter once: asking here would make a node with many elements quadratic.
    void Add(CElemento* element);
    void Remove(CElemento* element); // the last one takes its place; nothing happens when it is not there
    std::vector<CElemento*> Take();  // empties the list

  private:
    CElemento* const* begin() const { return m_capacity ? m_heap : m_inside; }
    CElemento** begin() { return m_capacity ? m_heap : m_inside; }

    static constexpr unsigned insideCount = 2;
    union {
        CElemento* m_inside[insideCount];
        CElemento** m_heap; // owned
    };
    unsigned m_size = 0;
    unsigned m_capacity = 0; // of the heap; 0 while the elements are inside
};
