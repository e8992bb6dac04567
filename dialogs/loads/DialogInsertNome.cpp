#include "dialogs/loads/DialogInsertNome.h"

#include "platform/window/DataExchange.h"

CDialogInsertNome::CDialogInsertNome(CWnd* pParent) : CDialog(IDD, pParent) {
}

void CDialogInsertNome::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_NOME, m_strNome);
    DDX_Text(pDX, IDC_ETICHETTA, m_strEtichetta);
}
