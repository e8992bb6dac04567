// Hosted<QLineEdit> is a toolkit widget that is also a window: its events pass through message maps first.
#pragma once

#include "platform/private/peers/WindowPeer.h"

#include <utility>

namespace platform {

template <class Base>
class Hosted : public Base, public WindowPeer {
  public:
    // Where the toolkit uses the same names, the window's are meant.
    using WindowPeer::children;
    using WindowPeer::destroyed;
    using WindowPeer::parent;
    using WindowPeer::style;
    using WindowPeer::Window;

    // `parentWidget` is the toolkit's parent; `parentPeer` the window that messages go to.
    template <class... Arguments>
    Hosted(WindowPeer* parentPeer, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), WindowPeer(this, parentPeer) {}

    bool event(QEvent* event) override { return DispatchEvent(*this, event); }
    bool BaseEvent(QEvent* event) override { return Base::event(event); }
};

// The same for widgets that scroll: the pointer's events and the painting come to their viewport.
template <class Base>
class HostedScrollArea : public Hosted<Base> {
  public:
    using Hosted<Base>::Hosted;

    QWidget* Surface() override { return this->viewport(); }
    bool viewportEvent(QEvent* event) override {
        return DispatchEvent(*this, event, [](WindowPeer& peer, QEvent* inner) {
            return static_cast<HostedScrollArea&>(peer).Base::viewportEvent(inner);
        });
    }
};

} // namespace platform
