// Edit fields. Every change of the text, typed or set by the program, tells the parent EN_UPDATE and then EN_CHANGE.
#pragma once

#include "platform/window/Window.h"

class CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
  public:
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Positions are bytes from 0; a line end of a multi-line field counts as two. (0, -1) selects everything and
    // (-1, any) nothing; the end of the selection is the caret and scrolls into view unless `noScroll` is non-zero.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void SetSel(DWORD selection, BOOL noScroll = FALSE); // start in the low word, end in the high one
    void GetSel(int& start, int& end) const;
    DWORD GetSel() const;
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);

    void LimitText(int characters = 0) { SetLimitText(static_cast<UINT>(characters)); } // of what the user types
    void SetLimitText(UINT characters);                                                 // 0 takes the limit away
    BOOL SetReadOnly(BOOL readOnly = TRUE);                                             // 0 when there is no window
    BOOL GetModify() const; // changed by the user since the text was set or the flag cleared
    void SetModify(BOOL modified = TRUE);

    int GetLineCount() const;
    void LineScroll(int lines, int characters = 0); // down for positive counts; single-line fields do not move
    void SetPasswordChar(char character);           // 0 shows the text
    void Clear() { ReplaceSel(""); }
    void Copy();
    void Cut();
    void Paste();
    BOOL Undo();
};
