// Asks under which name something is saved.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace host {

// The extension of the chosen kind of file is added to a name without one before the user is asked whether a file of
// that name may be overwritten. The kinds are written "Progetti (*.asg)". Empty when the user cancels.
QString AskSaveName(QWidget* parent, const QString& title, const QString& proposed, const QStringList& kinds);

} // namespace host
