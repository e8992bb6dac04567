#include "platform/Static.h"

#include "platform/private/Controls.h"
#include "platform/private/GdiData.h"
#include "platform/private/StaticPeer.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

using platform::controlOf;
using platform::StaticPeer;

BOOL CStatic::Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("STATIC", text, style, rect, parent, id);
}

void CStatic::SetBitmap(const CBitmap* bitmap) {
    const platform::BitmapData* data = bitmap ? bitmap->Data() : nullptr;
    if (auto* peer = controlOf<StaticPeer>(m_hWnd))
        peer->setPicture(data ? data->canvas->image.copy() : QImage());
}

void CStatic::SetPicture(int number) {
    if (auto* peer = controlOf<StaticPeer>(m_hWnd))
        peer->setNumber(number);
}
