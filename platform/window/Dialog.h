// A dialog: a window built from a numbered template, modal or modeless.
#pragma once

#include "platform/window/Window.h"

namespace platform {
struct DialogTemplate;
}

class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
  public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr); // the template is looked up when the window is made
    ~CDialog() override;

    // Runs the dialog and returns the code given to EndDialog; -1 when the template is missing.
    virtual int DoModal();
    // Makes the modeless window; 0 when the template is missing. `parent` null takes the constructor's parent.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    // Hides the dialog, which takes no further keys or commands (until it is shown again), and ends the loop of
    // DoModal.
    void EndDialog(int result);

    virtual BOOL OnInitDialog(); // 0 says that the focus has been set already
    virtual void OnOK();
    virtual void OnCancel();
    // Tab, arrows in groups, Enter, Escape and mnemonics; called after PreTranslateMessage let the key pass.
    BOOL IsDialogMessage(MSG* pMsg);

    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override; // the standard handling of a dialog's keys
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // A command of a menu (0x8000 to 0xEFFF) that no class handles goes on to the owner, then to the application.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  protected:
    DECLARE_MESSAGE_MAP()
    CWnd* m_pParentWnd = nullptr;
    HINSTANCE m_hTemplateModule = nullptr; // the module that holds the template; null for the first along the chain

  private:
    const platform::DialogTemplate* FindTemplate(UINT templateId) const;
    BOOL Build(UINT templateId, CWnd* parent, bool modal);
    UINT m_template = 0;
    int m_result = -1;
    bool m_ended = false;   // EndDialog was called, perhaps before the loop began
    void* m_loop = nullptr; // the nested loop of DoModal
};
