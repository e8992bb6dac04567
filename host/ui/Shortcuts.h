// The shortcuts of the commands, which each user may change.
#pragma once

#include <QKeySequence>
#include <QString>

#include <vector>

class QAction;
class QSettings;
class QWidget;

namespace host {

struct Shortcut {
    QAction* action; // the main window's; its name is the command's
    QString caption; // with its menu
    QKeySequence standard;
};
using Shortcuts = std::vector<Shortcut>;

// Gives the commands what the settings say; those of which they say nothing have their standard ones.
void RestoreShortcuts(const Shortcuts& shortcuts, const QSettings& settings);
// Lets the user change them in a dialog. What differs from the standard goes into the settings; null keeps it for this
// run only. False when the user cancels.
bool EditShortcuts(QWidget& parent, const Shortcuts& shortcuts, QSettings* settings);

// Why the text is no shortcut of a command; empty for one that can be, and for none. Keys without Ctrl or Alt belong to
// what has the focus, but for function keys and Del.
QString RefusalOfKeys(const QString& text);

} // namespace host
