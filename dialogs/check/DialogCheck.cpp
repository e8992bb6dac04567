#include "dialogs/check/DialogCheck.h"

#include "dialogs/check/RestraintCheck.h"
#include "dialogs/frame/common/SelectedRows.h"
#include "dialogs/frame/host/MainFrame.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "platform/window/DataExchange.h"

#include <vector>

IMPLEMENT_DYNAMIC(CDialogCheck, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogCheck, CDialogDocument)
    ON_WM_SIZE()
    ON_LBN_SELCHANGE(IDC_LIST_ERRORS, OnSelchangeListErrors)
END_MESSAGE_MAP()

CDialogCheck::CDialogCheck(CWnd* pParent) : CDialogDocument(IDD, pParent) {
}

void CDialogCheck::DoDataExchange(CDataExchange* pDX) {
    CDialogDocument::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LIST_ERRORS, m_listErrori);
}

BOOL CDialogCheck::OnInitDialog() {
    CDialogDocument::OnInitDialog();
    PlaceWindow();
    FindStructures(GetDoc());
    return TRUE;
}

// Below the view's frame, as wide as it, where the host shows its tables.
void CDialogCheck::PlaceWindow() {
    CMainFrame* pFrame = CMainFrame::_GetMainFrame();
    const CQuovarView* pView = GetView();
    const CWnd* pAround = pView ? pView->GetParent() : nullptr;
    if (!pFrame || !pAround)
        return;
    CRect place;
    pAround->GetWindowRect(place);
    SetWindowPos(nullptr, place.left, place.bottom, place.Width(), pFrame->GetRectClientTabella().bottom, SWP_NOZORDER);
}

void CDialogCheck::OnSize(UINT nType, int cx, int cy) {
    CDialogDocument::OnSize(nType, cx, cy);
    ReposEditErrori();
}

void CDialogCheck::ReposEditErrori() {
    if (!m_listErrori.GetSafeHwnd())
        return; // the first size comes before the controls
    CRect client;
    GetClientRect(client);
    m_listErrori.MoveWindow(client);
}

void CDialogCheck::Update(CView*, long lHint, CObject*) {
    if (CQuovarGlobal::_GetInformazioniBase(lHint) == MODIFICA_CHECK)
        Check();
}

void CDialogCheck::OnOK() {
}

void CDialogCheck::CambiaDocumento() {
}

void CDialogCheck::AddRiga(const CString& text, ElementKind kind, int id) {
    if (!IsWindow())
        return;
    const int row = m_listErrori.AddString(text);
    const int index = m_aTipi.Add(static_cast<UINT>(kind));
    m_aID.Add(static_cast<UINT>(id));
    m_listErrori.SetItemData(row, static_cast<DWORD_PTR>(index));
}

void CDialogCheck::Clear() {
    m_listErrori.ResetContent();
    m_aTipi.RemoveAll();
    m_aID.RemoveAll();
}

void CDialogCheck::Check() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc || !IsWindow())
        return;
    const RedrawLock lock(m_listErrori);
    Clear();
    AddRiga("--- Check Modello --- ");
    AddRiga("");
    if (!pDoc->IsUnica())
        AddRiga("ATTENZIONE...Controllare la struttura con il comando Check Strutture Multiple!");
    CheckStructures(*pDoc);
    CheckBeams(*pDoc);
    CheckRotations(*pDoc);
    if (!CheckElements(*pDoc))
        return;
    AddRiga("");
    AddRiga("--- Fine Messaggi ---");
}

void CDialogCheck::CheckStructures(CQuovarDoc& doc) {
    const CurrentNodes current(doc);
    for (int k = 0; k < GetSizeStructures(); ++k) {
        const CObArray& structure = *GetIndexStructure(k);
        StructureRestraint restraint;
        int nodes = 0;
        for (CObject* object : structure) {
            if (!IsCurrent(object, current))
                continue;
            restraint.Add(*static_cast<CNodo*>(object));
            ++nodes;
        }
        if (nodes == 0 && structure.GetSize() > 0)
            continue; // all of it was removed since the search
        CString text;
        if (restraint.AllFixed()) {
            text.Format("Attenzione nella Struttura n.ro %d tutti i nodi sono incastrati, impossibile risolverla!",
                        k + 1);
            AddRiga(text);
        }
        if (restraint.Labile()) {
            text.Format("Attenzione la Struttura n.ro %d, è labile"_t, k + 1);
            AddRiga(text);
        }
    }
}

void CDialogCheck::CheckBeams(CQuovarDoc& doc) {
    CString text;
    for (int i = 0; i < doc.GetSizeTravi(); ++i) {
        CTrave* pTrave = doc.GetIndexTrave(i);
        if (!pTrave || !ReleasedAtBothEnds(*pTrave))
            continue;
        text.Format("La Trave n.ro %d, è labile."_t, pTrave->GetID());
        AddRiga(text, ElementKind::Beam, pTrave->GetID());
    }
}

// A member or membrane gets one row for each of its nodes that is free to rotate.
void CDialogCheck::CheckRotations(CQuovarDoc& doc) {
    RotationCheck rotations;
    const auto check = [&](CElemento* pElemento, const CString& format, ElementKind kind) {
        for (int i = 0; pElemento && i < pElemento->GetSize(); ++i) {
            CNodo* pNodo = pElemento->GetIndexNodo(i);
            if (!pNodo || rotations.Held(*pNodo))
                continue;
            CString text;
            text.Format(format, pElemento->GetID());
            AddRiga(text, kind, pElemento->GetID());
        }
    };
    for (int i = 0; i < doc.GetSizeAste(); ++i)
        check(doc.GetIndexAsta(i), "La biella n.ro %d, è labile."_t, ElementKind::Truss);
    for (int i = 0; i < doc.GetSizeSolai(); ++i)
        check(doc.GetIndexSolaio(i), "La membrana n.ro %d, è labile."_t, ElementKind::Slab);
}

// True when every node and element is sound.
bool CDialogCheck::CheckElements(CQuovarDoc& doc) {
    bool sound = true;
    for (int i = 0; i < doc.GetSizeNodi(); ++i)
        if (!CheckElemento(doc.GetIndexNodo(i)))
            sound = false;
    for (int i = 0; i < static_cast<int>(doc.GetSizeElementi()); ++i)
        if (!CheckElemento(doc.GetIndexElemento(i)))
            sound = false;
    return sound;
}

int CDialogCheck::CheckElemento(CElemento* pElemento) {
    CStringArray messages;
    if (!pElemento || pElemento->CheckElemento(messages))
        return 1;
    const ElementKind kind = KindOf(*pElemento);
    if (kind == ElementKind::None)
        return 0;
    const int id = pElemento->GetID();
    CString prefix;
    prefix.Format("%s n.ro %d ", pElemento->GetRuntimeClass()->m_lpszClassName, id);
    for (const CString& message : messages)
        AddRiga(prefix + message, kind, id);
    return 0;
}

void CDialogCheck::OnSelchangeListErrors() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    pDoc->m_pSelezione->Deseleziona(nullptr);
    for (const int row : SelectedRows(m_listErrori)) {
        const auto index = static_cast<int>(m_listErrori.GetItemData(row));
        SelectByKind(*pDoc, static_cast<ElementKind>(m_aTipi[index]), static_cast<int>(m_aID[index]));
    }
}
