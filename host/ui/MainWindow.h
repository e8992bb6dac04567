// The main window: sub-windows of views, menus, tool bar, status bar.
#pragma once

#include "dialogs/frame/host/MainFrame.h"
#include "host/ui/WaitIndicator.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/MessageMap.h"

#include <QMainWindow>

#include <memory>
#include <utility>
#include <vector>

class QComboBox;
class QLabel;
class QMdiArea;
class QMdiSubWindow;

namespace host {

class HostView;
class MainMenu;
class Workspace;

// The main window as the dialogs see it.
class HostFrame final : public CMainFrame {
  public:
    explicit HostFrame(Workspace& workspace) : m_workspace(workspace) {}

    CRect& GetRectClientTabella() override;

  private:
    void OnClose();
    void OnFileNew();

    DECLARE_MESSAGE_MAP()

    Workspace& m_workspace;
    CRect m_tableRect;
};

class MainWindow final : public platform::HostedWidget<QMainWindow> {
  public:
    explicit MainWindow(Workspace& workspace);
    ~MainWindow() override;

    HostFrame& Frame() { return m_frame; }
    WaitIndicator& Wait() { return *m_wait; }
    QMdiArea& Area() { return *m_area; }
    std::vector<CToolBar*> ToolBars() const; // owned by their windows

    void AddView(HostView& view);
    void RemoveView(HostView& view); // the view closes itself
    void ShowView(HostView& view);   // makes it the active one
    void ShowAsTabs();
    void ChooseLoadCase(); // by keyboard, in the list of the tool bar

    // Brings menus, tool bar, titles and status bar up to date, once, when control is back in the loop.
    void ScheduleRefresh();
    void Refresh();
    void ShowCoordinates(const QString& text);
    void ShowSentence(const QString& text); // what became of a command; empty for nothing to say

    // Commands by name ("file.salva", "modifica.annulla"), those of dialogs by ActionName; null when there is none.
    QAction* Command(const QString& name) const { return findChild<QAction*>(name); }
    const MainMenu& Menus() const { return *m_menu; }
    QAction* CommandOf(const QKeySequence& key) const; // the one of that shortcut; null when there is none
    QString PromptText() const;
    QString SentenceText() const;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void BuildStatusBar();
    void BuildToolBar();
    void ShowPrompt(HostView* view);
    void RefreshLoadCases(HostView* view);
    void FillTab();
    QMdiSubWindow* WindowOf(const HostView& view) const;

    Workspace& m_workspace;
    HostFrame m_frame;
    QMdiArea* m_area; // this and the next are owned by the window
    QLabel* m_prompt = nullptr;
    QLabel* m_sentence = nullptr;
    QLabel* m_selected = nullptr;
    QLabel* m_coordinates = nullptr;
    QLabel* m_unit = nullptr;
    QComboBox* m_loadCase = nullptr;
    std::vector<std::pair<int, QString>> m_loadCases; // what the box lists
    std::unique_ptr<WaitIndicator> m_wait;
    std::unique_ptr<MainMenu> m_menu;
    bool m_refreshScheduled = false;
};

} // namespace host
