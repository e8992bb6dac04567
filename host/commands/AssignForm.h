// What the dialogs that assign something have in common.
#pragma once

#include "platform/core/String.h"

#include <QDialog>
#include <QString>

#include <functional>

class QLineEdit;
class QVBoxLayout;

namespace host {

// A titled dialog with rows above OK and Annulla. It opens in its first field, Tab goes through the fields before the
// buttons, and Enter is OK wherever it is pressed.
class AssignForm final : public QDialog {
  public:
    AssignForm(QWidget& parent, const QString& title);

    QVBoxLayout& Content() { return *m_content; }
    // Answers whether what was entered can be used, after telling the user why not.
    void SetCheck(std::function<bool()> check) { m_check = std::move(check); }
    // Once the content is there. False when the user cancels.
    bool Ask();

    void accept() override;

  private:
    QVBoxLayout* m_content;
    std::function<bool()> m_check;
};

// The decimal separator is the full stop, as everywhere in the application. The caller puts the field into a layout,
// which gives it an owner.
QLineEdit* NumberField(const QString& name, double value);
// Tells the message and goes to the field, which keeps what was typed. False, for the caller to return.
bool RefuseField(QLineEdit& edit, const CString& message);
// False, and the user was told, unless the field is a finite number.
bool ReadNumber(QLineEdit& edit, double& value);

} // namespace host
