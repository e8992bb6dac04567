#include "tests/support/RecordingSelection.h"

#include "model/element/Nodo.h"
#include "model/element/Poligono.h"
#include "model/view/Adv3dRect.h"
#include "platform/core/Exception.h"
#include "platform/window/View.h"

#include <algorithm>
#include <utility>
#include <vector>

void RecordingSelection::Deseleziona(CView* pView) {
    m_journal.Add("Deseleziona", pView);
    for (POSITION pos = m_selected.GetHeadPosition(); pos;)
        static_cast<CElemento*>(m_selected.GetNext(pos))->SetSelect(0);
    m_selected.RemoveAll();
}

// Walks the elements that meet at each node, the seed first.
void RecordingSelection::SelezionaStruttura(CNodo* seed, CObArray* pNodi) {
    m_journal.Add("SelezionaStruttura", seed);
    std::vector<CNodo*> reached{seed};
    for (std::size_t next = 0; next < reached.size(); ++next) {
        CNodo* node = reached[next];
        pNodi->Add(node);
        for (int i = 0; i < node->GetSizeElementi(); ++i) {
            CElemento* element = node->GetIndexElemento(i);
            for (int k = 0; k < element->GetSize(); ++k) {
                CNodo* other = element->GetIndexNodo(k);
                if (other && std::find(reached.begin(), reached.end(), other) == reached.end())
                    reached.push_back(other);
            }
        }
    }
}

void RecordingSelection::InizioCicloTraslaSelezione(Adv3dRect&, CObList& oggetti) {
    for (POSITION pos = m_selected.GetHeadPosition(); pos;)
        oggetti.AddTail(m_selected.GetNext(pos));
    m_journal.Add("InizioCicloTraslaSelezione", oggetti.GetCount());
}
void RecordingSelection::CicloTraslaSelezione(double dx, double dy, double dz, int unione, unsigned int& contatore,
                                              Adv3dRect&, CObList&, CObList&) {
    m_journal.Add("CicloTraslaSelezione", dx, dy, dz, unione, contatore);
    ++contatore;
}

void RecordingSelection::RecordPlane(const char* name, CPoligono* polygon) {
    std::string line = name;
    for (int i = 0; polygon && i < polygon->GetSize(); ++i)
        line += " " + Journal::Text(*polygon->GetIndexNodo(i)->GetPunto());
    m_journal.Add(line.c_str());
    if (planeThrows)
        throw std::exchange(planeThrows, nullptr);
}
