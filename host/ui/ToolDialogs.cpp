#include "host/ui/ToolDialogs.h"

#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/DeferredDelete.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "model/values/Path.h"
#include "platform/core/Exception.h"
#include "platform/toolkit/Bridge.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int orphanWatchMilliseconds = 200;

bool LiesInView(const CDialog& dialog) {
    return dialog.GetStyle() & WS_CHILD;
}

// Beside the main window where the screen has room, otherwise inside the view's right edge, and a caption lower for
// each window that stands there already.
QPoint FreePlace(const QWidget& window, const HostView& view, int others) {
    const QWidget& viewWidget = view.Widget();
    const QRect screen = viewWidget.screen()->availableGeometry();
    const QRect frame = viewWidget.window()->frameGeometry();
    const QPoint viewCorner = viewWidget.mapToGlobal(QPoint(viewWidget.width(), 0));
    constexpr int gap = 8, cascade = 28;
    QPoint place(frame.right() + gap, viewCorner.y() + others * cascade);
    if (place.x() + window.frameGeometry().width() > screen.right())
        place.setX(viewCorner.x() - window.frameGeometry().width() - gap);
    return place;
}

QString PlaceName(const Command& command) {
    return QStringLiteral("%1-%2").arg(command.dialog).arg(command.kind);
}

// What the caption of a dialog begins with; empty for a document that has no file.
CString CaptionPrefix(const CString& path) {
    CString name;
    return SplitPath(path, nullptr, nullptr, &name, nullptr) ? name + " : " : CString();
}

} // namespace

ToolDialogs::ToolDialogs() {
    m_orphanWatch.setInterval(orphanWatchMilliseconds);
    QObject::connect(&m_orphanWatch, &QTimer::timeout, [this] { EndCancelledOrphans(); });
}

ToolDialogs::~ToolDialogs() {
    EndAll();
}

template <class Condition>
std::shared_ptr<ToolDialogs::Tool> ToolDialogs::FindLast(const Condition& condition) const {
    const auto found =
        std::find_if(m_tools.rbegin(), m_tools.rend(), [&condition](const auto& each) { return condition(*each); });
    return found == m_tools.rend() ? nullptr : *found;
}

std::shared_ptr<ToolDialogs::Tool> ToolDialogs::OpenAt(const HostView& view, UINT dialog) const {
    return FindLast([&](const Tool& each) { return each.view == &view && each.command->dialog == dialog; });
}

CDialogDocument* ToolDialogs::Latest(const HostView& view) const {
    const auto found = FindLast([&view](const Tool& each) { return each.view == &view && each.tool; });
    return found ? found->tool : nullptr;
}

bool ToolDialogs::IsOpen(const CDialog* dialog, const HostView& view) const {
    return dialog &&
           FindLast([&](const Tool& each) { return each.view == &view && each.dialog.get() == dialog; }) != nullptr;
}

HostView* ToolDialogs::ViewOf(HWND control) const {
    const CWnd* window = CWnd::FromHandle(control);
    const QWidget* widget = window ? platform::WidgetOf(*window) : nullptr;
    const auto found = FindLast([widget](const Tool& each) {
        const QWidget* its = each.dialog ? platform::WidgetOf(*each.dialog) : nullptr;
        return widget && its && (its == widget || its->isAncestorOf(widget));
    });
    return found ? found->view : nullptr;
}

int ToolDialogs::RangeAxis(const HostDocument& document) const {
    const QWidget* active = QApplication::activeWindow();
    std::shared_ptr<Tool> found;
    for (const auto& each : m_tools)
        if (each->document == &document && each->dialog && each->command->rangeAxis >= 0) {
            found = each;
            if (active && platform::WidgetOf(*each->dialog) == active)
                break;
        }
    return found ? found->command->rangeAxis : -1;
}

CDialog* ToolDialogs::Open(const Command& command, HostView& view, CWnd& frame) {
    EndClosed();
    if (const auto former = OpenAt(view, command.dialog)) {
        if (former->command == &command)
            return BringToFront(*former);
        End(former);
    }
    // Listed before its window is made: that may already ask for points.
    const auto tool = std::make_shared<Tool>(Tool{&command, &view.Document(), &view, nullptr});
    m_tools.push_back(tool);
    CDialog* opened = Make(*tool, frame);
    if (!opened)
        End(tool);
    return opened;
}

CDialog* ToolDialogs::Make(Tool& tool, CWnd& frame) {
    const QScopedValueRollback<Tool*> calling(m_caller, &tool);
    const auto others = std::count_if(m_tools.begin(), m_tools.end(), [&tool](const auto& each) {
        return each->view == tool.view && each->command->place == Place::BesideView;
    });
    tool.dialog = tool.command->open(*tool.view, frame);
    if (!tool.dialog)
        return nullptr;
    tool.tool = dynamic_cast<CDialogDocument*>(tool.dialog.get());
    QWidget& window = *platform::WidgetOf(*tool.dialog);
    // Some end themselves.
    QObject::connect(&window, &QObject::destroyed, &m_orphanWatch, [this] { EndClosed(); });
    const bool inside = LiesInView(*tool.dialog);
    if (!inside)
        PutInPlace(*tool.command, window, FreePlace(window, *tool.view, static_cast<int>(others) - 1));
    tool.dialog->ShowWindow(SW_SHOW);
    tool.place = window.geometry().topLeft();
    if (!inside)
        tool.dialog->SetActiveWindow();
    return tool.dialog.get();
}

CDialog* ToolDialogs::BringToFront(Tool& tool) {
    const QScopedValueRollback<Tool*> calling(m_caller, &tool);
    QWidget& window = *platform::WidgetOf(*tool.dialog);
    if (window.isMinimized())
        window.showNormal();
    window.raise();
    tool.dialog->SetActiveWindow();
    ResumePicking(tool);
    return tool.dialog.get();
}

void ToolDialogs::End(const CDialog* dialog) {
    if (dialog)
        End(FindLast([dialog](const Tool& each) { return each.dialog.get() == dialog; }));
}

// Where the user left it, or a free place. One that places itself is only kept on the screen.
void ToolDialogs::PutInPlace(const Command& command, QWidget& window, QPoint free) const {
    if (const auto kept = m_places.PlaceOf(PlaceName(command)))
        MoveOntoScreen(window, *kept);
    else if (command.place == Place::Own)
        window.move(OntoScreen(window.frameGeometry()).topLeft());
    else
        MoveOntoScreen(window, free);
}

// Where the user has moved it to.
void ToolDialogs::RememberPlace(const Tool& tool) {
    if (!tool.dialog || !tool.dialog->GetSafeHwnd() || LiesInView(*tool.dialog))
        return;
    const QWidget* window = platform::WidgetOf(*tool.dialog);
    if (window && window->isVisible() && !window->isMinimized() && window->geometry().topLeft() != tool.place)
        m_places.Remember(PlaceName(*tool.command), window->geometry().topLeft());
}

void ToolDialogs::End(std::shared_ptr<Tool> tool) {
    if (!tool)
        return;
    // Out of the list first: the dialog's handlers run while its window goes, and may come back here.
    std::erase(m_tools, tool);
    RememberPlace(*tool);
    const QScopedValueRollback<Tool*> calling(m_caller, tool.get());
    std::unique_ptr<CDialog> ended = std::move(tool->dialog);
    if (ended && tool->view)
        tool->view->DialogEnds(*ended);
    if (ended)
        ended->DestroyWindow();
    if (tool->picks && tool->view)
        tool->view->StopDefinisciVettore();
    DeleteLater(std::move(ended));
}

void ToolDialogs::EndAll() {
    while (!m_tools.empty())
        End(m_tools.back());
}

void ToolDialogs::EndAllOf(const HostDocument& document) {
    while (const auto tool = FindLast([&document](const Tool& each) { return each.document == &document; }))
        End(tool);
}

// Those whose window has gone by itself.
void ToolDialogs::EndClosed() {
    while (const auto tool = FindLast([](const Tool& each) { return each.dialog && !each.dialog->GetSafeHwnd(); }))
        End(tool);
}

void ToolDialogs::Update(const HostView& view, CView* sender, long hint, CObject* pHint) {
    for (const auto& each : Tools(m_tools)) { // a copy: a dialog may end, or open another, on the news
        if (each->view == &view && each->dialog && each->tool)
            // A window that cannot follow must not break the command that changed the document.
            platform::RunGuarded([&] { each->tool->Update(sender, hint, pHint); });
        else if (!each->view && each->document == &view.Document() && !std::ranges::count(each->missed, hint))
            each->missed.push_back(hint);
    }
}

void ToolDialogs::ResultShown(const HostView& view, int kind, bool shown) {
    for (const auto& each : Tools(m_tools))
        if (each->view == &view && each->dialog && each->command->resultShown)
            each->command->resultShown(*each->dialog, kind, shown);
}

void ToolDialogs::Renamed(const HostDocument& document, const CString& formerPath) {
    const CString former = CaptionPrefix(formerPath);
    // Not by the dialog itself, which without a view knows no document.
    const CString present = CaptionPrefix(document.GetPathName());
    for (const auto& each : Tools(m_tools)) {
        if (each->document != &document || !each->dialog || !each->tool || !each->command->titled)
            continue;
        const CString caption = each->tool->GetWindowText();
        const bool prefixed = caption.Left(former.GetLength()) == former;
        each->tool->SetWindowText(present + (prefixed ? caption.Mid(former.GetLength()) : caption));
    }
}

void ToolDialogs::ViewClosing(HostView& view) {
    for (const auto& each : Tools(m_tools)) {
        if (each->view != &view || !each->dialog)
            continue;
        if (!each->tool || LiesInView(*each->dialog)) {
            End(each);
            continue;
        }
        each->tool->VistaEliminata(&view);
        each->view = nullptr;
        m_orphanWatch.start();
    }
}

void ToolDialogs::ViewActivated(HostView& view) {
    EndCancelledOrphans();
    for (const auto& each : Tools(m_tools))
        // Where the view has the same dialog already, it would be a second one.
        if (!each->view && each->dialog && each->tool && each->document == &view.Document() &&
            !OpenAt(view, each->command->dialog))
            Adopt(*each, view);
}

void ToolDialogs::Adopt(Tool& tool, HostView& view) {
    const QScopedValueRollback<Tool*> calling(m_caller, &tool);
    const bool resumes = tool.picks && !PickerOf(view);
    tool.picks = false;
    tool.view = &view;
    tool.tool->AggiornaVista(&view);
    tool.missed.push_back(MODIFICA_RISULTATI_CASO); // it showed nothing, or what was
    for (const long hint : std::exchange(tool.missed, {}))
        tool.tool->Update(nullptr, hint, nullptr);
    if (resumes)
        ResumePicking(tool);
}

// Without a view a dialog cannot ask anybody to end it, so its Cancel is looked for.
void ToolDialogs::EndCancelledOrphans() {
    while (const auto cancelled =
               FindLast([](const Tool& each) { return !each.view && each.tool && each.tool->IsCancel(); }))
        End(cancelled);
    if (!FindLast([](const Tool& each) { return !each.view; }))
        m_orphanWatch.stop();
}

std::shared_ptr<ToolDialogs::Tool> ToolDialogs::PickerOf(const HostView& view) const {
    return FindLast([&view](const Tool& each) { return each.view == &view && each.picks; });
}

bool ToolDialogs::IsHeld(const Tool* tool) const {
    return FindLast([tool](const Tool& each) { return &each == tool; }) != nullptr;
}

ToolDialogs::Tool* ToolDialogs::CallerOn(const HostView& view) const {
    if (m_caller)
        return m_caller->view == &view ? m_caller : nullptr;
    const QWidget* active = QApplication::activeWindow();
    return FindLast([&](const Tool& each) {
               return each.view == &view && each.dialog && active && platform::WidgetOf(*each.dialog) == active;
           })
        .get();
}

bool ToolDialogs::IsPicking(const HostView& view) const {
    return PickerOf(view) != nullptr;
}

bool ToolDialogs::PicksNodesOnly(const HostView& view) const {
    const auto picker = PickerOf(view);
    return picker && picker->command->picksNodes;
}

void ToolDialogs::PickingStarted(const HostView& view, const CString& prompt) {
    const Tool* caller = CallerOn(view);
    // Nobody known asks, for example a dialog over which a message was shown: the one that was used last.
    const bool known = IsHeld(caller);
    const auto tool =
        FindLast([&](const Tool& each) { return known ? &each == caller : each.view == &view && each.tool; });
    for (const auto& each : m_tools)
        if (each->view == &view)
            each->picks = false;
    if (!tool)
        return;
    tool->picks = true;
    tool->prompt = prompt;
    std::erase(m_tools, tool);
    m_tools.push_back(tool);
}

bool ToolDialogs::PickingStops(const HostView& view) {
    Tool* caller = CallerOn(view);
    const auto picker = PickerOf(view);
    if (caller && !caller->picks && picker)
        return false;
    Tool* stopped = picker ? picker.get() : caller; // one that is ending is in the list no more
    if (stopped) {
        stopped->picks = false;
        stopped->prompt.reset();
    }
    return true;
}

void ToolDialogs::PointPicked(const HostView& view, const CFPoint& point, bool second) {
    const auto picker = PickerOf(view);
    if (!picker || !picker->dialog || !picker->tool)
        return;
    const QScopedValueRollback<Tool*> calling(m_caller, picker.get());
    if (second)
        picker->tool->SetVettoreTo(point);
    else
        picker->tool->SetVettoreFrom(point);
}

void ToolDialogs::ResumePicking(Tool& tool) {
    if (tool.prompt && !tool.picks)
        tool.view->StartDefinisciVettore(*tool.prompt, "");
}

} // namespace host
