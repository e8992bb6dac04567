#include "dialogs/generation/DialogDividiLinea.h"

#include "dialogs/frame/common/CommandUndo.h"
#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/common/Reporting.h"
#include "dialogs/frame/common/SelectedRows.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/window/DataExchange.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr double samePoint = 1e-5;
constexpr int mostPoints = 100'000; // inserted at once: more are a slip of the keyboard
constexpr int margin = 40;          // pixels of the drawing beside the line
constexpr COLORREF selectedColor = RGB(0, 0, 255);

} // namespace

BEGIN_MESSAGE_MAP(CDialogDividiLinea, CDialog)
    ON_WM_PAINT()
    ON_BN_CLICKED(IDC_INSERISCI_NODI, OnButtonInsNodi)
    ON_BN_CLICKED(IDC_INSERISCI_NODO, OnButtonInsNodo)
    ON_BN_CLICKED(IDC_MEZZO, OnButtonIndMezzo)
    ON_BN_CLICKED(IDC_ELIMINA, OnButtonRimuovi)
    ON_LBN_SELCHANGE(IDC_LIST_NODI, OnSelchangeListNodi)
    ON_LBN_DBLCLK(IDC_LIST_NODI, OnDblclkListNodi)
    ON_EN_CHANGE(IDC_N_NODI, OnChangeEditNNodi)
    ON_EN_CHANGE(IDC_DISTANZA, OnChangeEditNodoDistanza)
    ON_EN_CHANGE(IDC_PROPORZIONE, OnChangeEditNodoProporzione)
END_MESSAGE_MAP()

CDialogDividiLinea::CDialogDividiLinea(CWnd* pParent) : CDialog(IDD, pParent) {
}

CDialogDividiLinea::~CDialogDividiLinea() {
    CElemento::_DestroyArray(m_arrayDivisioni, 1);
}

void CDialogDividiLinea::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_INSERISCI_NODI, m_buttonInserisciNodi);
    DDX_Control(pDX, IDC_INSERISCI_NODO, m_buttonInserisciNodo);
    DDX_Control(pDX, IDC_DISEGNO, m_staticDisegno);
    DDX_Control(pDX, IDC_LIST_NODI, m_listNodi);
    DDX_Control(pDX, IDC_ELIMINA, m_buttonElimina);
    DDX_Text(pDX, IDC_LUNGHEZZA, m_strLunghezza);
    DDX_Text(pDX, IDC_UNITA, m_strUnita);
}

BOOL CDialogDividiLinea::OnInitDialog() {
    CDialog::OnInitDialog();
    if (m_pDoc && m_pLinea) {
        m_strUnita = CGrandezza::_GetStringLunghezza(m_pDoc->GetLunghezza());
        m_strLunghezza.Format("Lunghezza : %.3f %s", Length(), m_strUnita);
        UpdateData(FALSE);
        AggiornaLista();
        AggiornaBottoni();
    }
    return TRUE;
}

double CDialogDividiLinea::Length() const {
    return m_pLinea ? m_pLinea->GetLunghezzaLinea() : 0;
}

// ---- The points

CDialogDividiLinea::CDivisione* CDialogDividiLinea::GetDivisione(int i) {
    return i >= 0 && i < GetSizeDivisioni() ? static_cast<CDivisione*>(m_arrayDivisioni[i]) : nullptr;
}

bool CDialogDividiLinea::IsDivided(double distance) {
    if (m_distances.size() != static_cast<std::size_t>(GetSizeDivisioni())) {
        m_distances.clear();
        for (int i = 0; i < GetSizeDivisioni(); ++i)
            m_distances.insert(GetDivisione(i)->m_dDistanza);
    }
    const auto near = [distance](double point) { return std::fabs(point - distance) < samePoint; };
    const auto from = m_distances.lower_bound(distance - samePoint);
    return std::any_of(from, m_distances.upper_bound(distance + samePoint), near);
}

void CDialogDividiLinea::AddDivisione(double distanza) {
    if (!(distanza < Length()))
        return;
    RunReporting([&] {
        platform::Allocating([&] {
            if (IsDivided(distanza))
                return;
            auto division = std::make_unique<CDivisione>(distanza);
            m_arrayDivisioni.Add(division.get());
            division.release();
            m_distances.insert(distanza);
        });
    });
}

void CDialogDividiLinea::OrdinaDivisioni() {
    const int size = GetSizeDivisioni();
    if (size < 2)
        return;
    RunReporting([&] {
        std::vector<CElemento::Order> order;
        CObArray sorted;
        platform::Allocating([&] { order.reserve(static_cast<std::size_t>(size)); });
        sorted.SetSize(size);
        for (int i = 0; i < size; ++i)
            order.push_back({i, GetDivisione(i)->m_dDistanza});
        std::qsort(order.data(), order.size(), sizeof order.front(), CElemento::_compareCrescente);
        for (int i = 0; i < size; ++i)
            sorted[i] = m_arrayDivisioni[order[static_cast<std::size_t>(i)].m_nIndex];
        std::copy(sorted.begin(), sorted.end(), m_arrayDivisioni.begin());
    });
}

// ---- The controls

void CDialogDividiLinea::AggiornaLista() {
    const RedrawLock lock(m_listNodi);
    m_listNodi.ResetContent();
    CString text;
    for (int i = 0; i < GetSizeDivisioni(); ++i) {
        text.Format("%.3f", GetDivisione(i)->m_dDistanza);
        m_listNodi.AddString(text);
    }
}

void CDialogDividiLinea::AggiornaBottoni() {
    const double distance = NumberIn(*this, IDC_DISTANZA);
    m_buttonElimina.EnableWindow(m_listNodi.GetSelCount() > 0);
    m_buttonInserisciNodi.EnableWindow(WholeNumberIn(*this, IDC_N_NODI) >= 1);
    m_buttonInserisciNodo.EnableWindow(distance > 0 && distance < Length());
}

void CDialogDividiLinea::AggiornaLinea() {
    Invalidate();
}

int CDialogDividiLinea::IsSelectDivisione(int i) {
    return m_listNodi.GetSel(i) > 0;
}

void CDialogDividiLinea::ShowDivisions() {
    OrdinaDivisioni();
    AggiornaLinea();
    AggiornaLista();
    AggiornaBottoni();
}

void CDialogDividiLinea::OnButtonInsNodi() {
    const int count = WholeNumberIn(*this, IDC_N_NODI);
    if (count > mostPoints) {
        AfxMessageBox("Il numero dei nodi è troppo grande."_t);
        return;
    }
    CString text;
    text.Format("%d", count);
    SetDlgItemText(IDC_N_NODI, text);
    if (count == 0)
        return;
    const double step = Length() / (count + 1);
    for (int k = 1; k <= count; ++k)
        AddDivisione(k * step);
    ShowDivisions();
}

void CDialogDividiLinea::OnButtonInsNodo() {
    AddDivisione(NumberIn(*this, IDC_DISTANZA));
    ShowDivisions();
}

void CDialogDividiLinea::OnButtonIndMezzo() {
    AddDivisione(Length() / 2);
    ShowDivisions();
}

void CDialogDividiLinea::OnButtonRimuovi() {
    const std::vector<int> rows = SelectedRows(m_listNodi);
    for (const int row : rows)
        if (row < GetSizeDivisioni())
            delete std::exchange(m_arrayDivisioni[row], nullptr);
    const auto kept = std::remove(m_arrayDivisioni.begin(), m_arrayDivisioni.end(), nullptr);
    m_arrayDivisioni.SetSize(static_cast<int>(kept - m_arrayDivisioni.begin()));
    m_distances.clear();
    AggiornaLista();
    AggiornaBottoni();
    AggiornaLinea();
}

void CDialogDividiLinea::OnSelchangeListNodi() {
    AggiornaLinea();
    AggiornaBottoni();
}

void CDialogDividiLinea::OnChangeEditNodoDistanza() {
    if (Length() != 0)
        WriteCoupled(IDC_DISTANZA, IDC_PROPORZIONE, 1 / Length());
    AggiornaBottoni();
}

void CDialogDividiLinea::OnChangeEditNodoProporzione() {
    WriteCoupled(IDC_PROPORZIONE, IDC_DISTANZA, Length());
    AggiornaBottoni();
}

// Only from the edit into which the user types, so that the two do not chase each other.
void CDialogDividiLinea::WriteCoupled(int from, int to, double factor) {
    if (GetFocus() != GetDlgItem(from))
        return;
    CString text;
    text.Format("%f", NumberIn(*this, from) * factor);
    SetDlgItemText(to, text);
}

// ---- The drawing

void CDialogDividiLinea::OnPaint() {
    const CPaintDC ends(this); // what is to be painted
    // The control paints itself first: later it would cover what is drawn here.
    m_staticDisegno.Invalidate();
    m_staticDisegno.UpdateWindow();
    CRect area;
    m_staticDisegno.GetClientRect(area);
    CClientDC dc(&m_staticDisegno);
    dc.FillSolidRect(area, RGB(255, 255, 255));
    if (m_pLinea)
        Draw(dc, area);
}

void CDialogDividiLinea::Draw(CDC& dc, const CRect& area) {
    const int width = area.Width(), middle = area.Height() / 2;
    CPen black(PS_SOLID, 2, RGB(0, 0, 0)), red(PS_SOLID, 2, RGB(255, 0, 0));
    CBrush yellow(RGB(255, 255, 0));
    {
        const ObjectSelection pen(dc, black);
        dc.MoveTo(margin, middle);
        dc.LineTo(width - margin, middle);
    }
    {
        constexpr int radius = 5;
        const ObjectSelection pen(dc, red), brush(dc, yellow);
        for (const int x : {margin, width - margin})
            dc.Ellipse(x - radius, middle - radius, x + radius, middle + radius);
    }
    dc.SetBkMode(TRANSPARENT);
    CFont large, small;
    large.CreatePointFont(100, "Arial Black");
    small.CreatePointFont(80, "Arial");
    {
        const ObjectSelection font(dc, large);
        CRect place = area;
        CString text;
        text.Format("Nodo %d", m_pLinea->GetIDNodoIniziale());
        dc.DrawText(text, &place, DT_LEFT | DT_TOP | DT_SINGLELINE);
        text.Format("Nodo %d", m_pLinea->GetIDNodoFinale());
        dc.DrawText(text, &place, DT_RIGHT | DT_TOP | DT_SINGLELINE);
    }
    const ObjectSelection font(dc, small);
    DrawDivisions(dc, area);
}

void CDialogDividiLinea::DrawDivisions(CDC& dc, const CRect& area) {
    const int middle = area.Height() / 2;
    const double scale = (area.Width() - 2 * margin) / Length();
    CPen plain(PS_SOLID, 1, RGB(0, 0, 0)), selected(PS_SOLID, 2, selectedColor);
    CString number;
    int last[2] = {-1, -1}; // where a point was drawn, plain and selected
    for (int i = 0; i < GetSizeDivisioni(); ++i) {
        const int x = margin + static_cast<int>(GetDivisione(i)->m_dDistanza * scale);
        const int isSelected = IsSelectDivisione(i);
        // Thousands of points on one pixel would be one blot, drawn slowly.
        if (std::exchange(last[isSelected], x) == x)
            continue;
        const ObjectSelection pen(dc, isSelected ? selected : plain);
        dc.SetTextColor(isSelected ? selectedColor : RGB(0, 0, 0));
        dc.MoveTo(x, middle - 6);
        dc.LineTo(x, middle + 6);
        number.Format("%d", i + 1);
        dc.TextOut(x, middle + 7, number);
    }
}

// ---- The division

void CDialogDividiLinea::OnOK() {
    if (!UpdateData(TRUE))
        return;
    if (GetSizeDivisioni() > 0 && m_pDoc && m_pLinea && m_pLinea->GetNodoIniziale())
        Divide();
    EndDialog(IDOK);
}

void CDialogDividiLinea::Divide() {
    const CommandUndo undo(*m_pDoc, UNDO_DIVIDI);
    CFPoint along;
    m_pLinea->GetDir(along, 0);
    const CFPoint start = *m_pLinea->GetNodoIniziale()->GetPunto();
    m_pDoc->UpdateAllViews(nullptr, MODIFICA_ELEMENTI_INIZIO, nullptr);
    CNodo* const end = m_pLinea->GetNodoFinale(); // before the line is shortened
    CNodo* previous = nullptr;
    CNodo* node = nullptr;
    for (int i = 0; i < GetSizeDivisioni(); ++i) {
        CFPoint place = start + along * GetDivisione(i)->m_dDistanza;
        node = m_pDoc->AddNodo(place, nullptr, 1);
        if (i == 0 && node) {
            m_pLinea->SetNodi(m_pLinea->GetNodoIniziale(), node);
            previous = node;
        } else if (!previous || !node) {
            break;
        } else if (AddPart(*previous, *node)) {
            previous = node;
        }
    }
    if (node && end)
        AddPart(*node, *end);
    m_pDoc->UpdateAllViews(nullptr, MODIFICA_ELEMENTI_VISTE, nullptr);
    m_pDoc->UpdateAllViews(nullptr, MODIFICA_STRUTTURA, nullptr);
    m_pDoc->UpdateAllViews(nullptr, MODIFICA_STRUTTURA, nullptr);
}

bool CDialogDividiLinea::AddPart(CNodo& from, CNodo& to) {
    CLineaFisica* part = nullptr;
    if (m_pLinea->IsKindOf(RUNTIME_CLASS(CTrave)))
        part = m_pDoc->AddTrave(from.GetID(), to.GetID(), nullptr);
    else if (m_pLinea->IsKindOf(RUNTIME_CLASS(CAsta)))
        part = m_pDoc->AddAsta(from.GetID(), to.GetID(), nullptr);
    if (!part)
        return false;
    const auto& line = static_cast<CLineaFisica&>(*m_pLinea);
    part->SetMateriale(line.GetIDMateriale(), line.GetMateriale());
    part->SetSezione(line.GetIDSezione(), line.GetSezione());
    for (int k = 0; k < m_pLinea->GetSizeCarichi(); ++k)
        part->AddCarico(m_pLinea->GetIndexCarico(k), 1);
    return true;
}
