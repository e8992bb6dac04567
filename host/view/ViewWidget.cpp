#include "host/view/ViewWidget.h"

#include "host/document/HostDocument.h"
#include "host/view/HostView.h"
#include "host/view/ViewOwner.h"
#include "host/view/ViewRenderer.h"
#include "model/element/Nodo.h"
#include "model/entity/ElementoStrutturale.h"
#include "platform/toolkit/PainterDC.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr qint64 smoothMilliseconds = 40; // a picture takes no longer while the camera moves
constexpr int settleMilliseconds = 150;
constexpr double zoomPerWheelUnit = 1.0015; // 120 units are one notch: about a fifth

const QColor background(252, 252, 253);
const QColor pickColor(0, 130, 60);

CPoint ToPoint(const QPoint& point) {
    return {point.x(), point.y()};
}

} // namespace

SelectMode SelectModeOf(Qt::KeyboardModifiers held) {
    return held & Qt::ControlModifier ? SelectMode::Toggle
           : held & Qt::ShiftModifier ? SelectMode::Add
                                      : SelectMode::Replace;
}

ViewWidget::ViewWidget(HostView& view, HWND frame, QWidget* parent)
    : HostedWidget<QWidget>(frame, parent), m_view(view), m_keyboard(view) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(120, 90);
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleMilliseconds);
    QObject::connect(&m_settle, &QTimer::timeout, this, [this] {
        if (m_coarse)
            Outdate();
    });
}

void ViewWidget::Leave() {
    m_left = true;
    m_settle.stop();
}

// The widget outlives its view until the loop deletes it.
bool ViewWidget::event(QEvent* event) {
    if (m_left && event->type() != QEvent::DeferredDelete)
        return true;
    return HostedWidget<QWidget>::event(event);
}

void ViewWidget::Outdate() {
    m_outdated = true;
    update();
}

void ViewWidget::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    const bool fits = m_picture.size() == size() * ratio;
    // While a command runs the last picture stays: the model is in between.
    if ((m_outdated || !fits) && (!m_view.Owner().IsWaiting() || m_picture.isNull()))
        Draw(ratio);
    QPainter painter(this);
    if (!fits)
        painter.fillRect(rect(), background);
    painter.drawImage(QPoint(), m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawTripod(painter);
    DrawCaseName(painter);
    if (m_view.AsksForNodes())
        DrawPicked(painter);
    if (m_drag == Drag::Rectangle) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(QColor(40, 90, 170), 1, Qt::DashLine));
        painter.setBrush(QColor(40, 90, 170, 30));
        painter.drawRect(QRect(m_pressed, m_pointer).normalized());
    }
    if (hasFocus()) {
        m_keyboard.Draw(painter);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void ViewWidget::Draw(double pixelRatio) {
    m_picture = QImage(size() * pixelRatio, QImage::Format_RGB32);
    m_picture.setDevicePixelRatio(pixelRatio);
    m_picture.fill(background);
    m_outdated = false;
    m_coarse = false;
    ++m_drawCount;
    if (m_view.Owner().IsWaiting() || m_view.IsClosed())
        return;
    const int stride = Stride();
    QElapsedTimer clock;
    clock.start();
    {
        QPainter painter(&m_picture);
        platform::PainterDC dc(painter);
        DrawModel(m_view.Document(), m_view.Vista(), dc, stride);
    }
    m_coarse = stride > 1;
    if (!m_coarse)
        m_fullDrawTime = clock.elapsed();
}

// While the camera moves, a model that takes long is drawn in part.
int ViewWidget::Stride() const {
    const bool moving = m_drag == Drag::Orbit || m_drag == Drag::Pan || m_settle.isActive();
    return moving ? static_cast<int>(1 + m_fullDrawTime / smoothMilliseconds) : 1;
}

void ViewWidget::DrawTripod(QPainter& painter) {
    constexpr double length = 34;
    const QPointF origin(52, height() - 52);
    const Adv3d& vista = m_view.Vista();
    const CFPoint right = vista.GetAxis(0), up = vista.GetAxis(1);
    const struct {
        double x, y;
        QColor color;
        const char* name;
    } axes[] = {
        {right.x, up.x, {200, 40, 40}, "X"}, {right.y, up.y, {40, 140, 40}, "Y"}, {right.z, up.z, {40, 70, 200}, "Z"}};
    for (const auto& axis : axes) {
        const QPointF tip = origin + QPointF(axis.x, -axis.y) * length;
        painter.setPen(QPen(axis.color, 2));
        painter.drawLine(origin, tip);
        if (std::hypot(axis.x, axis.y) < 0.15)
            continue; // seen end on, its name would cover the others'
        const QPointF label = origin + QPointF(axis.x, -axis.y) * (length + 11);
        painter.drawText(QRectF(label - QPointF(8, 8), QSizeF(16, 16)), Qt::AlignCenter,
                         QString::fromLatin1(axis.name));
    }
}

void ViewWidget::DrawCaseName(QPainter& painter) {
    if (m_view.IsClosed())
        return;
    if (CElementoStrutturale* current = m_view.Document().GetCurrentCase()) {
        painter.setPen(QColor(90, 90, 90));
        painter.drawText(QRectF(10, 8, width() - 20, 20), Qt::AlignLeft | Qt::AlignTop,
                         platform::ToQString(current->GetNome()));
    }
}

// The points picked until now, and the way to the next one.
void ViewWidget::DrawPicked(QPainter& painter) {
    const auto onScreen = [this](const CFPoint& point) {
        const Adv3d::Punto seen = m_view.Vista().Project(point);
        return QPointF(seen.x, seen.y);
    };
    const bool inside = m_pointer.x() >= 0;
    const auto snap = inside && m_drag == Drag::None ? m_view.SnapAt(ToPoint(m_pointer)) : std::nullopt;
    painter.setBrush(Qt::NoBrush);
    if (const auto& vector = m_view.Vector().vector) {
        painter.setPen(QPen(pickColor, 1));
        painter.drawLine(onScreen(vector->first), onScreen(vector->second));
        for (const CFPoint& end : {vector->first, vector->second})
            painter.drawEllipse(onScreen(end), 4, 4);
    }
    QPolygonF picked;
    if (m_view.Drawing().IsActive())
        for (CNodo* node : m_view.Drawing().Picked())
            picked << onScreen(*node->GetPunto());
    else if (const auto& from = m_view.Vector().from)
        picked << onScreen(*from);
    painter.setPen(QPen(pickColor, 2));
    for (const QPointF& each : picked)
        painter.drawEllipse(each, 6, 6);
    painter.drawPolyline(picked);
    if (!picked.isEmpty() && inside) {
        painter.setPen(QPen(pickColor, 1, Qt::DashLine));
        painter.drawLine(picked.back(), snap ? onScreen(snap->point) : QPointF(m_pointer));
    }
    if (snap) {
        const QPointF at = onScreen(snap->point);
        painter.setPen(QPen(pickColor, 2));
        painter.drawRect(QRectF(at - QPointF(6, 6), QSizeF(12, 12)));
    }
}

void ViewWidget::resizeEvent(QResizeEvent*) {
    m_view.SetViewport(width(), height());
}

void ViewWidget::BeginCamera(Drag drag) {
    m_drag = drag;
    m_settle.start();
}

void ViewWidget::mousePressEvent(QMouseEvent* event) {
    m_pointer = m_pressed = event->position().toPoint();
    if (event->button() == Qt::LeftButton)
        m_drag = Drag::Press;
    else if (event->button() == Qt::MiddleButton)
        BeginCamera(Drag::Pan);
    else if (event->button() == Qt::RightButton)
        BeginCamera(event->modifiers() & Qt::ShiftModifier ? Drag::Pan : Drag::Orbit);
}

void ViewWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint now = event->position().toPoint();
    const QPoint moved = now - m_pointer;
    m_pointer = now;
    if (!moved.isNull())
        m_keyboard.Hide();
    switch (m_drag) {
    case Drag::Orbit:
        m_settle.start();
        m_view.Orbit(moved.x(), moved.y());
        return;
    case Drag::Pan:
        m_settle.start();
        m_view.Pan(moved.x(), moved.y());
        return;
    case Drag::Press:
        if ((now - m_pressed).manhattanLength() >= QApplication::startDragDistance() && !m_view.AsksForNodes())
            m_drag = Drag::Rectangle;
        break;
    default:
        break;
    }
    if (m_drag == Drag::Rectangle || m_view.AsksForNodes())
        update();
    if (!m_view.Owner().IsWaiting())
        m_view.Owner().ShowCoordinates(platform::ToQString(m_view.Describe(ToPoint(now))));
}

void ViewWidget::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const Drag drag = m_drag;
    const bool left = event->button() == Qt::LeftButton;
    if (left != (drag == Drag::Press || drag == Drag::Rectangle))
        return; // another button than the one that drags
    m_drag = Drag::None;
    if (m_view.Owner().IsWaiting())
        return;
    if (drag == Drag::Rectangle) {
        update();
        m_view.SelectRectangle(ToPoint(m_pressed), ToPoint(at), SelectModeOf(event->modifiers()));
    } else if (drag == Drag::Press) {
        m_view.ClickAt(ToPoint(at), SelectModeOf(event->modifiers()));
    }
}

void ViewWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton)
        m_view.Fit();
    else if (event->button() != Qt::LeftButton || m_view.AsksForNodes())
        mousePressEvent(event); // two quick picks are two picks
    else if (!m_view.Owner().IsWaiting())
        m_view.DoubleClickAt(ToPoint(event->position().toPoint()));
}

void ViewWidget::wheelEvent(QWheelEvent* event) {
    m_settle.start();
    m_view.Zoom(std::pow(zoomPerWheelUnit, event->angleDelta().y()), ToPoint(event->position().toPoint()));
    event->accept();
}

void ViewWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        if (m_view.Owner().IsWaiting() || !m_keyboard.Press(*event))
            QWidget::keyPressEvent(event);
        return;
    }
    if (m_drag == Drag::Rectangle) {
        m_drag = Drag::None;
        update();
    } else if (m_keyboard.DropNumber()) {
        m_view.Owner().ViewChanged(m_view);
    } else {
        m_view.BreakOff();
    }
}

void ViewWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ViewWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

void ViewWidget::leaveEvent(QEvent*) {
    m_pointer = {-1, -1};
    update();
    m_view.Owner().ShowCoordinates({});
}

} // namespace host
