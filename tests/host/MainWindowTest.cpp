// The main window and its views.
#include "host/ui/MainWindow.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QDropEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <QToolBar>
#include <QUrl>

using namespace host;

using MainWindowTest = WorkspaceTest;

// Catches a second view that replaces the first, titles that do not tell them apart, a question for a view that is not
// the last, a camera shared by both, and a document without an active view while it has one.
TEST_F(MainWindowTest, TwoViewsOfOneDocument) {
    BuildSmallModel();
    HostView& first = View();
    Trigger("finestra.nuova");
    HostView& second = View();
    ASSERT_NE(&first, &second);
    EXPECT_EQ(&first.Document(), &second.Document());
    EXPECT_EQ(m_workspace->TitleOf(first), "Senza nome 1:1");
    EXPECT_EQ(m_workspace->TitleOf(second), "Senza nome 1:2");
    EXPECT_EQ(m_workspace->Window().Area().subWindowList().size(), 2);
    second.SetDirection(Adv3d::Top);
    EXPECT_FALSE(first.Vista().GetAxis(2) == second.Vista().GetAxis(2));
    const unsigned drawnFirst = first.Widget().DrawCount(), drawnSecond = second.Widget().DrawCount();
    first.Document().GenNodi2Punti(CFPoint(0, 0, 9), CFPoint(1, 0, 9), 2);
    CWinApp::PumpMessages();
    first.Widget().grab();
    second.Widget().grab();
    EXPECT_GT(first.Widget().DrawCount(), drawnFirst);
    EXPECT_GT(second.Widget().DrawCount(), drawnSecond);
    EXPECT_EQ(m_workspace->TitleOf(first), "Senza nome 1*:1");

    EXPECT_TRUE(m_workspace->CloseView(second)) << "no question: another view is left";
    CWinApp::PumpMessages();
    EXPECT_EQ(m_workspace->ActiveView(), &first);
    EXPECT_EQ(first.Document().GetViewStructure(), &first);
    // One that is not the active one goes, and the other stays the document's.
    EXPECT_TRUE(m_workspace->CloseView(m_workspace->NewView(first.Document())));
    HostView& third = m_workspace->NewView(first.Document());
    m_workspace->NewDocument();
    EXPECT_TRUE(m_workspace->CloseView(third));
    EXPECT_EQ(first.Document().GetViewStructure(), &first);
    EXPECT_TRUE(m_workspace->CloseView(View()));
    EXPECT_EQ(m_workspace->ActiveView(), &first);
    m_user.ExpectMessage("Salvare le modifiche a \"Senza nome 1\"?", IDCANCEL, MB_YESNOCANCEL | MB_ICONQUESTION);
    EXPECT_FALSE(m_workspace->CloseView(first));
    m_user.ExpectMessage("Salvare le modifiche a \"Senza nome 1\"?", IDNO);
    EXPECT_TRUE(m_workspace->CloseView(first));
    EXPECT_FALSE(m_workspace->ActiveView());
    EXPECT_FALSE(CQuovarGlobal::_GetActiveDoc());
}

// Catches a key that the toolkit's own window commands share with the menu: neither would run.
TEST_F(MainWindowTest, ClosingByKey) {
    for (const char* arrangement : {"finestra.schede", "finestra.affianca"}) {
        m_workspace->NewView(Document());
        Trigger(arrangement);
        const std::size_t views = m_workspace->Views().size();
        QTest::keyClick(View().Widget().QWidget::window()->windowHandle(), Qt::Key_W, Qt::ControlModifier);
        CWinApp::PumpMessages();
        EXPECT_EQ(m_workspace->Views().size(), views - 1) << arrangement;
    }
}

// Two quick keys: the dialog has gone with the first, its command has not. Catches a document that is closed under it.
TEST_F(MainWindowTest, NoCommandStartsInsideAnother) {
    m_user.WhenDialogOpens([this](DialogDriver& dialog) {
        dialog.Press(VK_RETURN);
        m_workspace->Window().Command("file.chiudi")->trigger();
        m_workspace->Window().Frame().SendMessage(WM_CLOSE);
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile("manca.asg")});
        QDropEvent drop({}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_workspace->Window(), &drop);
        EXPECT_EQ(m_workspace->Views().size(), 1u);
    });
    const int cases = Document().GetSizeCasiCarico();
    Trigger(CDialogCreaCasoCarico::IDD);
    ASSERT_EQ(m_workspace->Views().size(), 1u);
    EXPECT_EQ(Document().GetSizeCasiCarico(), cases + 1);
}

// Fault: a bar that dialogs do not get, or that they show and hide without the main window.
TEST_F(MainWindowTest, ItsToolBarsAreBarsOfTheFrame) {
    MainWindow& window = m_workspace->Window();
    const std::vector<CToolBar*> bars = window.ToolBars();
    ASSERT_EQ(bars.size(), 1u);
    EXPECT_EQ(bars[0]->GetWindowText(), CString("Principale"));
    window.Frame().ShowControlBar(bars[0], FALSE, TRUE);
    EXPECT_TRUE(window.findChild<QToolBar*>("principale")->isHidden());
    EXPECT_FALSE(bars[0]->GetStyle() & WS_VISIBLE);
}

// Fault: what stays when a document is closed is a small window in the corner of its tab.
TEST_F(MainWindowTest, TabsAreFilled) {
    m_workspace->NewDocument();
    QMdiArea& area = m_workspace->Window().Area();
    Trigger("file.chiudi");
    ASSERT_TRUE(area.currentSubWindow());
    EXPECT_TRUE(area.currentSubWindow()->isMaximized());
    HostView& first = View();
    m_workspace->NewDocument();
    HostView& second = View();
    m_workspace->NewDocument();
    m_workspace->ViewActivated(first);
    m_workspace->ViewActivated(second);
    Trigger("file.chiudi");
    EXPECT_EQ(&View(), &first) << "the one that was used last";
    Trigger("finestra.nuova");
    Trigger("finestra.affianca");
    Trigger("finestra.schede");
    EXPECT_TRUE(area.currentSubWindow()->isMaximized());
}

// Each command ends with a sentence. Faults: one in silence, one that speaks of another's work, objects left uncounted.
TEST_F(MainWindowTest, CommandsSayWhatTheyDid) {
    BuildSmallModel();
    MainWindow& window = m_workspace->Window();
    const struct {
        const char* command;
        const char* sentence;
    } rows[] = {
        {"modifica.seleziona_tutto", "Selezionati: 12 nodi, 2 travi, 1 asta, 1 setto, 1 solaio."},
        {"assegna.vincolo.incastro", "Assegna vincolo: 12 nodi modificati."},
        {"modifica.elimina", "Elimina: 12 nodi eliminati, 2 travi eliminate, 1 asta eliminata, 1 setto eliminato, 1 "
                             "solaio eliminato."},
        {"modifica.annulla", "Annullato: Elimina."},
        {"modifica.ripristina", "Ripristinato: Elimina."},
        {"modifica.annulla", "Annullato: Elimina."},
        {"modifica.deseleziona", "Nessun elemento selezionato."},
        {"vista.xz", "Prospetto XZ."},
        {"mostra.Nodi", "Mostra: Nodi no."},
    };
    for (const auto& row : rows) {
        Trigger(row.command);
        EXPECT_EQ(window.SentenceText().toStdString(), row.sentence);
    }
    Document().Remove({Document().Data().At(Kind::Wall, 0), Document().Data().At(Kind::Slab, 0)});
    Trigger("analisi.esegui");
    EXPECT_TRUE(window.SentenceText().startsWith("Analisi eseguita in 0,")) << qPrintable(window.SentenceText());
}

// No two commands of a menu under one letter, and none without.
static void ExpectMnemonics(const QList<QAction*>& actions) {
    QString taken;
    for (const QAction* each : actions) {
        if (each->isSeparator())
            continue;
        const QString text = each->text();
        const QChar letter = text.contains('&') ? text[text.indexOf('&') + 1].toLower() : QChar();
        EXPECT_TRUE(!letter.isNull() && !taken.contains(letter)) << qPrintable(text);
        taken += letter;
        if (each->menu())
            ExpectMnemonics(each->menu()->actions());
    }
}

// Catches a menu that shows a command without a dialog or leaves one out, and undo that does not name its step.
TEST_F(MainWindowTest, MenusShowWhatThereIs) {
    ExpectMnemonics(m_workspace->Window().menuBar()->actions());
    QStringList titles;
    for (QAction* action : m_workspace->Window().menuBar()->actions()) {
        titles << action->text().remove('&');
        ASSERT_TRUE(action->menu());
        EXPECT_FALSE(action->menu()->actions().isEmpty()) << qPrintable(action->text());
    }
    EXPECT_EQ(titles.mid(0, 4), QStringList({"File", "Modifica", "Vista", "Genera"}));
    MainWindow& window = m_workspace->Window();
    for (const Command* each : Commands()) {
        const QString caption = CaptionOf(*each);
        EXPECT_FALSE(caption.isEmpty()) << each->dialog;
        EXPECT_EQ(FindCommand(each->dialog, each->kind), each) << qPrintable(caption) << " shares its row's name";
        const QAction* action = window.Command(ActionName(each->dialog, each->kind));
        ASSERT_EQ(action != nullptr, each->menu != CommandMenu::Prompts) << qPrintable(caption);
        if (action) {
            EXPECT_EQ(QString(action->text()).remove('&'), caption);
        }
    }
    window.Refresh();
    EXPECT_FALSE(window.Command("modifica.annulla")->isEnabled());
    Document().GenNodi2Punti(CFPoint(0, 0, 0), CFPoint(1, 0, 0), 2);
    CWinApp::PumpMessages();
    window.Refresh();
    EXPECT_TRUE(window.Command("modifica.annulla")->text().startsWith("&Annulla ")) << "with the step's name";
    Trigger("modifica.annulla");
    EXPECT_TRUE(window.Command("modifica.ripristina")->isEnabled());
    Trigger("filtro.Travi");
    EXPECT_FALSE(View().IsSelectTravi());
    window.Refresh();
    EXPECT_FALSE(window.Command("filtro.Travi")->isChecked());
    m_workspace->NewDocument();
    window.Refresh();
    EXPECT_TRUE(window.Command("filtro.Travi")->isChecked()) << "each view has its own filters";
}

// Catches a command started while another runs, a model drawn half changed, and a bar that stays behind.
TEST_F(MainWindowTest, WaitBarKeepsTheWindowAliveAndTheUserOut) {
    BuildSmallModel();
    View().Widget().grab();
    const unsigned drawn = View().Widget().DrawCount();
    {
        const WaitBar wait("Copia in corso", 3);
        EXPECT_TRUE(m_workspace->IsWaiting());
        const WaitBar inner("Altro", 10);
        CMainFrame::_StepBar();
        EXPECT_EQ(m_workspace->Window().Wait().Done(), 0u) << "an inner wait does not move the outer one's bar";
        m_workspace->Window().Command("file.nuovo")->trigger();
        EXPECT_EQ(m_workspace->Views().size(), 1u);
        View().Document().UpdateAllViews(nullptr, MODIFICA_STRUTTURA, nullptr);
        View().Widget().grab();
        EXPECT_EQ(View().Widget().DrawCount(), drawn);
    }
    EXPECT_FALSE(m_workspace->IsWaiting());
    View().Widget().grab();
    EXPECT_GT(View().Widget().DrawCount(), drawn);
    CMainFrame::_FineAttesa();
    EXPECT_FALSE(m_workspace->IsWaiting()) << "an end without a beginning does nothing";
}

// Catches hints whose parts do not agree with each other or with the values that dialogs send as they are.
TEST_F(MainWindowTest, HintsAreTakenApartAsTheyArePacked) {
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniBase(MODIFICA_SELEZIONE_VISTE), MODIFICA_SELEZIONE_FINE);
    unsigned long hint = MODIFICA_PROGETTO_TRAVE;
    CQuovarGlobal::_SetInformazioniAggiuntive(hint, 65535);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniBase(static_cast<long>(hint)), MODIFICA_PROGETTO_TRAVE);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniAggiuntive(static_cast<long>(hint)), 65535L << 16);
    EXPECT_EQ(CQuovarGlobal::_GetInformazioniAggiuntive(MODIFICA_PROGETTO | PROGETTO_SETTI), PROGETTO_SETTI);
}
