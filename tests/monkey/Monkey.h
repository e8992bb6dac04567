// A user who does anything: picks commands, clicks, drags, types, closes, undoes, saves, opens, answers at random. It
// knows no dialog by name: it walks the menus, the table of commands and the controls of whatever window is open.
#pragma once

#include "platform/window/Application.h"
#include "tests/monkey/Random.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class QFileDialog;
class QWidget;
namespace host {
class HostView;
class Workspace;
} // namespace host

class Monkey : public QObject {
  public:
    // Files are read from and written into the folder.
    Monkey(std::uint64_t seed, std::string folder);
    ~Monkey() override;

    void Run(int events);
    std::size_t StepsChecked() const { return m_steps; }
    // What the user answers to a message box.
    int Answer(const CString& text, LPCTSTR caption, UINT type);

  private:
    // ---- Time. Each event is over when its queues are empty; a loop inside it (a modal dialog, a menu) is fed too.
    void Start(); // the application anew
    void Stop();
    bool HasEnded();
    bool IsAwaited() const;
    void Beat();
    void Turn();
    void Settle();
    void Check(bool whole); // with the history and the file
    bool HasModel() const;
    bool IsTooLarge() const;

    // ---- Choosing
    void Act();
    void ActOnPopup(QWidget& popup);
    void ActOnView();
    void ActIn(QWidget& window);
    void FillIn(QWidget& window);
    void ActOn(QWidget& control);
    void Trigger();
    void AnswerFile(QFileDialog& dialog);
    void CloseTop();

    // ---- Doing
    void Click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton, bool twice = false);
    void Press(QWidget& window);
    void Type(QWidget& window);

    std::vector<QWidget*> Windows();
    QPoint PointIn(QWidget& widget);
    QPoint PointIn(host::HostView& view); // often of a node
    std::string FileToOpen();

    Random m_random;
    std::string m_folder;
    std::vector<std::string> m_models;
    std::unique_ptr<host::Workspace> m_workspace;
    std::vector<QPointer<QWidget>> m_known; // windows in the order in which they were seen
    QTimer m_beat;
    int m_level = 0;    // of the loop that is being fed
    bool m_due = false; // a turn is queued
    bool m_ending = false;
    int m_attempts = 0;      // to close what is open
    std::size_t m_steps = 0; // of undo, walked through
};

class MonkeyApp : public CWinApp {
  public:
    MonkeyApp(int& argc, char** argv) : CWinApp("Quovar", argc, argv) {}

    Monkey* monkey = nullptr; // null answers nothing
    int ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type) override;
    int AskReally(LPCTSTR text, LPCTSTR caption, UINT type) { return CWinApp::ShowMessageBox(text, caption, type); }
};
