#include "dialogs/selection/DialogBeta.h"

#include "dialogs/frame/host/QuovarDoc.h"
#include "model/element/Trave.h"
#include "platform/window/DataExchange.h"

IMPLEMENT_DYNAMIC(CDialogBeta, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogBeta, CDialogDocument)
    ON_BN_CLICKED(IDC_SELEZIONE, OnButtonSelezione)
    ON_BN_CLICKED(IDC_VISTA, OnButtonVista)
    ON_EN_CHANGE(IDC_BETA, OnChangeEditBeta)
END_MESSAGE_MAP()

CDialogBeta::CDialogBeta(CWnd* pParent) : CDialogDocument(IDD, pParent) {
}

void CDialogBeta::DoDataExchange(CDataExchange* pDX) {
    CDialogDocument::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_BETA, m_editBeta);
    DDX_Control(pDX, IDC_VISTA, m_buttonVista);
    DDX_Control(pDX, IDC_SELEZIONE, m_buttonSelezione);
    DDX_Text(pDX, IDC_BETA, m_dBeta);
}

BOOL CDialogBeta::OnInitDialog() {
    CDialogDocument::OnInitDialog();
    SetTitle(GetWindowText());
    AggiornaBottoni();
    AggiornaBeta();
    return TRUE;
}

void CDialogBeta::Update(CView* pSender, long lHint, CObject* pHint) {
    CDialogDocument::Update(pSender, lHint, pHint);
    AggiornaBottoni();
    AggiornaBeta();
}

void CDialogBeta::OnChangeEditBeta() {
    AggiornaBottoni();
}

void CDialogBeta::AggiornaBottoni() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc || !IsWindow())
        return;
    const bool isTyped = !m_editBeta.GetWindowText().IsEmpty();
    m_buttonSelezione.EnableWindow(isTyped && pDoc->IsSelectTrave());
    m_buttonVista.EnableWindow(isTyped);
}

void CDialogBeta::AggiornaBeta() {
    if (!GetDoc() || !IsWindow())
        return;
    if (HasCommonBeta(m_dBeta))
        UpdateData(FALSE);
    else
        m_editBeta.SetWindowText("");
}

bool CDialogBeta::HasCommonBeta(double& beta) {
    CQuovarDoc& doc = *GetDoc();
    POSITION pos = nullptr;
    CTrave* first = doc.GetFirstTraveSelect(pos);
    if (!first)
        return false;
    for (CTrave* beam = first; beam; beam = doc.GetNextTraveSelect(pos))
        if (beam->GetBeta() != first->GetBeta())
            return false;
    beta = first->GetBeta();
    return true;
}

void CDialogBeta::OnButtonSelezione() {
    if (!UpdateData(TRUE))
        return;
    if (CQuovarDoc* pDoc = GetDoc())
        pDoc->AssegnaBetaSelezione(m_dBeta, 1, 0);
}

void CDialogBeta::OnButtonVista() {
    if (!UpdateData(TRUE))
        return;
    if (CQuovarDoc* pDoc = GetDoc())
        pDoc->AssegnaBetaVista(m_dBeta, 1, 0);
}
