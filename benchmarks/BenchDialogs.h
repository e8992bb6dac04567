// The dialogs that are measured.
#pragma once

#include "platform/Dialog.h"
#include "platform/ListBox.h"
#include "platform/Resource.h"

#include <vector>

namespace bench {

// A form of 25 controls: ten labels with their edits, a check box, two radio buttons, OK and Annulla.
inline constexpr int FormTemplate = 1;
inline constexpr int FormFields = 10;
inline constexpr int FirstEdit = 100;
// An extended-selection list that fills its dialog.
inline constexpr int ListTemplate = 2;
inline constexpr int ListControl = 1004;

// Puts the templates into the chain; once, before any dialog.
void installTemplates();
const std::vector<platform::ControlTemplate>& formControls();

class ListDialog : public CDialog {
  public:
    ListDialog() { Create(ListTemplate); }

    CListBox list;

  protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// Counts the notifications of its first edit.
class FormDialog : public CDialog {
  public:
    BOOL Open() { return Create(FormTemplate); }
    int changes = 0;

  protected:
    void OnChange() { ++changes; }

    DECLARE_MESSAGE_MAP()
};

} // namespace bench
