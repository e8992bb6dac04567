// Bars of a frame window. A bar is a window: its visible style tells whether it is shown, its text is its caption.
#pragma once

#include "platform/window/Window.h"

class CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
  public:
    BOOL IsVisible() const; // shown in its frame, also while the frame itself is hidden
};

class CToolBar : public CControlBar {
    DECLARE_DYNAMIC(CToolBar)
};

// A frame window; its bars are made by whoever makes the window.
class CFrameWnd : public CWnd {
    DECLARE_DYNAMIC(CFrameWnd)
  public:
    // With `delay` the frame makes room, or closes the gap, when control is back in the loop or at the next
    // RecalcLayout. Null is harmless.
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    virtual void RecalcLayout(BOOL notify = TRUE);
};
