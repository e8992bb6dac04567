// The decimal key of the numeric keypad, which makes a comma on Italian keyboards. The numbers of all fields are
// written with the full stop, whatever the machine's locale, so there it makes one.
#pragma once

#include <QObject>

namespace platform {

// Installed on the application; serves the dialogs' fields of one line and the toolkit's own.
class KeypadDecimal final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace platform
