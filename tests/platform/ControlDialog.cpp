#include "tests/platform/ControlDialog.h"

BEGIN_MESSAGE_MAP(ControlDialog, CDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()
