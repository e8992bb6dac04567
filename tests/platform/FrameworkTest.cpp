// What dialogs rely on beyond the single control: the road of a message, activation, keys on their way to the dialog,
// and ends that come in the middle of something.
#include "platform/controls/Edit.h"
#include "platform/toolkit/Bridge.h"
#include "tests/platform/LoggedDialog.h"

#include <QApplication>
#include <QEnterEvent>
#include <QMessageBox>
#include <QPushButton>

namespace {

// A control whose object is a member of the dialog and sees its keys and its end.
class WatchedEdit : public CEdit {
  public:
    WatchedEdit(LoggedDialog& dialog, int id) : m_log(dialog.log) { EXPECT_TRUE(SubclassDlgItem(id, &dialog)); }
    bool eats = false;

    BOOL PreTranslateMessage(MSG*) override {
        m_log.push_back("edit sees");
        return eats;
    }

  protected:
    void OnDestroy() { m_log.push_back("child destroy"); }

  private:
    Log& m_log;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WatchedEdit, CEdit)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

// A derived class with an entry of its own for one message of its base's.
class Derived : public LoggedDialog {
  protected:
    LRESULT OnFirstHere(WPARAM, LPARAM) { return log.push_back("derived first"), 11; }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message > WM_USER)
            log.push_back("default");
        return LoggedDialog::DefWindowProc(message, wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, LoggedDialog)
    ON_MESSAGE(WM_FIRST, OnFirstHere)
END_MESSAGE_MAP()

} // namespace

// A base's entry that ran as well, or a default handling after a handler, would do a command twice.
TEST(Framework, AMessageGoesToTheClassThenToItsBasesThenToTheDefault) {
    Opened<Derived> dialog;
    dialog.log.clear();
    EXPECT_EQ(dialog.SendMessage(WM_FIRST), 11);
    EXPECT_EQ(dialog.SendMessage(WM_SECOND), 2);
    EXPECT_EQ(dialog.SendMessage(WM_USER + 9), 0);
    EXPECT_EQ(dialog.log, (Log{"derived first", "base second", "default"}));
}

// A dialog that stops its work in WM_DESTROY needs its controls, so they hear of the end after it.
TEST(Framework, TheParentIsDestroyedBeforeItsChildren) {
    Opened<> dialog;
    WatchedEdit edit(dialog, 101);
    dialog.user.SetFocus(100);
    dialog.log.clear();
    dialog.DestroyWindow();
    std::erase(dialog.log, "inactive");
    EXPECT_EQ(dialog.log, (Log{"left", "destroy, children there", "child destroy", "gone"}));
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_EQ(edit.GetSafeHwnd(), nullptr);
}

// Without the message a design dialog would not follow the window that the user works in.
TEST(Framework, ActivationIsToldToBothWindows) {
    Opened<> first;
    first.log.clear();
    const Opened<> second;
    EXPECT_EQ(first.Count("inactive"), 1);
    EXPECT_EQ(second.Count("active"), 1); // by the program, not by a click
    EXPECT_EQ(second.Count("active by click"), 0);
}

// The frame's own moves are the window manager's; the arrival from outside stands for them, inside moves do not.
TEST(Framework, ThePointersArrivalStandsForTheFrame) {
    Opened<> dialog;
    dialog.onMessage = [&](UINT message, WPARAM wParam, LRESULT&) {
        if (message == WM_NCMOUSEMOVE)
            dialog.log.push_back(wParam == HTCAPTION ? "caption" : "elsewhere");
        return FALSE;
    };
    dialog.log.clear();
    const auto enter = [](QWidget* widget) {
        QEnterEvent event({3, 3}, {3, 3}, widget->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(widget, &event);
    };
    enter(platform::WidgetOf(*dialog.GetDlgItem(100))); // from the dialog's ground into a control
    EXPECT_EQ(dialog.Count("caption"), 0);
    enter(platform::WidgetOf(dialog));
    EXPECT_EQ(dialog.Count("caption"), 1);
}

// The keypad's digits are told from the others; a key that one of the two spends does not navigate.
TEST(Framework, AKeyIsSeenByTheControlAndThenByTheDialog) {
    Opened<> dialog;
    std::vector<UINT> seen;
    bool eats = false;
    dialog.onKey = [&](UINT key) {
        seen.push_back(key);
        return eats && key == VK_TAB;
    };
    DialogDriver& user = dialog.user;
    WatchedEdit edit(dialog, 100);
    user.SetFocus(100);
    dialog.log.clear();
    user.Press(VK_TAB);
    EXPECT_EQ(dialog.Count("edit sees"), 1);
    EXPECT_EQ(seen, std::vector<UINT>{VK_TAB});
    EXPECT_EQ(user.Focus(), 101);
    eats = true;
    seen.clear();
    for (const UINT key : {UINT{VK_TAB}, UINT{'5'}, UINT{VK_NUMPAD0 + 5}, UINT{VK_OEM_PERIOD}})
        user.Press(key);
    EXPECT_EQ(seen, (std::vector<UINT>{VK_TAB, '5', VK_NUMPAD0 + 5, VK_OEM_PERIOD}));
    EXPECT_EQ(user.Text(101), "55.");
    user.SetFocus(100);
    edit.eats = true;
    eats = false;
    seen.clear();
    user.Press(VK_TAB);
    EXPECT_TRUE(seen.empty());
    EXPECT_EQ(user.Focus(), 100);
    edit.Detach();
}

// Enter leaves the focus where it is, the mouse takes it along: only then an edit reports that it was left.
TEST(Framework, AClickOnAButtonMovesTheFocus) {
    Opened<> dialog;
    DialogDriver& user = dialog.user;
    user.SetFocus(100);
    dialog.log.clear();
    user.Click(200);
    EXPECT_EQ(user.Focus(), 200);
    EXPECT_EQ(dialog.log, (Log{"left", "button"}));
    user.Press(VK_RETURN); // that button's, not the default one's
    EXPECT_EQ(dialog.Count("button"), 2);
    EXPECT_TRUE(user.IsOpen());
}

// The default OK reads the fields and closes only when they are right; Cancel reads nothing.
TEST(Framework, OkReadsTheFieldsAndCancelDoesNot) {
    const TestTemplate source(TwoEdits());
    LoggedDialog dialog;
    dialog.exchanges = true;
    const Boxes boxes;
    const auto correct = [](DialogDriver& user) {
        EXPECT_EQ(user.Text(100), "3"); // the initialisation wrote the fields
        user.Type(100, "tre");
        user.Press(VK_RETURN);
        ASSERT_TRUE(user.IsOpen());
        EXPECT_EQ(user.Focus(), 100);
        user.Type(100, "8");
        user.Press(VK_RETURN);
    };
    EXPECT_EQ(dialog.Run(correct), IDOK);
    EXPECT_EQ(dialog.number, 8);
    EXPECT_EQ(boxes.texts, Log{"Immettere un numero intero."});
    const auto cancel = [](DialogDriver& user) {
        user.Type(100, "tre");
        user.Press(VK_ESCAPE);
    };
    EXPECT_EQ(dialog.Run(cancel), IDCANCEL);
    EXPECT_EQ(boxes.texts.size(), 1u);
}

TEST(Framework, MessageBoxesHaveTheirIconsCaptionAndButtons) {
    struct Case {
        UINT type;
        int answer;
        QMessageBox::Icon icon;
    };
    for (const auto& [type, answer, icon] : {Case{MB_OK, IDOK, QMessageBox::Warning},
                                             {MB_YESNO, IDYES, QMessageBox::Question},
                                             {MB_YESNO | MB_DEFBUTTON2, IDNO, QMessageBox::Question},
                                             {MB_OK | MB_ICONINFORMATION, IDOK, QMessageBox::Information}}) {
        QTimer::singleShot(0, [expected = icon] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->icon(), expected);
            EXPECT_EQ(box->windowTitle(), "Quovar");
            box->defaultButton()->click();
        });
        EXPECT_EQ(TestApp::Instance().CWinApp::ShowMessageBox("Testo", "Quovar", type), answer) << type;
    }
}

// A message that stands over a window which ends meanwhile would be deleted twice.
TEST(Framework, AMessageBoxOutlivesTheWindowUnderIt) {
    Opened<> dialog;
    QTimer::singleShot(0, [&] { dialog.DestroyWindow(); });
    QTimer::singleShot(1, [] { // where the box is still there, it is answered
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->reject();
    });
    EXPECT_EQ(TestApp::Instance().CWinApp::ShowMessageBox("Testo", "Quovar", MB_YESNO), IDCANCEL);
    EXPECT_FALSE(dialog.user.IsOpen());
}

// The last focus loss may show a message, or end the dialog a second time, while it closes.
TEST(Framework, AMessageFromTheFocusThatLeavesAClosingDialog) {
    for (const bool endsAgain : {false, true}) {
        Opened<> dialog;
        dialog.user.SetFocus(100);
        const Boxes boxes([&] {
            CWinApp::PumpMessages();
            if (endsAgain)
                dialog.DestroyWindow();
        });
        dialog.onKillFocus = [] { AfxMessageBox("Nodo inesistente"); };
        dialog.DestroyWindow();
        EXPECT_EQ(boxes.texts.size(), 1u);
        EXPECT_EQ(dialog.Count("destroy, children there"), 1);
        EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    }
}

TEST(Framework, AWindowIsCreatedOnce) {
    Opened<> dialog;
    const HWND window = dialog.GetSafeHwnd();
    EXPECT_FALSE(dialog.Open());
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.GetSafeHwnd(), window);
    class Refusing : public CWnd {
      public:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
            *result = -1;
            return message == WM_CREATE || CWnd::OnWndMsg(message, wParam, lParam, result);
        }
    };
    Refusing refused; // a window that its handler refuses must not be left on the screen
    EXPECT_FALSE(refused.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &dialog, 900));
    EXPECT_EQ(refused.GetSafeHwnd(), nullptr);
    EXPECT_EQ(dialog.GetDlgItem(900), nullptr);
}
