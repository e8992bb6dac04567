// What the user of a test answers to message boxes and to modal dialogs. Every message box is declared in advance with
// its exact text: an undeclared one fails the test and is cancelled, a declared one that never came fails it as well.
#pragma once

#include "tests/support/DialogDriver.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QTimer;
class QWidget;
template <class T>
class QPointer;

class UserScript {
  public:
    // Takes the message boxes of the test application over for as long as it lives. One at a time.
    UserScript();
    ~UserScript();
    UserScript(const UserScript&) = delete;
    UserScript& operator=(const UserScript&) = delete;

    // The next message box has this text (UTF-8) and gets this answer. Boxes come in the order of their declaration.
    void ExpectMessage(const std::string& text, int answer = IDOK);
    // The same, and the box must have this type (MB_ combination).
    void ExpectMessage(const std::string& text, int answer, UINT type);

    // Acts in the next modal dialog once it is open; it must be closed when the action returns. Queued in order.
    void WhenDialogOpens(std::function<void(DialogDriver&)> action);

    // Fails the test for whatever was declared and did not come; runs at destruction too.
    void Verify();

  private:
    struct Expected {
        std::string text;
        int answer;
        bool checkType;
        UINT type;
    };

    int Answer(const CString& text, UINT type);
    void LookForDialog();
    void Act(const QWidget* top, const QPointer<QWidget>& alive);

    std::deque<Expected> m_expected;
    std::deque<std::function<void(DialogDriver&)>> m_actions;
    std::vector<const QWidget*> m_handled;
    std::unique_ptr<QTimer> m_timer;
};
