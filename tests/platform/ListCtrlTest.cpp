// List views: columns, selection and what is told of it.
#include "tests/platform/ControlDialog.h"

#include "platform/controls/ListCtrl.h"

namespace {

class ViewDialog : public ControlDialog {
  public:
    explicit ViewDialog(DWORD style)
        : ControlDialog(ControlRows().Edit(50).Add("SysListView32", "", 100, WS_TABSTOP | WS_BORDER | style)),
          view(Control<CListCtrl>(100)) {
        view.MoveWindow(5, 40, 280, 140);
        if ((style & LVS_TYPEMASK) == LVS_REPORT) {
            view.InsertColumn(0, "Campi", LVCFMT_LEFT, 110);
            view.InsertColumn(1, "Valori", LVCFMT_LEFT, 140);
        }
        for (const char* text : {"ID", "B", "H"})
            view.InsertItem(view.GetItemCount(), text);
        TestApp::PumpMessages();
        Take();
    }
    void Click(int row, bool twice = false, int below = 0) {
        CRect rect;
        ASSERT_TRUE(view.GetItemRect(row, &rect, LVIR_LABEL));
        ClickOn(view, CPoint(rect.left + 6, rect.CenterPoint().y + below), twice);
    }

    CListCtrl& view;
};

} // namespace

TEST(ListView, ColumnsHoldTexts) {
    ViewDialog dialog(LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS);
    EXPECT_TRUE(dialog.view.SetItemText(1, 1, "30.5"));
    EXPECT_FALSE(dialog.view.SetItemText(1, 2, "x"));
    EXPECT_EQ(dialog.view.GetItemText(1, 1) + dialog.view.GetItemText(0, 1), CString("30.5"));
}

TEST(ListView, SelectionsAreToldWhoeverMakesThem) {
    for (const DWORD kind : {LVS_REPORT, LVS_LIST}) {
        ViewDialog dialog(kind | LVS_SINGLESEL);
        EXPECT_EQ(dialog.view.GetNextItem(-1, LVNI_SELECTED), -1);
        dialog.Click(1);
        EXPECT_EQ(dialog.view.GetNextItem(-1, LVNI_SELECTED), 1);
        EXPECT_EQ(WithoutFocus(dialog.Take()), (Log{Notified(100, LVN_ITEMCHANGED), Notified(100, NM_CLICK)}));
        dialog.view.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
        EXPECT_EQ(dialog.Take(),
                  (Log{Notified(100, LVN_ITEMCHANGED), Notified(100, LVN_ITEMCHANGED)})); // one off, one on
        EXPECT_EQ(dialog.view.GetSelectedCount(), 1u);
        dialog.view.DeleteAllItems();
        EXPECT_EQ(dialog.Take(), Log{});
        EXPECT_EQ(dialog.view.GetItemCount(), 0);
    }
}

TEST(ListView, ADoubleClickIsToldAndMayEndTheDialog) {
    ViewDialog dialog(LVS_LIST | LVS_SINGLESEL);
    dialog.Click(0, true);
    EXPECT_EQ(WithoutFocus(dialog.Take()).back(), Notified(100, NM_DBLCLK));
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == NM_DBLCLK)
            dialog.DestroyWindow();
        return 0;
    };
    dialog.Click(1, true);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
}

TEST(ListView, KeysAreToldFirstAndThoseOfTheProgramMoveToo) {
    ViewDialog dialog(LVS_REPORT | LVS_SINGLESEL);
    dialog.Click(0);
    dialog.Take();
    dialog.user.Press(VK_DOWN);
    EXPECT_EQ(dialog.Take(),
              (Log{Notified(100, LVN_KEYDOWN), Notified(100, LVN_ITEMCHANGED), Notified(100, LVN_ITEMCHANGED)}));
    dialog.view.SendMessage(WM_KEYDOWN, VK_DOWN); // as a dialog that passes keys on does
    EXPECT_EQ(dialog.view.GetNextItem(-1, LVNI_SELECTED), 2);
    dialog.Click(2, false, 60); // beside the rows
    EXPECT_EQ(dialog.view.GetNextItem(-1, LVNI_SELECTED), -1);
}

// A dialog that shows the marked line would show the former one.
TEST(ListView, TheMarkFollowsMouseAndKeysBeforeTheyAreToldAndStaysWithItsRow) {
    ViewDialog dialog(LVS_REPORT | LVS_SINGLESEL);
    std::vector<int> marks;
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == LVN_ITEMCHANGED)
            marks.push_back(dialog.view.GetSelectionMark());
        return 0;
    };
    dialog.Click(0);
    dialog.user.Press(VK_DOWN);
    dialog.view.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(marks, (std::vector{0, 1, 1, 2, 2}));
    dialog.view.InsertItem(1, "nuovo");
    EXPECT_EQ(dialog.view.GetSelectionMark(), 3);
    dialog.view.DeleteItem(0);
    EXPECT_EQ(dialog.view.GetSelectionMark(), 2);
    dialog.view.DeleteItem(2);
    EXPECT_EQ(dialog.view.GetSelectionMark(), -1);
    EXPECT_EQ(dialog.view.GetSelectedCount(), 0u);
}

TEST(ListView, CtrlAndShiftSelectSeveral) {
    ViewDialog dialog(LVS_REPORT);
    const auto selected = [&] {
        std::vector<int> rows;
        for (int row = -1; (row = dialog.view.GetNextItem(row, LVNI_SELECTED)) >= 0;)
            rows.push_back(row);
        return rows;
    };
    dialog.Click(2);
    dialog.user.Press(VK_UP, ShiftKey);
    dialog.user.Press(VK_UP, ShiftKey);
    EXPECT_EQ(selected(), (std::vector{0, 1, 2}));
    dialog.user.Press(VK_DOWN, CtrlKey); // the rectangle alone
    dialog.user.Press(VK_SPACE, CtrlKey);
    EXPECT_EQ(selected(), (std::vector{0, 2}));
    dialog.user.Press(VK_DOWN);
    EXPECT_EQ(selected(), std::vector{2});
    dialog.user.Press('A', CtrlKey);
    EXPECT_EQ(dialog.view.GetSelectedCount(), 3u);
}

TEST(ListView, AHundredThousandRowsAreSelectedOneByOneAndWalked) {
    // The toolkit's selection is a list of ranges: with this many of them it would outlast the runner's limit.
    ViewDialog dialog(LVS_REPORT);
    constexpr int count = 100000;
    while (dialog.view.GetItemCount() < count)
        dialog.view.InsertItem(dialog.view.GetItemCount(), "riga");
    for (int row = 0; row < count; row += 2)
        dialog.view.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    int walked = 0;
    for (int row = -1; (row = dialog.view.GetNextItem(row, LVNI_SELECTED)) >= 0; ++walked) {
    }
    EXPECT_EQ(walked, count / 2);
}
