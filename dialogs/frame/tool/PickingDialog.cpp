#include "dialogs/frame/tool/PickingDialog.h"

BEGIN_MESSAGE_MAP(PickingDialog, CDialogDocument)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

PickingDialog::~PickingDialog() {
    PickingDialog::DestroyWindow();
}

BOOL PickingDialog::OnInitDialog() {
    m_closing = false;
    return CDialogDocument::OnInitDialog();
}

BOOL PickingDialog::DestroyWindow() {
    m_closing = true;
    return CDialogDocument::DestroyWindow();
}

void PickingDialog::StartPicking(const CString& prompt) {
    if (CQuovarView* pView = GetView())
        pView->StartDefinisciVettore(prompt, "");
}

void PickingDialog::RestartPicking(const CString& prompt) {
    CQuovarView* pView = GetView();
    if (!pView)
        return;
    pView->StopDefinisciVettore();
    pView->StartDefinisciVettore(prompt, "");
}

void PickingDialog::EndPicking() {
    CQuovarView* pView = GetView();
    if (pView && pView->IsDefinisciVettore())
        pView->StopDefinisciVettore();
}

void PickingDialog::OnDestroy() {
    CDialogDocument::OnDestroy();
    EndPicking();
}

void ConfirmedDialog::OnOK() {
    if (UpdateData(TRUE))
        CDialogDocument::OnOK();
}
