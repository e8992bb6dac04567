// What a host that uses the toolkit itself needs of the window layer: texts, the widget of a window and back, and a
// widget of its own as a window. PainterDC.h is the other half: painting.
#pragma once

#include "platform/core/String.h"

#include <QString>

#include <memory>
#include <utility>

class CDialog;
class CWnd;
class QEvent;
class QWidget;

namespace platform {

QString ToQString(const CString& text);
CString FromQString(const QString& text); // characters outside the code page become '?'

// The toolkit's side of a window; null while it has none. The surface shows what is drawn into the window and takes the
// pointer: the viewport of a scrolling control, otherwise the widget itself.
QWidget* WidgetOf(const CWnd& window);
QWidget* SurfaceOf(const CWnd& window);

// The window that a widget is: its object, made on demand and then owned by the window. Null for null, for a widget
// that is no window, and for one that has ended and waits for its deletion.
CWnd* WindowOf(const QWidget* widget);
CDialog* DialogOf(const QWidget* widget); // the same for dialogs; null for other windows

int ToolkitKey(UINT virtualKey); // a Qt::Key; 0 when there is none

// The window that a widget of the host's is. Its events become messages to an object before the widget handles them.
class Hosting {
  public:
    Hosting(const Hosting&) = delete;
    Hosting& operator=(const Hosting&) = delete;

    HWND Handle() const;

    // Links the object that gets the messages; it stays its owner's, and ends the window with DestroyWindow or leaves
    // it with Detach. The window reports activation and size from now on.
    void Open(CWnd& object);

  protected:
    // `parent` is the window that this one lies in or, for a top-level one, belongs to; null for none.
    Hosting(QWidget& widget, HWND parent);
    virtual ~Hosting();

    bool Dispatch(QEvent* event);

  private:
    friend class HostedPeer;

    virtual bool HandleByToolkit(QEvent* event) = 0; // the widget's own handling

    std::unique_ptr<WindowPeer> m_peer;
};

// HostedWidget<QMainWindow> is a toolkit widget that is also a window.
template <class Base>
class HostedWidget : public Base, public Hosting {
  public:
    template <class... Arguments>
    explicit HostedWidget(HWND parentWindow, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), Hosting(*this, parentWindow) {}

    bool event(QEvent* event) override { return Dispatch(event); }

  private:
    bool HandleByToolkit(QEvent* event) override { return Base::event(event); }
};

} // namespace platform
