#include "host/ui/ToolDialogs.h"

#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/commands/Commands.h"
#include "host/ui/DeferredDelete.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "platform/core/Exception.h"
#include "platform/toolkit/Bridge.h"

#include <QScreen>

#include <algorithm>

namespace host {

namespace {
constexpr int orphanWatchMilliseconds = 200;
}

ToolDialogs::ToolDialogs() {
    m_orphanWatch.setInterval(orphanWatchMilliseconds);
    QObject::connect(&m_orphanWatch, &QTimer::timeout, [this] { EndCancelledOrphans(); });
}

ToolDialogs::~ToolDialogs() {
    EndAll();
}

CDialogDocument* ToolDialogs::Open(const Command& command, HostView& view, CWnd& frame) {
    if (CDialogDocument* former = Of(view))
        End(former);
    std::unique_ptr<CDialog> dialog = command.open(view, frame);
    auto* opened = dynamic_cast<CDialogDocument*>(dialog.get());
    if (!opened)
        return nullptr;
    dialog.release();
    m_open.push_back({&command, std::unique_ptr<CDialogDocument>(opened), &view});
    PlaceBeside(command, *opened, view);
    opened->ShowWindow(SW_SHOW);
    opened->SetActiveWindow();
    return opened;
}

CDialogDocument* ToolDialogs::Of(const HostView& view) const {
    const auto found =
        std::find_if(m_open.begin(), m_open.end(), [&view](const Entry& entry) { return entry.view == &view; });
    return found == m_open.end() ? nullptr : found->dialog.get();
}

void ToolDialogs::End(const CDialog* dialog) {
    const auto found = std::find_if(m_open.begin(), m_open.end(),
                                    [dialog](const Entry& entry) { return entry.dialog.get() == dialog; });
    if (found == m_open.end())
        return;
    // Out of the list first: the dialog's handlers run while its window goes, and may come back here.
    std::unique_ptr<CDialogDocument> ended = std::move(found->dialog);
    m_open.erase(found);
    ended->DestroyWindow();
    DeleteLater(std::move(ended));
}

void ToolDialogs::EndAll() {
    while (!m_open.empty())
        End(m_open.back().dialog.get());
}

void ToolDialogs::Update(const HostView& view, CView* sender, long hint, CObject* pHint) {
    // A window that cannot follow must not break the command that changed the document.
    if (CDialogDocument* dialog = Of(view))
        platform::RunGuarded([&] { dialog->Update(sender, hint, pHint); });
}

void ToolDialogs::ResultShown(const HostView& view, int kind, bool shown) {
    for (Entry& entry : m_open)
        if (entry.view == &view && entry.command->resultShown)
            entry.command->resultShown(*entry.dialog, kind, shown);
}

void ToolDialogs::ViewClosing(HostView& view) {
    for (Entry& entry : m_open) {
        entry.dialog->VistaEliminata(&view);
        if (entry.view == &view) {
            entry.view = nullptr;
            m_orphanWatch.start();
        }
    }
}

void ToolDialogs::ViewActivated(HostView& view) {
    for (Entry& entry : m_open) {
        // A dialog without a view would be a second one where the view has its own.
        if (!entry.view && Of(view))
            continue;
        entry.dialog->AggiornaVista(&view);
        if (!entry.view) {
            entry.view = &view;
            // What it shows belongs to another document, which may be gone: before it paints, it looks anew.
            entry.dialog->Update(nullptr, MODIFICA_RISULTATI_CASO, nullptr);
        }
    }
}

// Beside the main window where the screen has room, otherwise inside the view's right edge. One that places itself is
// only kept on the screen.
void ToolDialogs::PlaceBeside(const Command& command, CDialog& dialog, HostView& view) {
    QWidget* window = dialog.m_hWnd->widget;
    const QWidget& viewWidget = view.Widget();
    const QRect screen = viewWidget.screen()->availableGeometry();
    const QRect frame = viewWidget.window()->frameGeometry();
    const QPoint viewCorner = viewWidget.mapToGlobal(QPoint(viewWidget.width(), 0));
    constexpr int gap = 8;
    QPoint place(frame.right() + gap, viewCorner.y());
    if (place.x() + window->frameGeometry().width() > screen.right())
        place.setX(viewCorner.x() - window->frameGeometry().width() - gap);
    if (command.place == Place::Own)
        place = window->pos();
    place.setX(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - window->width())));
    place.setY(std::clamp(place.y(), screen.top(), std::max(screen.top(), screen.bottom() - window->height() - 40)));
    window->move(place);
}

// Without a view a dialog cannot ask anybody to end it, so its Cancel is looked for.
void ToolDialogs::EndCancelledOrphans() {
    std::vector<const CDialogDocument*> cancelled;
    bool orphans = false;
    for (const Entry& entry : m_open) {
        if (entry.view)
            continue;
        orphans = true;
        if (entry.dialog->IsCancel() || !entry.dialog->IsWindow())
            cancelled.push_back(entry.dialog.get());
    }
    for (const CDialogDocument* dialog : cancelled)
        End(dialog);
    if (!orphans)
        m_orphanWatch.stop();
}

} // namespace host
