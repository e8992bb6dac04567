// The application object: the loop, the message boxes, the idle work.
#pragma once

#include "platform/window/Window.h"

#include <memory>

enum : UINT {
    MB_OK = 0,
    MB_OKCANCEL = 1,
    MB_ABORTRETRYIGNORE = 2,
    MB_YESNOCANCEL = 3,
    MB_YESNO = 4,
    MB_RETRYCANCEL = 5,
    MB_TYPEMASK = 0x0F,
    MB_ICONHAND = 0x10,
    MB_ICONSTOP = 0x10,
    MB_ICONERROR = 0x10,
    MB_ICONQUESTION = 0x20,
    MB_ICONEXCLAMATION = 0x30,
    MB_ICONWARNING = 0x30,
    MB_ICONASTERISK = 0x40,
    MB_ICONINFORMATION = 0x40,
    MB_ICONMASK = 0xF0,
    MB_DEFBUTTON2 = 0x100,
};

namespace platform {
class ToolkitApplication;
}

// One per process, alive from before the first window until after the last. It keeps the C number format whatever the
// machine's locale and sets the look of the dialogs.
class CWinApp : public CObject {
    DECLARE_DYNAMIC(CWinApp)
  public:
    // The arguments outlive the object; the toolkit takes its own from them.
    CWinApp(LPCTSTR name, int& argc, char** argv);
    ~CWinApp() override;

    const CString m_pszAppName; // caption of message boxes
    CWnd* m_pMainWnd = nullptr; // not owned

    virtual BOOL InitInstance() { return TRUE; }
    virtual int ExitInstance() { return 0; }
    int Run(); // InitInstance, the loop, ExitInstance

    // Every message box passes here. `type` is an MB_ combination; the result is the command of the button (IDOK,
    // IDYES, ...).
    virtual int DoMessageBox(LPCTSTR text, UINT type, UINT helpId);
    // The default body: shows a box with the application's name as caption. Without an icon of its own, an OK box has
    // the warning icon and a Yes/No box the question icon.
    int ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type);

    // Handles what waits in the queue, posted messages and deferred deletions too.
    static void PumpMessages();

  private:
    std::unique_ptr<platform::ToolkitApplication> m_toolkit;
};

CWinApp* AfxGetApp();  // null before the application object exists
CWnd* AfxGetMainWnd(); // null when there is none
int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
