// Tests of modal dialogs.
#pragma once

#include "platform/window/Dialog.h"
#include "tests/support/DialogTest.h"

#include <functional>
#include <string>
#include <vector>

// A modal dialog that has ended is hidden at once and destroyed when its loop is left.
inline bool IsShown(const DialogDriver& driver) {
    return driver.IsOpen() && driver.Visible(IDCANCEL);
}

// Buttons as a line of 0 and 1.
inline std::string EnabledLine(const DialogDriver& driver, const std::vector<int>& ids) {
    std::string line;
    for (const int id : ids)
        line += driver.Enabled(id) ? '1' : '0';
    return line;
}

class ModalTest : public DialogTest {
  protected:
    // Runs the dialog, cancels it after the action unless that closed it, and gives its result.
    int Run(CDialog& dialog, const std::function<void(DialogDriver&)>& action) {
        m_user.WhenDialogOpens([action](DialogDriver& driver) {
            action(driver);
            if (IsShown(driver))
                driver.Click(IDCANCEL);
        });
        return dialog.DoModal();
    }
};
