// A tool bar of the host's main window as a window that dialogs show and hide. The host fills it and adds it to its
// main window as any bar of the toolkit.
#pragma once

#include "platform/controls/ToolBar.h"
#include "platform/toolkit/Bridge.h"

#include <QToolBar>

namespace platform {

class HostToolBar final : public HostedWidget<QToolBar> {
  public:
    HostToolBar(HWND frame, const CString& caption); // owned by the frame's widget; the frame is never null
    ~HostToolBar() override;

    CToolBar& Bar() { return m_bar; }

  private:
    bool HandleByToolkit(QEvent* event) override;

    CToolBar m_bar;
};

} // namespace platform
