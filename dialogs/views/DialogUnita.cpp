#include "dialogs/views/DialogUnita.h"

#include "platform/window/DataExchange.h"

namespace {

template <class Unit>
Unit UnitOf(int button, Unit last) {
    return static_cast<Unit>(button >= 0 && button <= static_cast<int>(last) ? button : -1);
}

} // namespace

CDialogUnita::CDialogUnita(CWnd* pParent) : CDialog(IDD, pParent) {
}

void CDialogUnita::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Radio(pDX, IDC_FORZA_KG, m_nForza);
    DDX_Radio(pDX, IDC_LUNGHEZZA_MM, m_nLunghezza);
    DDX_Radio(pDX, IDC_TEMPO, m_nTempo);
}

Lunghezza CDialogUnita::GetLunghezza() const {
    return UnitOf(m_nLunghezza, Lunghezza::Inches);
}

Forza CDialogUnita::GetForza() const {
    return UnitOf(m_nForza, Forza::Kips);
}
