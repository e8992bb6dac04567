// The device context's text.
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Surface.h"
#include "platform/private/peers/WindowPeer.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>
#include <vector>

using platform::Surface;

namespace {

int Ascent(Surface& surface) {
    return static_cast<int>(std::ceil(surface.Metrics().ascent()));
}

int Descent(Surface& surface) {
    return static_cast<int>(std::ceil(surface.Metrics().descent()));
}

int LineHeight(Surface& surface) {
    return Ascent(surface) + Descent(surface);
}

int WidthOf(Surface& surface, const QString& text) {
    return static_cast<int>(std::ceil(surface.Metrics().horizontalAdvance(text)));
}

CString Counted(LPCTSTR text, int length) {
    if (!text)
        return CString();
    return length < 0 ? CString(text) : CString(std::string_view(text, static_cast<std::size_t>(length)));
}

// One line with its top left at a point; the character at `underlined` gets a line below it, -1 is none.
void DrawLine(Surface& surface, QPainter& painter, int x, int y, const QString& text, qsizetype underlined = -1) {
    const QColor color = QColor::fromRgb(platform::Opaque(surface.state.textColor));
    const int slope = surface.state.fontDescription.lfEscapement;
    const QTransform upright = painter.transform();
    QPoint corner(x, y);
    if (slope != 0) { // the line turns about its reference point
        painter.translate(x, y);
        painter.rotate(-slope / 10.0);
        corner = QPoint(0, 0);
    }
    if (surface.state.backMode == OPAQUE)
        painter.fillRect(QRect(corner, QSize(WidthOf(surface, text), LineHeight(surface))),
                         QColor::fromRgb(platform::Opaque(surface.state.backColor)));
    const int baseline = corner.y() + Ascent(surface);
    if (painter.font() != surface.state.qFont)
        painter.setFont(surface.state.qFont);
    painter.setPen(color);
    surface.PenChanged();
    painter.drawText(QPointF(corner.x(), baseline), text);
    if (underlined >= 0 && underlined < text.size()) {
        const int from = WidthOf(surface, text.left(underlined));
        const int to = WidthOf(surface, text.left(underlined + 1));
        painter.fillRect(QRect(corner.x() + from, baseline + 1, to - from, 1), color);
    }
    if (slope != 0)
        painter.setTransform(upright);
}

struct Line {
    QString text;
    qsizetype underlined = -1;
};

// "&x" underlines x, "&&" is an ampersand.
Line WithoutPrefix(const QString& text) {
    Line line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '&') {
            if (++i == text.size())
                break;
            if (text[i] != '&')
                line.underlined = line.text.size();
        }
        line.text += text[i];
    }
    return line;
}

std::vector<Line> Layout(const CString& text, UINT format) {
    QString all = platform::ToQString(text);
    all.replace("\r\n", "\n").replace('\r', '\n').replace('\t', ' ');
    if (format & DT_SINGLELINE)
        all.replace('\n', ' ');
    std::vector<Line> lines;
    for (const QString& plain : all.split('\n'))
        lines.push_back(format & DT_NOPREFIX ? Line{plain, -1} : WithoutPrefix(plain));
    return lines;
}

int Aligned(int from, int to, int size, bool centre, bool end) {
    return centre ? from + (to - from - size) / 2 : end ? to - size : from;
}

} // namespace

BOOL CDC::TextOut(int x, int y, LPCTSTR text, int length) {
    return TextOut(x, y, Counted(text, length));
}

BOOL CDC::TextOut(int x, int y, const CString& text) {
    return ExtTextOut(x, y, 0, nullptr, text);
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text) {
    if (rect && (options & ETO_OPAQUE))
        m_surface->Fill(*rect, m_surface->state.backColor);
    const bool clipped = rect && (options & ETO_CLIPPED);
    if (clipped) {
        SaveDC();
        IntersectClipRect(rect);
    }
    if (QPainter* painter = m_surface->Plain())
        DrawLine(*m_surface, *painter, x, y, platform::ToQString(text));
    if (clipped)
        RestoreDC(-1);
    return m_surface->HasTarget();
}

CSize CDC::GetTextExtent(const CString& text) const {
    return {WidthOf(*m_surface, platform::ToQString(text)), LineHeight(*m_surface)};
}

CSize CDC::GetTextExtent(LPCTSTR text, int length) const {
    return GetTextExtent(Counted(text, length));
}

BOOL CDC::GetTextMetrics(TEXTMETRIC* metrics) const {
    const QFontMetricsF& font = m_surface->Metrics();
    *metrics = {};
    metrics->tmAscent = Ascent(*m_surface);
    metrics->tmDescent = Descent(*m_surface);
    metrics->tmHeight = metrics->tmAscent + metrics->tmDescent;
    metrics->tmInternalLeading = std::max(0, metrics->tmHeight - m_surface->state.qFont.pixelSize());
    metrics->tmExternalLeading = std::max(0, static_cast<int>(std::ceil(font.leading())));
    metrics->tmAveCharWidth = static_cast<LONG>(std::lround(font.averageCharWidth()));
    metrics->tmMaxCharWidth = static_cast<LONG>(std::ceil(font.maxWidth()));
    metrics->tmWeight = m_surface->state.qFont.weight();
    metrics->tmItalic = m_surface->state.qFont.italic() ? 1 : 0;
    return TRUE;
}

int CDC::DrawText(LPCTSTR text, int length, LPRECT rect, UINT format) {
    return DrawText(Counted(text, length), rect, format);
}

int CDC::DrawText(const CString& text, LPRECT rect, UINT format) {
    const std::vector<Line> lines = Layout(text, format);
    const int height = LineHeight(*m_surface), total = height * static_cast<int>(lines.size());
    if (format & DT_CALCRECT) {
        int widest = 0;
        for (const Line& line : lines)
            widest = std::max(widest, WidthOf(*m_surface, line.text));
        rect->right = rect->left + widest;
        rect->bottom = rect->top + total;
        return total;
    }
    const bool single = format & DT_SINGLELINE;
    const int top =
        Aligned(rect->top, rect->bottom, total, single && (format & DT_VCENTER), single && (format & DT_BOTTOM));
    const bool clipped = !(format & DT_NOCLIP);
    if (clipped) {
        SaveDC();
        IntersectClipRect(rect);
    }
    if (QPainter* painter = m_surface->Plain())
        for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
            const Line& line = lines[static_cast<std::size_t>(i)];
            const int x =
                Aligned(rect->left, rect->right, WidthOf(*m_surface, line.text), format & DT_CENTER, format & DT_RIGHT);
            DrawLine(*m_surface, *painter, x, top + i * height, line.text, line.underlined);
        }
    if (clipped)
        RestoreDC(-1);
    return top + total - rect->top;
}
