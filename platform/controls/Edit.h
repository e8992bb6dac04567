// Edit fields. Every change of the text, typed or set by the program, tells the parent EN_UPDATE and then EN_CHANGE.
#pragma once

#include "platform/window/Window.h"

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
  public:
    // Positions are bytes from 0; a line end of a multi-line field counts as two. (0, -1) selects everything and
    // (-1, any) nothing; the end of the selection is the caret and scrolls into view unless `noScroll` is non-zero.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);
};
