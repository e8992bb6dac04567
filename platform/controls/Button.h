// Push buttons, check boxes, radio buttons and group boxes. Setting a state by program clicks nothing.
#pragma once

#include "platform/window/Window.h"

class CBitmap;

enum : int { BST_UNCHECKED = 0, BST_CHECKED = 1, BST_INDETERMINATE = 2 };
enum : UINT { BST_PUSHED = 4, BST_FOCUS = 8 };

class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
  public:
    BOOL Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id);

    int GetCheck() const;
    void SetCheck(int check);
    UINT GetState() const; // the check with BST_PUSHED and BST_FOCUS
    void SetState(BOOL pushed);
    UINT GetButtonStyle() const; // BS_PUSHBUTTON, ...
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);

    // The picture instead of the text, shown with BS_BITMAP; it is copied. Null takes it away.
    void SetBitmap(const CBitmap* bitmap);
};
