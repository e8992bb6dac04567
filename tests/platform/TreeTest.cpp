// Trees: the order of notifications and toggling, hit testing, walking.
#include "tests/platform/ControlDialog.h"

#include "platform/TreeCtrl.h"
#include "platform/private/WindowPeer.h"

#include <QTest>
#include <QWindow>

namespace {

class TreeDialog : public ControlDialog {
  public:
    explicit TreeDialog(DWORD style = TVS_CHECKBOXES)
        : ControlDialog(ControlRows().edit(50).add("SysTreeView32", "", 100, WS_TABSTOP | WS_BORDER | style)),
          tree(control<CTreeCtrl>(100)) {
        tree.MoveWindow(5, 40, 200, 120);
        for (int i = 0; i < 3; ++i) {
            items.push_back(tree.InsertItem(CString("Struttura n.ro ") + CString(static_cast<char>('1' + i))));
            tree.SetItemData(items.back(), static_cast<DWORD_PTR>(i));
        }
        TestApp::PumpMessages();
        take();
    }
    // Clicks in the item's line, `dx` pixels right of the start of its text.
    void click(HTREEITEM item, int dx, bool twice = false) {
        CRect text;
        ASSERT_TRUE(tree.GetItemRect(item, &text, TRUE));
        QWidget* surface = tree.m_hWnd->surface();
        QWindow* window = surface->window()->windowHandle();
        const QPoint at = surface->mapTo(surface->window(), QPoint(text.left + dx, text.CenterPoint().y));
        if (twice)
            QTest::mouseDClick(window, Qt::LeftButton, {}, at);
        else
            QTest::mouseClick(window, Qt::LeftButton, {}, at);
        TestApp::PumpMessages();
    }
    void clickBox(HTREEITEM item) { click(item, -8); }

    CTreeCtrl& tree;
    std::vector<HTREEITEM> items;
};

} // namespace

TEST(Tree, TheBoxTogglesAfterItsClickWasHandled) {
    TreeDialog dialog;
    BOOL seen = TRUE;
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == NM_CLICK)
            seen = dialog.tree.GetCheck(dialog.items[1]);
        return code == NM_CLICK; // marked as handled, which dialogs do and the box toggles all the same
    };
    dialog.clickBox(dialog.items[1]);
    EXPECT_FALSE(seen);
    EXPECT_TRUE(dialog.tree.GetCheck(dialog.items[1]));
    EXPECT_FALSE(dialog.tree.GetCheck(dialog.items[0]));
    EXPECT_EQ(withoutFocus(dialog.take()), Log{notified(100, NM_CLICK)});
    dialog.clickBox(dialog.items[1]);
    EXPECT_FALSE(dialog.tree.GetCheck(dialog.items[1]));
}

TEST(Tree, SpaceIsToldBeforeItToggles) {
    TreeDialog dialog;
    dialog.tree.SelectItem(dialog.items[0]);
    dialog.tree.SetFocus();
    dialog.take();
    BOOL seen = TRUE;
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == TVN_KEYDOWN)
            seen = dialog.tree.GetCheck(dialog.items[0]);
        return 0;
    };
    DialogDriver user(dialog);
    user.Press(VK_SPACE);
    EXPECT_FALSE(seen);
    EXPECT_TRUE(dialog.tree.GetCheck(dialog.items[0]));
}

TEST(Tree, ClicksAndKeysSelectAndTheProgramsSelectionIsToldToo) {
    TreeDialog dialog;
    dialog.click(dialog.items[2], 5);
    EXPECT_EQ(dialog.tree.GetSelectedItem(), dialog.items[2]);
    EXPECT_EQ(withoutFocus(dialog.take()),
              (Log{notified(100, NM_CLICK), notified(100, TVN_SELCHANGING), notified(100, TVN_SELCHANGED)}));
    DialogDriver user(dialog);
    user.Press(VK_UP);
    EXPECT_EQ(dialog.tree.GetSelectedItem(), dialog.items[1]);
    EXPECT_EQ(withoutFocus(dialog.take()), (Log{notified(100, TVN_KEYDOWN), notified(100, TVN_SELCHANGED)}));
    dialog.tree.DeleteAllItems();
    EXPECT_EQ(withoutFocus(dialog.take()), Log{});
    EXPECT_EQ(dialog.tree.GetSelectedItem(), nullptr);
}

TEST(Tree, ADoubleClickMayCloseTheDialog) {
    TreeDialog dialog;
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == NM_DBLCLK)
            dialog.DestroyWindow();
        return 0;
    };
    dialog.click(dialog.items[0], 5, true);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
}

TEST(Tree, HitTestingTellsTheParts) {
    TreeDialog dialog;
    CRect text;
    ASSERT_TRUE(dialog.tree.GetItemRect(dialog.items[0], &text, TRUE));
    UINT flags = 0;
    const int y = text.CenterPoint().y;
    EXPECT_EQ(dialog.tree.HitTest(CPoint(text.left - 8, y), &flags), dialog.items[0]);
    EXPECT_EQ(flags, UINT{TVHT_ONITEMSTATEICON});
    EXPECT_EQ(dialog.tree.HitTest(CPoint(text.left + 5, y), &flags), dialog.items[0]);
    EXPECT_EQ(flags, UINT{TVHT_ONITEMLABEL});
    EXPECT_EQ(dialog.tree.HitTest(CPoint(text.right + 10, y), &flags), dialog.items[0]);
    EXPECT_EQ(flags, UINT{TVHT_ONITEMRIGHT});
    EXPECT_EQ(dialog.tree.HitTest(CPoint(text.left, 110), &flags), nullptr);
    EXPECT_EQ(flags, UINT{TVHT_NOWHERE});
}

TEST(Tree, ItemsAreWalkedInTheirOrderWithTheirData) {
    TreeDialog dialog;
    CTreeCtrl& tree = dialog.tree;
    const HTREEITEM child = tree.InsertItem("figlio", dialog.items[1]);
    tree.InsertItem("Alfa", TVI_ROOT, TVI_FIRST);
    tree.InsertItem("dopo", TVI_ROOT, dialog.items[0]);
    std::string order;
    for (HTREEITEM item = tree.GetRootItem(); item; item = tree.GetNextSiblingItem(item))
        order += tree.GetItemText(item).ToUtf8() + "|";
    EXPECT_EQ(order, "Alfa|Struttura n.ro 1|dopo|Struttura n.ro 2|Struttura n.ro 3|");
    EXPECT_EQ(tree.GetItemData(dialog.items[2]), 2u);
    EXPECT_EQ(tree.GetParentItem(child), dialog.items[1]);
    EXPECT_EQ(tree.GetChildItem(dialog.items[1]), child);
    EXPECT_TRUE(tree.ItemHasChildren(dialog.items[1]));
    EXPECT_EQ(tree.GetParentItem(dialog.items[1]), nullptr);
    tree.SortChildren(TVI_ROOT);
    EXPECT_EQ(tree.GetItemText(tree.GetNextSiblingItem(tree.GetRootItem())), CString("dopo"));
    EXPECT_EQ(tree.GetCount(), 6u);
    tree.DeleteItem(dialog.items[1]);
    EXPECT_EQ(tree.GetCount(), 4u);
}
