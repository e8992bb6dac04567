// The application of the tests: message boxes go to a handler that a test or the driver sets.
#pragma once

#include "platform/window/Application.h"

#include <functional>

class TestApp : public CWinApp {
  public:
    TestApp(int& argc, char** argv) : CWinApp("Quovar", argc, argv) {}

    // Answers a message box with the command of a button. Without one, a box fails the test that caused it.
    std::function<int(const CString& text, UINT type)> messageHandler;

    // What becomes of a key that nobody in a dialog used; without one nothing.
    std::function<BOOL(const MSG& message)> keyHandler;
    std::function<BOOL(UINT command)> commandHandler; // the same for a command

    BOOL OnUnusedKey(const MSG& message) override { return keyHandler && keyHandler(message); }
    BOOL OnCommand(UINT command) override { return commandHandler && commandHandler(command); }
    int ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type) override;

    static TestApp& Instance();
};
