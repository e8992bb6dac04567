// The application object: the loop, the message boxes, the idle work.
#pragma once

#include "platform/window/Window.h"

#include <functional>
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

    // A box with the application's name as caption.
    int DoMessageBox(LPCTSTR text, UINT type, UINT helpId);
    // Every message box passes here. `type` is an MB_ combination; the result is the command of the button (IDOK,
    // IDYES, ...). Without an icon of its own, an OK box has the warning icon and a Yes/No box the question icon.
    virtual int ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type);

    // A command of a dialog that neither the dialog nor its owners took; non-zero when the application did.
    virtual BOOL OnCommand(UINT) { return FALSE; }
    // A key, WM_KEYDOWN or WM_SYSKEYDOWN, for which a dialog and its control (message.hwnd) had no use; non-zero when
    // the application took it. By itself no key of a dialog reaches the main window.
    virtual BOOL OnUnusedKey(const MSG&) { return FALSE; }
    // Puts in order what was left half done by a handler out of which an exception came; called when control is about
    // to be back in the loop. Null for nothing.
    std::function<void()> recover;

    // Handles what waits in the queue, posted messages and deferred deletions too.
    static void PumpMessages();

  private:
    std::unique_ptr<platform::ToolkitApplication> m_toolkit;
};

CWinApp* AfxGetApp();  // null before the application object exists
CWnd* AfxGetMainWnd(); // null when there is none
int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
