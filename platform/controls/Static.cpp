#include "platform/controls/Static.h"

#include "platform/private/paint/GdiData.h"
#include "platform/private/peers/Controls.h"
#include "platform/private/peers/StaticPeer.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

using platform::ControlOf;
using platform::StaticPeer;

BOOL CStatic::Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("STATIC", text, style, rect, parent, id);
}

void CStatic::SetBitmap(const CBitmap* bitmap) {
    const platform::BitmapData* data = bitmap ? bitmap->Data() : nullptr;
    if (auto* peer = ControlOf<StaticPeer>(m_hWnd))
        peer->SetPicture(data ? data->image.copy() : QImage());
}

void CStatic::SetPicture(int number) {
    if (auto* peer = ControlOf<StaticPeer>(m_hWnd))
        peer->SetNumber(number);
}
