// Edit fields: what they tell, what the user may type, where the caret goes.
#include "tests/platform/ControlDialog.h"

#include "platform/Edit.h"

#include <QApplication>
#include <QClipboard>

namespace {

ControlRows oneEdit(DWORD style = 0) {
    return ControlRows().edit(100, style).edit(101).button("OK", IDOK, BS_DEFPUSHBUTTON);
}

class Edit : public testing::Test {
  protected:
    ControlDialog dialog{oneEdit()};
    CEdit& edit = dialog.control<CEdit>(100);
    DialogDriver& user = dialog.user;
};

} // namespace

TEST_F(Edit, EveryChangeTellsUpdateAndThenChange) {
    const Log change{told(100, EN_UPDATE), told(100, EN_CHANGE)};
    edit.SetWindowText("abc"); // a dialog that follows its own writing relies on it
    EXPECT_EQ(withoutFocus(dialog.take()), change);
    user.Click(100);
    dialog.take();
    user.TypeKeys("d");
    EXPECT_EQ(withoutFocus(dialog.take()), change);
    edit.SetSel(0, -1);
    EXPECT_EQ(withoutFocus(dialog.take()), Log{}); // selecting changes nothing
    edit.ReplaceSel("x");
    EXPECT_EQ(withoutFocus(dialog.take()), change);
}

TEST_F(Edit, AHandlerMayEndTheDialogInTheMiddle) {
    // A second notification to a dialog that the first one destroyed would be a use after its end.
    dialog.onCommand = [&] { dialog.DestroyWindow(); };
    edit.SetWindowText("x");
    EXPECT_EQ(withoutFocus(dialog.take()), Log{told(100, EN_UPDATE)});
}

TEST_F(Edit, TheFocusIsToldAlsoWhileTheDialogCloses) {
    user.Click(100);
    dialog.take();
    user.Press(VK_TAB);
    EXPECT_EQ(dialog.take(), (Log{told(100, EN_KILLFOCUS), told(101, EN_SETFOCUS)}));
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.take(), Log{told(101, EN_KILLFOCUS)});
}

TEST_F(Edit, SelectionsReachFromByteToByteAndSentKeysMoveTheCaret) {
    edit.SetWindowText("perch\xE9 no");
    int start = 0;
    int end = 0;
    edit.SetSel(0, -1);
    edit.GetSel(start, end);
    EXPECT_EQ(std::pair(start, end), std::pair(0, 9));
    edit.SetSel(5, 6);
    edit.ReplaceSel("e'");
    EXPECT_EQ(user.Text(100), "perche' no");
    edit.SetSel(-1, 0);
    edit.GetSel(start, end);
    EXPECT_EQ(start, end);
    edit.SetSel(0, 0);
    edit.SendMessage(WM_KEYDOWN, VK_END); // by the program
    edit.SendMessage(WM_CHAR, '3');
    EXPECT_EQ(user.Text(100), "perche' no3");
}

TEST(EditStyles, DecideWhatCanBeTyped) {
    ControlDialog dialog(ControlRows()
                             .edit(100, ES_NUMBER)
                             .edit(101, ES_UPPERCASE)
                             .edit(102, ES_READONLY)
                             .edit(103)
                             .button("OK", IDOK, BS_DEFPUSHBUTTON));
    dialog.SetDlgItemText(102, "fisso");
    struct Case {
        int id;
        const char *typed, *shown;
    };
    for (const Case& each :
         {Case{100, "1a-2", "12"}, {101, "via è", "VIA È"}, {102, "x", "fisso"}, {103, "aΩ€", "a€"}}) {
        dialog.user.Type(each.id, each.typed); // Ω is not in the code page and would be read as a question mark
        EXPECT_EQ(dialog.user.Text(each.id), each.shown);
    }
}

TEST_F(Edit, TheLimitIsTheUsersOnly) {
    edit.LimitText(3);
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

TEST(EditStyles, AFieldOfSeveralLinesKeepsItsLineEndsAndLeavesTheDialogItsKeys) {
    ControlDialog dialog(oneEdit(ES_MULTILINE | ES_WANTRETURN));
    auto& edit = dialog.control<CEdit>(100);
    edit.SetWindowText("uno\r\ndue");
    EXPECT_EQ(edit.GetWindowText(), CString("uno\r\ndue"));
    EXPECT_EQ(edit.GetLineCount(), 2);
    edit.SetSel(5, 8);
    edit.ReplaceSel("tre");
    dialog.user.Click(100);
    edit.SetSel(8, 8);
    dialog.user.Press(VK_RETURN); // must not press OK
    dialog.user.TypeKeys("q");
    EXPECT_EQ(edit.GetWindowText(), CString("uno\r\ntre\r\nq"));
    dialog.user.Press(VK_TAB);
    EXPECT_EQ(dialog.user.Focus(), 101);
}

// Cells copied from a sheet bring line ends; a clipboard may hold anything.
TEST(EditStyles, PastedTextsAreCutToTheirField) {
    ControlDialog dialog(ControlRows().edit(100).edit(102, ES_MULTILINE));
    auto& line = dialog.control<CEdit>(100);
    auto& lines = dialog.control<CEdit>(102);
    QApplication::clipboard()->setText("12.5\r\n");
    line.Paste();
    EXPECT_EQ(line.GetWindowText(), CString("12.5"));
    QApplication::clipboard()->setText(QString(1 << 20, QLatin1Char('x')));
    line.SetWindowText("");
    line.Paste();
    EXPECT_EQ(line.GetWindowTextLength(), 32767); // what a field takes from the user without a limit of its own
    lines.LimitText(10);
    lines.SetWindowText("abcdef");
    lines.SetSel(0, 2);
    lines.Paste();
    EXPECT_EQ(lines.GetWindowText(), CString("xxxxxxcdef"));
    lines.Paste();
    EXPECT_EQ(lines.GetWindowTextLength(), 10);
    line.SetWindowText(CString('7', 1 << 20)); // the program's own text is never cut
    EXPECT_EQ(line.GetWindowTextLength(), 1 << 20);
    EXPECT_EQ(dialog.GetDlgItemInt(100), 0u); // out of range, and no crash
    QApplication::clipboard()->clear();
}
