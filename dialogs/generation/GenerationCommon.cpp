#include "dialogs/generation/GenerationCommon.h"

#include "platform/window/Application.h"

void ReportRejection(int generated) {
    if (!generated)
        AfxMessageBox("Parametri Errati!", MB_OK);
}
