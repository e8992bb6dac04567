#include "model/Adv3dRect.h"
#include "model/Elemento.h"
#include "model/Nodo.h"
#include "model/Poligono.h"
#include "tests/support/RecordingDoc.h"

void RecordingUndo::BeginUndo(unsigned int tipo, double v1, double v2, double v3, double v4, double v5, double v6,
                              double v7, double v8, double v9, double v10) {
    m_journal.Add("BeginUndo", tipo, v1, v2, v3, v4, v5, v6, v7, v8, v9, v10);
}
void RecordingUndo::EndUndo(unsigned int tipo) {
    m_journal.Add("EndUndo", tipo);
}

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

void RecordingSelection::TraslaSelezione(double dx, double dy, double dz, int nCopie, int unione) {
    m_journal.Add("TraslaSelezione", dx, dy, dz, nCopie, unione);
}
void RecordingSelection::RuotaSelezione(double seno, double coseno, int asse, int nCopie, int unione) {
    m_journal.Add("RuotaSelezione", seno, coseno, asse, nCopie, unione);
}
void RecordingSelection::RuotaSelezione(double x1, double y1, double z1, double x2, double y2, double z2, double gradi,
                                        int nCopie, int unione) {
    m_journal.Add("RuotaSelezione", x1, y1, z1, x2, y2, z2, gradi, nCopie, unione);
}
void RecordingSelection::SpecchiaSelezione(double x, double y, double z, int piano) {
    m_journal.Add("SpecchiaSelezione", x, y, z, piano);
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
void RecordingSelection::FineCicloTraslaSelezione(Adv3dRect&, unsigned int contatore) {
    m_journal.Add("FineCicloTraslaSelezione", contatore);
}

void RecordingSelection::IntersezioneLineePiano(CPoligono* pPoligono) {
    m_journal.Add("IntersezioneLineePiano", pPoligono ? pPoligono->GetSize() : 0);
}
void RecordingSelection::SelezionaElementiPiano(CPoligono* pPoligono) {
    m_journal.Add("SelezionaElementiPiano", pPoligono ? pPoligono->GetSize() : 0);
}
void RecordingSelection::SelezionaElementiRange(CFPoint da, CFPoint a, int nodi, int aste, int travi, int solai,
                                                int setti) {
    m_journal.Add("SelezionaElementiRange", da, a, nodi, aste, travi, solai, setti);
}
