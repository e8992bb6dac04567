#include "dialogs/check/DialogStrutture.h"

#include "dialogs/frame/common/ElementSelection.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "model/element/Nodo.h"
#include "model/view/Adv3dRect.h"
#include "platform/window/DataExchange.h"

namespace {

constexpr UINT_PTR ticksTimer = 0;
constexpr UINT ticksMilliseconds = 100;

} // namespace

IMPLEMENT_DYNAMIC(CDialogStrutture, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogStrutture, CDialogDocument)
    ON_NOTIFY(NM_CLICK, IDC_TREE_STRUTTURE, OnClickTreeStrutture)
    ON_NOTIFY(TVN_KEYDOWN, IDC_TREE_STRUTTURE, OnKeydownTreeStrutture)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CDialogStrutture::CDialogStrutture(CWnd* pParent) : CDialogDocument(IDD, pParent) {
}

void CDialogStrutture::DoDataExchange(CDataExchange* pDX) {
    CDialogDocument::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TREE_STRUTTURE, m_treeStrutture);
}

BOOL CDialogStrutture::OnInitDialog() {
    CDialogDocument::OnInitDialog();
    CQuovarDoc* pDoc = GetDoc();
    if (pDoc)
        pDoc->m_pSelezione->Deseleziona(nullptr);
    FindStructures(pDoc);
    AggiornaListCtrl();
    return TRUE;
}

void CDialogStrutture::AggiornaListCtrl() {
    const RedrawLock lock(m_treeStrutture);
    m_treeStrutture.DeleteAllItems();
    CString text;
    for (int i = 0; i < GetSizeStructures(); ++i) {
        text.Format("Struttura n.ro %d", i + 1);
        const HTREEITEM item = m_treeStrutture.InsertItem(text);
        m_treeStrutture.SetItemData(item, static_cast<DWORD_PTR>(i));
    }
}

void CDialogStrutture::ReadTicksSoon() {
    SetTimer(ticksTimer, ticksMilliseconds);
}

void CDialogStrutture::OnClickTreeStrutture(NMHDR*, LRESULT* pResult) {
    ReadTicksSoon();
    *pResult = 0;
}

void CDialogStrutture::OnKeydownTreeStrutture(NMHDR* pNMHDR, LRESULT* pResult) {
    if (reinterpret_cast<const NMTVKEYDOWN*>(pNMHDR)->wVKey == VK_SPACE)
        ReadTicksSoon();
    *pResult = 0;
}

void CDialogStrutture::OnTimer(UINT_PTR nIDEvent) {
    if (CQuovarDoc* pDoc = GetDoc())
        SelectTicked(*pDoc);
    KillTimer(ticksTimer);
    CDialogDocument::OnTimer(nIDEvent);
}

void CDialogStrutture::SelectTicked(CQuovarDoc& doc) {
    doc.m_pSelezione->Deseleziona(nullptr);
    CUIntArray ticked;
    GetStructureSel(ticked);
    const CurrentNodes current(doc);
    for (const UINT index : ticked)
        SelezionaStruttura(GetIndexStructure(static_cast<int>(index)), current);
}

void CDialogStrutture::GetStructureSel(CUIntArray& indici) {
    for (HTREEITEM item = m_treeStrutture.GetRootItem(); item; item = m_treeStrutture.GetNextSiblingItem(item))
        if (m_treeStrutture.GetCheck(item))
            indici.Add(static_cast<UINT>(m_treeStrutture.GetItemData(item)));
}

void CDialogStrutture::SelezionaStruttura(CObArray* pStruttura, const CurrentNodes& current) {
    CQuovarDoc* pDoc = GetDoc();
    if (!pStruttura || !pDoc)
        return;
    Adv3dRect rect(pDoc->GetVista());
    pDoc->UpdateAllViews(nullptr, MODIFICA_SELEZIONE_INIZIO);
    pDoc->UpdateAllViews(nullptr, MODIFICA_ELEMENTI_INIZIO);
    for (CObject* object : *pStruttura) {
        if (!IsNode(object))
            return;
        if (!IsCurrent(object, current))
            continue; // removed since the search
        const auto* node = static_cast<const CNodo*>(object);
        for (int i = 0; i < node->GetSizeElementi(); ++i) {
            if (CElemento* element = node->GetIndexElemento(i))
                SelectByKind(*pDoc, KindOf(*element), element->GetID(), &rect);
        }
    }
    pDoc->UpdateAllViews(nullptr, MODIFICA_SELEZIONE_VISTE);
    pDoc->UpdateAllViews(nullptr, MODIFICA_ELEMENTI_FINE);
    pDoc->UpdateAllViews(nullptr, MODIFICA_REGIONE, &rect);
}
