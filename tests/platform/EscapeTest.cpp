// Exceptions that no handler catches. The toolkit cannot carry one to the loop: an escaped one would end the program
// and the user's work.
#include "platform/controls/Edit.h"
#include "platform/core/Exception.h"
#include "platform/private/peers/WindowPeer.h"
#include "tests/platform/LoggedDialog.h"

#include <QAction>
#include <QApplication>

#include <new>
#include <stdexcept>

namespace {

// Fails in every place in which the toolkit calls a dialog, once each, when it is told to.
class Failing : public LoggedDialog {
  public:
    std::string fails; // the place

    void Fail(const char* place) {
        if (fails != place)
            return;
        fails.clear();
        throw new CSimpleException("Memoria piena");
    }

  protected:
    BOOL PreTranslateMessage(MSG* message) override {
        Fail("key");
        return LoggedDialog::PreTranslateMessage(message);
    }
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (message == WM_PAINT)
            Fail("painting");
        if (message == WM_SECOND)
            Fail("hook");
        return LoggedDialog::OnWndMsg(message, wParam, lParam, result);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (LOWORD(wParam) == 100 && HIWORD(wParam) == EN_CHANGE)
            Fail("notification");
        if (LOWORD(wParam) == 200)
            Fail("button");
        return LoggedDialog::OnCommand(wParam, lParam);
    }
    void DoDataExchange(CDataExchange* pDX) override {
        Fail("exchange");
        LoggedDialog::DoDataExchange(pDX);
    }
    void OnOK() override { UpdateData(TRUE); }
    void PostNcDestroy() override {
        LoggedDialog::PostNcDestroy();
        Fail("end");
    }
};

} // namespace

TEST(Escape, EveryWayIntoADialogEndsAtAMessage) {
    auto& app = TestApp::Instance();
    const struct {
        const char* place;
        std::function<void(Opened<Failing>&)> reach;
    } ways[] = {
        {"key", [](auto& dialog) { dialog.user.Press('1'); }},
        {"button", [](auto& dialog) { dialog.user.Click(200); }},
        {"notification", [](auto& dialog) { dialog.user.Type(100, "1"); }},
        {"exchange", [](auto& dialog) { dialog.user.Click(IDOK); }},
        {"painting", [](auto& dialog) { dialog.RedrawWindow(); }},
        {"hook", [](auto& dialog) { dialog.PostMessage(WM_SECOND), CWinApp::PumpMessages(); }},
        {"application's key", [](auto& dialog) { dialog.user.Press(VK_F1 + 4); }},
        {"application's command", [](auto& dialog) { dialog.SendMessage(WM_COMMAND, 57600); }},
        {"toolkit's slot",
         [](auto& dialog) {
             QTimer::singleShot(0, dialog.m_hWnd->widget, [&] { dialog.Fail("toolkit's slot"); });
             CWinApp::PumpMessages();
         }},
        {"end", [](auto& dialog) { dialog.DestroyWindow(); }},
    };
    int recovered = 0;
    app.recover = [&] { ++recovered; };
    for (const auto& way : ways) {
        Opened<Failing> dialog;
        app.keyHandler = [&](const MSG&) { return dialog.Fail("application's key"), FALSE; };
        app.commandHandler = [&](UINT) { return dialog.Fail("application's command"), FALSE; };
        dialog.fails = way.place;
        recovered = 0;
        const Boxes boxes;
        way.reach(dialog);
        EXPECT_EQ(boxes.texts, Log{"Memoria piena"}) << way.place;
        EXPECT_EQ(recovered, 1) << way.place;
        if (dialog.GetSafeHwnd()) { // and it goes on
            dialog.user.Click(200);
            EXPECT_EQ(dialog.Count("button"), 1) << way.place;
        }
        app.keyHandler = nullptr;
        app.commandHandler = nullptr;
    }
    app.recover = nullptr;
}

TEST(Escape, EachKindOfExceptionHasItsMessage) {
    const struct {
        void (*thrower)();
        Log texts;
    } kinds[] = {
        {[] { throw new CSimpleException("Memoria piena"); }, {"Memoria piena"}},
        {[] { AfxThrowUserException(); }, {}}, // has told the user itself
        {[] { throw std::bad_alloc(); }, {"Memoria esaurita."}},
        {[] { throw std::runtime_error("testo"); }, {"Si è verificato un errore: testo"}},
        {[] { throw 5; }, {"Si è verificato un errore."}},
    };
    Opened<> dialog;
    for (const auto& kind : kinds) {
        const Boxes boxes;
        dialog.onButton = kind.thrower;
        dialog.user.Click(200);
        EXPECT_EQ(boxes.texts, kind.texts);
    }
}

// What a handler left half done is put in order when the outermost of its callers is through, not in their middle.
TEST(Escape, OrderIsMadeOnceControlIsBack) {
    Opened<> dialog;
    const Boxes boxes;
    Log& log = dialog.log;
    log.clear();
    TestApp::Instance().recover = [&] { log.push_back("order"); };
    dialog.onMessage = [](UINT message, WPARAM, LRESULT&) -> BOOL {
        if (message == WM_USER + 9)
            AfxThrowUserException();
        return FALSE;
    };
    dialog.onButton = [&] {
        dialog.SendMessage(WM_USER + 9);
        log.push_back("goes on");
    };
    dialog.SendMessage(WM_COMMAND, 200);
    EXPECT_EQ(log, (Log{"button", "goes on", "order"}));
    TestApp::Instance().recover = nullptr;
}
