#include "dialogs/results/DialogDiagrammi.h"

#include "dialogs/frame/host/QuovarAnalisi.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "model/element/Trave.h"
#include "model/view/DrawHelpers.h"
#include "model/view/ElementoSettings.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/resource/Resource.h"
#include "platform/window/DataExchange.h"
#include "platform/window/Menu.h"

int CDialogDiagrammi::_bStaticCursor = 0;

BEGIN_MESSAGE_MAP(CDialogDiagrammi, CDialogDocument)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_COMMAND(ID_DIAGRAMMI_M2, OnDiagrammiM2)
    ON_COMMAND(ID_DIAGRAMMI_M3, OnDiagrammiM3)
    ON_COMMAND(ID_DIAGRAMMI_N, OnDiagrammiN)
    ON_COMMAND(ID_DIAGRAMMI_T, OnDiagrammiT)
    ON_COMMAND(ID_DIAGRAMMI_V2, OnDiagrammiV2)
    ON_COMMAND(ID_DIAGRAMMI_V3, OnDiagrammiV3)
    ON_WM_CONTEXTMENU()
    ON_COMMAND(ID_DIAGRAMMI_VISUALIZZAVALORI, OnDiagrammiVisualizzavalori)
    ON_WM_MOUSEMOVE()
    ON_COMMAND(ID_DIAGRAMMI_CATTURAIMMAGINE, OnDiagrammiCatturaimmagine)
    ON_WM_SETCURSOR()
    ON_COMMAND(ID_DIAGRAMMI_M2W2, OnDiagrammiM2w2)
    ON_COMMAND(ID_DIAGRAMMI_M3W3, OnDiagrammiM3w3)
    ON_COMMAND(ID_DIAGRAMMI_NA, OnDiagrammiNa)
END_MESSAGE_MAP()

// What belongs to one diagram, in the order in which the view is asked for its choice.
struct CDialogDiagrammi::Switch {
    int kind;
    UINT command;
    int CDialogDiagrammi::*flag;
};
const CDialogDiagrammi::Switch CDialogDiagrammi::switches[9] = {
    {CElementoSettings::N, ID_DIAGRAMMI_N, &CDialogDiagrammi::m_bN},
    {CElementoSettings::T, ID_DIAGRAMMI_T, &CDialogDiagrammi::m_bT},
    {CElementoSettings::V2, ID_DIAGRAMMI_V2, &CDialogDiagrammi::m_bV2},
    {CElementoSettings::V3, ID_DIAGRAMMI_V3, &CDialogDiagrammi::m_bV3},
    {CElementoSettings::M2, ID_DIAGRAMMI_M2, &CDialogDiagrammi::m_bM2},
    {CElementoSettings::M3, ID_DIAGRAMMI_M3, &CDialogDiagrammi::m_bM3},
    {CElementoSettings::N_A, ID_DIAGRAMMI_NA, &CDialogDiagrammi::m_bNA},
    {CElementoSettings::M2_W2, ID_DIAGRAMMI_M2W2, &CDialogDiagrammi::m_bM2W2},
    {CElementoSettings::M3_W3, ID_DIAGRAMMI_M3W3, &CDialogDiagrammi::m_bM3W3},
};

CDialogDiagrammi::CDialogDiagrammi(CWnd* pParent) : CDialogDocument(IDD, pParent) {
}

void CDialogDiagrammi::DoDataExchange(CDataExchange* pDX) {
    CDialogDocument::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DIAGRAMMA, m_wndDiagramma);
}

BOOL CDialogDiagrammi::OnInitDialog() {
    CDialogDocument::OnInitDialog();
    m_wndDiagramma.SetWindowText(""); // the template's word would show wherever nothing is drawn over it
    RiposizionaDiagramma();
    Update(nullptr, 0, nullptr);
    return TRUE;
}

void CDialogDiagrammi::SetView(CQuovarView* pView) {
    if (pView && pView == GetView())
        return;
    CDialogDocument::SetView(pView);
    if (!pView)
        return;
    CElementoSettings& settings = pView->GetTraveSettings();
    for (const Switch& each : switches)
        this->*each.flag = settings.IsRisultato(each.kind) ? 1 : 0;
    if (IsWindow())
        Invalidate();
}

void CDialogDiagrammi::Update(CView*, long, CObject*) {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc || !IsWindow())
        return;
    POSITION pos = nullptr;
    SetTrave(pDoc->GetFirstTraveSelect(pos));
    Invalidate();
}

void CDialogDiagrammi::AggiornaRisultato(int tipo, int mostra) {
    for (const Switch& each : switches)
        if (each.kind == tipo)
            this->*each.flag = mostra;
    if (IsWindow())
        Invalidate();
}

void CDialogDiagrammi::RiposizionaDiagramma() {
    if (!::IsWindow(m_wndDiagramma.GetSafeHwnd()))
        return;
    CRect client;
    GetClientRect(client);
    m_wndDiagramma.SetWindowPos(nullptr, 2, 3, client.Width() - 3, client.Height() - 3, SWP_NOZORDER);
}

void CDialogDiagrammi::AggiornaDiagramma() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc || !::IsWindow(m_wndDiagramma.GetSafeHwnd()))
        return;
    CClientDC dc(&m_wndDiagramma);
    CRect client;
    m_wndDiagramma.GetClientRect(client);
    // The control paints itself first: later it would cover what is drawn here.
    m_wndDiagramma.Invalidate();
    m_wndDiagramma.UpdateWindow();
    CTrave* pTrave = HeldTrave();
    const bool valid = pTrave && pDoc->m_pAnalisi && pDoc->m_pAnalisi->m_bRisultatiValidi;
    CString title = "Diagramma - (Nessuna trave selezionata)";
    if (valid)
        title.Format("Diagramma - Trave %d", pTrave->GetID());
    else if (pTrave)
        title = "Diagramma - (I risultati non sono validi)";
    SetTitle(title);
    dc.FillSolidRect(client, RGB(255, 255, 255));
    if (valid)
        DrawBeam(0, CPoint(0, 0));
}

// The news that the beam is gone, with its document too, may still be on its way: only the selection tells.
CTrave* CDialogDiagrammi::HeldTrave() {
    CQuovarDoc* pDoc = GetDoc();
    POSITION pos = nullptr;
    CTrave* pFirst = pDoc ? pDoc->GetFirstTraveSelect(pos) : nullptr;
    return pFirst == GetTrave() ? pFirst : nullptr;
}

void CDialogDiagrammi::DrawBeam(int bLettura, CPoint punto) {
    GetTrave()->DisegnaDiagrammaTrave(&m_wndDiagramma, m_bN, m_bV2, m_bV3, m_bT, m_bM2, m_bM3, m_bNA, m_bM2W2, m_bM3W3,
                                      bLettura, punto);
}

void CDialogDiagrammi::Toggle(int& flag) {
    flag = !flag;
    Invalidate();
}

void CDialogDiagrammi::OnSize(UINT nType, int cx, int cy) {
    CDialogDocument::OnSize(nType, cx, cy);
    RiposizionaDiagramma();
    Invalidate();
}

void CDialogDiagrammi::OnPaint() {
    const CPaintDC dc(this); // ends what is to be painted
    AggiornaDiagramma();
}

void CDialogDiagrammi::OnContextMenu(CWnd*, CPoint point) {
    CMenu menu;
    if (!menu.Attach(LoadMenu(AfxFindResourceHandle(IDR_MENU_DIAGRAMMI, RT_MENU), IDR_MENU_DIAGRAMMI)))
        return;
    for (const Switch& each : switches)
        if (this->*each.flag)
            menu.CheckMenuItem(each.command, MF_BYCOMMAND | MF_CHECKED);
    if (IsRisultati())
        menu.CheckMenuItem(ID_DIAGRAMMI_VISUALIZZAVALORI, MF_BYCOMMAND | MF_CHECKED);
    if (CMenu* popup = menu.GetSubMenu(0))
        popup->TrackPopupMenu(TPM_RIGHTBUTTON, point.x, point.y, this);
}

void CDialogDiagrammi::OnMouseMove(UINT nFlags, CPoint point) {
    CPoint screen = point;
    ClientToScreen(screen);
    if (IsPointInWnd(&m_wndDiagramma, screen)) {
        _bStaticCursor = 1;
        SetCursor(StandardCursor::Cross);
    }
    if (IsRisultati() && HeldTrave())
        DrawBeam(1, point);
    CDialogDocument::OnMouseMove(nFlags, point);
}

BOOL CDialogDiagrammi::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    if (!_bStaticCursor)
        return CDialogDocument::OnSetCursor(pWnd, nHitTest, message);
    _bStaticCursor = 0;
    return TRUE;
}

void CDialogDiagrammi::OnDiagrammiN() {
    Toggle(m_bN);
}

void CDialogDiagrammi::OnDiagrammiV2() {
    Toggle(m_bV2);
}

void CDialogDiagrammi::OnDiagrammiV3() {
    Toggle(m_bV3);
}

void CDialogDiagrammi::OnDiagrammiT() {
    Toggle(m_bT);
}

void CDialogDiagrammi::OnDiagrammiM2() {
    Toggle(m_bM2);
}

void CDialogDiagrammi::OnDiagrammiM3() {
    Toggle(m_bM3);
}

void CDialogDiagrammi::OnDiagrammiNa() {
    Toggle(m_bNA);
}

void CDialogDiagrammi::OnDiagrammiM2w2() {
    Toggle(m_bM2W2);
}

void CDialogDiagrammi::OnDiagrammiM3w3() {
    Toggle(m_bM3W3);
}

// Without painting anew: the next move of the pointer shows the values.
void CDialogDiagrammi::OnDiagrammiVisualizzavalori() {
    m_bRisultati = !m_bRisultati;
}

void CDialogDiagrammi::OnDiagrammiCatturaimmagine() {
    CQuovarView* pView = GetView();
    if (!pView || !::IsWindow(m_wndDiagramma.GetSafeHwnd()))
        return;
    CRect rect;
    m_wndDiagramma.GetClientRect(rect);
    m_wndDiagramma.ClientToScreen(rect);
    pView->SetRectImmagine(rect.left, rect.top, rect.right, rect.bottom);
    pView->CatturaImmagine();
}
