#include "tests/support/RecordingLists.h"

#include "model/view/Adv3dRect.h"

CNodo* RecordingLists::NewNodo(double x, double y, double z) {
    nodi.push_back(std::make_unique<CNodo>());
    nodi.back()->SetID(Size(nodi));
    nodi.back()->SetPoint(CFPoint(x, y, z));
    return nodi.back().get();
}

CElemento* RecordingLists::GetIndexElemento(int index) {
    if (index < Size(travi))
        return At(travi, index);
    index -= Size(travi);
    if (index < Size(aste))
        return At(aste, index);
    index -= Size(aste);
    if (index < Size(setti))
        return At(setti, index);
    return At(solai, index - Size(setti));
}

void RecordingLists::Select(CElemento* element) {
    if (!element || selected.Find(element))
        return;
    element->SetSelect(1);
    selected.AddTail(element);
}

void RecordingLists::SelezionaNodo(int id, CView* pView) {
    m_journal.Add("SelezionaNodo", id, pView);
    Select(ById(nodi, id));
}
void RecordingLists::SelezionaTrave(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaTrave", id, pView, pRect);
    Select(ById(travi, id));
}
void RecordingLists::SelezionaAsta(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaAsta", id, pView, pRect);
    Select(ById(aste, id));
}
void RecordingLists::SelezionaSetto(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaSetto", id, pView, pRect);
    Select(ById(setti, id));
}
void RecordingLists::SelezionaSolaio(int id, CView* pView, Adv3dRect* pRect) {
    m_journal.Add("SelezionaSolaio", id, pView, pRect);
    Select(ById(solai, id));
}
