// Free functions about pens, fonts and windows that dialogs use when they draw.
#pragma once

#include "platform/core/Geometry.h"

class CFont;
class CPen;
class CWnd;

COLORREF GetRGB(CPen* pPen); // the colour of a pen; black for null or a pen that was never created

// Makes the font anew with the given weight (400 normal, 700 bold) and everything else as it was. Non-zero on success;
// on failure the font is as before. The font must not be selected into a device context meanwhile.
int SetFontGrassetto(CFont& font, int nPeso);

int IsPointInWnd(CWnd* pWnd, CPoint punto); // non-zero when the screen point lies in the window; 0 without a window
