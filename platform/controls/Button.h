// Push buttons, check boxes, radio buttons and group boxes. Setting a state by program clicks nothing.
#pragma once

#include "platform/window/Window.h"

enum : int { BST_UNCHECKED = 0, BST_CHECKED = 1, BST_INDETERMINATE = 2 };

class CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
  public:
    int GetCheck() const;
    void SetCheck(int check);
};
