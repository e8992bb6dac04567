#include "platform/controls/ToolBar.h"

#include "platform/private/peers/WindowPeer.h"

#include <QLayout>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)
IMPLEMENT_DYNAMIC(CToolBar, CControlBar)
IMPLEMENT_DYNAMIC(CFrameWnd, CWnd)

BOOL CControlBar::IsVisible() const {
    return m_hWnd && !m_hWnd->widget->isHidden();
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay) {
    if (!bar || !bar->m_hWnd)
        return;
    bar->m_hWnd->widget->setVisible(show);
    if (!delay)
        RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_hWnd && m_hWnd->widget->layout())
        m_hWnd->widget->layout()->activate();
}
