#include "dialogs/loads/DialogListaCasiCarico.h"

#include "dialogs/frame/common/SelectedRows.h"
#include "dialogs/frame/host/MainFrame.h"
#include "dialogs/frame/host/QuovarAnalisi.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/load/Carico.h"
#include "model/result/ElementoRisultati.h"
#include "platform/window/DataExchange.h"

#include <vector>

namespace {

constexpr int farNode = 1; // of a beam's result records

// The loads of `source` that the element carries, again for `copy`, whose loads have the same numbers. The element
// grows while it is walked; what is added belongs to another case and ends the walk by itself.
void CarryCopies(CElementoCarico* pElemento, CCasoCarico& source, CCasoCarico& copy) {
    if (!pElemento)
        return;
    for (int k = 0; k < pElemento->GetSizeCarichi(); ++k) {
        CCarico* load = pElemento->GetIndexCarico(k);
        if (load && load->GetIDCasoCarico() == source.GetID())
            pElemento->AddCarico(copy.GetCarico(load->GetID(), nullptr), 1);
    }
}

void CarryCopies(CQuovarDoc& doc, CCasoCarico& source, CCasoCarico& copy) {
    for (int i = 0; i < doc.GetSizeElementi(); ++i)
        CarryCopies(DYNAMIC_DOWNCAST(CElementoCarico, static_cast<CObject*>(doc.GetIndexElemento(i))), source, copy);
    for (int i = 0; i < doc.GetSizeNodi(); ++i)
        CarryCopies(doc.GetIndexNodo(i), source, copy);
}

void SwapAxialSigns(CQuovarDoc& doc) {
    for (int i = 0; i < doc.GetSizeTravi(); ++i) {
        CTrave* beam = doc.GetIndexTrave(i);
        CElementoRisultati* results = beam ? beam->GetRisultati() : nullptr;
        if (CNodoRisultati* node = results ? results->GetNodeResults(farNode) : nullptr)
            node->GetV1() = -node->GetV1();
    }
}

} // namespace

BEGIN_MESSAGE_MAP(CDialogListaCasiCarico, CDialog)
    ON_LBN_SELCHANGE(IDC_LIST_CASICARICO, OnSelchangeListCasicarico)
    ON_BN_CLICKED(IDC_ELIMINA, OnButtonElimina)
    ON_BN_CLICKED(IDC_COPIA, OnButtonCopia)
    ON_BN_CLICKED(IDC_RINOMINA, OnButtonRinomina)
    ON_BN_CLICKED(IDC_PERMUTA, OnButtonPermuta)
END_MESSAGE_MAP()

CDialogListaCasiCarico::CDialogListaCasiCarico(CQuovarDoc* pDoc, CWnd* pParent) : CDialog(IDD, pParent), m_pDoc(pDoc) {
}

void CDialogListaCasiCarico::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_RINOMINA, m_buttonRinomina);
    DDX_Control(pDX, IDC_COPIA, m_buttonCopia);
    DDX_Control(pDX, IDOK, m_buttonSeleziona);
    DDX_Control(pDX, IDC_LIST_CASICARICO, m_listCasiCarico);
    DDX_Control(pDX, IDC_ELIMINA, m_buttonElimina);
}

BOOL CDialogListaCasiCarico::OnInitDialog() {
    CDialog::OnInitDialog();
    Refresh();
    return TRUE;
}

void CDialogListaCasiCarico::Refresh() {
    UpdateListBox();
    UpdateSelect();
}

void CDialogListaCasiCarico::UpdateListBox() {
    if (!::IsWindow(m_listCasiCarico.GetSafeHwnd()) || !m_pDoc)
        return;
    const RedrawLock lock(m_listCasiCarico);
    m_listCasiCarico.ResetContent();
    CString text;
    for (int i = 0; i < m_pDoc->GetSizeCasiCarico(); ++i) {
        text.Empty(); // rows are the document's indexes
        if (CCasoCarico* loadCase = m_pDoc->GetIndexCasoCarico(i)) {
            text.Format("%d : ", loadCase->GetID());
            text += loadCase->GetNome();
        }
        m_listCasiCarico.AddString(text);
    }
}

void CDialogListaCasiCarico::UpdateSelect() {
    const int selected = m_listCasiCarico.GetSelCount();
    m_buttonElimina.EnableWindow(selected > 0);
    for (CButton* button : {&m_buttonSeleziona, &m_buttonCopia, &m_buttonRinomina})
        button->EnableWindow(selected == 1);
}

void CDialogListaCasiCarico::OnSelchangeListCasicarico() {
    UpdateSelect();
}

void CDialogListaCasiCarico::OnOK() {
    if (m_pDoc)
        m_pDoc->SelectIndexCasoCarico(m_listCasiCarico.GetCurSel());
    CDialog::OnOK();
}

// The keys act and then go the ordinary way: Enter in the list still reaches the default button.
BOOL CDialogListaCasiCarico::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_DELETE)
        OnButtonElimina();
    else if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN)
        OnOK();
    return CDialog::PreTranslateMessage(pMsg);
}

CCasoCarico* CDialogListaCasiCarico::CurrentCase() {
    return m_pDoc ? m_pDoc->GetIndexCasoCarico(m_listCasiCarico.GetCurSel()) : nullptr;
}

void CDialogListaCasiCarico::OnButtonElimina() {
    if (!m_pDoc)
        return;
    // All numbers first: each deletion moves the cases after it to other rows.
    CUIntArray ids;
    for (const int row : SelectedRows(m_listCasiCarico))
        if (CCasoCarico* loadCase = m_pDoc->GetIndexCasoCarico(row))
            ids.Add(static_cast<UINT>(loadCase->GetID()));
    for (const UINT id : ids)
        m_pDoc->EliminaCasoCarico(static_cast<int>(id));
    Refresh();
}

void CDialogListaCasiCarico::OnButtonCopia() {
    CCasoCarico* source = CurrentCase();
    CQuovarDoc* pDoc = CQuovarGlobal::_GetActiveDoc();
    CCasoCarico* copy = source && pDoc ? CQuovarInterface::CreaCasoCarico(pDoc) : nullptr;
    if (!copy)
        return;
    // The assignment brings the source's name and number along.
    const CString name = copy->GetNome();
    const int id = copy->GetID();
    *copy = *source;
    copy->SetNome(name);
    copy->SetID(id);
    CarryCopies(*pDoc, *source, *copy);
    pDoc->UpdateAllViews(nullptr, MODIFICA_CASI_CARICO, nullptr);
    Refresh();
}

void CDialogListaCasiCarico::OnButtonRinomina() {
    CElementoStrutturale* entity = CurrentCase();
    if (!entity && m_pDoc)
        entity = m_pDoc->GetIndexCombinazione(m_listCasiCarico.GetCurSel());
    CQuovarDoc* pDoc = CQuovarGlobal::_GetActiveDoc();
    if (!entity || !pDoc)
        return;
    CDialogCreaCasoCarico dialog(nullptr);
    dialog.m_strNome = "Inserisci un nuovo nome";
    dialog.m_strNumero.Format("%d", entity->GetID());
    if (!AskNewName(dialog, *pDoc))
        return;
    entity->SetNome(dialog.m_strNome);
    pDoc->UpdateAllViews(nullptr, MODIFICA_CASI_CARICO, nullptr);
    Refresh();
}

void CDialogListaCasiCarico::OnButtonPermuta() {
    if (CCasoCarico* loadCase = CurrentCase())
        Permuta(loadCase->GetNome());
}

void CDialogListaCasiCarico::Permuta(CString nome) {
    if (!m_pDoc || !m_pDoc->IsCasoCaricoSismicoDinamico(nome))
        return;
    const WaitBar wait("", 0);
    CCasoCarico* loadCase = m_pDoc->GetCasoCarico(nome);
    if (!loadCase)
        return;
    const int id = loadCase->GetID();
    if (!SwapResults(id))
        return;
    // What the views show of the current case was read before.
    CCasoCarico* current = m_pDoc->GetSelectCasoCarico();
    if (current && current->GetID() == id)
        m_pDoc->SelectCasoCarico(id);
}

// The elements borrow the records of the case while they are changed; false when they cannot, and nothing has changed.
bool CDialogListaCasiCarico::SwapResults(int idCaso) {
    CQuovarAnalisi& analisi = *m_pDoc->m_pAnalisi;
    CObArray records;
    if (!analisi.LeggiRisultati(idCaso, records, 0))
        return false;
    if (!analisi.AggiornaRiferimentiRisultati(records)) {
        CElemento::_DestroyArray(records, 1);
        return false;
    }
    SwapAxialSigns(*m_pDoc);
    analisi.CreaRisultati(idCaso, records, 0);
    analisi.RipristinaRisultati();
    CElemento::_DestroyArray(records, 1);
    return true;
}
