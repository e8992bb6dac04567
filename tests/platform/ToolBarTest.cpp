// Bars of a frame window.
#include "platform/controls/ToolBar.h"
#include "platform/toolkit/HostToolBar.h"
#include "tests/support/TestApp.h"

#include <gtest/gtest.h>

#include <QMainWindow>

// Faults: a style that does not follow what program and user show and hide, a layout that is left as it was.
TEST(ToolBar, TheFrameShowsAndHidesItAndItsStyleTells) {
    CFrameWnd frame;
    platform::HostedWidget<QMainWindow> window(nullptr);
    window.Open(frame);
    auto* content = new QWidget;
    window.setCentralWidget(content);
    auto* hosted = new platform::HostToolBar(window.Handle(), "Selezione");
    hosted->addAction("Nodi");
    window.addToolBar(hosted);
    CToolBar& bar = hosted->Bar();
    EXPECT_EQ(bar.GetWindowText(), CString("Selezione"));
    EXPECT_EQ(bar.GetParent(), &frame);
    EXPECT_TRUE(bar.GetStyle() & WS_VISIBLE); // before its frame is shown
    window.show();
    TestApp::PumpMessages();
    const int below = content->y();
    EXPECT_GT(below, 0);

    frame.ShowControlBar(&bar, FALSE, TRUE);
    EXPECT_FALSE(bar.GetStyle() & WS_VISIBLE);
    frame.RecalcLayout();
    EXPECT_EQ(content->y(), 0);
    hosted->toggleViewAction()->trigger(); // the user, from the frame's menu
    EXPECT_TRUE(bar.GetStyle() & WS_VISIBLE);
    frame.RecalcLayout();
    EXPECT_EQ(content->y(), below);
    frame.ShowControlBar(nullptr, TRUE, FALSE);
    frame.Detach();
}
