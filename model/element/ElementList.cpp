#include "model/element/ElementList.h"

#include <algorithm>

ElementList::~ElementList() {
    if (m_capacity)
        delete[] m_heap;
}

void ElementList::Add(CElemento* element) {
    const unsigned room = m_capacity ? m_capacity : insideCount;
    if (m_size == room) {
        // Growing by half wastes less than doubling: nodes of plate meshes have 4 to 8 elements.
        const unsigned grown = room + std::max(room / 2, 2u);
        auto* heap = new CElemento*[grown];
        std::copy(begin(), begin() + m_size, heap);
        if (m_capacity)
            delete[] m_heap;
        m_heap = heap;
        m_capacity = grown;
    }
    begin()[m_size++] = element;
}

void ElementList::Remove(CElemento* element) {
    CElemento** const first = begin();
    CElemento** const last = first + m_size;
    CElemento** const found = std::find(first, last, element);
    if (found == last)
        return;
    *found = last[-1];
    --m_size;
}

std::vector<CElemento*> ElementList::Take() {
    std::vector<CElemento*> taken(begin(), begin() + m_size);
    if (m_capacity)
        delete[] m_heap;
    m_capacity = 0;
    m_size = 0;
    return taken;
}
