#include "platform/private/events/VisibleFocus.h"

#include <QEvent>
#include <QWidget>

namespace platform {

bool VisibleFocus::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) // showing a window takes the attribute away
        if (auto* widget = qobject_cast<QWidget*>(receiver); widget && widget->isWindow())
            widget->setAttribute(Qt::WA_KeyboardFocusChange);
    return false;
}

} // namespace platform
