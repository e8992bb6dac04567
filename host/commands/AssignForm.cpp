#include "host/commands/AssignForm.h"

#include "platform/window/Application.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace host {

AssignForm::AssignForm(QWidget& parent, const QString& title) : QDialog(&parent) {
    setWindowTitle(title);
    auto* all = new QVBoxLayout(this);
    m_content = new QVBoxLayout;
    all->addLayout(m_content);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

// Tab goes in the order in which the controls come into the dialog, so the buttons come last.
bool AssignForm::Ask() {
    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton("OK", QDialogButtonBox::AcceptRole);
    buttons->addButton("Annulla", QDialogButtonBox::RejectRole);
    layout()->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    // Otherwise Enter presses the button that has the focus.
    for (QPushButton* each : findChildren<QPushButton*>())
        each->setAutoDefault(false);
    ok->setDefault(true);
    QWidget* last = nullptr;
    QList<QWidget*> controls = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QAbstractButton* each : buttons->buttons())
        controls << each;
    for (QWidget* each : controls) {
        if (!(each->focusPolicy() & Qt::TabFocus))
            continue;
        if (last)
            setTabOrder(last, each);
        else
            each->setFocus(Qt::TabFocusReason);
        last = each;
    }
    return exec() == Accepted;
}

void AssignForm::accept() {
    if (!m_check || m_check())
        QDialog::accept();
}

QLineEdit* NumberField(const QString& name, double value) {
    auto* edit = new QLineEdit(QString::number(value, 'g', 15));
    edit->setObjectName(name);
    edit->setMaximumWidth(140);
    return edit;
}

bool RefuseField(QLineEdit& edit, const CString& message) {
    AfxMessageBox(message);
    edit.setFocus();
    edit.selectAll();
    return false;
}

bool ReadNumber(QLineEdit& edit, double& value) {
    bool ok = false;
    value = edit.text().trimmed().toDouble(&ok);
    return (ok && std::isfinite(value)) || RefuseField(edit, "Immettere un numero.");
}

} // namespace host
