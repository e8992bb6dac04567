#include "platform/toolkit/Bridge.h"

#include "platform/private/paint/Surface.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/toolkit/PainterDC.h"
#include "platform/window/Dialog.h"

#include <string>

namespace platform {

// The peer of a widget that is not made here: the two are separate objects, and the widget owns the peer.
class HostedPeer final : public WindowPeer {
  public:
    HostedPeer(QWidget& self, Hosting& hosting, WindowPeer* parentPeer)
        : WindowPeer(&self, parentPeer), m_hosting(hosting) {}

    bool BaseEvent(QEvent* event) override { return m_hosting.HandleByToolkit(event); }

  private:
    Hosting& m_hosting;
};

Hosting::Hosting(QWidget& widget, HWND parent) : m_peer(std::make_unique<HostedPeer>(widget, *this, parent)) {
}

Hosting::~Hosting() = default;

HWND Hosting::Handle() const {
    return m_peer.get();
}

void Hosting::Open(CWnd& object) {
    m_peer->Attach(&object);
    m_peer->live = true;
}

bool Hosting::Dispatch(QEvent* event) {
    return DispatchEvent(*m_peer, event);
}

QString ToQString(const CString& text) {
    const std::string utf8 = text.ToUtf8();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

CString FromQString(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return CString::FromUtf8({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

QWidget* WidgetOf(const CWnd& window) {
    return window.m_hWnd ? window.m_hWnd->widget : nullptr;
}

QWidget* SurfaceOf(const CWnd& window) {
    return window.m_hWnd ? window.m_hWnd->Surface() : nullptr;
}

CWnd* WindowOf(const QWidget* widget) {
    WindowPeer* peer = PeerOf(widget);
    return peer ? peer->Window() : nullptr;
}

CDialog* DialogOf(const QWidget* widget) {
    WindowPeer* peer = PeerOf(widget);
    return peer && peer->isDialog ? static_cast<CDialog*>(peer->Window()) : nullptr;
}

PainterDC::PainterDC(QPainter& painter) : CDC(std::make_unique<Surface>(painter)) {
}

} // namespace platform
