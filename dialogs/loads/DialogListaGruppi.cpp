#include "dialogs/loads/DialogListaGruppi.h"

#include "dialogs/frame/common/SelectedRows.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "model/entity/Gruppo.h"
#include "platform/window/DataExchange.h"

#include <vector>

IMPLEMENT_DYNAMIC(CDialogListaGruppi, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogListaGruppi, CDialogDocument)
    ON_LBN_SELCHANGE(IDC_LIST, OnSelchangeList)
    ON_BN_CLICKED(IDC_ELIMINA, OnButtonElimina)
END_MESSAGE_MAP()

CDialogListaGruppi::CDialogListaGruppi(CWnd* pParent) : CDialogDocument(IDD, pParent) {
}

void CDialogListaGruppi::DoDataExchange(CDataExchange* pDX) {
    CDialogDocument::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ELIMINA, m_buttonElimina);
    DDX_Control(pDX, IDC_LIST, m_listGruppi);
}

BOOL CDialogListaGruppi::OnInitDialog() {
    CDialogDocument::OnInitDialog();
    SetTitle("Gruppi");
    AggiornaListBox();
    AggiornaBottoni();
    return TRUE;
}

void CDialogListaGruppi::Update(CView*, long lHint, CObject*) {
    if (CQuovarGlobal::_GetInformazioniBase(lHint) != MODIFICA_GRUPPI)
        return;
    AggiornaListBox();
    AggiornaBottoni();
}

void CDialogListaGruppi::AggiornaListBox() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc || !IsWindow())
        return;
    const RedrawLock lock(m_listGruppi);
    m_listGruppi.ResetContent();
    for (int i = 0; i < pDoc->GetSizeGruppi(); ++i) {
        CGruppo* group = pDoc->GetIndexGruppo(i);
        m_listGruppi.AddString(group ? group->GetNome() : CString()); // rows are the document's indexes
    }
}

void CDialogListaGruppi::AggiornaBottoni() {
    if (IsWindow())
        m_buttonElimina.EnableWindow(m_listGruppi.GetSelCount() > 0);
}

void CDialogListaGruppi::AggiornaListaSelezione(CQuovarDoc& doc) {
    m_listaIDScelti.RemoveAll();
    for (const int row : SelectedRows(m_listGruppi)) {
        CGruppo* group = doc.GetIndexGruppo(row);
        if (group && group->GetID() != 0)
            m_listaIDScelti.Add(static_cast<UINT>(group->GetID()));
    }
}

void CDialogListaGruppi::OnSelchangeList() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    AggiornaBottoni();
    AggiornaListaSelezione(*pDoc);
    pDoc->m_pSelezione->Deseleziona(nullptr);
    for (int i = 0; i < GetSizeSel(); ++i)
        pDoc->SelezionaGruppo(GetIDSel(i));
}

void CDialogListaGruppi::OnButtonElimina() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    // Each deletion moves the rows and the groups after it up by one. The rows are found beforehand, since the document
    // may have the list refilled, without selection, while a group goes.
    int gone = 0;
    for (const int row : SelectedRows(m_listGruppi)) {
        m_listGruppi.DeleteString(static_cast<UINT>(row - gone));
        pDoc->EliminaGruppo(row - gone);
        ++gone;
    }
    OnSelchangeList();
    AggiornaBottoni();
}
