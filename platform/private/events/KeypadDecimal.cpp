#include "platform/private/events/KeypadDecimal.h"

#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace platform {

bool KeypadDecimal::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool decimal = key.key() == Qt::Key_Comma && key.modifiers() == Qt::KeypadModifier;
    if (!decimal || !(qobject_cast<QLineEdit*>(receiver) || qobject_cast<QAbstractSpinBox*>(receiver)))
        return false;
    QKeyEvent stop(key.type(), Qt::Key_Period, key.modifiers(), QStringLiteral("."), key.isAutoRepeat(),
                   static_cast<quint16>(key.count()));
    QCoreApplication::sendEvent(receiver, &stop);
    event->setAccepted(stop.isAccepted());
    return true;
}

} // namespace platform
