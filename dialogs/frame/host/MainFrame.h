// The host's main window, as the dialogs use it: the wait bar, the table area, the tool bars.
#pragma once

#include "platform/controls/ToolBar.h"
#include "platform/core/Geometry.h"
#include "platform/core/String.h"

class CMainFrame : public CFrameWnd {
  public:
    // The wait bar, sized for nPassi steps. Without an installed host all three do nothing.
    static void _InizioAttesa(CString messaggio, unsigned int nPassi);
    static void _StepBar();
    static void _FineAttesa();
    // Null when the host has no main window.
    static CMainFrame* _GetMainFrame();

    // The client rectangle of the table area, in pixels.
    virtual CRect& GetRectClientTabella() = 0;
};

// Shows the wait bar for as long as it lives, so that it never stays behind when a command is left early.
class WaitBar {
  public:
    WaitBar(const CString& message, unsigned int steps) { CMainFrame::_InizioAttesa(message, steps); }
    ~WaitBar() { CMainFrame::_FineAttesa(); }
    WaitBar(const WaitBar&) = delete;
    WaitBar& operator=(const WaitBar&) = delete;
};
