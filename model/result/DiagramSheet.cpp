#include "model/result/DiagramSheet.h"

#include "model/result/DiagramOutline.h"
#include "model/result/ElementoRisultati.h"
#include "model/view/ElementoSettings.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF axisColor = RGB(0, 0, 0);
constexpr COLORREF hairColor = RGB(90, 90, 90);
constexpr int sideMargin = 8;         // from a panel's edge to the end of its axis
constexpr int sideGap = 2;            // from a panel's edge to its texts
constexpr double worthAColumn = 1.1;  // how much better panels must be seen for one more column
constexpr int roomForLabels = 48;     // panels lower than this keep their height for the curve
constexpr double widthToHeight = 2.5; // of a panel that is equally good either way
constexpr double bendStep = 2;        // pixels between the points of a bent stretch
constexpr double closeEnough = 0.1;   // pixels between the curve and the strokes that stand for it
constexpr std::size_t mostLabels = 16;

struct Style {
    int kind;
    COLORREF color;
    // Bending is drawn on the side of the stretched fibres, which for positive moments is below the axis.
    bool below;
};

const Style styles[] = {
    {CElementoSettings::N, RGB(0, 80, 200), false},    {CElementoSettings::V2, RGB(0, 130, 50), false},
    {CElementoSettings::V3, RGB(0, 130, 140), false},  {CElementoSettings::T, RGB(130, 50, 170), false},
    {CElementoSettings::M2, RGB(200, 20, 30), true},   {CElementoSettings::M3, RGB(210, 100, 0), true},
    {CElementoSettings::N_A, RGB(60, 60, 150), false}, {CElementoSettings::M2_W2, RGB(150, 20, 90), true},
    {CElementoSettings::M3_W3, RGB(120, 90, 0), true},
};

const Style& StyleOf(int kind) {
    const auto found =
        std::find_if(std::begin(styles), std::end(styles), [kind](const Style& s) { return s.kind == kind; });
    return found == std::end(styles) ? styles[0] : *found;
}

COLORREF Paler(COLORREF color) {
    const auto mix = [](int part) { return 255 - (255 - part) / 5; };
    return RGB(mix(GetRValue(color)), mix(GetGValue(color)), mix(GetBValue(color)));
}

// What is small against the largest value is rounding.
double Shown(double value, double largest) {
    return std::abs(value) <= 1e-9 * largest ? 0 : value;
}

CString ValueText(double value, double largest) {
    value = Shown(value, largest);
    const double size = std::abs(value);
    CString text;
    if (size >= 1e6 || (size < 1e-3 && size > 0))
        text.Format("%.3e", value);
    else if (size >= 1000)
        text.Format("%.1f", value);
    else
        text.Format("%.4g", value);
    return text;
}

int RoundDown(double value) {
    return static_cast<int>(std::floor(value));
}

// The number of columns in which so many panels are best seen.
int BestColumns(int panels, int width, int height) {
    int best = 1;
    double most = 0;
    for (int columns = 1; columns <= panels; ++columns) {
        const int rows = (panels + columns - 1) / columns;
        const double good = std::min(static_cast<double>(height) / rows, width / widthToHeight / columns);
        if (good > most * worthAColumn) {
            most = good;
            best = columns;
        }
    }
    return best;
}

} // namespace

DiagramSheet::DiagramSheet(CDC& dc, const CRect& area, const std::vector<Diagram>& diagrams, const DiagramLine& line)
    : m_dc(dc), m_area(area), m_line(line) {
    m_font.CreatePointFont(80, "Arial");
    TEXTMETRIC metrics;
    const ObjectSelection font(m_dc, m_font);
    m_dc.GetTextMetrics(&metrics);
    m_textHeight = metrics.tmHeight;
    LayOut(diagrams);
}

// The last row of text belongs to the nodes.
void DiagramSheet::LayOut(const std::vector<Diagram>& diagrams) {
    const int count = static_cast<int>(diagrams.size());
    const int width = m_area.Width(), height = m_area.Height() - m_textHeight;
    if (count == 0 || width <= 2 * sideMargin || height <= 0)
        return;
    m_columns = BestColumns(count, width, height);
    const int rows = (count + m_columns - 1) / m_columns;
    for (int i = 0; i < count; ++i) {
        const int column = i % m_columns, row = i / m_columns;
        const Diagram& diagram = diagrams[static_cast<std::size_t>(i)];
        const Style& style = StyleOf(diagram.kind);
        Panel panel{&diagram, style.color, {}, 0, 0, 0, 0};
        panel.cell = CRect(m_area.left + width * column / m_columns, m_area.top + height * row / rows,
                           m_area.left + width * (column + 1) / m_columns, m_area.top + height * (row + 1) / rows);
        panel.left = panel.cell.left + sideMargin;
        panel.right = std::max<int>(panel.left + 1, panel.cell.right - sideMargin - 1);
        panel.cell.DeflateRect(sideGap, 0);
        Place(panel, style.below);
        m_panels.push_back(panel);
    }
}

// The axis lies so that both the positive and the negative values use the room there is.
void DiagramSheet::Place(Panel& panel, bool below) const {
    int top = panel.cell.top + m_textHeight + 1, bottom = std::max(top + 1, static_cast<int>(panel.cell.bottom) - 3);
    double above = panel.diagram->curve.Maximum(), under = -panel.diagram->curve.Minimum();
    if (below)
        std::swap(above, under);
    if (panel.cell.Height() >= roomForLabels) {
        top += above > 0 ? m_textHeight : 0;
        bottom -= under > 0 ? m_textHeight : 0;
    }
    const double range = above + under;
    if (!(range > 0)) {
        panel.axis = (top + bottom) / 2;
        return;
    }
    const double scale = (bottom - top) / range;
    panel.axis = top + static_cast<int>(std::lround(above * scale));
    panel.scale = below ? -scale : scale;
}

int DiagramSheet::PixelX(const Panel& panel, double x) const {
    const double part = m_line.length > 0 ? x / m_line.length : 0;
    return panel.left + static_cast<int>(std::lround(part * (panel.right - panel.left)));
}

int DiagramSheet::PixelY(const Panel& panel, double value) {
    return RoundDown(panel.axis + 0.5 - value * panel.scale);
}

CPoint DiagramSheet::PointOf(int diagram, double x, double value) const {
    const Panel& panel = m_panels.at(static_cast<std::size_t>(diagram));
    return {PixelX(panel, x), PixelY(panel, value)};
}

void DiagramSheet::Draw() {
    const ObjectSelection font(m_dc, m_font);
    const int mode = m_dc.SetBkMode(TRANSPARENT);
    for (const Panel& panel : m_panels) {
        Outline(panel);
        DrawCurve(panel);
        DrawAxis(panel);
        DrawTitle(panel);
        DrawLabels(panel);
    }
    DrawNodes();
    m_dc.SetBkMode(mode);
}

// Closed by the axis at both ends.
void DiagramSheet::Outline(const Panel& panel) {
    m_points.clear();
    if (panel.scale == 0)
        return;
    const double perUnit = (panel.right - panel.left) / m_line.length, axis = panel.axis;
    m_points.push_back({static_cast<double>(panel.left), axis});
    {
        DiagramOutline strokes(m_points, closeEnough);
        panel.diagram->curve.Sample(bendStep / perUnit, [&](double x, double value) {
            strokes.Add({panel.left + x * perUnit, axis - value * panel.scale});
        });
    }
    m_points.push_back({m_points.back().x, axis});
}

void DiagramSheet::DrawCurve(const Panel& panel) {
    if (m_points.empty())
        return;
    const int count = static_cast<int>(m_points.size());
    {
        CBrush brush(Paler(panel.color));
        const ObjectSelection pen(m_dc, NULL_PEN), fill(m_dc, brush);
        m_dc.Polygon(m_points.data(), count);
    }
    CPen pen(PS_SOLID, 1, panel.color);
    const ObjectSelection line(m_dc, pen);
    m_dc.Polyline(m_points.data(), count);
}

void DiagramSheet::DrawAxis(const Panel& panel) {
    m_dc.FillSolidRect(panel.left, panel.axis, panel.right - panel.left + 1, 1, axisColor);
    for (const int end : {panel.left, panel.right})
        m_dc.FillSolidRect(end - 1, panel.axis - 1, 3, 3, axisColor);
}

// As much of it as there is room for.
void DiagramSheet::DrawTitle(const Panel& panel) {
    const CString name = CElementoRisultati::_GetStringRisultato(panel.diagram->kind);
    const bool missing = panel.diagram->curve.IsEmpty();
    const int room = panel.cell.Width();
    CString text = missing ? name + " non disponibile" : name + " [" + panel.diagram->unit + "]";
    CSize size = m_dc.GetTextExtent(text);
    if (size.cx > room) {
        text = missing ? name + ": n.d." : name;
        size = m_dc.GetTextExtent(text);
    }
    m_dc.SetTextColor(panel.color);
    const CPoint at = panel.cell.TopLeft();
    if (size.cx > room)
        m_dc.ExtTextOut(at.x, at.y, ETO_CLIPPED, panel.cell, text);
    else
        m_dc.TextOut(at.x, at.y, text);
    m_labels.emplace_back(at, size);
}

// Whether the curve or the axis runs through a text there, its empty rows left aside.
bool DiagramSheet::IsCrossed(const Panel& panel, const CRect& place) const {
    constexpr int emptyRows = 2;
    const double top = place.top + emptyRows, bottom = place.bottom - emptyRows;
    if (panel.axis >= place.top && panel.axis < place.bottom)
        return true;
    const auto leftOf = [](const FinePoint& point, double x) { return point.x < x; };
    auto point = std::lower_bound(m_points.begin(), m_points.end(), static_cast<double>(place.left), leftOf);
    if (point != m_points.begin())
        --point;
    for (; point != m_points.end() && point + 1 != m_points.end() && point->x <= place.right; ++point) {
        const FinePoint &from = point[0], &to = point[1];
        const double slope = to.x > from.x ? (to.y - from.y) / (to.x - from.x) : 0;
        const auto at = [&](double x, double end) { return slope == 0 ? end : from.y + slope * (x - from.x); };
        const double first = at(std::max<double>(from.x, place.left), from.y);
        const double last = at(std::min<double>(to.x, place.right), to.y);
        if (to.x >= place.left && std::min(first, last) < bottom && std::max(first, last) > top)
            return true;
    }
    return false;
}

// Beyond the curve, else across the axis, else beside the place: the first that is free.
bool DiagramSheet::DrawLabel(const Panel& panel, const DiagramCurve::Point& peak, const CString& text, bool overCurve) {
    const CSize size = m_dc.GetTextExtent(text);
    const int x = PixelX(panel, peak.x), y = PixelY(panel, peak.value);
    const bool above = peak.value * panel.scale >= 0;
    const int tops[] = {above ? y - size.cy : y + 1, above ? panel.axis + 2 : panel.axis - size.cy - 1,
                        y - size.cy / 2};
    const int centred =
        std::clamp<int>(x - size.cx / 2, panel.cell.left, std::max<int>(panel.cell.left, panel.cell.right - size.cx));
    const int lefts[] = {centred, x + 4, x - 3 - size.cx};
    for (int i = 0; i < 9; ++i) {
        const CRect place(CPoint(lefts[i % 3], tops[i / 3]), size);
        const auto meets = [&place](const CRect& other) { return !(place & other).IsRectEmpty(); };
        if ((place & panel.cell) != place || (!overCurve && IsCrossed(panel, place)) ||
            std::any_of(m_labels.begin() + m_firstLabel, m_labels.end(), meets))
            continue;
        m_dc.TextOut(place.left, place.top, text);
        m_labels.push_back(place);
        return true;
    }
    return false;
}

// The largest value first, wherever it must stand, then the others by size until one finds no room: those that are left
// out are smaller than all that are shown.
void DiagramSheet::DrawLabels(const Panel& panel) {
    std::vector<DiagramCurve::Point> peaks = panel.diagram->curve.Peaks();
    const auto larger = [](const auto& a, const auto& b) { return std::abs(a.value) > std::abs(b.value); };
    if (peaks.size() > mostLabels) {
        std::partial_sort(peaks.begin(), peaks.begin() + mostLabels, peaks.end(), larger);
        peaks.resize(mostLabels);
    } else {
        std::stable_sort(peaks.begin(), peaks.end(), larger);
    }
    m_firstLabel = static_cast<std::ptrdiff_t>(m_labels.size()) - 1; // the panel's title
    m_dc.SetTextColor(panel.color);
    for (const DiagramCurve::Point& peak : peaks) {
        const CString text = ValueText(peak.value, panel.diagram->curve.Largest());
        if (!DrawLabel(panel, peak, text, false) && (&peak != peaks.data() || !DrawLabel(panel, peak, text, true)))
            return;
    }
}

// Below each column of panels.
void DiagramSheet::DrawNodes() {
    if (m_panels.empty())
        return;
    CString first, last;
    first.Format("Nodo %d", m_line.firstNode);
    last.Format("Nodo %d", m_line.lastNode);
    const int room = m_panels[0].cell.Width(), gap = 8;
    int width = m_dc.GetTextExtent(last).cx;
    if (m_dc.GetTextExtent(first).cx + width + gap > room) {
        first.Format("%d", m_line.firstNode);
        last.Format("%d", m_line.lastNode);
        width = m_dc.GetTextExtent(last).cx;
    }
    m_dc.SetTextColor(axisColor);
    const int top = m_area.bottom - m_textHeight;
    for (int column = 0; column < m_columns; ++column) {
        const CRect& cell = m_panels[static_cast<std::size_t>(column)].cell;
        m_dc.TextOut(cell.left, top, first);
        m_dc.TextOut(cell.right - width, top, last);
    }
}

void DiagramSheet::DrawReading(CPoint at) {
    if (m_panels.empty() || !m_area.PtInRect(at))
        return;
    const ObjectSelection font(m_dc, m_font);
    const int mode = m_dc.SetBkMode(TRANSPARENT);
    const int column = (at.x - m_area.left) * m_columns / m_area.Width();
    const Panel& under =
        m_panels[static_cast<std::size_t>(std::min<int>(column, static_cast<int>(m_panels.size()) - 1))];
    const double part = static_cast<double>(at.x - under.left) / (under.right - under.left);
    const double x = std::clamp(part, 0.0, 1.0) * m_line.length;
    for (const Panel& panel : m_panels) {
        m_dc.FillSolidRect(PixelX(panel, x), panel.cell.top + m_textHeight, 1, panel.cell.Height() - m_textHeight,
                           hairColor);
        if (!panel.diagram->curve.IsEmpty())
            DrawValue(panel, x);
    }
    CString text;
    text.Format("x = %.4g %s", x, m_line.lengthUnit);
    const CRect bottom(under.cell.left, m_area.bottom - m_textHeight - 1, under.cell.right, m_area.bottom);
    DrawBoxed(text, CPoint(PixelX(under, x) - m_dc.GetTextExtent(text).cx / 2, bottom.top), bottom, axisColor);
    m_dc.SetBkMode(mode);
}

// Both values where a jump lies under the hair line.
void DiagramSheet::DrawValue(const Panel& panel, double x) {
    const DiagramCurve& curve = panel.diagram->curve;
    const double largest = curve.Largest(), halfPixel = m_line.length / (panel.right - panel.left) / 2;
    double values[2] = {curve.Value(x), 0};
    CString text = ValueText(values[0], largest);
    int count = 1;
    double jump;
    if (curve.FindJump(x - halfPixel, x + halfPixel, jump)) {
        values[0] = curve.Value(jump, -1);
        values[1] = curve.Value(jump, 1);
        text = ValueText(values[0], largest) + " / " + ValueText(values[1], largest);
        count = 2;
    }
    const int hair = PixelX(panel, x);
    for (int i = 0; i < count; ++i)
        m_dc.FillSolidRect(hair - 2, PixelY(panel, values[i]) - 2, 5, 5, panel.color);
    text += " " + panel.diagram->unit;
    const int width = m_dc.GetTextExtent(text).cx + 4, gap = 5;
    const int left = hair + gap + width <= panel.cell.right ? hair + gap : hair - gap - width + 1;
    DrawBoxed(text, CPoint(left, PixelY(panel, values[0]) - m_textHeight / 2), panel.cell, panel.color);
}

// Moved into the bounds where it would leave them.
void DiagramSheet::DrawBoxed(const CString& text, CPoint at, const CRect& bounds, COLORREF color) {
    CSize size = m_dc.GetTextExtent(text);
    size.cx += 4;
    at.x = std::clamp<int>(at.x, bounds.left, std::max<int>(bounds.left, bounds.right - size.cx));
    at.y = std::clamp<int>(at.y, bounds.top, std::max<int>(bounds.top, bounds.bottom - size.cy));
    const CRect box(at, size);
    CBrush brush(color);
    m_dc.FillSolidRect(&box, white);
    m_dc.FrameRect(&box, &brush);
    m_dc.SetTextColor(color);
    m_dc.TextOut(box.left + 2, box.top, text);
}
