#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Surface.h"
#include "platform/window/Window.h"

#include <utility>

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

using platform::Surface;

namespace {

enum RegionKind { ErrorRegion, NullRegion, SimpleRegion, ComplexRegion };

QRect WholeTarget(const Surface& surface) {
    return {QPoint(0, 0), surface.size()};
}

} // namespace

CDC::CDC() : m_surface(std::make_unique<Surface>()) {
}

CDC::CDC(std::unique_ptr<Surface> surface) : m_surface(std::move(surface)) {
}

CDC::~CDC() = default;

CClientDC::CClientDC(CWnd* window) : CDC(std::make_unique<Surface>(window ? window->m_hWnd : nullptr, true)) {
}

CPaintDC::CPaintDC(CWnd* window) : CDC(std::make_unique<Surface>(window ? window->m_hWnd : nullptr, false)) {
    const QRect area = m_surface->ClipBounds();
    m_ps.rcPaint = CRect(CPoint(area.x(), area.y()), CSize(area.width(), area.height()));
}

double CDC::GetScale() const {
    return m_surface->Scale();
}

CPen* CDC::SelectObject(CPen* pen) {
    if (!pen || !pen->Data())
        return nullptr;
    m_surface->state.penDescription = pen->Data()->description;
    m_surface->PenChanged();
    return std::exchange(m_surface->state.pen, pen);
}

CBrush* CDC::SelectObject(CBrush* brush) {
    if (!brush || !brush->Data())
        return nullptr;
    m_surface->state.brushDescription = brush->Data()->description;
    m_surface->BrushChanged();
    return std::exchange(m_surface->state.brush, brush);
}

CFont* CDC::SelectObject(CFont* font) {
    if (!font || !font->Data())
        return nullptr;
    m_surface->state.fontDescription = font->Data()->description;
    m_surface->state.qFont = font->Data()->font;
    return std::exchange(m_surface->state.font, font);
}

CGdiObject* CDC::SelectObject(CGdiObject* object) {
    if (CPen* pen = DYNAMIC_DOWNCAST(CPen, object))
        return SelectObject(pen);
    if (CBrush* brush = DYNAMIC_DOWNCAST(CBrush, object))
        return SelectObject(brush);
    return SelectObject(DYNAMIC_DOWNCAST(CFont, object));
}

CGdiObject* CDC::SelectStockObject(int index) {
    return SelectObject(platform::StockObject(index));
}

int CDC::SaveDC() {
    m_surface->saved.push_back(m_surface->state);
    return static_cast<int>(m_surface->saved.size());
}

BOOL CDC::RestoreDC(int saved) {
    auto& stack = m_surface->saved;
    const int index = saved < 0 ? static_cast<int>(stack.size()) + saved : saved - 1;
    if (index < 0 || index >= static_cast<int>(stack.size()))
        return FALSE;
    m_surface->state = stack[static_cast<std::size_t>(index)];
    stack.resize(static_cast<std::size_t>(index));
    m_surface->PenChanged();
    m_surface->BrushChanged();
    m_surface->ClipChanged();
    return TRUE;
}

COLORREF CDC::SetTextColor(COLORREF color) {
    return std::exchange(m_surface->state.textColor, color);
}

COLORREF CDC::SetBkColor(COLORREF color) {
    return std::exchange(m_surface->state.backColor, color);
}

int CDC::SetBkMode(int mode) {
    return std::exchange(m_surface->state.backMode, mode);
}

COLORREF CDC::GetTextColor() const {
    return m_surface->state.textColor;
}

COLORREF CDC::GetBkColor() const {
    return m_surface->state.backColor;
}

int CDC::IntersectClipRect(int left, int top, int right, int bottom) {
    CRect rect(left, top, right, bottom);
    rect.NormalizeRect();
    auto& clip = m_surface->state.clip;
    const QRegion added(m_surface->Target(rect));
    clip = clip ? clip->intersected(added) : added;
    m_surface->ClipChanged();
    CRect box;
    return GetClipBox(&box);
}

int CDC::IntersectClipRect(LPCRECT rect) {
    return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::GetClipBox(LPRECT rect) const {
    QRegion region(WholeTarget(*m_surface));
    if (m_surface->state.clip)
        region &= *m_surface->state.clip;
    const QRect box = region.boundingRect();
    *rect = CRect(box.left(), box.top(), box.left() + box.width(), box.top() + box.height());
    return region.isEmpty() ? NullRegion : region.rectCount() == 1 ? SimpleRegion : ComplexRegion;
}
