#include "tests/support/UserScript.h"

#include "platform/toolkit/Bridge.h"
#include "platform/window/Dialog.h"
#include "tests/support/TestApp.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>

namespace {
constexpr int lookEveryMilliseconds = 5;
}

UserScript::UserScript() : m_timer(std::make_unique<QTimer>()) {
    TestApp::Instance().messageHandler = [this](const CString& text, UINT type) { return Answer(text, type); };
    QObject::connect(m_timer.get(), &QTimer::timeout, [this] { LookForDialog(); });
    m_timer->start(lookEveryMilliseconds);
}

UserScript::~UserScript() {
    Verify();
    TestApp::Instance().messageHandler = nullptr;
}

void UserScript::ExpectMessage(const std::string& text, int answer) {
    m_expected.push_back({text, answer, false, 0});
}

void UserScript::ExpectMessage(const std::string& text, int answer, UINT type) {
    m_expected.push_back({text, answer, true, type});
}

void UserScript::WhenDialogOpens(std::function<void(DialogDriver&)> action) {
    m_actions.push_back(std::move(action));
}

void UserScript::Verify() {
    for (const Expected& expected : m_expected)
        ADD_FAILURE() << "this message box never came: " << expected.text;
    m_expected.clear();
    EXPECT_TRUE(m_actions.empty()) << m_actions.size() << " modal dialogs never opened";
    m_actions.clear();
}

int UserScript::Answer(const CString& text, UINT type) {
    const std::string shown = text.ToUtf8();
    if (m_expected.empty()) {
        ADD_FAILURE() << "undeclared message box: " << shown;
        return IDCANCEL;
    }
    const Expected expected = m_expected.front();
    if (expected.text != shown) {
        ADD_FAILURE() << "message box: " << shown << "\ndeclared: " << expected.text;
        return IDCANCEL;
    }
    m_expected.pop_front();
    if (expected.checkType && type != expected.type)
        ADD_FAILURE() << "type " << type << " of the message box: " << shown;
    return expected.answer;
}

void UserScript::LookForDialog() {
    QWidget* top = QApplication::activeModalWidget();
    if (!top || !top->isVisible() || !platform::DialogOf(top) ||
        std::find(m_handled.begin(), m_handled.end(), top) != m_handled.end())
        return;
    m_handled.push_back(top);
    // Not from the timer itself: it would rest while the action runs, and a dialog opened there would wait for ever.
    QMetaObject::invokeMethod(
        m_timer.get(), [this, top, alive = QPointer<QWidget>(top)] { Act(top, alive); }, Qt::QueuedConnection);
}

void UserScript::Act(const QWidget* top, const QPointer<QWidget>& alive) {
    // Addresses are used again: a later dialog may be made where this one was.
    const auto forget = [this, top] { std::erase(m_handled, top); };
    CDialog* dialog = platform::DialogOf(alive);
    if (!dialog)
        return forget(); // it has ended meanwhile
    if (m_actions.empty()) {
        ADD_FAILURE() << "undeclared modal dialog: " << dialog->GetWindowText();
    } else {
        const auto action = std::move(m_actions.front());
        m_actions.pop_front();
        DialogDriver driver(*dialog);
        action(driver);
        if (alive && alive->isVisible())
            ADD_FAILURE() << "a modal dialog was left open: " << alive->windowTitle().toStdString();
    }
    if (alive && alive->isVisible())
        platform::DialogOf(alive)->EndDialog(IDCANCEL);
    forget();
}
