#include "dialogs/loads/DialogCreaCasoCarico.h"

#include "dialogs/frame/host/DocumentCases.h"
#include "platform/window/Application.h"
#include "platform/window/DataExchange.h"

CDialogCreaCasoCarico::CDialogCreaCasoCarico(CWnd* pParent) : CDialog(IDD, pParent) {
}

void CDialogCreaCasoCarico::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_NOME, m_strNome);
    DDX_Text(pDX, IDC_NUMERO, m_strNumero);
}

BOOL CDialogCreaCasoCarico::OnInitDialog() {
    CDialog::OnInitDialog();
    if (!m_strTitolo.IsEmpty())
        SetWindowText(m_strTitolo);
    return TRUE;
}

bool AskNewName(CDialogCreaCasoCarico& dialog, DocumentCases& cases) {
    while (dialog.DoModal() == IDOK) {
        if (cases.IsCasoCaricoNome(dialog.m_strNome))
            AfxMessageBox("Il Caso Carico c'è già!"_t);
        else if (!cases.IsValidoCasoCaricoNome(dialog.m_strNome))
            AfxMessageBox("Il nome non è valido!"_t);
        else
            return true;
    }
    return false;
}
