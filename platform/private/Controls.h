// What the controls share.
#pragma once

#include "platform/private/WindowPeer.h"

#include <typeinfo>

namespace platform {

// The control behind a handle when it is exactly a `Peer`; null for another one and for none. Rows are asked for by the
// hundred thousand, so that a search through the class tree would be felt.
template <class Peer>
Peer* controlOf(HWND handle) {
    return handle && typeid(*handle) == typeid(Peer) ? static_cast<Peer*>(handle) : nullptr;
}

// Plays a WM_KEYDOWN or WM_CHAR that the program sends to a control. Keys that type are played by their WM_CHAR only,
// since a real one sends both. True when the message was one of them.
bool playKey(WindowPeer& peer, UINT message, WPARAM wParam);

// A control of each class; owned by the parent's widget.
WindowPeer* createEdit(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createButton(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createStatic(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createListBox(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createComboBox(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createSpin(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createTree(const ControlSpec& spec, WindowPeer& parent);
WindowPeer* createListCtrl(const ControlSpec& spec, WindowPeer& parent);

// Number, style and place, which every control takes from its specification.
void applySpec(WindowPeer& peer, const ControlSpec& spec);

} // namespace platform
