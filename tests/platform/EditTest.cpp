// Edit fields: what they tell, what the user may type, where the caret goes.
#include "tests/platform/ControlDialog.h"

#include "platform/controls/Edit.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <QWindow>

namespace {

ControlRows OneEdit(DWORD style = 0) {
    return ControlRows().Edit(100, style).Edit(101).Button("OK", IDOK, BS_DEFPUSHBUTTON);
}

class Edit : public testing::Test {
  protected:
    ControlDialog m_dialog{OneEdit()};
    CEdit& m_edit = m_dialog.Control<CEdit>(100);
    DialogDriver& m_user = m_dialog.user;
};

} // namespace

TEST_F(Edit, EveryChangeTellsUpdateAndThenChange) {
    const Log change{Told(100, EN_UPDATE), Told(100, EN_CHANGE)};
    m_edit.SetWindowText("abc"); // a dialog that follows its own writing relies on it
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), change);
    m_edit.SetWindowText("abc"); // the same again: dialogs count one notification for each writing
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), change);
    m_user.Click(100);
    m_dialog.Take();
    m_user.TypeKeys("d");
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), change);
    m_edit.SetSel(0, -1);
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), Log{}); // selecting changes nothing
    m_edit.ReplaceSel("x");
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), change);
}

TEST_F(Edit, AHandlerMayEndTheDialogInTheMiddle) {
    // A second notification to a dialog that the first one destroyed would be a use after its end.
    m_dialog.onCommand = [&] { m_dialog.DestroyWindow(); };
    m_edit.SetWindowText("x");
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), Log{Told(100, EN_UPDATE)});
}

TEST_F(Edit, TheFocusIsToldAlsoWhileTheDialogCloses) {
    m_user.Click(100);
    m_dialog.Take();
    m_user.Press(VK_TAB);
    EXPECT_EQ(m_dialog.Take(), (Log{Told(100, EN_KILLFOCUS), Told(101, EN_SETFOCUS)}));
    m_dialog.DestroyWindow();
    EXPECT_EQ(m_dialog.Take(), Log{Told(101, EN_KILLFOCUS)});
}

TEST_F(Edit, SelectionsReachFromByteToByteAndSentKeysMoveTheCaret) {
    m_edit.SetWindowText("perch\xE9 no");
    m_edit.SetSel(5, 6);
    m_edit.ReplaceSel("e'");
    EXPECT_EQ(m_user.Text(100), "perche' no");
    m_edit.SetSel(0, -1);
    m_edit.SetSel(-1, 0); // selects nothing any more
    m_edit.ReplaceSel("");
    m_edit.SetSel(0, 0);
    m_edit.SendMessage(WM_KEYDOWN, VK_END); // by the program
    m_edit.SendMessage(WM_CHAR, '3');
    EXPECT_EQ(m_user.Text(100), "perche' no3");
}

TEST(EditStyles, DecideWhatCanBeTyped) {
    ControlDialog dialog(ControlRows()
                             .Edit(100, ES_NUMBER)
                             .Edit(101, ES_UPPERCASE)
                             .Edit(102, ES_READONLY)
                             .Edit(103)
                             .Button("OK", IDOK, BS_DEFPUSHBUTTON));
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

TEST(EditStyles, AFieldOfSeveralLinesKeepsItsLineEndsAndLeavesTheDialogItsKeys) {
    ControlDialog dialog(OneEdit(ES_MULTILINE | ES_WANTRETURN));
    auto& edit = dialog.Control<CEdit>(100);
    edit.SetWindowText("uno\r\ndue");
    EXPECT_EQ(edit.GetWindowText(), CString("uno\r\ndue"));
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

TEST(EditStyles, OfSeveralLinesOnlyTheProgramsReplacingIsTold) {
    ControlDialog dialog(OneEdit(ES_MULTILINE));
    auto& edit = dialog.Control<CEdit>(100);
    edit.SetWindowText("uno");
    EXPECT_EQ(WithoutFocus(dialog.Take()), Log{});
    edit.ReplaceSel("due");
    EXPECT_EQ(WithoutFocus(dialog.Take()), (Log{Told(100, EN_UPDATE), Told(100, EN_CHANGE)}));
}

// Faults: question marks from characters outside the code page, and a load that loses the sign it had in a sheet.
TEST(EditStyles, PastedAndComposedTextsHoldOnlyTheCodePage) {
    ControlDialog dialog(ControlRows()
                             .Edit(100)
                             .Edit(101, ES_MULTILINE)
                             .Add("COMBOBOX", "", 102, CBS_DROPDOWN | WS_TABSTOP)
                             .Edit(103, ES_NUMBER));
    const QString foreign = QString::fromUtf8("\u2212 5,Ωe\u0300€");
    QApplication::clipboard()->setText(foreign);
    for (const int id : {100, 101, 102}) {
        dialog.user.Click(id);
        dialog.user.Press('V', CtrlKey);
        EXPECT_EQ(dialog.user.Text(id), "- 5,è€") << id;
    }
    QApplication::clipboard()->clear();
    const std::pair<int, const char*> composed[] = {{100, "- 5,è€"}, {101, "- 5,è€"}, {103, "5"}};
    for (const auto& [id, text] : composed) {
        dialog.SetDlgItemText(id, "");
        dialog.user.Click(id);
        QInputMethodEvent commit;
        commit.setCommitString(foreign);
        QApplication::sendEvent(QApplication::focusWidget(), &commit);
        EXPECT_EQ(dialog.user.Text(id), text) << id;
    }
}

// Italian keyboards have the comma on the keypad; the main keyboard's stays one.
TEST_F(Edit, TheKeypadsDecimalKeyGivesTheFullStop) {
    m_user.Click(100);
    QWindow* window = QApplication::focusWindow();
    QTest::sendKeyEvent(QTest::Click, window, Qt::Key_Comma, ",", Qt::KeypadModifier);
    QTest::sendKeyEvent(QTest::Click, window, Qt::Key_Comma, ",", Qt::NoModifier);
    EXPECT_EQ(m_user.Text(100), ".,");
}

// Cells copied from a sheet bring line ends; a clipboard may hold anything.
TEST(EditStyles, PastedTextsAreCutToTheirField) {
    ControlDialog dialog(ControlRows().Edit(100));
    auto& line = dialog.Control<CEdit>(100);
    QApplication::clipboard()->setText("12.5\r\n");
    dialog.user.Click(100);
    dialog.user.Press('V', CtrlKey);
    EXPECT_EQ(line.GetWindowText(), CString("12.5"));
    QApplication::clipboard()->setText(QString(1 << 20, QLatin1Char('x')));
    line.SetWindowText("");
    dialog.user.Press('V', CtrlKey);
    EXPECT_EQ(line.GetWindowTextLength(), 32767); // what a field takes from the user
    line.SetWindowText(CString('7', 1 << 20));    // the program's own text is never cut
    EXPECT_EQ(line.GetWindowTextLength(), 1 << 20);
    QApplication::clipboard()->clear();
}
