// A dialog that writes down what its window and its controls tell it, and runs what a test wants in its handlers.
#pragma once

#include "platform/window/DataExchange.h"
#include "tests/platform/TestDialogs.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApp.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

using Log = std::vector<std::string>;

constexpr UINT WM_FIRST = WM_USER + 1, WM_SECOND = WM_USER + 2;

class LoggedDialog : public CDialog {
  public:
    explicit LoggedDialog(CWnd* parent = nullptr) : CDialog(1, parent) {}

    Log log;
    BOOL focusResult = TRUE; // of the initialisation
    bool exchanges = false;  // the number with field 100
    int number = 3;
    CPoint menuPoint; // of the last context menu
    std::function<void(LoggedDialog&)> onInit;
    std::function<void()> onButton, onKillFocus;
    std::function<BOOL(UINT message, WPARAM wParam, LRESULT& result)> onMessage; // whether it is handled
    std::function<BOOL(UINT key)> onKey;                                         // whether it is spent

    int Count(const std::string& line) const { return static_cast<int>(std::count(log.begin(), log.end(), line)); }
    BOOL Open() { return Create(1, m_pParentWnd); }
    // Runs the modal dialog; what the user does once it is up.
    int Run(const std::function<void(DialogDriver&)>& script) {
        QTimer::singleShot(0, [&] {
            DialogDriver driver(*this);
            script(driver);
        });
        return DoModal();
    }

    BOOL PreTranslateMessage(MSG* message) override {
        return (onKey && onKey(static_cast<UINT>(message->wParam))) || CDialog::PreTranslateMessage(message);
    }

  protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        return (onMessage && onMessage(message, wParam, *result)) || CDialog::OnWndMsg(message, wParam, lParam, result);
    }
    void DoDataExchange(CDataExchange* pDX) override {
        if (exchanges)
            DDX_Text(pDX, 100, number);
    }
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        log.push_back("init");
        if (onInit)
            onInit(*this);
        return focusResult;
    }
    void PostNcDestroy() override { log.push_back("gone"); }

    LRESULT OnFirst(WPARAM, LPARAM) { return log.push_back("base first"), 1; }
    LRESULT OnSecond(WPARAM, LPARAM) { return log.push_back("base second"), 2; }
    void OnSize(UINT, int cx, int cy) { log.push_back("size " + std::to_string(cx) + "x" + std::to_string(cy)); }
    void OnDestroy() {
        const CWnd* edit = GetDlgItem(100);
        log.push_back(edit && edit->GetSafeHwnd() ? "destroy, children there" : "destroy");
    }
    void OnTimer(UINT_PTR id) { log.push_back("timer " + std::to_string(id)); }
    void OnActivate(UINT state, CWnd*, BOOL) {
        log.push_back(state == WA_INACTIVE ? "inactive" : state == WA_CLICKACTIVE ? "active by click" : "active");
    }
    void OnContextMenu(CWnd* window, CPoint point) {
        log.push_back("menu over " + std::to_string(window ? window->GetDlgCtrlID() : -1));
        menuPoint = point;
    }
    void OnButton() {
        log.push_back("button");
        if (onButton)
            onButton();
    }
    void OnRadio(UINT id) { log.push_back("radio " + std::to_string(id)); }
    void OnKillFocusEdit() {
        log.push_back("left");
        if (onKillFocus)
            onKillFocus();
    }
    DECLARE_MESSAGE_MAP()
};

// Fields 100 and 101 and three buttons.
inline ControlRows TwoEdits() {
    return ControlRows()
        .Edit(100)
        .Edit(101)
        .Button("OK", IDOK, BS_DEFPUSHBUTTON)
        .Button("Annulla", IDCANCEL)
        .Button("Altro", 200);
}

// One that is open and active, with a template of its own. The log is what opening told.
template <class Base = LoggedDialog>
class Opened : public Base {
    TestTemplate m_template;

  public:
    explicit Opened(const ControlRows& rows = TwoEdits(), std::function<void(LoggedDialog&)> init = {})
        : m_template(rows), user(OpenIt(std::move(init))) {}

    DialogDriver user;

  private:
    CWnd& OpenIt(std::function<void(LoggedDialog&)> init) {
        this->onInit = std::move(init);
        this->Open();
        return *this;
    }
};
