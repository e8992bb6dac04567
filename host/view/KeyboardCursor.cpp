#include "host/view/KeyboardCursor.h"

#include "host/document/HostDocument.h"
#include "host/view/HostView.h"
#include "host/view/ViewOwner.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "platform/toolkit/Bridge.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>
#include <limits>

namespace host {

namespace {

constexpr Kind selectable[] = {Kind::Node, Kind::Beam, Kind::Truss, Kind::Wall, Kind::Slab};
constexpr int mostDigits = 9; // of a node's number
const QColor cursorColor(200, 90, 0);

struct Seen {
    double x = 0, y = 0;
    bool visible = false;
};

Seen MiddleOf(CElemento& object, Adv3d& vista) {
    CFPoint sum;
    const int count = object.GetSize();
    for (int i = 0; i < count; ++i)
        sum += *object.GetIndexNodo(i)->GetPunto();
    const Adv3d::Punto seen = vista.Project(sum * (1.0 / count));
    return {seen.x, seen.y, seen.visible != 0};
}

} // namespace

bool KeyboardCursor::IsWanted(Kind kind) const {
    if (m_view.AsksForNodes())
        return kind == Kind::Node;
    const KindFilter& filter = m_view.Filter();
    switch (kind) {
    case Kind::Node:
        return filter.nodes;
    case Kind::Beam:
        return filter.beams;
    case Kind::Truss:
        return filter.trusses;
    case Kind::Wall:
        return filter.walls;
    default:
        return filter.slabs;
    }
}

CElemento* KeyboardCursor::Object() const {
    return m_id && IsWanted(m_kind) ? m_view.Document().Find(m_kind, m_id) : nullptr;
}

template <class Action>
void KeyboardCursor::ForEach(const Action& take) const {
    for (const Kind kind : selectable)
        for (int i = 0; IsWanted(kind) && i < m_view.Document().Data().Size(kind); ++i) {
            CElemento* object = m_view.Document().Data().At(kind, i);
            if (!object->CanDraw(&m_view.Vista()))
                continue;
            if (const Seen at = MiddleOf(*object, m_view.Vista()); at.visible)
                take(*object, at);
        }
}

void KeyboardCursor::Put(CElemento& object) {
    KindOf(object, m_kind);
    m_id = object.GetID();
    m_view.Owner().ShowCoordinates(platform::ToQString(m_view.Describe(object)));
    m_view.Widget().update();
}

void KeyboardCursor::Hide() {
    if (m_id == 0)
        return;
    m_id = 0;
    m_view.Widget().update();
}

// The first key goes to the object that was selected last or, without one, to what is nearest to the middle.
void KeyboardCursor::Walk(int dx, int dy) {
    CElemento* here = Object();
    const auto& selected = m_view.Document().Selection().All();
    Kind kind;
    if (!here && !selected.empty() && KindOf(*selected.back(), kind) && IsWanted(kind))
        return Put(*selected.back());
    const CPoint middle = m_view.Vista().GetViewport().CenterPoint();
    const Seen from = here ? MiddleOf(*here, m_view.Vista())
                           : Seen{static_cast<double>(middle.x), static_cast<double>(middle.y), true};
    CElemento* best = nullptr;
    double least = std::numeric_limits<double>::infinity();
    ForEach([&](CElemento& object, const Seen& at) {
        const double x = at.x - from.x, y = at.y - from.y;
        const double along = x * dx + y * dy, aside = std::fabs(x * dy - y * dx);
        if (here && (along < 1 || aside > 2 * along))
            return;
        const double cost = here ? along + 2 * aside : std::hypot(x, y);
        if (cost < least) {
            least = cost;
            best = &object;
        }
    });
    if (best)
        Put(*best);
}

void KeyboardCursor::Step(bool backward) {
    const CElemento* here = Object();
    CElemento *first = nullptr, *last = nullptr, *before = nullptr, *after = nullptr;
    bool passed = false;
    ForEach([&](CElemento& object, const Seen&) {
        first = first ? first : &object;
        if (&object == here) {
            before = last;
            passed = true;
        } else if (passed && !after) {
            after = &object;
        }
        last = &object;
    });
    CElemento* next = backward ? (before ? before : last) : (after ? after : first);
    if (next)
        Put(*next);
}

bool KeyboardCursor::DropNumber() {
    if (m_number.isEmpty())
        return false;
    m_number.clear();
    return true;
}

bool KeyboardCursor::Type(const QKeyEvent& event) {
    if (!m_view.AsksForNodes() || event.modifiers() & ~Qt::KeypadModifier)
        return false;
    const QString text = event.text();
    if (text.size() == 1 && text[0] >= u'0' && text[0] <= u'9')
        m_number += m_number.size() < mostDigits ? text : QString();
    else if (event.key() == Qt::Key_Backspace && !m_number.isEmpty())
        m_number.chop(1);
    else
        return false;
    m_view.Owner().ViewChanged(m_view);
    return true;
}

bool KeyboardCursor::Act(const QKeyEvent& event) {
    if (!m_number.isEmpty()) {
        const int id = m_number.toInt();
        m_number.clear();
        auto* node = m_view.Document().Data().FindNode(id);
        if (node)
            Put(*node);
        else
            m_view.Owner().Tell(platform::FromQString(QStringLiteral("Il nodo %1 non esiste.").arg(id)));
        m_view.Owner().ViewChanged(m_view);
        return !node || m_view.ActAt(*node, SelectMode::Replace);
    }
    CElemento* here = Object();
    return here && m_view.ActAt(*here, SelectModeOf(event.modifiers()));
}

bool KeyboardCursor::Press(const QKeyEvent& event) {
    if (Type(event))
        return true;
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (held)
            return false;
        Walk((event.key() == Qt::Key_Right) - (event.key() == Qt::Key_Left),
             (event.key() == Qt::Key_Down) - (event.key() == Qt::Key_Up));
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        Step(event.key() == Qt::Key_Backtab || held == Qt::ShiftModifier);
        return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Act(event);
    default:
        return false;
    }
}

void KeyboardCursor::Draw(QPainter& painter) const {
    CElemento* here = Object();
    if (!here)
        return;
    const Seen at = MiddleOf(*here, m_view.Vista());
    painter.setPen(QPen(cursorColor, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(at.x, at.y), 9, 9);
    painter.drawLine(QPointF(at.x - 13, at.y), QPointF(at.x - 5, at.y));
    painter.drawLine(QPointF(at.x + 5, at.y), QPointF(at.x + 13, at.y));
    painter.drawLine(QPointF(at.x, at.y - 13), QPointF(at.x, at.y - 5));
    painter.drawLine(QPointF(at.x, at.y + 5), QPointF(at.x, at.y + 13));
}

} // namespace host
