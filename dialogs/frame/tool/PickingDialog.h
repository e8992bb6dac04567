// Bases of the tool dialogs that take points from the view.
#pragma once

#include "dialogs/frame/tool/DialogDocument.h"

// A tool dialog that puts its view into vector definition. The mode ends with the dialog's window.
class PickingDialog : public CDialogDocument {
  public:
    using CDialogDocument::CDialogDocument;
    // Ends the window while this class still handles its messages: later the view would stay in vector definition.
    ~PickingDialog() override;

    BOOL OnInitDialog() override;
    BOOL DestroyWindow() override;

  protected:
    // The window is going. The edits still lose the focus then: a text that does not parse must not hold the closing up
    // with a message.
    bool IsClosing() const { return m_closing; }

    // Asks the view for a point; nothing happens without a view. The prompt may be empty.
    void StartPicking(const CString& prompt = CString());
    // Asks for one more point, which then arrives at SetVettoreFrom again.
    void RestartPicking(const CString& prompt);
    // What happens to the picking when the window goes: the mode is stopped where it is still on.
    virtual void EndPicking();

    void OnDestroy();

  private:
    bool m_closing = false;

    DECLARE_MESSAGE_MAP()
};

// The same with the common confirm: OK reads the controls, and only when every field was accepted runs the command.
class ConfirmedDialog : public PickingDialog {
  public:
    using PickingDialog::PickingDialog;

    void OnOK() override;
};
