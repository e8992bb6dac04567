// Edit fields: what they tell, what the user may type, where the caret goes.
#include "tests/platform/ControlDialog.h"

#include "platform/Edit.h"

namespace {

ControlRows oneEdit(DWORD style = 0) {
    return ControlRows().edit(100, style).edit(101).button("OK", IDOK, BS_DEFPUSHBUTTON);
}

} // namespace

TEST(Edit, EveryChangeTellsUpdateAndThenChange) {
    ControlDialog dialog(oneEdit());
    auto& edit = dialog.control<CEdit>(100);
    const Log change{told(100, EN_UPDATE), told(100, EN_CHANGE)};
    dialog.take();
    edit.SetWindowText("abc"); // a dialog that follows its own writing relies on it
    EXPECT_EQ(withoutFocus(dialog.take()), change);
    DialogDriver user(dialog);
    user.Click(100);
    dialog.take();
    user.TypeKeys("d");
    EXPECT_EQ(withoutFocus(dialog.take()), change);
    edit.SetSel(0, -1);
    EXPECT_EQ(withoutFocus(dialog.take()), Log{}); // selecting changes nothing
    edit.ReplaceSel("x");
    EXPECT_EQ(withoutFocus(dialog.take()), change);
}

TEST(Edit, AHandlerMayEndTheDialogInTheMiddle) {
    // A second notification to a dialog that the first one destroyed would be a use after its end.
    ControlDialog dialog(oneEdit());
    dialog.onCommand = [&] { dialog.DestroyWindow(); };
    dialog.take();
    dialog.GetDlgItem(100)->SetWindowText("x");
    EXPECT_EQ(withoutFocus(dialog.take()), Log{told(100, EN_UPDATE)});
}

TEST(Edit, TheFocusIsToldAlsoWhileTheDialogCloses) {
    ControlDialog dialog(oneEdit());
    DialogDriver user(dialog);
    user.Click(100);
    dialog.take();
    user.Press(VK_TAB);
    EXPECT_EQ(dialog.take(), (Log{told(100, EN_KILLFOCUS), told(101, EN_SETFOCUS)}));
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.take(), Log{told(101, EN_KILLFOCUS)});
}

TEST(Edit, SelectionsReachFromByteToByte) {
    ControlDialog dialog(oneEdit());
    auto& edit = dialog.control<CEdit>(100);
    edit.SetWindowText("perch\xE9 no");
    int start = 0;
    int end = 0;
    edit.SetSel(0, -1);
    edit.GetSel(start, end);
    EXPECT_EQ(std::pair(start, end), std::pair(0, 9));
    edit.SetSel(5, 6);
    edit.ReplaceSel("e'");
    EXPECT_EQ(edit.GetWindowText(), CString("perche' no"));
    edit.SetSel(-1, 0);
    edit.GetSel(start, end);
    EXPECT_EQ(start, end);
}

TEST(Edit, KeysThatTheProgramSendsMoveTheCaret) {
    ControlDialog dialog(oneEdit());
    auto& edit = dialog.control<CEdit>(100);
    edit.SetWindowText("12");
    edit.SetSel(0, 0);
    edit.SendMessage(WM_KEYDOWN, VK_END);
    edit.SendMessage(WM_CHAR, '3');
    EXPECT_EQ(edit.GetWindowText(), CString("123"));
}

TEST(Edit, StylesDecideWhatCanBeTyped) {
    ControlDialog dialog(ControlRows()
                             .edit(100, ES_NUMBER)
                             .edit(101, ES_UPPERCASE)
                             .edit(102, ES_READONLY)
                             .edit(103)
                             .button("OK", IDOK, BS_DEFPUSHBUTTON));
    DialogDriver user(dialog);
    user.Type(100, "1a-2");
    EXPECT_EQ(user.Text(100), "12");
    user.Type(101, "via è");
    EXPECT_EQ(user.Text(101), "VIA È");
    dialog.SetDlgItemText(102, "fisso");
    user.Type(102, "x");
    EXPECT_EQ(user.Text(102), "fisso");
    user.Type(103, "aΩ€"); // Ω is not in the code page and would be read as a question mark
    EXPECT_EQ(user.Text(103), "a€");
}

TEST(Edit, TheLimitIsTheUsersOnly) {
    ControlDialog dialog(oneEdit());
    auto& edit = dialog.control<CEdit>(100);
    edit.LimitText(3);
    DialogDriver user(dialog);
    user.Type(100, "12345");
    EXPECT_EQ(user.Text(100), "123");
    edit.SetWindowText("123456");
    EXPECT_EQ(user.Text(100), "123456");
    user.Type(100, "98765"); // over the long text, back under the limit
    EXPECT_EQ(user.Text(100), "987");
    EXPECT_TRUE(edit.GetModify());
    edit.SetWindowText("1");
    EXPECT_FALSE(edit.GetModify());
}

TEST(Edit, AFieldOfSeveralLinesKeepsItsLineEndsAndLeavesTheDialogItsKeys) {
    ControlDialog dialog(oneEdit(ES_MULTILINE | ES_WANTRETURN));
    auto& edit = dialog.control<CEdit>(100);
    edit.SetWindowText("uno\r\ndue");
    EXPECT_EQ(edit.GetWindowText(), CString("uno\r\ndue"));
    EXPECT_EQ(edit.GetLineCount(), 2);
    edit.SetSel(5, 8);
    edit.ReplaceSel("tre");
    EXPECT_EQ(edit.GetWindowText(), CString("uno\r\ntre"));
    DialogDriver user(dialog);
    user.Click(100);
    edit.SetSel(8, 8);
    user.Press(VK_RETURN); // must not press OK
    user.TypeKeys("q");
    EXPECT_EQ(edit.GetWindowText(), CString("uno\r\ntre\r\nq"));
    user.Press(VK_TAB);
    EXPECT_EQ(user.Focus(), 101);
}

TEST(Edit, WithoutAWindowEverythingIsHarmless) {
    CEdit edit;
    edit.SetSel(0, -1);
    edit.ReplaceSel("x");
    EXPECT_FALSE(edit.GetModify());
    EXPECT_EQ(edit.GetLineCount(), 0);
}
