#include "tests/support/UserScript.h"

#include "platform/private/peers/WindowPeer.h"
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
    platform::WindowPeer* peer = top && top->isVisible() ? platform::PeerOf(top) : nullptr;
    if (!peer || !peer->isDialog || std::find(m_handled.begin(), m_handled.end(), peer) != m_handled.end())
        return;
    m_handled.push_back(peer);
    // Not from the timer itself: it would rest while the action runs, and a dialog opened there would wait for ever.
    QMetaObject::invokeMethod(
        m_timer.get(), [this, peer, alive = QPointer<QWidget>(top)] { Act(peer, alive); }, Qt::QueuedConnection);
}

void UserScript::Act(HWND peer, const QPointer<QWidget>& alive) {
    if (alive && m_actions.empty()) {
        ADD_FAILURE() << "undeclared modal dialog: " << peer->Text().ToUtf8();
    } else if (alive) {
        const auto action = std::move(m_actions.front());
        m_actions.pop_front();
        DialogDriver driver(*peer->Window());
        action(driver);
        if (alive && alive->isVisible())
            ADD_FAILURE() << "a modal dialog was left open: " << peer->Text().ToUtf8();
    }
    if (alive && alive->isVisible())
        static_cast<CDialog*>(peer->Window())->EndDialog(IDCANCEL);
    // Addresses are used again: a later dialog may be made where this one was.
    std::erase(m_handled, peer);
}
