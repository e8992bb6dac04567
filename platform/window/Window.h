// A window: its object, its messages, its place on the screen. The object and the window live apart: the window exists
// between creation and destruction, and every operation on an object without a window is harmless.
#pragma once

#include "platform/core/Geometry.h"
#include "platform/core/Object.h"
#include "platform/core/String.h"
#include "platform/window/MessageMap.h"
#include "platform/window/Styles.h"

class CDataExchange;
class CDC;
class CFont;

namespace platform {
struct MessageMapAccess; // for tests: which messages a class handles
}

class CWnd : public CObject {
    DECLARE_DYNAMIC(CWnd)
  public:
    CWnd() = default;
    ~CWnd() override; // destroys the window when there is one
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    HWND m_hWnd = nullptr; // null while there is no window; owned by the window layer
    HWND GetSafeHwnd() const { return m_hWnd; }

    static CWnd*
    FromHandle(HWND handle); // the object of a window; made on demand and owned by the window; null for null
    static CWnd* GetFocus();
    static CWnd* GetActiveWindow();

    // Links this object to an existing window that has no object of its own yet; 0 when there is no such window.
    BOOL Attach(HWND handle);
    HWND Detach();
    // Links this object to the control `id` of `parent`.
    BOOL SubclassDlgItem(UINT id, CWnd* parent);

    // A plain child or top-level window; `className` null or a control's class ("STATIC", "EDIT", "BUTTON", "LISTBOX",
    // ...).
    BOOL Create(LPCTSTR className, LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id);
    virtual BOOL DestroyWindow();

    // Messages. SendMessage returns when the handler has; both the receiver and the caller may be gone by then.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    virtual BOOL PreTranslateMessage(MSG* pMsg); // key messages, before the dialog's own keys; non-zero consumes

    // Relations.
    CWnd* GetDlgItem(int id) const; // null when there is none
    int GetDlgCtrlID() const;
    CWnd* GetParent() const;
    BOOL IsChild(const CWnd* window) const;

    // Text.
    void SetWindowText(LPCTSTR text);
    void GetWindowText(CString& text) const;
    CString GetWindowText() const;
    int GetWindowTextLength() const;
    void SetDlgItemText(int id, LPCTSTR text);
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    void CheckRadioButton(int first, int last, int checked);

    // State.
    BOOL EnableWindow(BOOL enable = TRUE); // returns non-zero when the window was disabled before
    BOOL IsWindowEnabled() const;
    BOOL ShowWindow(int command);
    BOOL IsWindowVisible() const;
    CWnd* SetFocus();
    CWnd* SetActiveWindow();
    DWORD GetStyle() const;
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);

    // Place, in device-independent pixels; of a top-level window in screen coordinates, of a child in its parent's.
    void GetWindowRect(CRect& rect) const; // screen
    void GetClientRect(CRect& rect) const;
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(const CRect& rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int cx, int cy, UINT flags);
    void ClientToScreen(CPoint& point) const;
    void ClientToScreen(CRect& rect) const;
    void ScreenToClient(CPoint& point) const;
    void ScreenToClient(CRect& rect) const;
    static const CWnd wndTop;
    static const CWnd wndBottom;

    // Painting. What a dialog draws stays until it is erased.
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(const CRect* rect, BOOL erase = TRUE);
    void UpdateWindow();
    void RedrawWindow();
    void SetRedraw(BOOL redraw = TRUE); // off: the window keeps its look until it is on again
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const; // owned by the window

    // Timers. Setting an id again restarts it; destroying the window ends them.
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, void* unused = nullptr);
    BOOL KillTimer(UINT_PTR id);

    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = 0);

    virtual void DoDataExchange(CDataExchange*) {}
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // The raw hook: sees every message first. Non-zero says that it is handled, with its result in *result.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual void PostNcDestroy() {} // the last call that the object gets from its window; may delete the object

    // Default handling; handlers of derived classes call them when they want it as well.
    void OnDestroy() { Default(); }
    void OnClose() { Default(); }
    void OnPaint() { Default(); }
    BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    void OnSize(UINT, int, int) { Default(); }
    void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    void OnSetFocus(CWnd*) { Default(); }
    void OnKillFocus(CWnd*) { Default(); }
    void OnTimer(UINT_PTR) { Default(); }
    void OnHScroll(UINT, UINT, CScrollBar*) { Default(); }
    void OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
    void OnKeyDown(UINT, UINT, UINT) { Default(); }
    void OnChar(UINT, UINT, UINT) { Default(); }
    void OnMouseMove(UINT, CPoint) { Default(); }
    void OnLButtonDown(UINT, CPoint) { Default(); }
    void OnLButtonUp(UINT, CPoint) { Default(); }
    void OnLButtonDblClk(UINT, CPoint) { Default(); }
    void OnRButtonDown(UINT, CPoint) { Default(); }
    void OnRButtonUp(UINT, CPoint) { Default(); }
    BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    void OnContextMenu(CWnd*, CPoint) { Default(); }

  protected:
    // While on, the notifications of the window's controls are dropped.
    void SuspendNotifications(bool on) { m_inUpdateData = on; }

    LRESULT Default(); // the default handling of the message being dispatched

    virtual const platform::MessageMap& GetMessageMap() const;
    static const platform::MessageMap& _messageMap();

  private:
    friend class platform::WindowPeer;
    friend struct platform::MessageMapAccess;
    bool m_inUpdateData = false; // notifications of the dialog's controls rest while its fields are exchanged
};

// What reports its moves with WM_HSCROLL and WM_VSCROLL.
class CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
};

// Non-zero for any handle. It cannot tell whether the window still exists: ask with the handle that the object holds
// now (GetSafeHwnd), which is null once its window has gone, never with one that was kept.
inline bool IsWindow(HWND handle) {
    return handle != nullptr;
}

// The key is down, as GetKeyState's sign bit tells: negative when pressed.
short GetKeyState(int virtualKey);

enum class StandardCursor { Arrow, Cross, Wait, SizeAll };
void SetCursor(StandardCursor cursor); // of the window under the pointer

// Shows the wait cursor while it lives.
class CWaitCursor {
  public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

// Suspends a list's redraw while it lives.
class RedrawLock {
  public:
    explicit RedrawLock(CWnd& window) : m_window(window) { m_window.SetRedraw(FALSE); }
    ~RedrawLock() { m_window.SetRedraw(TRUE); }
    RedrawLock(const RedrawLock&) = delete;
    RedrawLock& operator=(const RedrawLock&) = delete;

  private:
    CWnd& m_window;
};
