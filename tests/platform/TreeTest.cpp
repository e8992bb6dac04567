// Trees: the order of notifications and toggling, hit testing, walking.
#include "tests/platform/ControlDialog.h"

#include "platform/controls/ImageList.h"
#include "platform/controls/TreeCtrl.h"

#include <array>

namespace {

class TreeDialog : public ControlDialog {
  public:
    explicit TreeDialog(DWORD style = TVS_CHECKBOXES)
        : ControlDialog(ControlRows().Edit(50).Add("SysTreeView32", "", 100, WS_TABSTOP | WS_BORDER | style)),
          tree(Control<CTreeCtrl>(100)) {
        tree.MoveWindow(5, 40, 200, 120);
        for (int i = 0; i < 3; ++i) {
            items.push_back(tree.InsertItem(CString("Struttura n.ro ") + CString(static_cast<char>('1' + i))));
            tree.SetItemData(items.back(), static_cast<DWORD_PTR>(i));
        }
        TestApp::PumpMessages();
        Take();
    }
    // Clicks in the item's line, `dx` pixels right of the start of its text.
    void Click(HTREEITEM item, int dx, bool twice = false) {
        CRect text;
        ASSERT_TRUE(tree.GetItemRect(item, &text, TRUE));
        ClickOn(tree, CPoint(text.left + dx, text.CenterPoint().y), twice);
    }
    void ClickBox(HTREEITEM item) { Click(item, -8); }

    CTreeCtrl& tree;
    std::vector<HTREEITEM> items;
};

} // namespace

TEST(Tree, TheBoxTogglesAfterItsClickOrKeyWasHandled) {
    TreeDialog dialog;
    const HTREEITEM item = dialog.items[1];
    std::vector<BOOL> seen;
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == NM_CLICK || code == TVN_KEYDOWN)
            seen.push_back(dialog.tree.GetCheck(item));
        return code == NM_CLICK; // marked as handled, which dialogs do and the box toggles all the same
    };
    dialog.ClickBox(item);
    EXPECT_TRUE(dialog.tree.GetCheck(item));
    EXPECT_FALSE(dialog.tree.GetCheck(dialog.items[0]));
    EXPECT_EQ(WithoutFocus(dialog.Take()), Log{Notified(100, NM_CLICK)});
    dialog.ClickBox(item);
    EXPECT_FALSE(dialog.tree.GetCheck(item));
    dialog.tree.SelectItem(item);
    dialog.tree.SetFocus();
    dialog.user.Press(VK_SPACE);
    EXPECT_TRUE(dialog.tree.GetCheck(item));
    EXPECT_EQ(seen, (std::vector<BOOL>{FALSE, TRUE, FALSE}));
}

TEST(Tree, ClicksAndKeysSelectAndTheProgramsSelectionIsToldToo) {
    TreeDialog dialog;
    dialog.Click(dialog.items[2], 5);
    EXPECT_EQ(dialog.tree.GetSelectedItem(), dialog.items[2]);
    EXPECT_EQ(WithoutFocus(dialog.Take()),
              (Log{Notified(100, NM_CLICK), Notified(100, TVN_SELCHANGING), Notified(100, TVN_SELCHANGED)}));
    dialog.user.Press(VK_UP);
    EXPECT_EQ(dialog.tree.GetSelectedItem(), dialog.items[1]);
    EXPECT_EQ(WithoutFocus(dialog.Take()), (Log{Notified(100, TVN_KEYDOWN), Notified(100, TVN_SELCHANGED)}));
    std::string order;
    for (HTREEITEM item = dialog.tree.GetRootItem(); item; item = dialog.tree.GetNextSiblingItem(item))
        order += dialog.tree.GetItemText(item).ToUtf8().back();
    EXPECT_EQ(order, "123");
    EXPECT_EQ(dialog.tree.GetItemData(dialog.items[2]), 2u);
    dialog.tree.DeleteAllItems();
    EXPECT_EQ(WithoutFocus(dialog.Take()), Log{});
    EXPECT_EQ(dialog.tree.GetSelectedItem(), nullptr);
}

TEST(Tree, ADoubleClickMayCloseTheDialog) {
    TreeDialog dialog;
    dialog.onNotify = [&](int code) -> LRESULT {
        if (code == NM_DBLCLK)
            dialog.DestroyWindow();
        return 0;
    };
    dialog.Click(dialog.items[0], 5, true);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
}

TEST(Tree, HitTestingTellsTheParts) {
    TreeDialog dialog;
    CImageList images;
    images.Create(16, 16, ILC_COLOR32, 1, 1);
    const std::array<DWORD, 16 * 16> pixels{};
    CBitmap icon;
    icon.CreateBitmap(16, 16, 1, 32, pixels.data());
    images.Add(icon.m_hObject);
    dialog.tree.SetImageList(&images);
    const HTREEITEM pictured = dialog.tree.InsertItem("Con icona", 0, 0);
    CRect text;
    ASSERT_TRUE(dialog.tree.GetItemRect(dialog.items[0], &text, TRUE));
    UINT flags = 0;
    const std::pair<int, UINT> parts[] = {
        {text.left - 8, TVHT_ONITEMSTATEICON}, {text.left + 5, TVHT_ONITEMLABEL}, {text.right + 10, TVHT_ONITEMRIGHT}};
    for (const auto& [x, part] : parts) {
        EXPECT_EQ(dialog.tree.HitTest(CPoint(x, text.CenterPoint().y), &flags), dialog.items[0]);
        EXPECT_EQ(flags, part);
    }
    ASSERT_TRUE(dialog.tree.GetItemRect(pictured, &text, TRUE));
    EXPECT_EQ(dialog.tree.HitTest(CPoint(text.left - 8, text.CenterPoint().y), &flags), pictured);
    EXPECT_EQ(flags, UINT{TVHT_ONITEMICON});
    EXPECT_EQ(dialog.tree.HitTest(CPoint(text.left, 110), &flags), nullptr);
    EXPECT_EQ(flags, UINT{TVHT_NOWHERE});
}
