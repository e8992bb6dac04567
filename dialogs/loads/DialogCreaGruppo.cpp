#include "dialogs/loads/DialogCreaGruppo.h"

#include "platform/window/DataExchange.h"

CDialogCreaGruppo::CDialogCreaGruppo(CWnd* pParent) : CDialog(IDD, pParent) {
}

void CDialogCreaGruppo::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_NOME, m_strNome);
}
