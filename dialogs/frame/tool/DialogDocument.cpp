#include "dialogs/frame/tool/DialogDocument.h"

#include "dialogs/frame/host/QuovarDoc.h"
#include "model/values/Path.h"

IMPLEMENT_DYNAMIC(CDialogDocument, CDialog)

BEGIN_MESSAGE_MAP(CDialogDocument, CDialog)
END_MESSAGE_MAP()

CDialogDocument::CDialogDocument(UINT nIDD, CWnd* pParent)
    : CDialog(nIDD, pParent),
      m_pView(nullptr),
      m_nIDD(nIDD),
      m_bCancel(0),
      m_bModified(0),
      m_bAutoFocus(0),
      m_pWndAutoFocus(nullptr) {
}

int CDialogDocument::Create(CQuovarView* pView) {
    // Bound first: the dialog's initialisation needs the view for its caption and its first prompt.
    SetView(pView);
    if (IsWindow())
        return 0;
    return CDialog::Create(m_nIDD, pView);
}

int CDialogDocument::IsWindow() {
    return ::IsWindow(m_hWnd);
}

int CDialogDocument::IsCancel() {
    return m_bCancel;
}

void CDialogDocument::VistaEliminata(CView* pView) {
    if (GetView() == pView)
        SetView(nullptr);
}

void CDialogDocument::AggiornaVista(CQuovarView* pView) {
    if (pView && !GetView())
        SetView(pView);
}

void CDialogDocument::SetVettoreFrom(CFPoint, int) {
}

void CDialogDocument::SetVettoreFrom(CFPoint) {
}

void CDialogDocument::SetVettoreTo(CFPoint, int) {
}

void CDialogDocument::SetVettoreTo(CFPoint) {
}

void CDialogDocument::Update(CView*, long, CObject*) {
}

void CDialogDocument::OnApply() {
    CambiaDocumento();
}

void CDialogDocument::SetTitle(CString titolo) {
    CQuovarDoc* pDoc = GetDoc();
    CString nome;
    if (pDoc && SplitPath(pDoc->GetPathName(), nullptr, nullptr, &nome, nullptr))
        titolo = nome + " : " + titolo;
    SetWindowText(titolo);
}

void CDialogDocument::CambiaDocumento() {
}

void CDialogDocument::SetView(CQuovarView* pView) {
    m_pView = pView;
}

void CDialogDocument::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
}

BOOL CDialogDocument::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_NCMOUSEMOVE && IsAutoFocus()) {
        CWnd* pWnd = GetWndAutoFocus();
        (pWnd ? pWnd : this)->SetFocus();
    }
    return CDialog::OnWndMsg(message, wParam, lParam, pResult);
}

BOOL CDialogDocument::OnInitDialog() {
    CDialog::OnInitDialog();
    m_bCancel = 0;
    return TRUE;
}

void CDialogDocument::OnOK() {
    CambiaDocumento();
    if (CQuovarView* pView = GetView())
        pView->SendMessage(WM_FINEDIALOGO, FINEDIALOGO_CONFERMATO, reinterpret_cast<LPARAM>(this));
}

void CDialogDocument::OnCancel() {
    m_bCancel = 1;
    if (CQuovarView* pView = GetView())
        pView->SendMessage(WM_FINEDIALOGO, FINEDIALOGO_ANNULLATO, reinterpret_cast<LPARAM>(this));
}

CQuovarView* CDialogDocument::GetView() {
    return m_pView && ::IsWindow(m_pView->GetSafeHwnd()) ? m_pView : nullptr;
}

CQuovarDoc* CDialogDocument::GetDoc() {
    CQuovarView* pView = GetView();
    return pView ? pView->GetDocument() : nullptr;
}

void CDialogDocument::SetModified(int bModified) {
    m_bModified = bModified;
}

int CDialogDocument::IsModified() {
    return m_bModified;
}

void CDialogDocument::SetAutoFocus(int bAutoFocus) {
    m_bAutoFocus = bAutoFocus;
}

int CDialogDocument::IsAutoFocus() {
    return m_bAutoFocus;
}

void CDialogDocument::SetWndAutoFocus(CWnd* pWnd) {
    m_pWndAutoFocus = pWnd;
}

CWnd* CDialogDocument::GetWndAutoFocus() {
    return m_pWndAutoFocus;
}
