#include "dialogs/generation/GenerationCommon.h"

#include "platform/controls/SpinButton.h"
#include "platform/window/Application.h"

void InitNodeSpin(CSpinButtonCtrl& spin) {
    spin.SetRange(1, 100);
    spin.SetPos(1);
}

void ReportRejection(int generated) {
    if (!generated)
        AfxMessageBox("Parametri Errati!", MB_OK);
}
