// What dialogs rely on beyond the single control: the road of a message, activation, keys on their way to the dialog,
// drawing outside paint messages, and ends that come in the middle of something.
#include "platform/DataExchange.h"
#include "platform/DeviceContext.h"
#include "platform/Edit.h"
#include "platform/Exception.h"
#include "platform/private/WindowPeer.h"
#include "tests/platform/TestDialogs.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApp.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QEnterEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <new>
#include <string>
#include <vector>

namespace {

using Log = std::vector<std::string>;
constexpr UINT WM_FIRST = WM_USER + 1, WM_SECOND = WM_USER + 2;

ControlRows twoEdits() {
    return ControlRows().edit(100).edit(101).button("OK", IDOK, BS_DEFPUSHBUTTON).button("Altro", 200);
}

// Keeps what its controls and its window tell it, and runs what a test wants in a handler.
class Listener : public CDialog {
  public:
    explicit Listener(CWnd* parent = nullptr) : CDialog(1, parent) {}
    ~Listener() override { DestroyWindow(); }

    Log log;
    std::function<void()> onButton, onKillFocus, onClose;
    bool exchanges = false;
    int number = 3;

    BOOL Open() { return Create(1, m_pParentWnd); }

  protected:
    void DoDataExchange(CDataExchange* pDX) override {
        log.push_back(pDX->m_bSaveAndValidate ? "read" : "write");
        if (exchanges)
            DDX_Text(pDX, 100, number);
    }
    LRESULT OnFirst(WPARAM, LPARAM) {
        log.push_back("base first");
        return 1;
    }
    LRESULT OnSecond(WPARAM, LPARAM) {
        log.push_back("base second");
        return 2;
    }
    void OnActivate(UINT state, CWnd*, BOOL) {
        log.push_back(state == WA_INACTIVE ? "inactive" : state == WA_CLICKACTIVE ? "active by click" : "active");
    }
    void OnDestroy() { log.push_back("destroy"); }
    void OnButton() {
        log.push_back("button");
        if (onButton)
            onButton();
    }
    void OnKillFocusEdit() {
        log.push_back("left");
        if (onKillFocus)
            onKillFocus();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listener, CDialog)
    ON_MESSAGE(WM_FIRST, OnFirst)
    ON_MESSAGE(WM_SECOND, OnSecond)
    ON_WM_ACTIVATE()
    ON_WM_DESTROY()
    ON_BN_CLICKED(200, OnButton)
    ON_EN_KILLFOCUS(100, OnKillFocusEdit)
END_MESSAGE_MAP()

int countOf(const Log& log, const std::string& line) {
    return static_cast<int>(std::count(log.begin(), log.end(), line));
}

// Collects the texts of message boxes while it lives.
class Boxes {
  public:
    explicit Boxes(std::function<void()> during = {}) {
        TestApp::instance().messageHandler = [this, during](const CString& text, UINT) {
            texts.push_back(text.ToUtf8());
            if (during)
                during();
            return int{IDOK};
        };
    }
    ~Boxes() { TestApp::instance().messageHandler = nullptr; }
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;

    Log texts;
};

// A control whose object is a member of the dialog and sees its keys and its end.
class WatchedEdit : public CEdit {
  public:
    explicit WatchedEdit(Log& log) : m_log(log) {}
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
class Derived : public Listener {
  protected:
    LRESULT OnFirstHere(WPARAM, LPARAM) {
        log.push_back("derived first");
        return 11;
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message > WM_USER)
            log.push_back("default");
        return Listener::DefWindowProc(message, wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Listener)
    ON_MESSAGE(WM_FIRST, OnFirstHere)
END_MESSAGE_MAP()

} // namespace

// A base's entry that ran as well, or a default handling after a handler, would do a command twice.
TEST(Framework, AMessageGoesToTheClassThenToItsBasesThenToTheDefault) {
    const TestTemplate source(twoEdits());
    Derived dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.log.clear();
    EXPECT_EQ(dialog.SendMessage(WM_FIRST), 11);
    EXPECT_EQ(dialog.SendMessage(WM_SECOND), 2);
    EXPECT_EQ(dialog.SendMessage(WM_USER + 9), 0);
    EXPECT_EQ(dialog.log, (Log{"derived first", "base second", "default"}));
}

// A dialog that stops its work in WM_DESTROY needs its controls, so they hear of the end after it.
TEST(Framework, TheParentIsDestroyedBeforeItsChildren) {
    const TestTemplate source(twoEdits());
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    WatchedEdit edit(dialog.log);
    ASSERT_TRUE(edit.SubclassDlgItem(101, &dialog));
    dialog.log.clear();
    dialog.DestroyWindow();
    std::erase(dialog.log, "inactive");
    std::erase(dialog.log, "left");
    EXPECT_EQ(dialog.log, (Log{"destroy", "child destroy"}));
    EXPECT_EQ(edit.GetSafeHwnd(), nullptr);
}

// Without the message a design dialog would not follow the window that the user works in.
TEST(Framework, ActivationIsToldToBothWindows) {
    const TestTemplate source(twoEdits());
    Listener first;
    Listener second;
    ASSERT_TRUE(first.Open());
    const DialogDriver raised(first);
    first.log.clear();
    ASSERT_TRUE(second.Open());
    DialogDriver(second).Activate();
    EXPECT_EQ(countOf(first.log, "inactive"), 1);
    EXPECT_EQ(countOf(second.log, "active"), 1); // by the program, not by a click
    EXPECT_EQ(countOf(second.log, "active by click"), 0);
}

// The frame's own moves are the window manager's; the arrival from outside stands for them, inside moves do not.
TEST(Framework, ThePointersArrivalStandsForTheFrame) {
    class Hooked : public Listener {
      public:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
            if (message == WM_NCMOUSEMOVE)
                log.push_back(wParam == HTCAPTION ? "caption" : "elsewhere");
            return Listener::OnWndMsg(message, wParam, lParam, result);
        }
    };
    const TestTemplate source(twoEdits());
    Hooked dialog;
    ASSERT_TRUE(dialog.Open());
    const DialogDriver shown(dialog);
    dialog.log.clear();
    const auto enter = [](QWidget* widget) {
        QEnterEvent event({3, 3}, {3, 3}, widget->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(widget, &event);
    };
    enter(dialog.GetDlgItem(100)->m_hWnd->widget); // from the dialog's ground into a control
    EXPECT_EQ(countOf(dialog.log, "caption"), 0);
    enter(dialog.m_hWnd->widget);
    EXPECT_EQ(countOf(dialog.log, "caption"), 1);
}

TEST(Framework, AKeyIsSeenByTheControlAndThenByTheDialog) {
    class Seer : public Listener {
      public:
        BOOL PreTranslateMessage(MSG* message) override {
            log.push_back("dialog sees");
            return Listener::PreTranslateMessage(message);
        }
    };
    const TestTemplate source(twoEdits());
    Seer dialog;
    ASSERT_TRUE(dialog.Open());
    WatchedEdit edit(dialog.log);
    ASSERT_TRUE(edit.SubclassDlgItem(100, &dialog));
    DialogDriver user(dialog);
    user.SetFocus(100);
    dialog.log.clear();
    user.Press(VK_TAB);
    EXPECT_EQ(countOf(dialog.log, "edit sees"), 1);
    EXPECT_EQ(countOf(dialog.log, "dialog sees"), 1);
    EXPECT_EQ(user.Focus(), 101);
    user.SetFocus(100);
    edit.eats = true;
    dialog.log.clear();
    user.Press(VK_TAB);
    EXPECT_EQ(dialog.log, Log{"edit sees"}); // the key is spent: no navigation
    EXPECT_EQ(user.Focus(), 100);
    edit.Detach();
}

// Enter leaves the focus where it is, the mouse takes it along: only then an edit reports that it was left.
TEST(Framework, AClickOnAButtonMovesTheFocus) {
    const TestTemplate source(twoEdits());
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    user.SetFocus(100);
    dialog.log.clear();
    user.Click(200);
    EXPECT_EQ(user.Focus(), 200);
    EXPECT_EQ(dialog.log, (Log{"left", "button"}));
}

TEST(Framework, AGroupBoxsMnemonicIsTheNextTabStops) {
    const TestTemplate source(twoEdits().add("BUTTON", "&Segmento", -1, BS_GROUPBOX).edit(102));
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    user.Press('S', AltKey);
    EXPECT_EQ(user.Focus(), 102);
}

// The default OK reads the fields and closes only when they are right; Cancel reads nothing.
TEST(Framework, OkReadsTheFieldsAndCancelDoesNot) {
    const TestTemplate source(twoEdits());
    Listener dialog;
    dialog.exchanges = true;
    const Boxes boxes;
    QTimer::singleShot(0, [&] {
        DialogDriver user(dialog);
        EXPECT_EQ(dialog.log.front(), "write");
        EXPECT_EQ(user.Text(100), "3"); // the initialisation wrote the fields
        user.Type(100, "tre");
        user.Press(VK_RETURN);
        ASSERT_TRUE(user.IsOpen());
        EXPECT_EQ(user.Focus(), 100);
        user.Type(100, "8");
        user.Press(VK_RETURN);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.number, 8);
    EXPECT_EQ(boxes.texts, Log{"Immettere un numero intero."});
    QTimer::singleShot(0, [&] {
        DialogDriver user(dialog);
        user.Type(100, "tre");
        user.Press(VK_ESCAPE);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(boxes.texts.size(), 1u);
}

// What was drawn outside a paint message would flicker away with the next exposure, or stay under a new drawing.
TEST(Framework, DrawingStaysUntilInvalidateErasesItAtOnce) {
    class Painter : public CWnd {
      public:
        int painted = 0;
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
            painted += message == WM_PAINT;
            return CWnd::OnWndMsg(message, wParam, lParam, result);
        }
    };
    const TestTemplate source(twoEdits().add("STATIC", "", 300, 0));
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    Painter field;
    ASSERT_TRUE(field.SubclassDlgItem(300, &dialog));
    const DialogDriver shown(dialog);
    CWinApp::PumpMessages();
    field.UpdateWindow(); // nothing is left to paint
    const auto isDrawn = [&] { return CClientDC(&field).GetPixel(4, 4) == RGB(255, 0, 0); };
    CClientDC(&field).FillSolidRect(0, 0, 10, 10, RGB(255, 0, 0));
    field.m_hWnd->widget->repaint();
    EXPECT_TRUE(isDrawn());
    const int before = field.painted;
    field.UpdateWindow(); // nothing is invalid
    EXPECT_EQ(field.painted, before);
    field.Invalidate(FALSE);
    field.UpdateWindow();
    EXPECT_EQ(field.painted, before + 1);
    EXPECT_TRUE(isDrawn());
    field.Invalidate(TRUE);
    EXPECT_TRUE(isDrawn()); // not before it is painted
    field.UpdateWindow();
    EXPECT_EQ(field.painted, before + 2);
    EXPECT_FALSE(isDrawn());
    field.Detach();
}

// The toolkit cannot carry an exception to the loop: an escaped one would end the program and the user's work.
TEST(Framework, AnExceptionEndsWithItsMessage) {
    const TestTemplate source(twoEdits());
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    const Boxes boxes;
    dialog.onButton = [] { throw new CSimpleException("Memoria piena"); };
    user.Click(200);
    EXPECT_EQ(boxes.texts, Log{"Memoria piena"});
    dialog.onButton = [] { AfxThrowUserException(); }; // has told the user itself
    user.Click(200);
    EXPECT_EQ(boxes.texts.size(), 1u);
    dialog.onButton = [] { throw std::bad_alloc(); };
    user.Click(200);
    EXPECT_EQ(boxes.texts.back(), "Memoria esaurita.");
    dialog.onButton = nullptr;
    user.Click(200); // and the dialog goes on
    EXPECT_EQ(countOf(dialog.log, "button"), 4);
}

TEST(Framework, MessageBoxesHaveTheirIconsCaptionAndButtons) {
    struct Seen {
        QMessageBox::Icon icon;
        QString caption, defaultButton;
    };
    const auto show = [](UINT type, Seen& seen) {
        QTimer::singleShot(0, [&seen] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            seen = {box->icon(), box->windowTitle(), box->defaultButton()->text()};
            box->defaultButton()->click();
        });
        return TestApp::instance().CWinApp::DoMessageBox("Testo", type, 0);
    };
    Seen seen;
    EXPECT_EQ(show(MB_OK, seen), IDOK);
    EXPECT_EQ(seen.icon, QMessageBox::Warning);
    EXPECT_EQ(seen.caption, "Quovar");
    EXPECT_EQ(show(MB_YESNO, seen), IDYES);
    EXPECT_EQ(seen.icon, QMessageBox::Question);
    EXPECT_EQ(show(MB_YESNO | MB_DEFBUTTON2, seen), IDNO);
    EXPECT_EQ(seen.defaultButton, "&No");
    EXPECT_EQ(show(MB_OK | MB_ICONINFORMATION, seen), IDOK);
    EXPECT_EQ(seen.icon, QMessageBox::Information);
}

// A message that stands over a window which ends meanwhile would be deleted twice.
TEST(Framework, AMessageBoxOutlivesTheWindowUnderIt) {
    const TestTemplate source(twoEdits());
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    const DialogDriver raised(dialog);
    QTimer::singleShot(0, [&] { dialog.DestroyWindow(); });
    QTimer::singleShot(1, [] { // where the box is still there, it is answered
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->reject();
    });
    EXPECT_EQ(TestApp::instance().ShowMessageBox("Testo", "Quovar", MB_YESNO), IDCANCEL);
    EXPECT_FALSE(raised.IsOpen());
}

// A nested loop without its window would never end, and the program with it.
TEST(Framework, AModalDialogEndsWithTheWindowThatItBelongsTo) {
    const TestTemplate source(twoEdits());
    Listener owner;
    ASSERT_TRUE(owner.Open());
    Listener modal(&owner);
    QTimer::singleShot(0, [&] { owner.DestroyWindow(); });
    EXPECT_EQ(modal.DoModal(), IDCANCEL);
    EXPECT_EQ(modal.GetSafeHwnd(), nullptr);
    EXPECT_EQ(countOf(modal.log, "destroy"), 1);
}

// The last focus loss may show a message, or end the dialog a second time, while it closes.
TEST(Framework, AMessageFromTheFocusThatLeavesAClosingDialog) {
    const TestTemplate source(twoEdits());
    for (const bool endsAgain : {false, true}) {
        Listener dialog;
        ASSERT_TRUE(dialog.Open());
        DialogDriver user(dialog);
        user.SetFocus(100);
        const Boxes boxes([&] {
            CWinApp::PumpMessages();
            if (endsAgain)
                dialog.DestroyWindow();
        });
        dialog.onKillFocus = [] { AfxMessageBox("Nodo inesistente"); };
        dialog.DestroyWindow();
        EXPECT_EQ(boxes.texts.size(), 1u);
        EXPECT_EQ(countOf(dialog.log, "destroy"), 1);
        EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    }
}

TEST(Framework, AWindowIsCreatedOnce) {
    const TestTemplate source(twoEdits());
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
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

// Cells copied from a sheet bring line ends; a clipboard may hold anything.
TEST(Framework, PastedTextsAreCutToTheirField) {
    const TestTemplate source(twoEdits().edit(102, ES_MULTILINE));
    Listener dialog;
    ASSERT_TRUE(dialog.Open());
    auto& line = dynamic_cast<CEdit&>(*dialog.GetDlgItem(100));
    auto& lines = dynamic_cast<CEdit&>(*dialog.GetDlgItem(102));
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
    line.SetWindowText(CString(std::string(1 << 20, '7').c_str())); // the program's own text is never cut
    EXPECT_EQ(line.GetWindowTextLength(), 1 << 20);
    EXPECT_EQ(dialog.GetDlgItemInt(100), 0u); // out of range, and no crash
    QApplication::clipboard()->clear();
}
