#include "dialogs/selection/DialogCopiaTrasla.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/MainFrame.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/selection/SelectionCommand.h"
#include "model/view/Adv3dRect.h"
#include "platform/core/Collections.h"
#include "platform/window/Application.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <iterator>
#include <optional>

namespace {

constexpr int directionZ = 2;
constexpr int directionVector = 3;
constexpr int joinNothing = 2;
constexpr double defaultSpacing = 3.0;
constexpr int rowNumberWidth = 44; // pixels of a row that the editor leaves free
constexpr int blockSize = 10;
constexpr int mostRows = 1'000'000; // a number typed by mistake must not fill the memory; all rows from 101 are alike

// The leading whole number of a text as atoi reads it; one that no int holds becomes the nearest that it does.
int LeadingInteger(const CString& text) {
    return static_cast<int>(std::clamp<long>(std::strtol(text, nullptr, 10), INT_MIN, INT_MAX));
}

// A negative number of copies makes none; what no counter holds fills it.
unsigned int StepsOfWait(int copies, int objects) {
    const long long steps = static_cast<long long>(std::max(copies, 0)) * objects;
    return static_cast<unsigned int>(std::min<long long>(steps, UINT_MAX));
}

bool IsDigitKey(WPARAM key) {
    return key >= '0' && key <= '9'; // the keypad's digits have codes of their own
}

bool EditorTakes(WPARAM key) {
    return IsDigitKey(key) || key == VK_OEM_PERIOD || key == VK_LEFT || key == VK_RIGHT || key == VK_BACK;
}

} // namespace

IMPLEMENT_DYNAMIC(CDialogCopiaTrasla, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogCopiaTrasla, TwoPointDialog)
    ON_WM_VSCROLL()
    ON_EN_KILLFOCUS(IDC_EDIT_LISTA, OnKillfocusEditList)
    ON_LBN_DBLCLK(IDC_LISTA_PASSI, OnDblclkList)
    ON_BN_CLICKED(IDC_DIREZIONE_VETTORE, OnRadioVettore)
    ON_EN_KILLFOCUS(IDC_X1, OnKillfocusEditCopiatraslaX1)
    ON_EN_KILLFOCUS(IDC_X2, OnKillfocusEditCopiatraslaX2)
    ON_EN_KILLFOCUS(IDC_Y1, OnKillfocusEditCopiatraslaY1)
    ON_EN_KILLFOCUS(IDC_Y2, OnKillfocusEditCopiatraslaY2)
    ON_EN_KILLFOCUS(IDC_Z1, OnKillfocusEditCopiatraslaZ1)
    ON_EN_KILLFOCUS(IDC_Z2, OnKillfocusEditCopiatraslaZ2)
    ON_BN_CLICKED(IDC_DIREZIONE_X, OnRadioX)
    ON_BN_CLICKED(IDC_DIREZIONE_Y, OnRadioY)
    ON_BN_CLICKED(IDC_DIREZIONE_Z, OnRadioZ)
    ON_EN_CHANGE(IDC_SPAZIATURA, OnChangeEditPasso)
    ON_EN_CHANGE(IDC_COPIE, OnChangeEditCopiatraslaCopie)
END_MESSAGE_MAP()

CDialogCopiaTrasla::CDialogCopiaTrasla(CWnd* pParent) : TwoPointDialog(IDD, pParent) {
    InitPass(m_dSpaziatura);
}

void CDialogCopiaTrasla::DoDataExchange(CDataExchange* pDX) {
    TwoPointDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_COPIE, m_editCopie);
    DDX_Control(pDX, IDC_SPAZIATURA, m_editSpaziatura);
    DDX_Control(pDX, IDC_EDIT_LISTA, m_editLista);
    DDX_Control(pDX, IDC_LISTA_PASSI, m_listPassi);
    DDX_Control(pDX, IDC_SPIN_COPIE, m_spinCopie);
    DDX_Text(pDX, IDC_COPIE, m_nCopie);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Radio(pDX, IDC_UNIONE_TRAVI, m_nUnione);
    DDX_Text(pDX, IDC_SPAZIATURA, m_dSpaziatura);
    DDX_Text(pDX, IDC_EDIT_LISTA, m_dValoreLista);
    DDX_Radio(pDX, IDC_DIREZIONE_X, m_nDirezione);
}

BOOL CDialogCopiaTrasla::OnInitDialog() {
    SetTitle(GetWindowText());
    ResetFields();
    TwoPointDialog::OnInitDialog();
    InitSpin(m_spinCopie, &m_editCopie, 0, GetMaxPass(), m_nCopie);
    InitPass(m_dSpaziatura);
    HideEditor();
    EnableVettore(m_nDirezione == directionVector);
    ResetListBox();
    WriteControls();
    StartPicking();
    return TRUE;
}

void CDialogCopiaTrasla::ResetFields() {
    ResetPoints();
    m_shownFrom = m_shownTo = CFPoint();
    m_nCopie = 1;
    m_nUnione = joinNothing;
    m_dSpaziatura = defaultSpacing;
    m_dValoreLista = 0;
    m_nDirezione = directionZ;
}

int CDialogCopiaTrasla::GetMaxPass() {
    return static_cast<int>(std::size(m_dPasso));
}

double& CDialogCopiaTrasla::GetIndexPass(int index) {
    return m_dPasso[index >= 0 && index < GetMaxPass() ? index : 0];
}

bool CDialogCopiaTrasla::WriteControls() {
    m_shownFrom = GetVettoreFrom();
    m_shownTo = GetVettoreTo();
    return UpdateData(FALSE) != 0;
}

bool CDialogCopiaTrasla::ReadControls() {
    if (IsClosing() || IsCancel() || !UpdateData(TRUE))
        return false;
    if (m_nDirezione == directionVector && VectorChanged())
        FollowVector();
    return true;
}

void CDialogCopiaTrasla::VectorEdited() {
    if (ReadControls() && VectorChanged())
        FollowVector();
}

bool CDialogCopiaTrasla::VectorChanged() {
    return !(GetVettoreFrom() == m_shownFrom && GetVettoreTo() == m_shownTo);
}

void CDialogCopiaTrasla::FollowVector() {
    m_nDirezione = directionVector;
    if (WriteControls())
        UpdateSpaziatura(GetSpaziatura(GetVettoreDiff()));
}

int CDialogCopiaTrasla::GetNPass() {
    return ReadControls() ? m_nCopie : 0;
}

void CDialogCopiaTrasla::InitPass(double passo) {
    std::fill(std::begin(m_dPasso), std::end(m_dPasso), passo);
}

void CDialogCopiaTrasla::ResetListBox() {
    constexpr int rowsPerStep = 100'000;
    m_listPassi.ResetContent();
    // Read before the redraw rests: a field that does not parse shows its message.
    const int rows = std::min(GetNPass(), mostRows);
    const RedrawLock lock(m_listPassi);
    std::optional<WaitBar> wait;
    if (rows > rowsPerStep)
        wait.emplace("Attendere...", static_cast<unsigned int>(rows / rowsPerStep));
    CString text;
    for (int i = 0; i < rows; ++i) {
        text.Format("%d            %g", i + 1, GetIndexPass(i));
        m_listPassi.AddString(text);
        if (wait && (i + 1) % rowsPerStep == 0)
            CMainFrame::_StepBar();
    }
}

void CDialogCopiaTrasla::EnableVettore(int bEnable) {
    EnableControls(*this, {IDC_GROUP_VETTORE}, bEnable);
    EnableControls(*this, IDC_X1, IDC_Z2, bEnable);
    EnableControls(*this, IDC_LABEL_VETTORE_FIRST, IDC_LABEL_VETTORE_LAST, bEnable);
}

void CDialogCopiaTrasla::UpdateSpaziatura(double spaziatura) {
    if (!ReadControls())
        return;
    m_dSpaziatura = spaziatura;
    if (!WriteControls())
        return;
    InitPass(spaziatura);
    ResetListBox();
}

CFPoint CDialogCopiaTrasla::GetVettoreDir(CFPoint vettore) {
    const double length = GetSpaziatura(vettore);
    return length == 0 ? CFPoint() : CFPoint(vettore.x / length, vettore.y / length, vettore.z / length);
}

double CDialogCopiaTrasla::GetSpaziatura(CFPoint vettore) {
    return vettore.GetMod();
}

void CDialogCopiaTrasla::SetVettoreFrom(CFPoint point, int bAggiorna) {
    if (IsCancel() || (bAggiorna && !ReadControls()))
        return;
    StoreFrom(point);
    m_nDirezione = directionVector;
    EnableVettore(TRUE);
    if (bAggiorna)
        WriteControls();
}

void CDialogCopiaTrasla::SetVettoreFrom(CFPoint point) {
    SetVettoreFrom(point, TRUE);
}

void CDialogCopiaTrasla::SetVettoreTo(CFPoint point, int bAggiorna) {
    if (IsCancel() || (bAggiorna && !ReadControls()))
        return;
    StoreTo(point);
    m_nDirezione = directionVector;
    EnableVettore(TRUE);
    if (bAggiorna && WriteControls())
        UpdateSpaziatura(GetSpaziatura(GetVettoreDiff()));
}

void CDialogCopiaTrasla::SetVettoreTo(CFPoint point) {
    SetVettoreTo(point, TRUE);
}

void CDialogCopiaTrasla::OnRadioX() {
    EnableVettore(FALSE);
    // The field still holds the direction from before the click.
    if (m_nDirezione == directionVector && ReadControls())
        UpdateSpaziatura(m_dSpaziatura);
}

void CDialogCopiaTrasla::OnRadioVettore() {
    EnableVettore(TRUE);
    UpdateSpaziatura(GetSpaziatura(GetVettoreDiff()));
}

void CDialogCopiaTrasla::OnChangeEditPasso() {
    if (!m_editSpaziatura.GetSafeHwnd())
        return;
    const double old = m_dSpaziatura;
    m_dSpaziatura = std::atof(m_editSpaziatura.GetWindowText());
    if (m_dSpaziatura <= 0) {
        m_dSpaziatura = old; // the text stays: the user may be on the way to 0.5
    } else if (m_nDirezione == directionVector && m_dSpaziatura != old) {
        AfxMessageBox("La spaziatura non può essere cambiata con il vettore attivo."_t);
        m_dSpaziatura = old;
        WriteControls();
    } else if (m_dSpaziatura != old) {
        UpdateSpaziatura(m_dSpaziatura);
    }
}

void CDialogCopiaTrasla::OnChangeEditCopiatraslaCopie() {
    if (!m_editCopie.GetSafeHwnd())
        return;
    const int old = m_nCopie;
    m_nCopie = LeadingInteger(m_editCopie.GetWindowText());
    if (m_nCopie != old)
        ResetListBox();
}

void CDialogCopiaTrasla::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar == &m_spinCopie)
        ResetListBox();
    TwoPointDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}

// The row's rectangle in the dialog, without its number. Without a row the editor stands at the top of the list.
CRect CDialogCopiaTrasla::EditorPlace(int row) {
    CRect place, client;
    m_listPassi.GetClientRect(client);
    m_listPassi.GetItemRect(std::max(row, 0), &place);
    if (row >= 0 && (place.top < client.top || place.bottom > client.bottom)) {
        m_listPassi.SetTopIndex(row); // scrolled away since it was selected
        m_listPassi.GetItemRect(row, &place);
    }
    if (place.IsRectEmpty()) {
        place = client;
        place.bottom = place.top + m_listPassi.GetItemHeight(0);
    }
    m_listPassi.ClientToScreen(place);
    ScreenToClient(place);
    place.left += rowNumberWidth;
    return place;
}

void CDialogCopiaTrasla::ModificaPasso(int n) {
    if (!ReadControls())
        return;
    const int row = m_listPassi.GetCurSel();
    const CRect place = EditorPlace(row);
    if (n < 0) {
        m_dValoreLista = GetIndexPass(row);
        if (!WriteControls())
            return;
    } else {
        CString digit;
        digit.Format("%d", n);
        m_editLista.SetWindowText(digit);
    }
    m_nIndiceModifica = row;
    m_listPassi.SetCurSel(-1);
    m_editLista.SetWindowPos(&wndTop, place.left, place.top, place.Width(), place.Height(), SWP_SHOWWINDOW);
    m_listPassi.RedrawWindow();
    if (n < 0)
        m_editLista.SetSel(0, -1);
    else
        m_editLista.SetSel(1, 1); // after the digit: what follows continues the number
    m_editLista.SetFocus();
}

void CDialogCopiaTrasla::HideEditor() {
    m_editLista.SetWindowPos(&wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_HIDEWINDOW);
}

void CDialogCopiaTrasla::OnKillfocusEditList() {
    const double old = m_dValoreLista;
    if (!ReadControls())
        return;
    if (m_dValoreLista == 0) {
        m_dValoreLista = old;
        if (!WriteControls())
            return;
    }
    GetIndexPass(m_nIndiceModifica) = m_dValoreLista;
    ResetListBox();
    m_listPassi.SetCurSel(m_nIndiceModifica);
    // The focus goes before the editor does: hiding the focused control would hand it to the next tab stop.
    m_listPassi.SetFocus();
    HideEditor();
}

void CDialogCopiaTrasla::OnDblclkList() {
    ModificaPasso(-1);
}

BOOL CDialogCopiaTrasla::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message != WM_KEYDOWN)
        return TwoPointDialog::PreTranslateMessage(pMsg);
    const CWnd* focus = GetFocus();
    const WPARAM key = pMsg->wParam;
    if (focus == &m_editLista && !EditorTakes(key)) {
        if (key == VK_RETURN)
            m_listPassi.SetFocus(); // and leaving the editor commits
        return TRUE;
    }
    if (focus == &m_listPassi && (key == VK_SPACE || IsDigitKey(key))) {
        ModificaPasso(key == VK_SPACE ? -1 : static_cast<int>(key - '0'));
        return TRUE;
    }
    return TwoPointDialog::PreTranslateMessage(pMsg);
}

bool CDialogCopiaTrasla::AcceptSteps() {
    for (int i = 0; i < std::min(m_nCopie, GetMaxPass()); ++i) { // the steps beyond are the first one
        if (GetIndexPass(i) != 0)
            continue;
        AfxMessageBox("Passo non valido.");
        m_listPassi.SetCurSel(i);
        m_listPassi.SetFocus();
        return false;
    }
    return true;
}

void CDialogCopiaTrasla::SetAxisVector() {
    if (m_nDirezione < 0 || m_nDirezione >= directionVector)
        return;
    const int axis = m_nDirezione; // storing the first point changes the field
    SetVettoreFrom(CFPoint(), FALSE);
    SetVettoreTo(CFPoint(axis == 0, axis == 1, axis == 2), FALSE);
}

void CDialogCopiaTrasla::OnOK() {
    if (!ReadControls() || !AcceptCopies(m_nCopie))
        return;
    if (m_nDirezione == directionVector && GetVettoreFrom() == GetVettoreTo()) {
        AfxMessageBox("Vettore non valido.");
        return;
    }
    if (!AcceptSteps())
        return;
    SetAxisVector();
    CDialogDocument::OnOK();
}

void CDialogCopiaTrasla::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc || m_nUnione < 0 || m_nUnione > joinNothing)
        return;
    const CFPoint direction = GetVettoreDir(GetVettoreDiff());
    Adv3dRect rect;
    CObList oggetti(blockSize);
    CObList copie(blockSize);
    unsigned int contatore = 0;
    std::optional<WaitBar> wait; // before the undo step, so that the bar goes after the step is closed
    const CommandUndo undo(*pDoc, UNDO_COPIA);
    CQuovarSelection& selection = *pDoc->m_pSelezione;
    selection.InizioCicloTraslaSelezione(rect, oggetti);
    wait.emplace("Attendere...Traslazione dei nodi/elementi selezionati.", StepsOfWait(m_nCopie, oggetti.GetCount()));
    for (int i = 0; i < m_nCopie; ++i) {
        const CFPoint step = direction * GetIndexPass(i);
        selection.CicloTraslaSelezione(step.x, step.y, step.z, JoinKind(m_nUnione), contatore, rect, oggetti, copie);
    }
    selection.FineCicloTraslaSelezione(rect, contatore);
}
