#include "tests/support/RecordingGeneration.h"

CNodo* RecordingGeneration::AddNodo(CFPoint& punto, CView* pView, int flag) {
    return Record("AddNodo", punto, pView, flag) ? NewNodo(punto.x, punto.y, punto.z) : nullptr;
}

CTrave* RecordingGeneration::AddTrave(int idNodo1, int idNodo2, CView* pView) {
    const bool accepted = Record("AddTrave", idNodo1, idNodo2, pView) && ById(nodi, idNodo1) && ById(nodi, idNodo2);
    return accepted ? NewTrave(idNodo1, idNodo2) : nullptr;
}

CAsta* RecordingGeneration::AddAsta(int idNodo1, int idNodo2, CView* pView) {
    const bool accepted = Record("AddAsta", idNodo1, idNodo2, pView) && ById(nodi, idNodo1) && ById(nodi, idNodo2);
    return accepted ? NewAsta(idNodo1, idNodo2) : nullptr;
}

CNodo* RecordingGeneration::GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) {
    m_journal.Add("GetNodo", punto, pEscluso, tolleranza);
    for (const auto& node : nodi)
        if (node.get() != pEscluso && CFPoint::GetMod(*node->GetPunto(), punto) <= tolleranza)
            return node.get();
    return nullptr;
}
