// Combo boxes.
#include "tests/platform/ControlDialog.h"

#include "platform/ComboBox.h"

namespace {

ControlRows combo(DWORD style) {
    return ControlRows().edit(50).add("COMBOBOX", "", 100, WS_TABSTOP | style).button("OK", IDOK, BS_DEFPUSHBUTTON);
}

void fill(CComboBox& box) {
    for (const char* text : {"rosso", "Verde", "blu"})
        box.SetItemData(box.AddString(text), static_cast<DWORD_PTR>(text[0]));
}

} // namespace

TEST(ComboBox, OnlyTheUsersChoiceIsTold) {
    ControlDialog dialog(combo(CBS_DROPDOWNLIST));
    auto& box = dialog.control<CComboBox>(100);
    fill(box);
    EXPECT_EQ(box.GetCurSel(), CB_ERR); // the first row that comes is not selected by itself
    box.SetCurSel(0);
    DialogDriver user(dialog);
    user.Press(VK_TAB);
    EXPECT_EQ(user.Focus(), 100);
    dialog.take();
    user.Press(VK_DOWN);
    EXPECT_EQ(dialog.take(), Log{told(100, CBN_SELCHANGE)});
    EXPECT_EQ(box.GetCurSel(), 1);
    box.ResetContent();
    EXPECT_EQ(dialog.take(), Log{});
}

TEST(ComboBox, SortsWithoutCaseAndKeepsData) {
    ControlDialog dialog(combo(CBS_DROPDOWNLIST | CBS_SORT));
    auto& box = dialog.control<CComboBox>(100);
    fill(box);
    CString text;
    box.GetLBText(0, text);
    EXPECT_EQ(text, CString("blu"));
    box.GetLBText(2, text);
    EXPECT_EQ(text, CString("Verde"));
    EXPECT_EQ(box.GetItemData(2), DWORD_PTR{'V'});
    EXPECT_EQ(box.FindStringExact(-1, "ROSSO"), 1);
    EXPECT_EQ(box.FindString(-1, "ver"), 2);
    EXPECT_EQ(box.SelectString(-1, "ros"), 1);
    EXPECT_EQ(box.GetWindowText(), CString("rosso"));
    box.DeleteString(1);
    EXPECT_EQ(box.GetCurSel(), CB_ERR);
}

TEST(ComboBox, TypingIsToldAndIsNoRow) {
    ControlDialog dialog(combo(CBS_DROPDOWN));
    auto& box = dialog.control<CComboBox>(100);
    fill(box);
    box.SetWindowText("");
    DialogDriver user(dialog);
    user.Press(VK_TAB);
    dialog.take();
    user.TypeKeys("v");
    EXPECT_EQ(dialog.take(), (Log{told(100, CBN_EDITUPDATE), told(100, CBN_EDITCHANGE)}));
    EXPECT_EQ(box.GetWindowText(), CString("v")); // not completed
    EXPECT_EQ(box.GetCurSel(), CB_ERR);
    box.SetCurSel(2);
    EXPECT_EQ(box.GetWindowText(), CString("blu"));
    EXPECT_EQ(dialog.take(), Log{});
    user.Press(VK_TAB); // the dialog's key, also from the field inside
    EXPECT_EQ(user.Focus(), IDOK);
}

TEST(ComboBox, DroppingTheListKeepsTheFocusAndTheTemplatesHeightIsTheLists) {
    ControlDialog dialog(ControlRows().add("COMBOBOX", "", 100, WS_TABSTOP | CBS_DROPDOWNLIST));
    auto& box = dialog.control<CComboBox>(100);
    fill(box);
    CComboBox second;
    ASSERT_TRUE(second.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(5, 40, 105, 140), &dialog, 101));
    CRect rect;
    second.GetWindowRect(rect);
    EXPECT_LT(rect.Height(), 26); // the closed box is one line
    box.SetFocus();
    dialog.take();
    box.ShowDropDown();
    EXPECT_TRUE(box.GetDroppedState());
    box.ShowDropDown(FALSE);
    EXPECT_FALSE(box.GetDroppedState());
    EXPECT_EQ(dialog.take(), (Log{told(100, CBN_DROPDOWN), told(100, CBN_CLOSEUP)}));
}
