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

// A bitmap context holds this when no bitmap of its user is selected, so that the first selection has something to
// return and the last something to put back.
CBitmap* NoBitmap() {
    static CBitmap bitmap;
    return &bitmap;
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
    m_ps.hdc = GetSafeHdc();
    const QRect area = m_surface->ClipBounds();
    m_ps.rcPaint = CRect(CPoint(area.x(), area.y()), CSize(area.width(), area.height()));
}

BOOL CDC::CreateCompatibleDC(CDC* device) {
    m_surface = std::make_unique<Surface>();
    m_surface->SetScale(device ? device->GetScale() : 1);
    m_surface->memory = true;
    return TRUE;
}

BOOL CDC::DeleteDC() {
    m_surface = std::make_unique<Surface>();
    return TRUE;
}

HDC CDC::GetSafeHdc() const {
    return m_surface->HasTarget() || m_surface->memory ? m_surface.get() : nullptr;
}

double CDC::GetScale() const {
    return m_surface->Scale();
}

int CDC::GetDeviceCaps(int index) const {
    switch (index) {
    case LOGPIXELSX:
    case LOGPIXELSY:
        return 96;
    case HORZRES:
        return m_surface->size().width();
    case VERTRES:
        return m_surface->size().height();
    case BITSPIXEL:
        return 32;
    case PLANES:
    case TECHNOLOGY: // a raster display
        return 1;
    case NUMCOLORS: // more than a palette holds
        return -1;
    default:
        return 0;
    }
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
    m_surface->state.pattern = brush->Data()->pattern;
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

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    if (!bitmap || !m_surface->memory || (!bitmap->Data() && bitmap != NoBitmap()))
        return nullptr;
    m_surface->UseCanvas(bitmap->Data() ? bitmap->Data()->canvas : nullptr);
    CBitmap* previous = std::exchange(m_surface->bitmap, bitmap);
    return previous ? previous : NoBitmap();
}

CGdiObject* CDC::SelectObject(CGdiObject* object) {
    if (CPen* pen = DYNAMIC_DOWNCAST(CPen, object))
        return SelectObject(pen);
    if (CBrush* brush = DYNAMIC_DOWNCAST(CBrush, object))
        return SelectObject(brush);
    if (CFont* font = DYNAMIC_DOWNCAST(CFont, object))
        return SelectObject(font);
    return SelectObject(DYNAMIC_DOWNCAST(CBitmap, object));
}

CGdiObject* CDC::SelectStockObject(int index) {
    return SelectObject(platform::StockObject(index));
}

CPen* CDC::GetCurrentPen() const {
    return m_surface->state.pen;
}

CBrush* CDC::GetCurrentBrush() const {
    return m_surface->state.brush;
}

CFont* CDC::GetCurrentFont() const {
    return m_surface->state.font;
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

// The background shows through hatched brushes, which are therefore made anew.
COLORREF CDC::SetBkColor(COLORREF color) {
    m_surface->BrushChanged();
    return std::exchange(m_surface->state.backColor, color);
}

int CDC::SetBkMode(int mode) {
    m_surface->BrushChanged();
    return std::exchange(m_surface->state.backMode, mode);
}

UINT CDC::SetTextAlign(UINT flags) {
    return std::exchange(m_surface->state.textAlign, flags);
}

int CDC::SetROP2(int mode) {
    return std::exchange(m_surface->state.mode, mode);
}

int CDC::SetPolyFillMode(int mode) {
    return std::exchange(m_surface->state.fillMode, mode);
}

COLORREF CDC::GetTextColor() const {
    return m_surface->state.textColor;
}

COLORREF CDC::GetBkColor() const {
    return m_surface->state.backColor;
}

int CDC::GetBkMode() const {
    return m_surface->state.backMode;
}

UINT CDC::GetTextAlign() const {
    return m_surface->state.textAlign;
}

int CDC::GetROP2() const {
    return m_surface->state.mode;
}

int CDC::GetPolyFillMode() const {
    return m_surface->state.fillMode;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    return std::exchange(m_surface->state.origin, CPoint(x, y));
}

CPoint CDC::OffsetViewportOrg(int dx, int dy) {
    return SetViewportOrg(m_surface->state.origin + CSize(dx, dy));
}

CPoint CDC::GetViewportOrg() const {
    return m_surface->state.origin;
}

int CDC::SelectClipRgn(std::nullptr_t) {
    m_surface->state.clip.reset();
    m_surface->ClipChanged();
    return SimpleRegion;
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

int CDC::ExcludeClipRect(int left, int top, int right, int bottom) {
    CRect rect(left, top, right, bottom);
    rect.NormalizeRect();
    auto& clip = m_surface->state.clip;
    clip = (clip ? *clip : QRegion(WholeTarget(*m_surface))).subtracted(m_surface->Target(rect));
    m_surface->ClipChanged();
    CRect box;
    return GetClipBox(&box);
}

int CDC::ExcludeClipRect(LPCRECT rect) {
    return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::GetClipBox(LPRECT rect) const {
    QRegion region(WholeTarget(*m_surface));
    if (m_surface->state.clip)
        region &= *m_surface->state.clip;
    const QRect box = region.boundingRect();
    *rect = CRect(box.left(), box.top(), box.left() + box.width(), box.top() + box.height()) - m_surface->state.origin;
    return region.isEmpty() ? NullRegion : region.rectCount() == 1 ? SimpleRegion : ComplexRegion;
}
