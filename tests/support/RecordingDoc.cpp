#include "tests/support/RecordingDoc.h"

#include "tests/support/RecordingHost.h"

RecordingDoc::RecordingDoc(Journal& journal)
    : RecordingCases(journal), analisi(journal, travi), selezione(journal, selected), undo(journal) {
    m_pAnalisi = &analisi;
    m_pProgetto = &progetto;
    m_pSelezione = &selezione;
    m_pUndo = &undo;
}

RecordingDoc::~RecordingDoc() = default;

void RecordingDoc::UpdateAllViews(CView* pSender, long lHint, CObject* pHint) {
    m_journal.Add("UpdateAllViews", pSender, lHint, pHint);
    if (onUpdate)
        onUpdate(pSender, lHint, pHint);
}

CQuovarView* RecordingDoc::GetViewStructure() {
    return view;
}

Adv3d* RecordingDoc::GetVista() {
    return view ? view->GetVista() : nullptr;
}
