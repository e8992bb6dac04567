// Small sound models in the recording document: what is made here has its material, section and thickness.
#pragma once

#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "tests/support/RecordingDoc.h"
#include "tests/support/SoundParts.h"

#include <initializer_list>
#include <utility>

class CheckModel : public SoundParts {
  public:
    explicit CheckModel(RecordingDoc& doc) : m_doc(doc) {}

    static inline const CVincolo fixed{CVincolo::All};
    static inline const CVincolo pinned{1, 1, 1, 0, 0, 0};

    // Nodes stand on a parabola, so that no three of them are in line.
    CNodo* Node() {
        const double x = static_cast<double>(m_doc.nodi.size());
        return m_doc.NewNodo(x, x * x, 0);
    }
    CTrave& Beam(CNodo& a, CNodo& b) { return Sound(*m_doc.NewTrave(a.GetID(), b.GetID())); }
    CAsta& Truss(CNodo& a, CNodo& b) { return Sound(*m_doc.NewAsta(a.GetID(), b.GetID())); }
    CSolaio& Slab(std::initializer_list<CNodo*> nodes) { return Polygon(m_doc.solai, nodes); }
    CSetto& Wall(std::initializer_list<CNodo*> nodes) { return Polygon(m_doc.setti, nodes); }
    // A beam that is fixed at its first node: a structure of its own without faults.
    std::pair<CNodo*, CNodo*> Frame() {
        CNodo* const first = Node();
        CNodo* const second = Node();
        first->SetRestraint(&fixed);
        Beam(*first, *second);
        return {first, second};
    }

  private:
    template <class T>
    T& Polygon(std::vector<std::unique_ptr<T>>& list, std::initializer_list<CNodo*> nodes) {
        list.push_back(std::make_unique<T>());
        list.back()->SetID(static_cast<int>(list.size()));
        return Sound(*list.back(), nodes);
    }

    RecordingDoc& m_doc;
};
