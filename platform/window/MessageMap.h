// Message maps: a class lists which of its handlers take which messages. A map's entries are tried in their order, then
// those of the base class's map.
//
//     BEGIN_MESSAGE_MAP(CDialogRuota, TwoPointDialog)
//     ON_BN_CLICKED(IDC_RUOTA_X, OnRadioRuotaAsse)
//     ON_BN_CLICKED(IDC_RUOTA_Y, OnRadioRuotaY)
//     END_MESSAGE_MAP()
//
// The base is the class right above, whether or not it has a run-time class: another one would leave out the handlers
// in between. IMPLEMENT_DYNAMIC names the next class above that has a run-time class (see core/Object.h).
//
// A handler named by a macro of a WM_ message has the signature that the thunk of that macro shows.
#pragma once

#include "platform/core/Types.h"
#include "platform/window/Messages.h"

class CDC;
class CScrollBar;
class CWnd;

namespace platform {

// A message being dispatched; the handler's thunk stores its result.
struct Dispatch {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LRESULT result = 0;
};

// Calls one handler; false says that the message is to go on to the next entry that wants it.
using Thunk = bool (*)(CWnd& window, Dispatch& dispatch);

struct MessageEntry {
    UINT message; // WM_COMMAND and WM_NOTIFY look at code and ids as well
    int code;     // notification code
    UINT idFirst;
    UINT idLast;
    Thunk thunk;
};

struct MessageMap {
    const MessageMap* base; // null for the map of CWnd
    const MessageEntry* entries;
    std::size_t count;
};

const MessageEntry* FindEntry(const MessageMap& map, UINT message, int code, UINT id);

CWnd* WindowOf(HWND handle);          // null for null
CScrollBar* ScrollBarOf(HWND handle); // null when the window is none

template <auto Handler>
struct ClassOf;
template <class C, class R, class... A, R (C::*Handler)(A...)>
struct ClassOf<Handler> {
    using Type = C;
};
template <auto Handler>
typename ClassOf<Handler>::Type& As(CWnd& window) {
    return static_cast<typename ClassOf<Handler>::Type&>(window);
}

// One thunk for each shape of handler.
template <auto Handler>
bool OnVoid(CWnd& window, Dispatch&) {
    (As<Handler>(window).*Handler)();
    return true;
}
template <auto Handler>
bool OnCommandId(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(static_cast<UINT>(LOWORD(d.wParam)));
    return true;
}
template <auto Handler>
bool OnNotify(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(reinterpret_cast<NMHDR*>(d.lParam), &d.result);
    return true;
}
template <auto Handler>
bool OnMessage(CWnd& window, Dispatch& d) {
    d.result = (As<Handler>(window).*Handler)(d.wParam, d.lParam);
    return true;
}
template <auto Handler>
bool OnSize(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(static_cast<UINT>(d.wParam), GET_X_LPARAM(d.lParam), GET_Y_LPARAM(d.lParam));
    return true;
}
template <auto Handler>
bool OnPointer(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(static_cast<UINT>(d.wParam), CPoint(GET_X_LPARAM(d.lParam), GET_Y_LPARAM(d.lParam)));
    return true;
}
template <auto Handler>
bool OnScroll(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(LOWORD(d.wParam), HIWORD(d.wParam), ScrollBarOf(reinterpret_cast<HWND>(d.lParam)));
    return true;
}
template <auto Handler>
bool OnTimer(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(static_cast<UINT_PTR>(d.wParam));
    return true;
}
template <auto Handler>
bool OnKey(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(static_cast<UINT>(d.wParam), LOWORD(static_cast<WPARAM>(d.lParam)),
                                   HIWORD(static_cast<WPARAM>(d.lParam)));
    return true;
}
template <auto Handler>
bool OnActivate(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(LOWORD(d.wParam), WindowOf(reinterpret_cast<HWND>(d.lParam)), HIWORD(d.wParam));
    return true;
}
template <auto Handler>
bool OnContextMenu(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(WindowOf(reinterpret_cast<HWND>(d.wParam)),
                                   CPoint(GET_X_LPARAM(d.lParam), GET_Y_LPARAM(d.lParam)));
    return true;
}
template <auto Handler>
bool OnSetCursor(CWnd& window, Dispatch& d) {
    d.result =
        (As<Handler>(window).*Handler)(WindowOf(reinterpret_cast<HWND>(d.wParam)),
                                       LOWORD(static_cast<WPARAM>(d.lParam)), HIWORD(static_cast<WPARAM>(d.lParam)));
    return true;
}
template <auto Handler>
bool OnFocus(CWnd& window, Dispatch& d) {
    (As<Handler>(window).*Handler)(WindowOf(reinterpret_cast<HWND>(d.wParam)));
    return true;
}
template <auto Handler>
bool OnEraseBackground(CWnd& window, Dispatch& d) {
    d.result = (As<Handler>(window).*Handler)(reinterpret_cast<CDC*>(d.wParam));
    return true;
}

} // namespace platform

#define DECLARE_MESSAGE_MAP()                                                                                          \
  protected:                                                                                                           \
    static const platform::MessageMap& _messageMap();                                                                  \
    const platform::MessageMap& GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const platform::MessageMap& theClass::GetMessageMap() const {                                                      \
        return _messageMap();                                                                                          \
    }                                                                                                                  \
    const platform::MessageMap& theClass::_messageMap() {                                                              \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using BaseClass = baseClass;                                                                                   \
        static constexpr platform::MessageEntry entries[] = {
#define END_MESSAGE_MAP()                                                                                              \
    { 0, 0, 0, 0, nullptr }                                                                                            \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const platform::MessageMap map{&BaseClass::_messageMap(), entries, std::size(entries) - 1};                 \
    return map;                                                                                                        \
    }

#define QUOVAR_COMMAND_ENTRY(code, id, thunk) {WM_COMMAND, static_cast<int>(code), UINT(id), UINT(id), thunk},
#define ON_COMMAND(id, fn) QUOVAR_COMMAND_ENTRY(0, id, &platform::OnVoid<&ThisClass::fn>)
#define ON_CONTROL(code, id, fn) QUOVAR_COMMAND_ENTRY(code, id, &platform::OnVoid<&ThisClass::fn>)
#define ON_CONTROL_RANGE(code, first, last, fn)                                                                        \
    {WM_COMMAND, static_cast<int>(code), UINT(first), UINT(last), &platform::OnCommandId<&ThisClass::fn>},
#define ON_COMMAND_RANGE(first, last, fn) ON_CONTROL_RANGE(0, first, last, fn)
#define ON_BN_CLICKED(id, fn) ON_CONTROL(BN_CLICKED, id, fn)
#define ON_BN_DOUBLECLICKED(id, fn) ON_CONTROL(BN_DOUBLECLICKED, id, fn)
#define ON_EN_SETFOCUS(id, fn) ON_CONTROL(EN_SETFOCUS, id, fn)
#define ON_EN_KILLFOCUS(id, fn) ON_CONTROL(EN_KILLFOCUS, id, fn)
#define ON_EN_CHANGE(id, fn) ON_CONTROL(EN_CHANGE, id, fn)
#define ON_EN_UPDATE(id, fn) ON_CONTROL(EN_UPDATE, id, fn)
#define ON_LBN_SELCHANGE(id, fn) ON_CONTROL(LBN_SELCHANGE, id, fn)
#define ON_LBN_DBLCLK(id, fn) ON_CONTROL(LBN_DBLCLK, id, fn)
#define ON_CBN_SELCHANGE(id, fn) ON_CONTROL(CBN_SELCHANGE, id, fn)
#define ON_CBN_EDITCHANGE(id, fn) ON_CONTROL(CBN_EDITCHANGE, id, fn)
#define ON_CBN_KILLFOCUS(id, fn) ON_CONTROL(CBN_KILLFOCUS, id, fn)
#define ON_STN_CLICKED(id, fn) ON_CONTROL(STN_CLICKED, id, fn)
#define ON_NOTIFY(code, id, fn) {WM_NOTIFY, code, UINT(id), UINT(id), &platform::OnNotify<&ThisClass::fn>},

#define QUOVAR_MESSAGE_ENTRY(message, thunk) {message, 0, 0, 0, thunk},
#define ON_MESSAGE(message, fn) QUOVAR_MESSAGE_ENTRY(message, &platform::OnMessage<&ThisClass::fn>)
#define ON_WM_DESTROY() QUOVAR_MESSAGE_ENTRY(WM_DESTROY, &platform::OnVoid<&ThisClass::OnDestroy>)
#define ON_WM_CLOSE() QUOVAR_MESSAGE_ENTRY(WM_CLOSE, &platform::OnVoid<&ThisClass::OnClose>)
#define ON_WM_PAINT() QUOVAR_MESSAGE_ENTRY(WM_PAINT, &platform::OnVoid<&ThisClass::OnPaint>)
#define ON_WM_ERASEBKGND() QUOVAR_MESSAGE_ENTRY(WM_ERASEBKGND, &platform::OnEraseBackground<&ThisClass::OnEraseBkgnd>)
#define ON_WM_SIZE() QUOVAR_MESSAGE_ENTRY(WM_SIZE, &platform::OnSize<&ThisClass::OnSize>)
#define ON_WM_ACTIVATE() QUOVAR_MESSAGE_ENTRY(WM_ACTIVATE, &platform::OnActivate<&ThisClass::OnActivate>)
#define ON_WM_SETFOCUS() QUOVAR_MESSAGE_ENTRY(WM_SETFOCUS, &platform::OnFocus<&ThisClass::OnSetFocus>)
#define ON_WM_KILLFOCUS() QUOVAR_MESSAGE_ENTRY(WM_KILLFOCUS, &platform::OnFocus<&ThisClass::OnKillFocus>)
#define ON_WM_TIMER() QUOVAR_MESSAGE_ENTRY(WM_TIMER, &platform::OnTimer<&ThisClass::OnTimer>)
#define ON_WM_HSCROLL() QUOVAR_MESSAGE_ENTRY(WM_HSCROLL, &platform::OnScroll<&ThisClass::OnHScroll>)
#define ON_WM_VSCROLL() QUOVAR_MESSAGE_ENTRY(WM_VSCROLL, &platform::OnScroll<&ThisClass::OnVScroll>)
#define ON_WM_KEYDOWN() QUOVAR_MESSAGE_ENTRY(WM_KEYDOWN, &platform::OnKey<&ThisClass::OnKeyDown>)
#define ON_WM_CHAR() QUOVAR_MESSAGE_ENTRY(WM_CHAR, &platform::OnKey<&ThisClass::OnChar>)
#define ON_WM_MOUSEMOVE() QUOVAR_MESSAGE_ENTRY(WM_MOUSEMOVE, &platform::OnPointer<&ThisClass::OnMouseMove>)
#define ON_WM_LBUTTONDOWN() QUOVAR_MESSAGE_ENTRY(WM_LBUTTONDOWN, &platform::OnPointer<&ThisClass::OnLButtonDown>)
#define ON_WM_LBUTTONUP() QUOVAR_MESSAGE_ENTRY(WM_LBUTTONUP, &platform::OnPointer<&ThisClass::OnLButtonUp>)
#define ON_WM_LBUTTONDBLCLK() QUOVAR_MESSAGE_ENTRY(WM_LBUTTONDBLCLK, &platform::OnPointer<&ThisClass::OnLButtonDblClk>)
#define ON_WM_RBUTTONDOWN() QUOVAR_MESSAGE_ENTRY(WM_RBUTTONDOWN, &platform::OnPointer<&ThisClass::OnRButtonDown>)
#define ON_WM_RBUTTONUP() QUOVAR_MESSAGE_ENTRY(WM_RBUTTONUP, &platform::OnPointer<&ThisClass::OnRButtonUp>)
#define ON_WM_SETCURSOR() QUOVAR_MESSAGE_ENTRY(WM_SETCURSOR, &platform::OnSetCursor<&ThisClass::OnSetCursor>)
#define ON_WM_CONTEXTMENU() QUOVAR_MESSAGE_ENTRY(WM_CONTEXTMENU, &platform::OnContextMenu<&ThisClass::OnContextMenu>)
