// One toolkit application for the whole executable, destroyed at its end so that the leak check sees everything.
#include "tests/support/TestApp.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>

#include <cstdlib>

namespace {

// After each test no window may be left: the leak sanitizer does not see widgets that were never shown.
class WindowCount : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override {
        CWinApp::PumpMessages();
        QWidgetList left = QApplication::allWidgets();
        // The toolkit's own stand-in for the screen lives as long as the application.
        left.removeIf([](const QWidget* widget) { return widget->windowType() == Qt::Desktop; });
        if (!left.isEmpty())
            ADD_FAILURE() << left.size() << " windows are left over, the first a "
                          << left.first()->metaObject()->className();
        qDeleteAll(QApplication::topLevelWidgets()); // so that the next test is judged for itself
    }
};

} // namespace

int TestApp::ShowMessageBox(LPCTSTR text, LPCTSTR, UINT type) {
    if (messageHandler)
        return messageHandler(text, type);
    ADD_FAILURE() << "undeclared message box: " << text;
    return IDCANCEL;
}

TestApp& TestApp::Instance() {
    return static_cast<TestApp&>(*AfxGetApp());
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir settings; // what windows remember is not the user's
    setenv("XDG_CONFIG_HOME", qPrintable(settings.path()), 1);
    testing::UnitTest::GetInstance()->listeners().Append(new WindowCount);
    TestApp application(argc, argv);
    return RUN_ALL_TESTS();
}
