#include "model/view/DrawHelpers.h"

#include "platform/drawing/Gdi.h"
#include "platform/window/Window.h"

COLORREF GetRGB(CPen* pPen) {
    LOGPEN description{};
    return pPen && pPen->GetLogPen(&description) ? description.lopnColor : RGB(0, 0, 0);
}

int SetFontGrassetto(CFont& font, int nPeso) {
    LOGFONT description{};
    if (!font.GetLogFont(&description))
        return 0;
    description.lfWeight = nPeso;
    CFont bold;
    if (!bold.CreateFontIndirect(&description))
        return 0;
    font.DeleteObject();
    return font.Attach(bold.Detach()) ? 1 : 0;
}

int IsPointInWnd(CWnd* pWnd, CPoint punto) {
    if (!pWnd || !pWnd->GetSafeHwnd())
        return 0;
    CRect rect;
    pWnd->GetWindowRect(rect);
    return rect.PtInRect(punto) ? 1 : 0;
}
