// A dialog that writes down what its controls tell it.
#pragma once

#include "tests/platform/TestDialogs.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

class ControlDialog : public CDialog {
    TestTemplate m_template;

  public:
    // Open and active; the log is empty.
    explicit ControlDialog(const ControlRows& rows) : CDialog(1), m_template(rows), user(OpenIt()) { log.clear(); }
    ~ControlDialog() override { DestroyWindow(); }

    // "command 100:768" or "notify 100:-2" or "scroll 4:17", in the order in which they came.
    std::vector<std::string> log;
    std::function<LRESULT(int code)> onNotify; // its value is the notification's result
    std::function<void()> onCommand;
    const void* scrollBar = nullptr; // of the last scroll message
    DialogDriver user;

    std::vector<std::string> Take() { return std::exchange(log, {}); }
    template <class T>
    T& Control(int id) {
        return dynamic_cast<T&>(*GetDlgItem(id));
    }
    // A click of the left button on a point of the control's surface, pixels.
    static void ClickOn(const CWnd& control, CPoint at, bool twice = false);

  protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        log.push_back("command " + std::to_string(LOWORD(wParam)) + ":" + std::to_string(HIWORD(wParam)));
        if (onCommand)
            onCommand();
        return CDialog::OnCommand(wParam, lParam);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const int code = reinterpret_cast<const NMHDR*>(lParam)->code;
        log.push_back("notify " + std::to_string(wParam) + ":" + std::to_string(code));
        *result = onNotify ? onNotify(code) : 0;
        return TRUE;
    }
    void OnVScroll(UINT code, UINT position, CScrollBar* bar) {
        log.push_back("scroll " + std::to_string(code) + ":" + std::to_string(position));
        scrollBar = bar;
    }
    DECLARE_MESSAGE_MAP()

  private:
    CWnd& OpenIt() {
        Create(1);
        TestApp::PumpMessages();
        return *this;
    }
};

// "command 100:768" of one control's code.
inline std::string Told(int id, UINT code) {
    return "command " + std::to_string(id) + ":" + std::to_string(code);
}
inline std::string Notified(int id, int code) {
    return "notify " + std::to_string(id) + ":" + std::to_string(code);
}
using Log = std::vector<std::string>;

// The lines without what the coming and going of the focus tells.
inline Log WithoutFocus(Log log) {
    std::erase_if(log, [](const std::string& line) {
        for (const int code : {int(EN_SETFOCUS), int(EN_KILLFOCUS), int(LBN_SETFOCUS), int(LBN_KILLFOCUS),
                               int(NM_SETFOCUS), int(NM_KILLFOCUS)})
            if (line.ends_with(":" + std::to_string(code)))
                return true;
        return false;
    });
    return log;
}
