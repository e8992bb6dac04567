// A posted message on its way through the toolkit's queue.
#pragma once

#include "platform/core/Types.h"

#include <QEvent>

namespace platform {

class PostedMessage : public QEvent {
  public:
    PostedMessage(UINT m, WPARAM w, LPARAM l) : QEvent(EventType()), message(m), wParam(w), lParam(l) {}

    static Type EventType() {
        static const auto type = static_cast<Type>(registerEventType());
        return type;
    }

    const UINT message;
    const WPARAM wParam;
    const LPARAM lParam;
};

} // namespace platform
