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
    auto* buttons = new QDialogButtonBox;
    buttons->addButton("OK", QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton("Annulla", QDialogButtonBox::RejectRole);
    all->addWidget(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    QObject::connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
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
