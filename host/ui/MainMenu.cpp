#include "host/ui/MainMenu.h"

#include "host/commands/AnalysisCommand.h"
#include "host/commands/Assign.h"
#include "host/commands/AssignLoad.h"
#include "host/document/HostDocument.h"
#include "host/files/Version.h"
#include "host/ui/Icons.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Mnemonics.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "model/element/TipoElemento.h"
#include "model/result/ElementoRisultati.h"

#include <QAction>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStyle>

#include <algorithm>
#include <cstring>

namespace host {

namespace {

struct KindEntry {
    unsigned kind;
    const char* name;
    bool KindFilter::*filter;
};
const KindEntry kinds[] = {
    {TipoElemento::Nodo, "Nodi", &KindFilter::nodes},    {TipoElemento::Trave, "Travi", &KindFilter::beams},
    {TipoElemento::Asta, "Aste", &KindFilter::trusses},  {TipoElemento::Setto, "Setti", &KindFilter::walls},
    {TipoElemento::Solaio, "Solai", &KindFilter::slabs},
};

} // namespace

MainMenu::MainMenu(MainWindow& window, Workspace& workspace) : m_window(window), m_workspace(workspace) {
    BuildFile();
    BuildEdit();
    BuildView();
    BuildDialogs("&Genera", CommandMenu::Generate);
    BuildDrawing();
    BuildSelection();
    BuildAssign();
    BuildDialogs("&Carichi", CommandMenu::Loads);
    BuildAnalysis();
    BuildTools();
    BuildWindow();
    BuildHelp();
    for (QAction* each : m_window.menuBar()->actions())
        GiveMnemonics(*each->menu());
}

QMenu& MainMenu::Menu(const QString& title) {
    return *m_window.menuBar()->addMenu(title);
}

QAction* MainMenu::Add(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys, Needs needs,
                       std::function<void()> run) {
    auto* action = new QAction(text, &m_window);
    action->setObjectName(name);
    action->setShortcut(keys);
    menu.addAction(action);
    const QString caption = QString(text).remove('&').remove(u'\u2026');
    // A dialog that ends with nothing to tell was cancelled.
    const QString otherwise = text.endsWith(u'\u2026') ? caption + ": nessuna modifica" : caption;
    QObject::connect(action, &QAction::triggered, &m_window,
                     [this, otherwise, run = std::move(run)] { m_workspace.RunCommand(otherwise, run); });
    m_items.push_back({action, needs, {}});
    m_keys.push_back({action, QString(menu.title()).remove('&') + ", " + caption, action->shortcut()});
    return action;
}

QAction* MainMenu::AddForView(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys,
                              std::function<void(HostView&)> run) {
    return Add(menu, name, text, keys, Needs::View, [this, run = std::move(run)] {
        if (HostView* view = m_workspace.ActiveView())
            run(*view);
    });
}

QAction* MainMenu::AddToggle(QMenu& menu, const QString& name, const QString& text,
                             std::function<bool(HostView&)> state, std::function<void(HostView&, bool)> set) {
    const QString caption = QString(menu.title() + ": " + text).remove('&');
    QAction* action = AddForView(menu, name, text, {}, [this, caption, state, set = std::move(set)](HostView& view) {
        set(view, !state(view));
        m_workspace.Tell(platform::FromQString(caption) + (state(view) ? " sì."_t : " no."_t));
    });
    action->setCheckable(true);
    m_items.back().checked = std::move(state);
    return action;
}

void MainMenu::BuildFile() {
    QMenu& menu = Menu("&File");
    const QStyle* style = m_window.QMainWindow::style();
    Add(menu, "file.nuovo", "&Nuovo", QKeySequence::New, Needs::Nothing, [this] {
        m_workspace.NewDocument();
    })->setIcon(style->standardIcon(QStyle::SP_FileIcon));
    Add(menu, "file.apri", QStringLiteral("&Apri\u2026"), QKeySequence::Open, Needs::Nothing, [this] {
        m_workspace.AskAndOpen();
    })->setIcon(style->standardIcon(QStyle::SP_DialogOpenButton));
    Add(menu, "file.importa", QStringLiteral("&Importa\u2026"), {}, Needs::Nothing,
        [this] { m_workspace.AskAndImport(); });
    menu.addSeparator();
    AddForView(menu, "file.salva", "&Salva", QKeySequence::Save, [this](HostView& view) {
        m_workspace.Save(view.Document());
    })->setIcon(style->standardIcon(QStyle::SP_DialogSaveButton));
    AddForView(menu, "file.salva_con_nome", QStringLiteral("Salva con n&ome\u2026"), QKeySequence("Ctrl+Shift+S"),
               [this](HostView& view) { m_workspace.AskAndSaveAs(view.Document()); });
    AddForView(menu, "file.chiudi", "&Chiudi", QKeySequence("Ctrl+W"),
               [this](HostView& view) { m_workspace.CloseView(view); });
    menu.addSeparator();
    Add(menu, "file.esci", "&Esci", QKeySequence("Ctrl+Q"), Needs::Nothing,
        [this] { m_window.Frame().PostMessage(WM_CLOSE); }); // which is a command of its own
}

void MainMenu::BuildEdit() {
    QMenu& menu = Menu("&Modifica");
    m_undo =
        Add(menu, "modifica.annulla", "&Annulla", QKeySequence("Ctrl+Z"), Needs::Undo, [this] { m_workspace.Undo(); });
    m_redo = Add(menu, "modifica.ripristina", "&Ripristina", QKeySequence("Ctrl+Y"), Needs::Redo,
                 [this] { m_workspace.Redo(); });
    m_undo->setIcon(ToolIcon("annulla"));
    m_redo->setIcon(ToolIcon("ripristina"));
    m_undo->setIconText("Annulla");
    m_redo->setIconText("Ripristina");
    menu.addSeparator();
    AddForView(menu, "modifica.seleziona_tutto", "&Seleziona tutto", QKeySequence::SelectAll,
               [](HostView& view) { view.Document().SelectAll(); });
    Add(menu, "modifica.deseleziona", "&Deseleziona", QKeySequence("Ctrl+D"), Needs::Selection, [this] {
        if (HostView* view = m_workspace.ActiveView())
            view->Document().Selection().Clear();
    });
    menu.addSeparator();
    Add(menu, "modifica.elimina", "&Elimina", QKeySequence(Qt::Key_Delete), Needs::Selection, [this] {
        if (HostView* view = m_workspace.ActiveView())
            view->Document().DeleteSelection();
    });
}

void MainMenu::BuildView() {
    QMenu& menu = Menu("&Vista");
    const struct {
        const char* name;
        const char* text;
        const char* keys;
        Adv3d::Direzione direction;
    } directions[] = {
        {"vista.assonometria", "&Assonometria", "Ctrl+1", Adv3d::Axonometry},
        {"vista.xy", "&Pianta XY", "Ctrl+2", Adv3d::Top},
        {"vista.xz", "Prospetto X&Z", "Ctrl+3", Adv3d::Front},
        {"vista.yz", "Prospetto &YZ", "Ctrl+4", Adv3d::Right},
        {"vista.basso", "Dal &basso", "", Adv3d::Bottom},
        {"vista.retro", "Dal &retro", "", Adv3d::Back},
        {"vista.sinistra", "Da &sinistra", "", Adv3d::Left},
    };
    for (const auto& each : directions)
        AddForView(menu, each.name, each.text, QKeySequence(each.keys), [direction = each.direction](HostView& view) {
            view.SetDirection(direction);
        })->setIcon(ToolIcon(each.name + std::strlen("vista.")));
    menu.addSeparator();
    AddForView(menu, "vista.adatta", "Ada&tta alla finestra", QKeySequence("F4"), [](HostView& view) {
        view.Fit();
    })->setIcon(ToolIcon("adatta"));
    const auto zoom = [](double factor) {
        return [factor](HostView& view) { view.Zoom(factor, view.Vista().GetViewport().CenterPoint()); };
    };
    AddForView(menu, "vista.ingrandisci", "&Ingrandisci", QKeySequence::ZoomIn, zoom(1.25));
    AddForView(menu, "vista.riduci", "Ri&duci", QKeySequence::ZoomOut, zoom(0.8));
    AddToggle(
        menu, "vista.prospettiva", "Prospetti&va", [](HostView& view) { return view.Vista().IsPerspective() != 0; },
        [](HostView& view, bool on) { view.SetPerspective(on); });
    AddToggle(
        menu, "vista.griglia", "&Griglia nodi", [](HostView& view) { return view.IsGridShown(); },
        [](HostView& view, bool on) { view.ShowGrid(on); });
    AddForView(menu, "vista.caso", "&Caso di carico mostrato", QKeySequence("Ctrl+L"),
               [this](HostView&) { m_window.ChooseLoadCase(); });
    menu.addSeparator();
    BuildShown(*menu.addMenu("&Mostra"));
}

void MainMenu::BuildShown(QMenu& menu) {
    for (const KindEntry& each : kinds)
        AddToggle(
            menu, QStringLiteral("mostra.") + each.name, each.name,
            [kind = each.kind](HostView& view) { return view.IsShown(kind, CElementoSettings::Object); },
            [kind = each.kind](HostView& view, bool on) { view.SetShown(kind, CElementoSettings::Object, on); });
    menu.addSeparator();
    const struct {
        const char* name;
        unsigned item;
    } items[] = {{"Facce", CElementoSettings::Faces},
                 {"Carichi", CElementoSettings::Carichi},
                 {"Valori dei carichi", CElementoSettings::ValoriCarichi},
                 {"Vincoli", CElementoSettings::Restraints},
                 {"Molle", CElementoSettings::Springs},
                 {"Svincoli", CElementoSettings::Specifiche},
                 {"Numeri", CElementoSettings::Identifier},
                 {"Assi locali", CElementoSettings::LocalAxes}};
    for (const auto& each : items)
        AddToggle(
            menu, QStringLiteral("mostra.") + each.name, each.name,
            [item = each.item](HostView& view) {
                return std::any_of(std::begin(kinds), std::end(kinds),
                                   [&](const KindEntry& kind) { return view.IsShown(kind.kind, item); });
            },
            [item = each.item](HostView& view, bool on) {
                for (const KindEntry& kind : kinds)
                    view.SetShown(kind.kind, item, on);
            });
}

// What is to be drawn through nodes that the user picks.
void MainMenu::BuildDrawing() {
    QMenu& menu = Menu("&Disegna");
    const struct {
        const char* name;
        const char* text;
        const char* keys;
        const char* icon;
        Kind kind;
    } drawings[] = {{"disegna.trave", "&Trave", "F6", "travi", Kind::Beam},
                    {"disegna.asta", "&Asta", "F7", "aste", Kind::Truss},
                    {"disegna.setto", "&Setto", "F8", "setti", Kind::Wall},
                    {"disegna.solaio", "S&olaio", "F9", "solai", Kind::Slab}};
    for (const auto& each : drawings)
        AddForView(menu, each.name, each.text, QKeySequence(each.keys), [kind = each.kind](HostView& view) {
            view.StartDrawing(kind);
        })->setIcon(ToolIcon(each.icon));
}

void MainMenu::BuildSelection() {
    QMenu& menu = Menu("&Selezione");
    for (const KindEntry& each : kinds)
        AddToggle(
            menu, QStringLiteral("filtro.") + each.name, each.name,
            [filter = each.filter](HostView& view) { return view.Filter().*filter; },
            [filter = each.filter](HostView& view, bool on) {
                KindFilter changed = view.Filter();
                changed.*filter = on;
                view.SetFilter(changed);
            })
            ->setIcon(ToolIcon(QByteArray(each.name).toLower()));
    menu.addSeparator();
    AddDialogs(menu, CommandMenu::Select);
}

void MainMenu::BuildAssign() {
    QMenu& menu = Menu("Ass&egna");
    const struct {
        const char* name;
        const char* text;
        Needs needs;
        void (*run)(HostDocument&, QWidget&);
        const char* keys;
    } commands[] = {{"assegna.vincolo", "&Vincolo\u2026", Needs::Selection, RunAssignRestraint, "F2"},
                    {"assegna.molla", "&Molla\u2026", Needs::Selection, RunAssignSpring, ""},
                    {"assegna.svincoli", "&Svincoli\u2026", Needs::Selection, RunAssignReleases, ""},
                    {"assegna.carico", "&Carico\u2026", Needs::View, RunAssignLoad, "F3"}, // a self weight has no place
                    {"assegna.elimina_carichi", "&Elimina Carichi", Needs::Selection, RunRemoveLoads, ""}};
    for (const auto& each : commands)
        Add(menu, each.name, QString::fromUtf8(each.text), QKeySequence(each.keys), each.needs, [this, run = each.run] {
            if (HostView* view = m_workspace.ActiveView())
                run(view->Document(), m_window);
        });
    QMenu& supports = *menu.addMenu("Vincoli &pronti");
    for (const Support& each : Supports())
        Add(supports, QStringLiteral("assegna.vincolo.") + each.name, each.caption, {}, Needs::Selection,
            [this, fixed = each.fixed] {
                if (HostView* view = m_workspace.ActiveView())
                    RunAssignSupport(view->Document(), fixed);
            });
}

void MainMenu::BuildAnalysis() {
    QMenu& menu = Menu("&Analisi");
    AddForView(menu, "analisi.esegui", "&Esegui analisi", QKeySequence("F5"),
               [](HostView& view) { RunAnalysis(view.Document()); });
    AddDialogs(menu, CommandMenu::Results);
    QMenu& shown = *menu.addMenu("Diagrammi &mostrati");
    int number = 0; // the names share too few letters
    for (const int kind : {CElementoSettings::N, CElementoSettings::V2, CElementoSettings::V3, CElementoSettings::T,
                           CElementoSettings::M2, CElementoSettings::M3, CElementoSettings::N_A,
                           CElementoSettings::M2_W2, CElementoSettings::M3_W3}) {
        const QString name = platform::ToQString(CElementoRisultati::_GetStringRisultato(kind));
        AddToggle(
            shown, "analisi.mostra_risultato." + name, QStringLiteral("&%1 %2").arg(++number).arg(name),
            [kind](HostView& view) { return view.GetTraveSettings().IsRisultato(kind) != 0; },
            [kind](HostView& view, bool on) { view.SetResultShown(kind, on); });
    }
}

void MainMenu::AddDialogs(QMenu& menu, CommandMenu which) {
    for (const Command* each : Commands())
        if (each->menu == which)
            Add(menu, ActionName(each->dialog, each->kind), CaptionOf(*each), {}, each->needs,
                [this, each] { m_workspace.Run(*each); });
}

// A menu without commands is not shown.
void MainMenu::BuildDialogs(const QString& title, CommandMenu which) {
    if (std::any_of(Commands().begin(), Commands().end(), [which](const Command* each) { return each->menu == which; }))
        AddDialogs(Menu(title), which);
}

void MainMenu::BuildTools() {
    QMenu& menu = Menu("S&trumenti");
    AddDialogs(menu, CommandMenu::Tools);
    menu.addSeparator();
    Add(menu, "strumenti.tasti", QStringLiteral("&Tasti di scelta rapida\u2026"), {}, Needs::Nothing,
        [this] { m_workspace.EditShortcuts(); });
}

void MainMenu::BuildWindow() {
    QMenu& menu = Menu("Fi&nestra");
    AddForView(menu, "finestra.nuova", "&Nuova finestra", {},
               [this](HostView& view) { m_workspace.NewView(view.Document()); });
    menu.addSeparator();
    QMdiArea& area = m_window.Area();
    Add(menu, "finestra.affianca", "&Affianca", {}, Needs::View, [&area] {
        area.setViewMode(QMdiArea::SubWindowView);
        area.tileSubWindows();
    });
    Add(menu, "finestra.sovrapponi", "&Sovrapponi", {}, Needs::View, [&area] {
        area.setViewMode(QMdiArea::SubWindowView);
        area.cascadeSubWindows();
    });
    Add(menu, "finestra.schede", "S&chede", {}, Needs::View, [this] { m_window.ShowAsTabs(); });
    menu.addSeparator();
    Add(menu, "finestra.successiva", "S&uccessiva", QKeySequence("Ctrl+Tab"), Needs::View,
        [&area] { area.activateNextSubWindow(); });
    Add(menu, "finestra.precedente", "&Precedente", QKeySequence("Ctrl+Shift+Tab"), Needs::View,
        [&area] { area.activatePreviousSubWindow(); });
}

void MainMenu::BuildHelp() {
    QMenu& menu = Menu("&?");
    Add(menu, "aiuto.informazioni", "&Informazioni su Quovar", {}, Needs::Nothing, [this] {
        QMessageBox::about(&m_window, "Informazioni su Quovar",
                           QStringLiteral("Quovar %1\n\nModellazione e analisi di strutture intelaiate.")
                               .arg(QLatin1String(applicationVersion)));
    });
}

void MainMenu::Refresh(HostView* view) {
    HostUndo* undo = view ? &view->Document().Undo() : nullptr;
    const bool met[] = {true, view != nullptr, view && !view->Document().Selection().IsEmpty(), undo && undo->CanUndo(),
                        undo && undo->CanRedo()};
    for (Item& item : m_items) {
        item.action->setEnabled(met[static_cast<std::size_t>(item.needs)]);
        if (item.checked)
            item.action->setChecked(view && item.checked(*view));
    }
    const auto withStep = [](const char* verb, const CString& step) {
        return step.IsEmpty() ? QString(verb) : QString(verb) + " " + platform::ToQString(step);
    };
    m_undo->setText(withStep("&Annulla", undo ? undo->UndoName() : CString()));
    m_redo->setText(withStep("&Ripristina", undo ? undo->RedoName() : CString()));
}

} // namespace host
