// Menus: loading, states, tracking.
#include "tests/platform/ControlDialog.h"

#include "platform/window/Menu.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace {

constexpr platform::MenuItemTemplate items[] = {
    {0, "Diagrammi", false, true, 3, false, false}, {501, "N", false, false, 0, false, false},
    {0, "", true, false, 0, false, false},          {0, "Altri", false, true, 1, false, false},
    {502, "M&3", false, false, 0, false, true},
};
constexpr platform::MenuTemplate Template{351, 1, items};

class Menu : public testing::Test {
  protected:
    Menu() {
        platform::AppendResources(&m_module, &m_module);
        EXPECT_TRUE(m_menu.LoadMenu(351));
    }
    ~Menu() override {
        platform::popupMenuHook = nullptr;
        platform::RemoveResources(&m_module);
    }

    platform::ResourceModule m_module{"menus", {}, {&Template, 1}, {}, {}};
    CMenu m_menu;
};

} // namespace

TEST_F(Menu, LoadsNestedItemsAlongTheChainOrByHandle) {
    CMenu* popup = m_menu.GetSubMenu(0);
    ASSERT_TRUE(popup);
    EXPECT_EQ(popup->GetMenuItemCount(), 3u); // the items of the inner pop-up are not its own
    EXPECT_EQ(popup->GetMenuItemID(0), 501u);
    EXPECT_EQ(popup->GetMenuItemID(1), 0u);
    ASSERT_TRUE(popup->GetSubMenu(2));
    CString text;
    EXPECT_EQ(popup->GetSubMenu(2)->GetMenuString(0, text, MF_BYPOSITION), 3);
    EXPECT_EQ(text, CString("M&3"));

    CMenu second;
    EXPECT_FALSE(second.LoadMenu(999));
    ASSERT_TRUE(second.Attach(LoadMenu(AfxFindResourceHandle(351, RT_MENU), 351)));
    EXPECT_EQ(second.GetMenuItemCount(), 1u);
    EXPECT_EQ(LoadMenu(&m_module, 1), nullptr);
}

TEST_F(Menu, StatesAreFoundByCommandInPopupsAsWell) {
    EXPECT_EQ(m_menu.CheckMenuItem(502, MF_BYCOMMAND | MF_UNCHECKED), UINT{MF_CHECKED});
    EXPECT_EQ(m_menu.CheckMenuItem(501, MF_CHECKED), UINT{MF_UNCHECKED});
    EXPECT_EQ(m_menu.GetMenuState(501, MF_BYCOMMAND), UINT{MF_CHECKED});
    EXPECT_EQ(m_menu.CheckMenuItem(777, MF_CHECKED), static_cast<UINT>(-1));
}

TEST_F(Menu, TheChoiceReachesTheWindowUnlessItIsDisabled) {
    ControlDialog dialog(ControlRows().Button("OK", IDOK));
    platform::popupMenuHook = [](CMenu&, CWnd*) { return UINT{502}; };
    m_menu.GetSubMenu(0)->TrackPopupMenu(TPM_RIGHTBUTTON, 10, 10, &dialog);
    EXPECT_EQ(dialog.Take(), Log{Told(502, 0)});
    m_menu.EnableMenuItem(502, MF_GRAYED);
    EXPECT_FALSE(m_menu.TrackPopupMenu(0, 10, 10, &dialog));
    EXPECT_EQ(dialog.Take(), Log{});
}

TEST_F(Menu, TheShownMenuIsUsedByKeyboard) {
    ControlDialog dialog(ControlRows().Button("OK", IDOK));
    QTimer::singleShot(0, [] {
        auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(shown);
        EXPECT_EQ(shown->actions().size(), 3);
        QTest::keyClick(shown, Qt::Key_Down);
        QTest::keyClick(shown, Qt::Key_Down); // over the separator
        QTest::keyClick(shown, Qt::Key_Right);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    });
    EXPECT_TRUE(m_menu.GetSubMenu(0)->TrackPopupMenu(0, 20, 20, &dialog));
    EXPECT_EQ(WithoutFocus(dialog.Take()), Log{Told(502, 0)});
}
