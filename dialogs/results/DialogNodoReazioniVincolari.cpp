#include "dialogs/results/DialogNodoReazioniVincolari.h"

#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "model/element/Nodo.h"
#include "model/result/ElementoRisultati.h"
#include "platform/window/DataExchange.h"

IMPLEMENT_DYNAMIC(CDialogNodoReazioniVincolari, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogNodoReazioniVincolari, CDialogDocument)
END_MESSAGE_MAP()

CDialogNodoReazioniVincolari::CDialogNodoReazioniVincolari(CWnd* pParent) : CDialogDocument(IDD, pParent) {
}

void CDialogNodoReazioniVincolari::DoDataExchange(CDataExchange* pDX) {
    CDialogDocument::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_NODO, m_btnNodo);
    DDX_Control(pDX, IDC_FX, m_editFx);
    DDX_Control(pDX, IDC_FX + 1, m_editFy);
    DDX_Control(pDX, IDC_FX + 2, m_editFz);
    DDX_Control(pDX, IDC_FX + 3, m_editMx);
    DDX_Control(pDX, IDC_FX + 4, m_editMy);
    DDX_Control(pDX, IDC_FX + 5, m_editMz);
}

BOOL CDialogNodoReazioniVincolari::OnInitDialog() {
    CDialogDocument::OnInitDialog();
    SetTitle(GetWindowText());
    AggiornaDialog();
    return TRUE;
}

void CDialogNodoReazioniVincolari::Update(CView* pSender, long lHint, CObject* pHint) {
    CDialogDocument::Update(pSender, lHint, pHint);
    switch (CQuovarGlobal::_GetInformazioniBase(lHint)) {
    case MODIFICA_RISULTATI:
    case MODIFICA_RISULTATI_CASO:
    case MODIFICA_RISULTATI_ELIMINATI:
    case MODIFICA_SELEZIONE_NODI:
    case MODIFICA_SELEZIONE_ASTE:
    case MODIFICA_SELEZIONE_TRAVI:
    case MODIFICA_SELEZIONE_SOLAI:
    case MODIFICA_SELEZIONE_SETTI:
    case MODIFICA_DESELEZIONE:
        AggiornaDialog();
        break;
    default:
        break;
    }
}

CNodo* CDialogNodoReazioniVincolari::GetNodo() {
    CQuovarDoc* pDoc = GetDoc();
    POSITION pos = nullptr;
    return pDoc ? pDoc->GetFirstNodoSelect(pos) : nullptr;
}

void CDialogNodoReazioniVincolari::AggiornaDialog() {
    CNodo* pNodo = GetNodo();
    CNodoReazioniVincolari* pReazioni = pNodo ? pNodo->GetReazioniVincolari() : nullptr;
    CString title = "Nessun nodo selezionato";
    if (pNodo)
        title.Format(pReazioni ? "Nodo n.ro %d" : "Nodo n.ro %d non disponibili", pNodo->GetID());
    CEdit* const edits[] = {&m_editFx, &m_editFy, &m_editFz, &m_editMx, &m_editMy, &m_editMz};
    for (int i = 0; i < 6; ++i) {
        // The record holds what the node does to its support; the reaction is the opposite.
        CString text;
        if (pReazioni)
            text.Format("%.3e", 0.0 - pReazioni->GetReaction(i));
        edits[i]->SetWindowText(text);
    }
    m_btnNodo.SetWindowText(title);
    UpdateData(FALSE);
}
