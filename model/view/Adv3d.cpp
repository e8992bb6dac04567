#include "model/view/Adv3d.h"

#include "model/element/TipoElemento.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// Of the eye's distance: what comes nearer is cut off, or it would be torn to infinity.
constexpr double nearLimit = 0.98;
constexpr double eyeMultiple = 2.5;  // of the eye's distance from the target's plane, in larger sides of the viewport
constexpr double defaultSide = 1000; // pixels, while there is no viewport

struct Standard {
    CFPoint right, up;
};

Standard AxesToward(Adv3d::Direzione direzione) {
    switch (direzione) {
    case Adv3d::Top:
        return {{1, 0, 0}, {0, 1, 0}};
    case Adv3d::Bottom:
        return {{1, 0, 0}, {0, -1, 0}};
    case Adv3d::Front:
        return {{1, 0, 0}, {0, 0, 1}};
    case Adv3d::Back:
        return {{-1, 0, 0}, {0, 0, 1}};
    case Adv3d::Right:
        return {{0, 1, 0}, {0, 0, 1}};
    case Adv3d::Left:
        return {{0, -1, 0}, {0, 0, 1}};
    default:
        return {{1, 1, 0}, {-1, 1, 2}};
    }
}

// A turn by a right angle and its multiples is exact, so that four of them give the first view again.
void Turn(double degrees, double& cosine, double& sine) {
    const double radians = std::remainder(degrees, 360.0) * std::numbers::pi / 180;
    cosine = std::cos(radians);
    sine = std::sin(radians);
    if (std::abs(cosine) < 1e-15)
        cosine = 0;
    if (std::abs(sine) < 1e-15)
        sine = 0;
}

} // namespace

CPoint Adv3d::Punto::Pixel() const {
    // Far outside the window a coordinate may exceed an int; there it only has to stay outside.
    const auto whole = [](double value) { return static_cast<int>(std::floor(std::clamp(value, -1e8, 1e8) + 0.5)); };
    return {whole(x), whole(y)};
}

double Adv3d::Punto::DistanceFromLine(CPoint pixel, const Punto& end) const {
    const double dx = end.x - x, dy = end.y - y;
    const double square = dx * dx + dy * dy;
    const double t = square > 0 ? std::clamp(((pixel.x - x) * dx + (pixel.y - y) * dy) / square, 0.0, 1.0) : 0;
    return std::hypot(pixel.x - x - t * dx, pixel.y - y - t * dy);
}

Adv3d::Adv3d() {
    SetDirection(Axonometry);
    GetSettings(TipoElemento::Nodo).SetColor(RGB(30, 60, 160));
    GetSettings(TipoElemento::Trave).SetColor(RGB(50, 50, 60));
    GetSettings(TipoElemento::Asta).SetColor(RGB(0, 120, 80));
    GetSettings(TipoElemento::Solaio).SetColor(RGB(120, 150, 190));
    GetSettings(TipoElemento::Setto).SetColor(RGB(190, 160, 110));
    Place();
}

void Adv3d::Rotate(int axisA, int axisB, double degrees) {
    double c = 1, s = 0;
    Turn(degrees, c, s);
    CFPoint& a = m_axes[static_cast<std::size_t>(axisA)];
    CFPoint& b = m_axes[static_cast<std::size_t>(axisB)];
    const CFPoint turned = a * c - b * s;
    b = a * s + b * c;
    a = turned;
    SetAxes(m_axes[0], m_axes[1]); // thousands of small turns by the mouse must not shear the view
}

void Adv3d::vista_ruotax(double gradi) {
    Rotate(1, 2, gradi);
}

void Adv3d::vista_ruotay(double gradi) {
    Rotate(2, 0, gradi);
}

void Adv3d::vista_ruotaz(double gradi) {
    Rotate(0, 1, gradi);
}

void Adv3d::SetDirection(Direzione direzione) {
    const Standard axes = AxesToward(direzione);
    SetAxes(axes.right, axes.up);
}

CFPoint Adv3d::GetAxis(int i) const {
    return m_axes[static_cast<std::size_t>(std::clamp(i, 0, 2))];
}

void Adv3d::SetAxes(CFPoint destra, CFPoint alto) {
    CFPoint towardsEye = Cross(destra, alto);
    if (!destra.Normalize() || !towardsEye.Normalize())
        return;
    m_axes = {destra, Cross(towardsEye, destra), towardsEye};
}

void Adv3d::SetViewport(const CRect& rect) {
    m_viewport = rect;
    Place();
}

void Adv3d::SetTarget(CFPoint punto) {
    if (punto.IsFinite())
        m_target = punto;
}

void Adv3d::SetPan(double dx, double dy) {
    m_panX = dx;
    m_panY = dy;
    Place();
}

void Adv3d::SetScale(double pixelPerUnita) {
    if (pixelPerUnita > 0 && std::isfinite(pixelPerUnita))
        m_scale = pixelPerUnita;
}

void Adv3d::Place() {
    m_originX = (m_viewport.left + m_viewport.right) / 2.0 + m_panX;
    m_originY = (m_viewport.top + m_viewport.bottom) / 2.0 + m_panY;
}

void Adv3d::Zoom(double fattore, CPoint fermo) {
    if (!(fattore > 0) || !std::isfinite(m_scale * fattore) || m_scale * fattore < 1e-12)
        return;
    m_scale *= fattore;
    SetPan(m_panX + (fermo.x - m_originX) * (1 - fattore), m_panY + (fermo.y - m_originY) * (1 - fattore));
}

void Adv3d::FitToBounds(CFPoint minimo, CFPoint massimo, int margine) {
    if (!minimo.IsFinite() || !massimo.IsFinite())
        return;
    SetTarget((minimo + massimo) * 0.5);
    SetPan(0, 0);
    const CFPoint half = (massimo - minimo) * 0.5;
    const auto reach = [&](const CFPoint& axis) {
        return std::abs(axis.x * half.x) + std::abs(axis.y * half.y) + std::abs(axis.z * half.z);
    };
    const double width = std::max(m_viewport.Width() - 2.0 * margine, 10.0) / 2;
    const double height = std::max(m_viewport.Height() - 2.0 * margine, 10.0) / 2;
    const double across = reach(m_axes[0]), up = reach(m_axes[1]), deep = reach(m_axes[2]);
    const double largest = std::max(across / width, up / height);
    if (!(largest > 0) || !std::isfinite(largest)) {
        if (deep > 0) // a line that is seen end on
            SetScale(std::min(width, height) / deep);
        return;
    }
    SetScale(1 / largest);
    if (!m_perspective)
        return;
    // The near corners are drawn larger; the eye's distance in length units grows as the scale shrinks.
    const double side = m_viewport.IsRectEmpty() ? defaultSide : std::max(m_viewport.Width(), m_viewport.Height());
    const double eye = eyeMultiple * side;
    SetScale(eye / (eye * largest + deep));
}

Adv3d::Punto Adv3d::Project(const CFPoint& punto) const {
    const double dx = punto.x - m_target.x, dy = punto.y - m_target.y, dz = punto.z - m_target.z;
    const auto along = [&](const CFPoint& axis) { return axis.x * dx + axis.y * dy + axis.z * dz; };
    const double depth = along(m_axes[2]);
    double scale = m_scale;
    if (m_perspective) {
        const double side = m_viewport.IsRectEmpty() ? defaultSide : std::max(m_viewport.Width(), m_viewport.Height());
        const double eye = eyeMultiple * side / m_scale;
        if (!(depth <= eye * nearLimit))
            return {0, 0, depth, false};
        scale *= eye / (eye - depth);
    }
    const double x = m_originX + along(m_axes[0]) * scale;
    const double y = m_originY - along(m_axes[1]) * scale;
    return {x, y, depth, std::isfinite(x) && std::isfinite(y)};
}

bool Adv3d::ProjectSegment(const CFPoint& a, const CFPoint& b, Punto& p, Punto& q) const {
    p = Project(a);
    q = Project(b);
    if (p.visible == q.visible)
        return p.visible;
    // One end lies behind the eye: halving finds the visible part well within a pixel of the window's edge.
    CFPoint seen = p.visible ? a : b, hidden = p.visible ? b : a;
    for (int i = 0; i < 24; ++i) {
        const CFPoint middle = (seen + hidden) * 0.5;
        (Project(middle).visible ? seen : hidden) = middle;
    }
    (p.visible ? q : p) = Project(seen);
    return true;
}

CFPoint Adv3d::Unproject(CPoint pixel, const CFPoint& piano) const {
    const double perPixel = GetUnitsPerPixel(piano);
    const double ex = (pixel.x - m_originX) * perPixel;
    const double ey = (m_originY - pixel.y) * perPixel;
    return m_target + m_axes[0] * ex + m_axes[1] * ey + m_axes[2] * GetDepth(piano);
}

double Adv3d::GetUnitsPerPixel(const CFPoint& punto) const {
    if (!m_perspective)
        return 1 / m_scale;
    const double side = m_viewport.IsRectEmpty() ? defaultSide : std::max(m_viewport.Width(), m_viewport.Height());
    const double eye = eyeMultiple * side / m_scale;
    const double depth = std::min(GetDepth(punto), eye * nearLimit);
    return (eye - depth) / eye / m_scale;
}

CElementoSettings& Adv3d::GetSettings(unsigned tipo) {
    return m_settings[tipo < m_settings.size() ? tipo : 0];
}
