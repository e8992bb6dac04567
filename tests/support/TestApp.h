// The application of the tests: message boxes go to a handler that a test or the driver sets.
#pragma once

#include "platform/window/Application.h"

#include <functional>

class TestApp : public CWinApp {
  public:
    TestApp(int& argc, char** argv) : CWinApp("Quovar", argc, argv) {}

    // Answers a message box with the command of a button. Without one, a box fails the test that caused it.
    std::function<int(const CString& text, UINT type)> messageHandler;

    int DoMessageBox(LPCTSTR text, UINT type, UINT helpId) override;

    static TestApp& Instance();
};
