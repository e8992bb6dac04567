#include "tests/platform/LoggedDialog.h"

BEGIN_MESSAGE_MAP(LoggedDialog, CDialog)
    ON_MESSAGE(WM_FIRST, OnFirst)
    ON_MESSAGE(WM_SECOND, OnSecond)
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_WM_ACTIVATE()
    ON_WM_CONTEXTMENU()
    ON_BN_CLICKED(200, OnButton)
    ON_CONTROL_RANGE(BN_CLICKED, 301, 303, OnRadio)
    ON_EN_KILLFOCUS(100, OnKillFocusEdit)
END_MESSAGE_MAP()
