#include "platform/toolkit/HostToolBar.h"

#include "platform/private/peers/WindowPeer.h"

namespace platform {

HostToolBar::HostToolBar(HWND frame, const CString& caption) : HostedWidget<QToolBar>(frame, frame->widget) {
    Handle()->style = WS_CHILD | WS_VISIBLE;
    Open(m_bar);
    m_bar.SetWindowText(caption);
}

HostToolBar::~HostToolBar() {
    m_bar.Detach();
}

// The user hides bars from the frame's own menu as well.
bool HostToolBar::HandleByToolkit(QEvent* event) {
    if (event->type() == QEvent::ShowToParent)
        Handle()->style |= WS_VISIBLE;
    else if (event->type() == QEvent::HideToParent)
        Handle()->style &= ~DWORD{WS_VISIBLE};
    return QToolBar::event(event);
}

} // namespace platform
