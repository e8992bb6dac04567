// The pointer's shape: what a program sets holds until a move of the pointer finds nobody who answers WM_SETCURSOR.
#pragma once

#include "platform/private/peers/WindowPeer.h"

namespace platform {

// While it lives, the window whose mouse message is being handled is the one that SetCursor means.
class PointerTarget {
  public:
    explicit PointerTarget(QWidget* surface);
    ~PointerTarget();
    PointerTarget(const PointerTarget&) = delete;
    PointerTarget& operator=(const PointerTarget&) = delete;

  private:
    QPointer<QWidget> m_outer;
};

// Asks the window under the pointer, then its parents up to the dialog, for a cursor. Without an answer the one that a
// program set goes.
void AskCursor(WindowPeer& peer, UINT mouseMessage);

} // namespace platform
