// What the controls share.
#pragma once

#include "platform/private/peers/WindowPeer.h"

#include <QGuiApplication>
#include <QMouseEvent>

#include <typeinfo>

namespace platform {

// The control behind a handle when it is exactly a `Peer`; null for another one and for none. Rows are asked for by the
// hundred thousand, so that a search through the class tree would be felt.
template <class Peer>
Peer* ControlOf(HWND handle) {
    return handle && typeid(*handle) == typeid(Peer) ? static_cast<Peer*>(handle) : nullptr;
}

// Plays a WM_KEYDOWN or WM_CHAR that the program sends to a control. Keys that type are played by their WM_CHAR only,
// since a real one sends both. True when the message was one of them.
bool PlayKey(WindowPeer& peer, UINT message, WPARAM wParam);

// False for a press whose button is up again: when the focus that it took away opened a message box, the release went
// to the box, and what the press begins would never end.
inline bool StillPressed(const QMouseEvent& press) {
    return QGuiApplication::mouseButtons() & press.button();
}

// A control of each class; owned by the parent's widget.
WindowPeer* CreateEdit(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateButton(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateStatic(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateListBox(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateComboBox(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateSpin(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateTree(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* CreateListCtrl(const ControlSpec& spec, WindowPeer& parent);

// Number, style and place, which every control takes from its specification.
void ApplySpec(WindowPeer& peer, const ControlSpec& spec);

} // namespace platform
