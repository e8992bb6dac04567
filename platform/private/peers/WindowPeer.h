// The window behind a CWnd. A toolkit widget becomes a window by deriving from Hosted (Hosted.h), which mixes this in;
// a host's by deriving from HostedWidget (toolkit/Bridge.h), which owns one.
#pragma once

#include "platform/core/String.h"
#include "platform/drawing/Gdi.h"
#include "platform/private/paint/Picture.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Styles.h"
#include "platform/window/Window.h"

#include <QEvent>
#include <QPointer>
#include <QRegion>
#include <QString>
#include <QWidget>

#include <map>
#include <memory>
#include <vector>

namespace platform {

// What a control does with keys that a dialog could use for itself.
enum DialogCode : UINT {
    WantsArrows = 0x01,
    WantsTab = 0x02,
    WantsAllKeys = 0x04, // Enter and Escape too
    WantsReturn = 0x08,  // Enter alone: a field of several lines
    WantsCharacters = 0x80,
    IsPushButton = 0x20,
    IsRadioButton = 0x40,
    IsStatic = 0x100,  // its mnemonic belongs to the next tab stop
    IsButton = 0x2000, // any kind of button
};

// What the data exchange last wrote into a control from a floating number: the text has fewer digits than the number.
struct WrittenNumber {
    CString text;
    double value = 0;
    const void* field = nullptr; // that the number came from; null before the first
};

// Of a window of any size.
inline constexpr QRect wholeArea{0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};

class WindowPeer {
  public:
    // `parent` is the window that this one lies in or, for a top-level one, belongs to; null for none. The widget is
    // made before its peer and outlives it.
    WindowPeer(QWidget* self, WindowPeer* parent);
    virtual ~WindowPeer();
    WindowPeer(const WindowPeer&) = delete;
    WindowPeer& operator=(const WindowPeer&) = delete;

    QWidget* const widget;
    WindowPeer* parent = nullptr;
    std::vector<WindowPeer*> children; // that lie in it, in creation order, which is tab order
    std::vector<WindowPeer*> owned;    // top-level windows that belong to it
    CWnd* object = nullptr;            // null until somebody asks for it
    UINT id = 0;
    DWORD style = 0;
    DWORD exStyle = 0;
    Picture picture;        // what was drawn into the window
    bool live = false;      // set when creation is complete: before, the window tells its parent nothing
    bool destroyed = false; // logically gone; the widget waits for its deletion
    QRegion painting;       // what the paint message being handled is about
    int modalLocks = 0;     // modal dialogs that rest on this window
    bool isDialog = false;
    WrittenNumber written;
    bool active = false; // what WM_ACTIVATE told last
    bool ended = false;  // by EndDialog: hidden, and without keys and commands until it is shown again

    // What differs from control to control.
    virtual CString Text() const;
    virtual void SetText(const CString& text);
    virtual UINT DialogCode() const { return 0; }
    virtual std::unique_ptr<CWnd> MakeObject() const; // of the class that fits the control
    virtual void Click() {}                           // a button's click by mnemonic or Enter
    virtual int Check() const { return 0; }           // 0 off, 1 on, 2 undetermined
    virtual void SetCheck(int) {}
    virtual void FocusByKeyboard(); // Tab, mnemonics: an edit selects its text
    virtual void FocusChanged(bool) {}
    virtual void SetRedraw(bool on);
    virtual void SetSize(QSize size) { widget->resize(size); } // without the frame of a window manager
    virtual void Pressed() {} // a button of the mouse went down in this dialog, before any message
    virtual void ControlFocused(WindowPeer&, bool) {} // the focus came to or left a control of this dialog
    virtual void Resized() {}                         // after each change of size, before WM_SIZE
    virtual void StyleChanged() {}
    virtual bool BaseEvent(QEvent* event) = 0; // the widget's own handling
    // What the control does with a message that no handler took and that no event of the toolkit stands behind.
    virtual LRESULT DefaultMessage(UINT, WPARAM, LPARAM) { return 0; }
    virtual QWidget* Surface() { return widget; } // what shows the picture: the viewport of a scrolling control

    // Messages.
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void NotifyParent(UINT code);                  // WM_COMMAND
    LRESULT NotifyParent(NMHDR& header, int code); // WM_NOTIFY; fills the header
    // What becomes of a message that the object did not handle.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

    CWnd* Window(); // the object, made on demand
    void Attach(CWnd* newObject);
    void Detach();
    void End();     // hides the window; it hands on what it holds
    void Destroy(); // messages, then detachment, then the widget's deletion when control is back in the loop

    void InvalidateArea(const QRect& area, bool erase); // to be painted at the next chance
    void PaintNow();
    void TellActive(bool nowActive, bool byClick); // WM_ACTIVATE when that is news
    void ReportSize();                             // WM_SIZE when the size has changed since the last one
    void StartTimer(UINT_PTR timer, int milliseconds);
    bool KillTimer(UINT_PTR timer);
    bool HandleTimer(int toolkitId);

    CFont* FontObject(); // owned by the window
    void KeepFont(const LOGFONT& description);

    WindowPeer* TopLevel(); // the dialog or other window that this control lies in
    WindowPeer* Dialog();   // the nearest one that this window is or lies in; null for none
    WindowPeer* Child(UINT childId) const;
    bool IsTabStop() const; // visible, enabled, with the style
    bool IsChildOf(const WindowPeer& other) const;

  private:
    void Collect(std::vector<QPointer<QWidget>>& all);
    void LeaveParent();
    void DropOwned();
    void Release();
    bool SendDestroy(const std::vector<QPointer<QWidget>>& all); // false when a handler has ended the window
    bool HoldsActivation() const;
    bool HoldsFocus() const;
    // Activation of a window that the user was in, focus of one that lies inside another: to the one that it belongs
    // to.
    void HandOver(bool wasActive, bool hadFocus);

    std::unique_ptr<CWnd> m_owned;                // the object made on demand
    std::vector<std::unique_ptr<CWnd>> m_retired; // replaced by a member; somebody may still hold it
    std::unique_ptr<CFont> m_font;
    std::map<UINT_PTR, int> m_timers;
    QSize m_reportedSize{-1, -1};
    QRegion m_toPaint{wholeArea};
    QRegion m_toErase{wholeArea};
    bool m_ending = false; // WM_DESTROY is out
};

WindowPeer* PeerOf(const QWidget* widget);      // the widget's own, or null
WindowPeer* NearestPeer(const QWidget* widget); // the widget's own or its nearest ancestor's, or null

// Translates an event into messages; called by Hosted::event.
bool DispatchEvent(WindowPeer& peer, QEvent* event);
// The same for the viewport of a scrolling control; `base` runs the viewport's own handling.
bool DispatchEvent(WindowPeer& peer, QEvent* event, bool (*base)(WindowPeer&, QEvent*));

// Runs the toolkit's handling of the event behind the message being dispatched, when there is one and it has not run.
bool RunEventDefault(WindowPeer& peer, UINT message, LRESULT& result);

// `scanCode` is the display server's number of the key, 0 where there is none: it tells the digits' keys with Shift
// held, whatever the layout. Every key of the main keyboard has a code. ToolkitKey goes back.
UINT VirtualKey(int toolkitKey, bool keypad, UINT scanCode = 0);

// What a control is made from.
struct ControlTemplate;
struct ControlSpec {
    const char* className =
        ""; // "BUTTON", "EDIT", "STATIC", "LISTBOX", "COMBOBOX", "msctls_updown32", ...; not case sensitive
    CString text;
    DWORD style = 0;
    DWORD exStyle = 0;
    UINT id = 0;
    QRect place;   // pixels
    int image = 0; // number of a picture static's picture
};
// A child control; null when the class is unknown. Text and style are in effect, `live` is still off.
WindowPeer* CreateControl(const ControlSpec& spec, WindowPeer& parent);

} // namespace platform
