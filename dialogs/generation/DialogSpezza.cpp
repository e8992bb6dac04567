#include "dialogs/generation/DialogSpezza.h"

#include "platform/window/DataExchange.h"

CDialogSpezza::CDialogSpezza(CWnd* pParent) : CDialog(IDD, pParent) {
}

void CDialogSpezza::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_DIVISIONI, m_nDivisioni);
}
