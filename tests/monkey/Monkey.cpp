#include "tests/monkey/Monkey.h"

#include "dialogs/frame/tool/DialogDocument.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "platform/toolkit/Bridge.h"
#include "tests/monkey/Consistency.h"
#include "tests/monkey/EventLog.h"
#include "tests/monkey/Files.h"
#include "tests/monkey/Hand.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <set>

using namespace host;
using eventlog::Event;
using hand::Drag;
using hand::Key;
using hand::Leaves;
using hand::NameOf;

namespace {

constexpr int wholeCheckEvery = 40; // events between two walks through the whole history

int LoopLevel() {
    return QThread::currentThread()->loopLevel();
}

void CollectActions(const QList<QAction*>& actions, std::vector<QAction*>& leaves) {
    for (QAction* each : actions)
        if (each->menu())
            CollectActions(each->menu()->actions(), leaves);
        else if (each->isEnabled() && !each->isSeparator())
            leaves.push_back(each);
}

} // namespace

Monkey::Monkey(std::uint64_t seed, std::string folder)
    : m_random(seed), m_folder(std::move(folder)), m_models(WriteModels(m_folder)) {
    static_cast<MonkeyApp*>(AfxGetApp())->monkey = this;
    HostView::pictureFileHook = [this] {
        return m_random.Chance(50) ? QString() : QString::fromStdString(m_folder + "/immagine.png");
    };
    QObject::connect(&m_beat, &QTimer::timeout, this, [this] { Beat(); });
    m_beat.start(1);
}

Monkey::~Monkey() {
    HostView::pictureFileHook = nullptr;
    static_cast<MonkeyApp*>(AfxGetApp())->monkey = nullptr;
}

// ---- Time

void Monkey::Run(int events) {
    const int last = eventlog::Count() + events;
    int nextWhole = eventlog::Count() + wholeCheckEvery;
    while (eventlog::Count() < last) {
        if (!m_workspace || !m_workspace->Window().isVisible() || HasEnded() || IsTooLarge())
            Start();
        Act();
        Settle();
        const bool whole = eventlog::Count() >= nextWhole;
        Check(whole);
        if (whole)
            nextWhole = eventlog::Count() + wholeCheckEvery;
    }
    m_ending = true;
    while (QApplication::activePopupWidget()) {
        CloseTop();
        Settle();
    }
    Stop();
}

void Monkey::Start() {
    Stop();
    Event("start");
    m_workspace = std::make_unique<Workspace>();
    m_workspace->Window().show();
    if (!m_random.Chance(90) || !m_workspace->Open(QString::fromStdString(m_random.Of(m_models))))
        m_workspace->NewDocument();
    Settle();
}

void Monkey::Stop() {
    Check(true);
    m_workspace.reset();
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
    Settle();
    for (const QWidget* each : QApplication::topLevelWidgets())
        if (each->windowType() != Qt::Desktop)
            eventlog::Fail("a window is left over: " + NameOf(*each));
}

// The application's end is remembered until its loop runs again; until then no dialog stays open.
bool Monkey::HasEnded() {
    const QScopedValueRollback<int> ours(m_level, 1);
    QEventLoop probe;
    QTimer::singleShot(0, &probe, [&probe] { probe.exit(0); });
    return probe.exec() != 0;
}

// A loop that an event has started waits for the user; a command at work lets nobody in but to its messages.
bool Monkey::IsAwaited() const {
    return m_workspace && LoopLevel() > m_level && (!m_workspace->IsWaiting() || QApplication::activeModalWidget());
}

void Monkey::Beat() {
    if (m_due || !IsAwaited())
        return;
    m_due = true; // not from the timer itself, which rests while it is served
    QMetaObject::invokeMethod(
        this, [this] { Turn(); }, Qt::QueuedConnection);
}

void Monkey::Turn() {
    m_due = false;
    if (!IsAwaited())
        return;
    const QScopedValueRollback<int> feeding(m_level, LoopLevel());
    if (m_ending || m_level > 8)
        CloseTop();
    else
        Act();
    Settle();
}

void Monkey::Settle() {
    for (int i = 0; i < 3; ++i)
        m_level > 0 ? QApplication::processEvents() : CWinApp::PumpMessages();
    // A cancelled dialog without a view is noticed by a clock; nothing else may depend on one.
    for (const QWidget* each : QApplication::topLevelWidgets())
        if (auto* tool = dynamic_cast<CDialogDocument*>(platform::DialogOf(each)); tool && tool->IsCancel())
            return QTest::qWait(300);
}

void Monkey::Check(bool whole) {
    std::set<HostDocument*> seen;
    for (std::size_t i = 0; m_workspace && i < m_workspace->Views().size(); ++i) {
        HostDocument& document = m_workspace->Views()[i]->Document();
        if (!seen.insert(&document).second)
            continue;
        eventlog::Expect(DocumentFault(document));
        if (document.Undo().IsInBracket())
            eventlog::Fail("a step of undo was left open");
        if (whole) {
            eventlog::Expect(FileFault(document.Data(), m_folder));
            m_steps += document.Undo().UndoCount() + document.Undo().RedoCount();
            eventlog::Expect(UndoFault(document));
            Settle();
        }
    }
}

bool Monkey::HasModel() const {
    HostView* view = m_workspace->ActiveView();
    return view && view->Document().GetSizeNodi() > 0;
}

bool Monkey::IsTooLarge() const {
    std::size_t size = 0, steps = 0;
    for (const auto& view : m_workspace->Views()) {
        HostDocument& document = view->Document();
        size += static_cast<std::size_t>(document.GetSizeNodi() + document.GetSizeElementi());
        steps += document.Undo().UndoCount();
    }
    return size > 1500 || steps > 150 || m_workspace->Views().size() > 6;
}

// ---- Choosing

void Monkey::Act() {
    QWidget* modal = QApplication::activeModalWidget();
    if (QWidget* popup = QApplication::activePopupWidget())
        return ActOnPopup(*popup);
    if (modal && m_random.Chance(95))
        return ActIn(*modal);
    const int choice = m_random.Below(100);
    if (choice < 25 && !modal && !HasModel()) {
        Event("open a model");
        m_workspace->Open(QString::fromStdString(m_random.Of(m_models)));
    } else if (choice < 35 && !modal) {
        Trigger();
    } else if (choice < 55) {
        ActOnView();
    } else if (const std::vector<QWidget*> windows = Windows(); !windows.empty()) {
        ActIn(m_random.Chance(60) ? *windows.back() : *m_random.Of(windows));
    }
}

void Monkey::ActOnPopup(QWidget& popup) {
    static const int keys[] = {Qt::Key_Down, Qt::Key_Down,   Qt::Key_Up,     Qt::Key_Right,
                               Qt::Key_Left, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab};
    if (m_random.Chance(50))
        Key(popup, m_random.Of(keys));
    else
        Click(popup, PointIn(popup));
}

void Monkey::ActOnView() {
    if (m_workspace->Views().empty())
        return;
    HostView& view = *m_random.Of(m_workspace->Views());
    ViewWidget& widget = view.Widget();
    static const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::MiddleButton,
                                              Qt::RightButton};
    const QPoint from = PointIn(view), to = PointIn(view);
    const int choice = m_random.Below(10);
    if (choice < 6)
        Click(widget, from, m_random.Of(buttons), m_random.Chance(10));
    else if (choice < 8)
        Drag(widget, from, to, m_random.Of(buttons));
    else if (choice < 9)
        hand::Wheel(widget, from, m_random.Below(7) - 3);
    else
        Press(*widget.QWidget::window());
}

void Monkey::ActIn(QWidget& window) {
    if (auto* files = qobject_cast<QFileDialog*>(&window))
        return AnswerFile(*files);
    const int choice = m_random.Below(100);
    const std::vector<QWidget*> leaves = Leaves(window, m_random.Chance(5));
    if (choice < 6 && &window != &m_workspace->Window())
        return FillIn(window);
    if (choice < 60 && !leaves.empty())
        return ActOn(*m_random.Of(leaves));
    if (choice < 75 && &window != &m_workspace->Window())
        return Key(window, choice < 70 ? Qt::Key_Return : Qt::Key_Escape);
    if (choice < 96)
        return Press(window);
    if (choice < 98) {
        Event("resize " + NameOf(window));
        window.resize(window.size() + QSize(m_random.Below(200) - 100, m_random.Below(200) - 100));
    } else if (&window != &m_workspace->Window() || m_random.Chance(20)) {
        Event("close " + NameOf(window));
        window.close();
    }
}

// As one who knows what the dialog is for.
void Monkey::FillIn(QWidget& window) {
    const QPointer<QWidget> alive(&window);
    std::vector<QPointer<QWidget>> edits;
    for (QWidget* each : Leaves(window, false))
        if (hand::IsText(*each))
            edits.push_back(each);
    for (const QPointer<QWidget>& each : edits)
        if (alive && each && each->isVisible() && m_random.Chance(70)) {
            Click(*each, each->rect().center());
            if (alive)
                Type(*alive);
        }
    if (alive)
        Key(*alive, Qt::Key_Return);
}

void Monkey::ActOn(QWidget& control) {
    const QPointer<QWidget> alive(&control), window(control.window());
    const int choice = m_random.Below(20);
    if (choice == 0)
        return hand::Wheel(control, PointIn(control), m_random.Below(7) - 3);
    if (choice == 1)
        return Drag(control, PointIn(control), PointIn(control), Qt::LeftButton);
    const bool right = choice == 2, twice = choice == 3;
    Click(control, m_random.Chance(70) ? control.rect().center() : PointIn(control),
          right ? Qt::RightButton : Qt::LeftButton, twice);
    if (alive && window && hand::IsText(*alive) && alive->isVisible() && m_random.Chance(80))
        Type(*window);
}

// What makes others possible, a command of the table, or any of the menus.
void Monkey::Trigger() {
    static const char* const frequent[] = {"modifica.seleziona_tutto",
                                           "modifica.seleziona_tutto",
                                           "modifica.annulla",
                                           "modifica.ripristina",
                                           "analisi.esegui",
                                           "file.salva",
                                           "file.apri"};
    MainWindow& window = m_workspace->Window();
    window.Refresh();
    const Command& command = *m_random.Of(Commands());
    const int choice = m_random.Below(100);
    QAction* action =
        window.Command(choice < 30 ? QString(m_random.Of(frequent)) : ActionName(command.dialog, command.kind));
    if (choice >= 75) {
        std::vector<QAction*> leaves;
        CollectActions(window.menuBar()->actions(), leaves);
        action = m_random.Of(leaves);
    }
    if (action && action->isEnabled()) {
        Event("command " + action->text().toStdString());
        action->trigger();
    } else if (!action) {
        Event("command " + CaptionOf(command).toStdString());
        m_workspace->Execute([&] { m_workspace->Run(command); });
    }
}

std::string Monkey::FileToOpen() {
    if (m_random.Chance(25))
        return WriteMutated(m_random, m_random.Of(m_models));
    return m_random.Chance(50) ? m_random.Of(m_models)
                               : m_folder + "/salvato" + std::to_string(m_random.Below(3)) + ".asg";
}

void Monkey::AnswerFile(QFileDialog& dialog) {
    static const char* const names[] = {"/salvato0.asg", "/salvato1.asg", "/salvato2", "/manca/qui.asg"};
    const std::string path =
        dialog.acceptMode() == QFileDialog::AcceptSave ? m_folder + m_random.Of(names) : FileToOpen();
    if (m_random.Chance(15)) {
        Event("no file");
        return dialog.reject();
    }
    Event("file " + path);
    dialog.selectFile(QString::fromStdString(path));
    dialog.QDialog::done(QDialog::Accepted); // its own asks what a thread has found of the folder so far
}

// The user is leaving: Escape ends every dialog and every menu.
void Monkey::CloseTop() {
    QWidget* top = QApplication::activePopupWidget();
    if (!top)
        top = QApplication::activeModalWidget();
    if (!top)
        return;
    if (++m_attempts > 100)
        eventlog::Fail("Escape does not end " + NameOf(*top));
    Key(*top, Qt::Key_Escape);
}

int Monkey::Answer(const CString& text, LPCTSTR caption, UINT type) {
    const std::string shown = text.ToUtf8();
    Event("message " + shown);
    if (shown.empty() || shown.starts_with("Si è verificato un errore"))
        eventlog::Fail("a message that tells the user nothing");
    if (!m_ending && m_workspace && m_random.Chance(20))
        return static_cast<MonkeyApp*>(AfxGetApp())->AskReally(text, caption, type);
    static const int answers[][3] = {{IDOK, IDOK, IDOK},      {IDOK, IDCANCEL, IDOK}, {IDABORT, IDRETRY, IDIGNORE},
                                     {IDYES, IDNO, IDCANCEL}, {IDYES, IDNO, IDNO},    {IDRETRY, IDCANCEL, IDCANCEL}};
    const int* possible = answers[std::min<UINT>(type & MB_TYPEMASK, 5)];
    return m_ending ? possible[2] : possible[m_random.Below(3)];
}

int MonkeyApp::ShowMessageBox(LPCTSTR text, LPCTSTR caption, UINT type) {
    return monkey ? monkey->Answer(text, caption, type) : IDCANCEL;
}

// ---- Doing

// In the order in which they came: the toolkit's own hangs on addresses.
std::vector<QWidget*> Monkey::Windows() {
    std::erase_if(m_known, [](const QPointer<QWidget>& each) { return !each; });
    QWidgetList fresh = QApplication::topLevelWidgets();
    fresh.removeIf([this](QWidget* each) { return std::find(m_known.begin(), m_known.end(), each) != m_known.end(); });
    std::sort(fresh.begin(), fresh.end(), [](const QWidget* a, const QWidget* b) { return NameOf(*a) < NameOf(*b); });
    m_known.insert(m_known.end(), fresh.begin(), fresh.end());
    std::vector<QWidget*> shown;
    for (QWidget* each : m_known)
        if (each->isVisible() && each->windowHandle() && each->windowType() != Qt::ToolTip)
            shown.push_back(each);
    return shown;
}

QPoint Monkey::PointIn(QWidget& widget) {
    return {m_random.Below(widget.width()), m_random.Below(widget.height())};
}

QPoint Monkey::PointIn(HostView& view) {
    HostDocument& document = view.Document();
    const int nodes = document.GetSizeNodi();
    if (nodes == 0 || m_random.Chance(30))
        return PointIn(view.Widget());
    const CPoint at = view.Vista().Project(*document.GetIndexNodo(m_random.Below(nodes))->GetPunto()).Pixel();
    const QRect inside = view.Widget().rect();
    return inside.contains(at.x, at.y) ? QPoint(at.x, at.y) : PointIn(view.Widget());
}

void Monkey::Click(QWidget& widget, QPoint at, Qt::MouseButton button, bool twice) {
    static const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier,    Qt::NoModifier,
                                                      Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    hand::Click(widget, at, button, m_random.Of(modifiers), twice);
}

// No digits: a number that grows key by key asks for a million copies.
void Monkey::Press(QWidget& window) {
    static const int keys[] = {Qt::Key_Tab,  Qt::Key_Tab,     Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space,
                               Qt::Key_Up,   Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Home,
                               Qt::Key_End,  Qt::Key_PageUp,  Qt::Key_F2,     Qt::Key_F5,     Qt::Key_Insert,
                               Qt::Key_Plus, Qt::Key_PageDown};
    const int choice = m_random.Below(10);
    if (m_random.Chance(3))
        return Key(window, Qt::Key_Delete);
    if (choice < 7)
        return Key(window, m_random.Of(keys), m_random.Chance(15) ? Qt::ShiftModifier : Qt::NoModifier);
    const int letter = Qt::Key_A + m_random.Below(26);
    Key(window, letter,
        choice == 7   ? Qt::AltModifier
        : choice == 8 ? Qt::ControlModifier
                      : Qt::NoModifier,
        choice == 8 ? QString() : QString(QChar(letter)).toLower());
}

void Monkey::Type(QWidget& window) {
    static const char* const sound[] = {"0", "1", "2", "3", "4", "-1", "5", "0.5", "-2.5", "90", "12", "Neve 1"};
    static const char* const others[] = {"1e308", "-1e-30", "", "abc", "nan", "1,5", "perché", "360", "1e5000", "-0"};
    hand::Type(window, QString::fromUtf8(m_random.Chance(80) ? m_random.Of(sound) : m_random.Of(others)));
}
