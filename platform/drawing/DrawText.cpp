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
    const CPoint at(x + surface.state.origin.x, y + surface.state.origin.y);
    const QColor color = QColor::fromRgb(platform::Opaque(surface.state.textColor));
    const int slope = surface.state.fontDescription.lfEscapement;
    const QTransform upright = painter.transform();
    QPoint corner(at.x, at.y);
    if (slope != 0) { // the line turns about its reference point
        painter.translate(at.x, at.y);
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

QString WithTabs(const QString& text, bool expand) {
    QString result;
    for (const QChar c : text) {
        if (c != '\t')
            result += c;
        else
            result += QString(expand ? 8 - result.size() % 8 : 1, ' ');
    }
    return result;
}

// Breaks at blanks; a word wider than the line keeps a line of its own.
void Wrap(Surface& surface, const Line& line, int width, std::vector<Line>& lines) {
    qsizetype start = 0, fits = -1;
    const auto put = [&](qsizetype end) {
        const bool mine = line.underlined >= start && line.underlined < end;
        lines.push_back({line.text.mid(start, end - start), mine ? line.underlined - start : -1});
    };
    for (qsizetype i = 0; i <= line.text.size(); ++i) {
        if (i < line.text.size() && line.text[i] != ' ')
            continue;
        if (fits > start && WidthOf(surface, line.text.mid(start, i - start)) > width) {
            put(fits);
            start = fits + 1;
        }
        fits = i;
    }
    put(line.text.size());
}

std::vector<Line> Layout(Surface& surface, const CString& text, int width, UINT format) {
    QString all = platform::ToQString(text);
    all.replace("\r\n", "\n").replace('\r', '\n');
    if (format & DT_SINGLELINE)
        all.replace('\n', ' ');
    std::vector<Line> lines;
    for (const QString& paragraph : all.split('\n')) {
        const QString plain = WithTabs(paragraph, format & DT_EXPANDTABS);
        const Line line = format & DT_NOPREFIX ? Line{plain, -1} : WithoutPrefix(plain);
        if ((format & DT_WORDBREAK) && !(format & DT_SINGLELINE))
            Wrap(surface, line, width, lines);
        else
            lines.push_back(line);
    }
    if (format & DT_END_ELLIPSIS)
        for (Line& line : lines)
            line.text = surface.Metrics().elidedText(line.text, Qt::ElideRight, width);
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

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, const int* spacing) {
    if (rect && (options & ETO_OPAQUE))
        m_surface->Fill(*rect, m_surface->state.backColor);
    const bool clipped = rect && (options & ETO_CLIPPED);
    if (clipped) {
        SaveDC();
        IntersectClipRect(rect);
    }
    const QString line = platform::ToQString(text);
    const UINT align = m_surface->state.textAlign;
    int width = 0; // measuring costs as much as drawing
    if (spacing)
        for (qsizetype i = 0; i < line.size(); ++i)
            width += spacing[i];
    else if (align & (TA_RIGHT | TA_UPDATECP))
        width = WidthOf(*m_surface, line);
    CPoint at = align & TA_UPDATECP ? m_surface->state.position : CPoint(x, y);
    const CPoint reference = at;
    at.x -= (align & TA_CENTER) == TA_CENTER ? width / 2 : align & TA_RIGHT ? width : 0;
    at.y -= (align & TA_BASELINE) == TA_BASELINE ? Ascent(*m_surface) : align & TA_BOTTOM ? LineHeight(*m_surface) : 0;
    if (QPainter* painter = m_surface->Plain()) {
        if (!spacing)
            DrawLine(*m_surface, *painter, at.x, at.y, line);
        for (qsizetype i = 0; spacing && i < line.size(); at.x += spacing[i++])
            DrawLine(*m_surface, *painter, at.x, at.y, line.mid(i, 1));
    }
    if (clipped)
        RestoreDC(-1);
    if ((align & TA_UPDATECP) && (align & TA_CENTER) != TA_CENTER)
        m_surface->state.position.x = reference.x + (align & TA_RIGHT ? -width : width);
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
    const std::vector<Line> lines = Layout(*m_surface, text, rect->Width(), format);
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
