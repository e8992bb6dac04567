#include "host/view/GridSight.h"

#include "model/view/Adv3d.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr COLORREF gridColor = RGB(180, 192, 212);
constexpr double leastGap = 8;        // pixels between neighbours
constexpr long long mostDrawn = 1000; // lines of each direction: a perspective shows the far ones as near as it likes
constexpr double nearest = 0.021;     // of the eye's distance, before the projection gives up

double Cross2(double ax, double ay, double bx, double by) {
    return ax * by - ay * bx;
}

// 1, 2, 5, 10, 20, 50 ...
long long NextStride(long long stride) {
    long long power = 1;
    while (power * 10 <= stride)
        power *= 10;
    return stride == power ? 2 * power : stride == 2 * power ? 5 * power : 10 * power;
}

} // namespace

GridSight::GridSight(const ConstructionGrid& grid, const Adv3d& vista) : m_grid(grid), m_vista(vista) {
    const Adv3d::Punto target = vista.Project(vista.GetTarget());
    m_originX = target.x;
    m_originY = target.y;
    m_right = Along(vista.GetAxis(0));
    m_up = Along(vista.GetAxis(1));
    // What a pixel covers grows away from the eye, in a perspective.
    const double here = vista.GetUnitsPerPixel(vista.GetTarget());
    const double behind = 100 * here;
    const double growth = (vista.GetUnitsPerPixel(vista.GetTarget() - vista.GetAxis(2) * behind) - here) / behind;
    m_size = Along(vista.GetAxis(2));
    m_size = {here - growth * m_size.constant, -growth * m_size.a, -growth * m_size.b};

    const auto& across = grid.lines[0];
    const auto& along = grid.lines[1];
    const double a[] = {across.First() * across.spacing, across.Last() * across.spacing};
    const double b[] = {along.First() * along.spacing, along.Last() * along.spacing};
    m_visible = {{a[0], b[0]}, {a[1], b[0]}, {a[1], b[1]}, {a[0], b[1]}};
    CutAway({m_size.constant - nearest * here, m_size.a, m_size.b});
    CutToViewport();
    for (int i = 0; i < 2; ++i)
        Thin(i);
}

GridSight::Field GridSight::Along(const CFPoint& axis) const {
    return {Dot(axis, m_grid.origin - m_vista.GetTarget()), Dot(axis, m_grid.Direction(0)),
            Dot(axis, m_grid.Direction(1))};
}

void GridSight::CutToViewport() {
    const CRect& view = m_vista.GetViewport();
    const auto beyond = [this](const Field& field, double pixels, double sign) {
        return Field{sign * (field.constant - pixels * m_size.constant), sign * (field.a - pixels * m_size.a),
                     sign * (field.b - pixels * m_size.b)};
    };
    CutAway(beyond(m_right, view.left - m_originX, 1));
    CutAway(beyond(m_right, view.right - m_originX, -1));
    CutAway(beyond(m_up, m_originY - view.bottom, 1));
    CutAway(beyond(m_up, m_originY - view.top, -1));
}

void GridSight::CutAway(const Field& kept) {
    std::vector<Place> left;
    for (std::size_t i = 0; i < m_visible.size(); ++i) {
        const Place& here = m_visible[i];
        const Place& next = m_visible[(i + 1) % m_visible.size()];
        const double at = kept(here), then = kept(next);
        if (at >= 0)
            left.push_back(here);
        if ((at < 0) != (then < 0)) {
            const double t = at / (at - then);
            left.push_back({here.a + (next.a - here.a) * t, here.b + (next.b - here.b) * t});
        }
    }
    m_visible = std::move(left);
}

double GridSight::Gap(int i, const Place& place) const {
    const double size = m_size(place), right = m_right(place), up = m_up(place);
    const auto moved = [&](double field, double byField, double bySize) {
        return (byField * size - field * bySize) / (size * size);
    };
    double dx[] = {moved(right, m_right.a, m_size.a), moved(right, m_right.b, m_size.b)};
    double dy[] = {moved(up, m_up.a, m_size.a), moved(up, m_up.b, m_size.b)};
    const double length = std::hypot(dx[1 - i], dy[1 - i]);
    const double gap = length > 0 ? std::fabs(Cross2(dx[0], dy[0], dx[1], dy[1])) / length : std::hypot(dx[i], dy[i]);
    return gap * std::fabs(m_grid.lines[i].spacing);
}

void GridSight::Thin(int i) {
    if (m_visible.empty())
        return;
    const auto& lines = m_grid.lines[i];
    long long first = 0, last = 0;
    if (lines.spacing != 0) {
        const auto [low, high] =
            std::minmax_element(m_visible.begin(), m_visible.end(), [i](const Place& one, const Place& other) {
                return i == 0 ? one.a < other.a : one.b < other.b;
            });
        double from = (i == 0 ? low->a : low->b) / lines.spacing, to = (i == 0 ? high->a : high->b) / lines.spacing;
        if (from > to)
            std::swap(from, to);
        first = static_cast<long long>(std::ceil(std::max(from - 1e-9, static_cast<double>(lines.First()))));
        last = static_cast<long long>(std::floor(std::min(to + 1e-9, static_cast<double>(lines.Last()))));
    }
    Place middle{0, 0};
    for (const Place& corner : m_visible) {
        middle.a += corner.a / static_cast<double>(m_visible.size());
        middle.b += corner.b / static_cast<double>(m_visible.size());
    }
    const double gap = Gap(i, middle);
    long long stride = 1;
    while (stride < 1'000'000'000 &&
           (gap * static_cast<double>(stride) < leastGap || (last - first) / stride > mostDrawn))
        stride = NextStride(stride);
    const auto count = static_cast<double>(stride);
    m_drawn[i] = {static_cast<int>(std::ceil(static_cast<double>(first) / count) * count),
                  static_cast<int>(std::floor(static_cast<double>(last) / count) * count), static_cast<int>(stride)};
}

// Where a line across direction i is in sight; false for nowhere.
bool GridSight::SpanOf(int i, double across, double& from, double& to) const {
    bool found = false;
    const auto take = [&](double along) {
        from = found ? std::min(from, along) : along;
        to = found ? std::max(to, along) : along;
        found = true;
    };
    for (std::size_t corner = 0; corner < m_visible.size(); ++corner) {
        const Place& here = m_visible[corner];
        const Place& next = m_visible[(corner + 1) % m_visible.size()];
        const double at = (i == 0 ? here.a : here.b) - across, then = (i == 0 ? next.a : next.b) - across;
        const double along = i == 0 ? here.b : here.a, further = i == 0 ? next.b : next.a;
        if (at == 0)
            take(along);
        else if ((at < 0) != (then < 0) && then != 0)
            take(along + (further - along) * at / (at - then));
    }
    return found && to > from;
}

void GridSight::Draw(Adv3d& vista) const {
    for (int i = 0; i < 2; ++i) {
        for (long long line = m_drawn[i].first; line <= m_drawn[i].last; line += m_drawn[i].stride) {
            const double across = static_cast<double>(line) * m_grid.lines[i].spacing;
            double from, to;
            if (SpanOf(i, across, from, to))
                vista.Segment(i == 0 ? m_grid.At(across, from) : m_grid.At(from, across),
                              i == 0 ? m_grid.At(across, to) : m_grid.At(to, across), gridColor);
        }
    }
    vista.Flush();
}

// The place of the plane that the pixel shows; false where the plane is seen from its side.
bool GridSight::Pierced(CPoint at, Place& place) const {
    const double x = at.x - m_originX, y = m_originY - at.y;
    const Field right = {m_right.constant - x * m_size.constant, m_right.a - x * m_size.a, m_right.b - x * m_size.b};
    const Field up = {m_up.constant - y * m_size.constant, m_up.a - y * m_size.a, m_up.b - y * m_size.b};
    const double determinant = Cross2(right.a, right.b, up.a, up.b);
    if (!(std::fabs(determinant) > 1e-9 * std::hypot(right.a, right.b) * std::hypot(up.a, up.b)))
        return false;
    place.a = Cross2(right.b, right.constant, up.b, up.constant) / determinant;
    place.b = Cross2(right.constant, right.a, up.constant, up.a) / determinant;
    return true;
}

GridSight::Drawn GridSight::Around(int i, const Place& place, double radius) const {
    constexpr double mostSteps = 30;
    Drawn lines = m_drawn[i];
    const double stride = lines.stride, gap = Gap(i, place) * stride;
    if (m_grid.lines[i].spacing == 0 || lines.last < lines.first)
        return lines;
    const double at = (i == 0 ? place.a : place.b) / m_grid.lines[i].spacing / stride;
    const double steps = gap > radius / mostSteps ? radius / gap : mostSteps;
    const double first = std::ceil(at - steps) * stride, last = std::floor(at + steps) * stride;
    if (!(first <= lines.last && last >= lines.first))
        return {};
    lines.first = static_cast<int>(std::max<double>(lines.first, first));
    lines.last = static_cast<int>(std::min<double>(lines.last, last));
    return lines;
}

std::optional<CFPoint> GridSight::Nearest(CPoint at, double radius) const {
    Place place;
    if (!Pierced(at, place))
        return std::nullopt;
    std::optional<CFPoint> best;
    double bestDistance = radius;
    const Drawn across = Around(0, place, radius), along = Around(1, place, radius);
    for (long long i = across.first; i <= across.last; i += across.stride)
        for (long long j = along.first; j <= along.last; j += along.stride) {
            const CFPoint crossing = m_grid.Crossing(static_cast<int>(i), static_cast<int>(j));
            const Adv3d::Punto seen = m_vista.Project(crossing);
            const double distance = std::hypot(seen.x - at.x, seen.y - at.y);
            if (!seen.visible || distance > bestDistance)
                continue;
            best = crossing;
            bestDistance = distance;
        }
    return best;
}

} // namespace host
