#include "dialogs/loads/DialogCreaCombinazione.h"

#include "dialogs/frame/common/Reporting.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "model/entity/CasoCarico.h"
#include "platform/core/Exception.h"
#include "platform/window/Application.h"
#include "platform/window/DataExchange.h"

#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

// The text of an edit as a number; 0 for what is none, infinities included: a combination of them could not be saved.
double NumberIn(const CEdit& edit) {
    const double number = std::atof(edit.GetWindowText());
    return std::isfinite(number) ? number : 0;
}

int IdAt(const CListBox& list, int row) {
    return static_cast<int>(list.GetItemData(row));
}

void AddRow(CListBox& list, const CString& text, int id) {
    list.SetItemData(list.AddString(text), static_cast<DWORD_PTR>(id));
}

} // namespace

BEGIN_MESSAGE_MAP(CDialogCreaCombinazione, CDialog)
    ON_BN_CLICKED(IDC_VA, OnButtonVa)
    ON_BN_CLICKED(IDC_VATUTTO, OnButtonVatutto)
    ON_BN_CLICKED(IDC_VIENI, OnButtonVieni)
    ON_BN_CLICKED(IDC_VIENITUTTO, OnButtonVienitutto)
    ON_LBN_SELCHANGE(IDC_LIST_CDCA, OnSelchangeListCdca)
    ON_LBN_SELCHANGE(IDC_LIST_CDCB, OnSelchangeListCdcb)
    ON_EN_CHANGE(IDC_NOME, OnChangeEditNome)
    ON_EN_CHANGE(IDC_FATTORE, OnChangeEditFattore)
    ON_EN_CHANGE(IDC_FATTORE_COMBINAZIONE, OnChangeEditFattoreCombinazione)
END_MESSAGE_MAP()

CDialogCreaCombinazione::CDialogCreaCombinazione(Tipo tipo, CWnd* pParent) : CDialog(IDD, pParent), m_nTipo(tipo) {
}

int CDialogCreaCombinazione::DoModal() {
    if (IsModifica()) {
        CQuovarDoc* pDoc = CQuovarGlobal::_GetActiveDoc();
        if (!pDoc)
            return IDCANCEL;
        CCombinazione* current = pDoc->GetSelectCombinazione();
        if (!current) {
            AfxMessageBox("Nessuna combinazione selezionata.");
            return IDCANCEL;
        }
        m_combinazione = *current;
    }
    return CDialog::DoModal();
}

void CDialogCreaCombinazione::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FATTORE_COMBINAZIONE, m_editFattoreCombinazione);
    DDX_Control(pDX, IDC_FATTORE, m_editFattore);
    DDX_Control(pDX, IDC_NOME, m_editNome);
    DDX_Control(pDX, IDOK, m_buttonCrea);
    DDX_Control(pDX, IDC_VIENITUTTO, m_buttonVieniTutto);
    DDX_Control(pDX, IDC_VIENI, m_buttonVieni);
    DDX_Control(pDX, IDC_VATUTTO, m_buttonVaTutto);
    DDX_Control(pDX, IDC_VA, m_buttonVa);
    DDX_Control(pDX, IDC_LIST_CDCB, m_listCDCCombinazione);
    DDX_Control(pDX, IDC_LIST_CDCA, m_listCDCDisponibili);
    DDX_Text(pDX, IDC_FATTORE, m_dFattore);
    DDX_Text(pDX, IDC_NOME, m_strNome);
}

BOOL CDialogCreaCombinazione::OnInitDialog() {
    CDialog::OnInitDialog();
    if (IsModifica()) {
        SetWindowText("Modifica Combinazione");
        m_buttonCrea.SetWindowText("&Modifica");
        m_editNome.SetWindowText(m_combinazione.GetNome());
    }
    Aggiorna();
    return TRUE;
}

// ---- What the controls show

void CDialogCreaCombinazione::Aggiorna() {
    AggiornaCDCDisponibili();
    AggiornaCDCCombinazione();
    AggiornaBottoni();
    AggiornaFattoreCombinazione();
}

void CDialogCreaCombinazione::AggiornaCDCDisponibili() {
    const RedrawLock lock(m_listCDCDisponibili);
    m_listCDCDisponibili.ResetContent();
    CQuovarDoc* pDoc = CQuovarGlobal::_GetActiveDoc();
    for (int i = 0; pDoc && i < pDoc->GetSizeCasiCarico(); ++i) {
        CCasoCarico* loadCase = pDoc->GetIndexCasoCarico(i);
        if (loadCase && !m_combinazione.IsCDC(loadCase->GetID()))
            AddRow(m_listCDCDisponibili, loadCase->GetDescrizione(1, 1, 1), loadCase->GetID());
    }
}

void CDialogCreaCombinazione::AggiornaCDCCombinazione() {
    const int current = m_listCDCCombinazione.GetCurSel();
    const RedrawLock lock(m_listCDCCombinazione);
    m_listCDCCombinazione.ResetContent();
    CQuovarDoc* pDoc = CQuovarGlobal::_GetActiveDoc();
    CString text;
    for (int pos = 0; pDoc && pos < m_combinazione.GetSizeCDC(); ++pos) {
        // A case that the document no longer has stays in the combination, out of sight.
        CCasoCarico* loadCase = pDoc->GetCasoCarico(m_combinazione.GetIDCDC(pos), nullptr);
        if (!loadCase)
            continue;
        double factor = 0;
        m_combinazione.GetFattoreCDC(pos, factor);
        text.Format("(%g) %s", factor, loadCase->GetDescrizione(1, 1, 1));
        AddRow(m_listCDCCombinazione, text, loadCase->GetID());
    }
    if (current >= 0)
        m_listCDCCombinazione.SetCurSel(current < m_listCDCCombinazione.GetCount() ? current : -1);
}

bool CDialogCreaCombinazione::HasZeroFactor() {
    for (int pos = 0; pos < m_combinazione.GetSizeCDC(); ++pos) {
        double factor = 0;
        m_combinazione.GetFattoreCDC(pos, factor);
        if (factor == 0)
            return true;
    }
    return false;
}

void CDialogCreaCombinazione::AggiornaBottoni() {
    const bool factor = NumberIn(m_editFattore) != 0;
    m_buttonVa.EnableWindow(m_listCDCDisponibili.GetCurSel() >= 0 && factor);
    m_buttonVaTutto.EnableWindow(m_listCDCDisponibili.GetCount() > 0 && factor);
    m_buttonVieni.EnableWindow(m_listCDCCombinazione.GetCurSel() >= 0);
    m_buttonVieniTutto.EnableWindow(m_listCDCCombinazione.GetCount() > 0);
    m_buttonCrea.EnableWindow(m_editNome.GetWindowTextLength() > 0 && m_combinazione.GetSizeCDC() > 0 &&
                              !HasZeroFactor());
}

int CDialogCreaCombinazione::CurrentPosition() {
    const int row = m_listCDCCombinazione.GetCurSel();
    return row < 0 ? -1 : m_combinazione.GetIndexCDC(IdAt(m_listCDCCombinazione, row));
}

void CDialogCreaCombinazione::AggiornaFattoreCombinazione() {
    CString text;
    double factor = 0;
    if (m_combinazione.GetFattoreCDC(CurrentPosition(), factor))
        text.Format("%g", factor);
    if (m_editFattoreCombinazione.GetWindowText() == text)
        return;
    m_bFattoreMostrato = true;
    m_editFattoreCombinazione.SetWindowText(text);
    m_bFattoreMostrato = false;
}

// ---- What the user does

void CDialogCreaCombinazione::OnButtonVa() {
    if (!UpdateData(TRUE))
        return;
    const int row = m_listCDCDisponibili.GetCurSel();
    if (row >= 0)
        m_combinazione.AddCDC(IdAt(m_listCDCDisponibili, row), m_dFattore);
    Aggiorna();
}

void CDialogCreaCombinazione::OnButtonVatutto() {
    if (!UpdateData(TRUE))
        return;
    for (int row = 0; row < m_listCDCDisponibili.GetCount(); ++row)
        m_combinazione.AddCDC(IdAt(m_listCDCDisponibili, row), m_dFattore);
    Aggiorna();
}

void CDialogCreaCombinazione::OnButtonVieni() {
    const int row = m_listCDCCombinazione.GetCurSel();
    if (row >= 0)
        m_combinazione.EliminaCDC(IdAt(m_listCDCCombinazione, row));
    Aggiorna();
}

void CDialogCreaCombinazione::OnButtonVienitutto() {
    m_combinazione.EliminaCDC();
    Aggiorna();
}

void CDialogCreaCombinazione::OnSelchangeListCdca() {
    AggiornaBottoni();
}

void CDialogCreaCombinazione::OnSelchangeListCdcb() {
    AggiornaBottoni();
    AggiornaFattoreCombinazione();
}

void CDialogCreaCombinazione::OnChangeEditNome() {
    AggiornaBottoni();
}

void CDialogCreaCombinazione::OnChangeEditFattore() {
    AggiornaBottoni();
}

// The edit shows six digits: what it is only told to show must not come back as the factor.
void CDialogCreaCombinazione::OnChangeEditFattoreCombinazione() {
    const int position = CurrentPosition();
    if (m_bFattoreMostrato || position < 0)
        return;
    m_combinazione.SetFattoreCDC(position, NumberIn(m_editFattoreCombinazione));
    AggiornaCDCCombinazione();
    AggiornaBottoni();
}

// ---- Confirmation

void CDialogCreaCombinazione::OnOK() {
    CQuovarDoc* pDoc = CQuovarGlobal::_GetActiveDoc();
    if (!UpdateData(TRUE) || !pDoc)
        return;
    m_combinazione.SetNome(m_strNome);
    if (IsCrea()) {
        if (!AddToDocument(*pDoc))
            return;
    } else if (CCombinazione* current = pDoc->GetSelectCombinazione()) {
        pDoc->ModificaCombinazione(current->GetID(), m_combinazione);
    }
    EndDialog(IDOK);
}

// False, after a message, when the document does not take the combination.
bool CDialogCreaCombinazione::AddToDocument(CQuovarDoc& doc) {
    if (doc.IsCasoCaricoNome(m_combinazione, nullptr)) {
        AfxMessageBox("Esiste già un caso di carico (o combinazione) con lo stesso nome."_t);
        return false;
    }
    if (!doc.IsValidoCasoCaricoNome(m_combinazione.GetNome())) {
        AfxMessageBox("Il nome non è valido.\n(Non può contenere i caratteri '.`![]', ne avere spazi iniziali, ed "
                      "avere una lunghezza massima di 64 caratteri)"_t);
        return false;
    }
    bool taken = false;
    const bool finished = RunReporting([&] {
        auto added = std::make_unique<CCombinazione>();
        *added = m_combinazione;
        taken = doc.AddCombinazione(added.get(), nullptr);
        if (taken)
            doc.SelectCasoCarico(added.release()->GetID()); // the document's from here on
    });
    if (finished && !taken)
        AfxMessageBox("La combinazione non è stata aggiunta."_t);
    return finished && taken;
}
