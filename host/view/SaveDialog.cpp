#include "host/view/SaveDialog.h"

#include <QFileDialog>
#include <QFileInfo>

namespace host {

QString AskSaveName(QWidget* parent, const QString& title, const QString& proposed, const QStringList& kinds) {
    QFileDialog dialog(parent, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(kinds);
    const auto follow = [&dialog](const QString& kind) {
        dialog.setDefaultSuffix(kind.section("*.", 1, 1).section(')', 0, 0));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow(kinds.first());
    const QFileInfo file(proposed);
    if (file.isAbsolute())
        dialog.setDirectory(file.absolutePath());
    dialog.selectFile(file.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace host
