#include "tests/platform/ControlDialog.h"

#include "platform/toolkit/Bridge.h"

#include <QTest>
#include <QWindow>

BEGIN_MESSAGE_MAP(ControlDialog, CDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

void ControlDialog::ClickOn(const CWnd& control, CPoint at, bool twice) {
    QWidget* surface = platform::SurfaceOf(control);
    QWindow* window = surface->window()->windowHandle();
    const QPoint point = surface->mapTo(surface->window(), QPoint(at.x, at.y));
    if (twice)
        QTest::mouseDClick(window, Qt::LeftButton, {}, point);
    else
        QTest::mouseClick(window, Qt::LeftButton, {}, point);
    TestApp::PumpMessages();
}
