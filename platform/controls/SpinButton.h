// A pair of arrows that steps a number, usually the one in its buddy, the edit beside it.
#pragma once

#include "platform/window/Window.h"

// Points behind a UDN_DELTAPOS, which comes before a step; a non-zero result prevents the step.
struct NMUPDOWN {
    NMHDR hdr;
    int iPos = 0;
    int iDelta = 0; // may be changed
};
using NM_UPDOWN = NMUPDOWN;

// After each step the parent gets WM_VSCROLL (WM_HSCROLL with UDS_HORZ) with SB_THUMBPOSITION and the position, and
// with SB_ENDSCROLL when the button is let go; the scroll bar of the message is this control.
class CSpinButtonCtrl : public CScrollBar {
    DECLARE_DYNAMIC(CSpinButtonCtrl)
  public:
    // The up arrow steps towards `upper`, also when that is the smaller one. The range without a call is 100 to 0: up
    // takes one away.
    void SetRange(int lower, int upper);

    // A position outside the range becomes the nearest one inside; with UDS_SETBUDDYINT the buddy shows it. Returns the
    // old position. A number typed into the buddy counts in GetPos, but stays as typed even outside the range.
    int SetPos(int position);
    int GetPos() const;

    CWnd* SetBuddy(CWnd* buddy); // null takes it away; returns the old one
    CWnd* GetBuddy() const;
};
