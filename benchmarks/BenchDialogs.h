// The dialogs that are measured.
#pragma once

#include "platform/controls/ListBox.h"
#include "platform/resource/Resource.h"
#include "platform/window/Dialog.h"

#include <vector>

namespace bench {

// A form of 25 controls: ten labels with their edits, a check box, two radio buttons, OK and Annulla.
inline constexpr int formTemplate = 1;
inline constexpr int formFields = 10;
inline constexpr int firstEdit = 100;
// An extended-selection list that fills its dialog.
inline constexpr int listTemplate = 2;
inline constexpr int listControl = 1004;

// Puts the templates into the chain; once, before any dialog.
void InstallTemplates();
const std::vector<platform::ControlTemplate>& FormControls();

class ListDialog : public CDialog {
  public:
    ListDialog() { Create(listTemplate); }

    CListBox list;

  protected:
    void DoDataExchange(CDataExchange* pDX) override;
};

// Counts the notifications of its first edit.
class FormDialog : public CDialog {
  public:
    BOOL Open() { return Create(formTemplate); }
    int changes = 0;

  protected:
    void OnChange() { ++changes; }

    DECLARE_MESSAGE_MAP()
};

} // namespace bench
