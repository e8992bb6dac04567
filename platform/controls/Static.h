// Labels, pictures, frames and lines.
#pragma once

#include "platform/window/Window.h"

class CBitmap;

class CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
  public:
    BOOL Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id = static_cast<UINT>(IDC_STATIC));

    // The picture of a static with SS_BITMAP, copied; null takes it away.
    void SetBitmap(const CBitmap* bitmap);
    // The numbered picture of the resources: a bitmap or, with SS_ICON, an icon. 0 takes it away.
    void SetPicture(int number);
};
