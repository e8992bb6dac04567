// Shows which control has the focus.
#pragma once

#include <QObject>

namespace platform {

// The toolkit hides the focus in a window until the user presses Tab there; who works by keyboard would not know where
// the first key goes.
class VisibleFocus final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace platform
