// The menus of the main window and their commands.
#pragma once

#include "host/commands/Commands.h"
#include "host/ui/Shortcuts.h"

#include <QKeySequence>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QMenu;

namespace host {

class HostView;
class MainWindow;
class Workspace;

class MainMenu {
  public:
    // Puts the menus into the window's menu bar; the commands are children of the window, named by their place.
    MainMenu(MainWindow& window, Workspace& workspace);

    // Enables what the view (null for none) can do and shows its state.
    void Refresh(HostView* view);

    // Of all commands, in menu order.
    const Shortcuts& Keys() const { return m_keys; }

  private:
    struct Item {
        QAction* action; // owned by the window
        Needs needs;
        std::function<bool(HostView&)> checked; // for commands with a check mark
    };

    QAction* Add(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys, Needs needs,
                 std::function<void()> run);
    // A command on the active view.
    QAction* AddForView(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys,
                        std::function<void(HostView&)> run);
    // One that is on or off in each view.
    QAction* AddToggle(QMenu& menu, const QString& name, const QString& text, std::function<bool(HostView&)> state,
                       std::function<void(HostView&, bool)> set);
    void BuildFile();
    void BuildEdit();
    void BuildView();
    void BuildShown(QMenu& menu);
    void BuildDrawing();
    void BuildSelection();
    void BuildAssign();
    void BuildAnalysis();
    void BuildTools();
    void BuildWindow();
    void BuildHelp();
    QMenu& Menu(const QString& title);
    void AddDialogs(QMenu& menu, CommandMenu which);
    void BuildDialogs(const QString& title, CommandMenu which);

    MainWindow& m_window;
    Workspace& m_workspace;
    std::vector<Item> m_items;
    Shortcuts m_keys;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
};

} // namespace host
