#include "platform/private/events/Cursor.h"

#include <QApplication>
#include <QCursor>

#include <optional>
#include <utility>

namespace platform {

namespace {

QPointer<QWidget> pointerTarget;

// The one window that a program gave a cursor, with its own, if it has one: an edit's is not the arrow.
QPointer<QWidget> changed;
std::optional<QCursor> former;

void Restore() {
    if (QWidget* widget = std::exchange(changed, nullptr)) {
        if (former)
            widget->setCursor(*former);
        else
            widget->unsetCursor();
    }
}

} // namespace

PointerTarget::PointerTarget(QWidget* surface) : m_outer(std::exchange(pointerTarget, surface)) {
}

PointerTarget::~PointerTarget() {
    pointerTarget = m_outer;
}

void AskCursor(WindowPeer& peer, UINT mouseMessage) {
    const QPointer<QWidget> alive = peer.widget;
    const LRESULT answer =
        peer.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(&peer), MAKELPARAM(HTCLIENT, static_cast<int>(mouseMessage)));
    if (!answer && alive)
        Restore();
}

} // namespace platform

void SetCursor(StandardCursor cursor) {
    constexpr Qt::CursorShape shapes[] = {Qt::ArrowCursor, Qt::CrossCursor, Qt::WaitCursor, Qt::SizeAllCursor};
    QWidget* target = platform::pointerTarget ? platform::pointerTarget.data() : QApplication::widgetAt(QCursor::pos());
    if (!target)
        return;
    if (target != platform::changed) {
        platform::Restore();
        platform::changed = target;
        platform::former.reset();
        if (target->testAttribute(Qt::WA_SetCursor))
            platform::former = target->cursor();
    }
    target->setCursor(shapes[static_cast<int>(cursor)]);
}

CWaitCursor::CWaitCursor() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

CWaitCursor::~CWaitCursor() {
    QApplication::restoreOverrideCursor();
}
