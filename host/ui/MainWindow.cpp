#include "host/ui/MainWindow.h"

#include "host/document/HostDocument.h"
#include "host/ui/Icons.h"
#include "host/ui/MainMenu.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/values/Units.h"
#include "platform/toolkit/HostToolBar.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace host {

BEGIN_MESSAGE_MAP(HostFrame, CMainFrame)
    ON_WM_CLOSE()
    ON_COMMAND(ID_FILE_NEW, OnFileNew)
END_MESSAGE_MAP()

namespace {

// The frame of one view. Closing asks the application first: the document may be unsaved.
class ViewWindow final : public QMdiSubWindow {
  public:
    ViewWindow(HostView& view, Workspace& workspace) : m_view(&view), m_workspace(workspace) {
        setAttribute(Qt::WA_DeleteOnClose, false);
        setWidget(&view.Widget());
        // The toolkit's own commands share keys with the menu, and of two commands with one key neither runs.
        for (QAction* each : systemMenu()->actions())
            each->setShortcuts(QList<QKeySequence>());
    }
    HostView* View() const { return m_view; }
    void Forget() { m_view = nullptr; }

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        if (m_view)
            m_workspace.Execute([this] { m_workspace.CloseView(*m_view); });
    }

  private:
    HostView* m_view; // null once the view is gone
    Workspace& m_workspace;
};

ViewWindow* AsViewWindow(QMdiSubWindow* window) {
    return dynamic_cast<ViewWindow*>(window);
}

} // namespace

CRect& HostFrame::GetRectClientTabella() {
    const QSize area = m_workspace.Window().Area().size();
    constexpr int lowest = 120; // pixels: a few rows
    m_tableRect = CRect(0, 0, area.width(), std::max(area.height() / 4, lowest));
    return m_tableRect;
}

void HostFrame::OnClose() {
    m_workspace.Execute([this] {
        if (m_workspace.CloseAll())
            QCoreApplication::exit(0); // quit() would ask the windows once more
    });
}

// Not as a command of its own: it comes from a dialog, whose command is at work still.
void HostFrame::OnFileNew() {
    m_workspace.NewDocument();
}

MainWindow::MainWindow(Workspace& workspace)
    : HostedWidget<QMainWindow>(nullptr), m_workspace(workspace), m_frame(workspace), m_area(new QMdiArea) {
    Open(m_frame);
    setCentralWidget(m_area);
    m_area->setViewMode(QMdiArea::TabbedView);
    m_area->setDocumentMode(true);
    m_area->setTabsClosable(true);
    m_area->setTabsMovable(true);
    setAcceptDrops(true);
    setWindowIcon(ToolIcon("quovar"));
    resize(1180, 780);
    BuildStatusBar();
    m_menu = std::make_unique<MainMenu>(*this, workspace);
    BuildToolBar();
    QObject::connect(m_area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        // Null when a dialog takes the focus: the view stays the one that commands mean.
        if (ViewWindow* active = AsViewWindow(window); active && active->View())
            m_workspace.ViewActivated(*active->View());
    });
    Refresh();
}

MainWindow::~MainWindow() {
    // The sub-windows report their end to an object that is going.
    m_area->disconnect(this);
    m_frame.Detach();
}

void MainWindow::BuildStatusBar() {
    m_prompt = new QLabel;
    m_sentence = new QLabel;
    // Long texts do not widen a window on a small screen; the prompt goes before the sentence.
    m_prompt->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_prompt->setMinimumWidth(1);
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_selected = new QLabel;
    m_coordinates = new QLabel;
    m_unit = new QLabel;
    statusBar()->addWidget(m_prompt);
    statusBar()->addWidget(m_sentence, 1);
    m_wait = std::make_unique<WaitIndicator>(*statusBar());
    statusBar()->addPermanentWidget(m_selected);
    statusBar()->addPermanentWidget(m_coordinates);
    statusBar()->addPermanentWidget(m_unit);
}

void MainWindow::BuildToolBar() {
    auto* bar = new platform::HostToolBar(Handle(), "Principale");
    addToolBar(bar);
    bar->setObjectName("principale");
    bar->setIconSize(QSize(20, 20));
    for (const char* name : {"file.nuovo", "file.apri", "file.salva", "modifica.annulla", "modifica.ripristina"})
        bar->addAction(Command(name));
    bar->addSeparator();
    for (const char* name : {"vista.assonometria", "vista.xy", "vista.xz", "vista.yz", "vista.adatta"})
        bar->addAction(Command(name));
    bar->addSeparator();
    bar->addWidget(new QLabel(" Seleziona: "));
    for (const char* name : {"filtro.Nodi", "filtro.Travi", "filtro.Aste", "filtro.Setti", "filtro.Solai"})
        bar->addAction(Command(name));
    bar->addSeparator();
    bar->addWidget(new QLabel(" Carico: "));
    m_loadCase = new QComboBox;
    m_loadCase->setObjectName("carico");
    m_loadCase->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_loadCase->setMinimumContentsLength(14);
    bar->addWidget(m_loadCase);
    QObject::connect(m_loadCase, &QComboBox::activated, this, [this](int index) {
        if (HostView* view = m_workspace.ActiveView()) {
            m_workspace.SelectLoadCase(*view, m_loadCase->itemData(index).toInt());
            view->Widget().setFocus();
        }
    });
}

void MainWindow::AddView(HostView& view) {
    auto* window = new ViewWindow(view, m_workspace);
    window->setWindowIcon(windowIcon());
    m_area->addSubWindow(window);
    window->show();
}

std::vector<CToolBar*> MainWindow::ToolBars() const {
    std::vector<CToolBar*> bars;
    for (QToolBar* each : findChildren<QToolBar*>())
        if (auto* bar = dynamic_cast<platform::HostToolBar*>(each))
            bars.push_back(&bar->Bar());
    return bars;
}

QMdiSubWindow* MainWindow::WindowOf(const HostView& view) const {
    const QList<QMdiSubWindow*> windows = m_area->subWindowList();
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&view](QMdiSubWindow* each) { return AsViewWindow(each)->View() == &view; });
    return found == windows.end() ? nullptr : *found;
}

void MainWindow::RemoveView(HostView& view) {
    if (QMdiSubWindow* window = WindowOf(view)) {
        AsViewWindow(window)->Forget();
        m_area->removeSubWindow(window);
        window->hide();
        window->deleteLater();
        FillTab();
    }
}

void MainWindow::ChooseLoadCase() {
    m_loadCase->setFocus(Qt::ShortcutFocusReason);
    m_loadCase->showPopup();
}

void MainWindow::ShowAsTabs() {
    m_area->setViewMode(QMdiArea::TabbedView);
    FillTab();
}

// The area leaves a window as small as it was when the one before it goes.
void MainWindow::FillTab() {
    QMdiSubWindow* shown = m_area->currentSubWindow();
    if (m_area->viewMode() == QMdiArea::TabbedView && shown && !shown->isMaximized())
        shown->showMaximized();
}

void MainWindow::ShowView(HostView& view) {
    if (QMdiSubWindow* window = WindowOf(view))
        m_area->setActiveSubWindow(window);
    FillTab();
}

void MainWindow::ScheduleRefresh() {
    if (m_refreshScheduled)
        return;
    m_refreshScheduled = true;
    QTimer::singleShot(0, this, [this] {
        m_refreshScheduled = false;
        Refresh();
    });
}

void MainWindow::Refresh() {
    for (QMdiSubWindow* each : m_area->subWindowList())
        if (HostView* view = AsViewWindow(each)->View())
            each->setWindowTitle(m_workspace.TitleOf(*view));
    HostView* view = m_workspace.ActiveView();
    setWindowTitle(view ? m_workspace.TitleOf(*view) + QStringLiteral(" \u2013 Quovar") : QStringLiteral("Quovar"));
    ShowPrompt(view);
    const bool selected = view && !view->Document().Selection().IsEmpty();
    m_selected->setText(selected ? platform::ToQString(view->Document().Selection().Text()) : QString());
    m_unit->setText(view ? platform::ToQString(CGrandezza::_GetStringLunghezza(view->Document().GetLunghezza()) + ", " +
                                               CGrandezza::_GetStringForza(view->Document().GetForza()))
                         : QString());
    m_menu->Refresh(view);
    RefreshLoadCases(view);
}

void MainWindow::ShowPrompt(HostView* view) {
    QString prompt = view ? platform::ToQString(view->Prompt()) : QString();
    if (view && !view->Widget().TypedNumber().isEmpty())
        prompt += "  Nodo " + view->Widget().TypedNumber();
    m_prompt->setText(prompt);
    m_prompt->setToolTip(prompt);
    m_prompt->setVisible(!prompt.isEmpty());
}

void MainWindow::RefreshLoadCases(HostView* view) {
    std::vector<std::pair<int, QString>> cases;
    const auto add = [&cases](CElementoStrutturale& entity) {
        cases.emplace_back(entity.GetID(), platform::ToQString(entity.GetNome()));
    };
    if (view) {
        HostDocument& document = view->Document();
        for (int i = 0; i < document.GetSizeCasiCarico(); ++i)
            add(*document.GetIndexCasoCarico(i));
        for (int i = 0; i < document.GetSizeCombinazioni(); ++i)
            add(*document.GetIndexCombinazione(i));
    }
    m_loadCase->setEnabled(view);
    // The box takes its time over a thousand names, and most refreshes come for another reason.
    if (cases != m_loadCases) {
        m_loadCases = std::move(cases);
        m_loadCase->clear();
        for (const auto& [id, name] : m_loadCases)
            m_loadCase->addItem(name, id);
    }
    CElementoStrutturale* current = view ? view->Document().GetCurrentCase() : nullptr;
    m_loadCase->setCurrentIndex(current ? m_loadCase->findData(current->GetID()) : -1);
}

void MainWindow::ShowCoordinates(const QString& text) {
    m_coordinates->setText(text);
}

void MainWindow::ShowSentence(const QString& text) {
    m_sentence->setVisible(!text.isEmpty());
    m_sentence->setText(text);
    m_sentence->setToolTip(text);
}

QString MainWindow::SentenceText() const {
    return m_sentence->text();
}

QAction* MainWindow::CommandOf(const QKeySequence& key) const {
    for (QAction* each : findChildren<QAction*>(Qt::FindDirectChildrenOnly))
        if (each->shortcuts().contains(key))
            return each;
    return nullptr;
}

QString MainWindow::PromptText() const {
    return m_prompt->text();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    m_workspace.Execute([this, &event] { // not in the middle of another command
        for (const QUrl& url : event->mimeData()->urls())
            if (url.isLocalFile())
                m_workspace.Open(url.toLocalFile());
    });
}

} // namespace host
