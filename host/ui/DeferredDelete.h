// Ends an object when control is back in the loop that runs now.
#pragma once

#include <QObject>

#include <memory>

namespace host {

// A dialog asks for its own end from inside its handlers, so it may be deleted only after they have returned. The
// toolkit's deferred deletion waits for exactly that, nested loops included.
template <class T>
void DeleteLater(std::unique_ptr<T> object) {
    struct Holder : QObject {
        std::unique_ptr<T> held;
    };
    if (!object)
        return;
    auto* holder = new Holder; // deletes itself
    holder->held = std::move(object);
    holder->deleteLater();
}

} // namespace host
