// The main window, its views and the tool dialogs that belong to them.
#include "host/ui/MainWindow.h"
#include "dialogs/frame/DialogDocument.h"
#include "dialogs/frame/QuovarGlobal.h"
#include "host/document/HostDocument.h"
#include "host/ui/Commands.h"
#include "host/ui/ViewWidget.h"
#include "model/Nodo.h"
#include "platform/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace {

// A tool dialog that notes what it is told.
class Witness final : public CDialogDocument {
  public:
    Witness(CWnd* parent, std::vector<long>& hints, int& alive)
        : CDialogDocument(9015, parent), m_hints(hints), m_alive(alive) {
        ++m_alive;
    }
    ~Witness() override { --m_alive; }
    void Update(CView*, long hint, CObject*) override { m_hints.push_back(hint); }
    bool HasView() { return GetView() != nullptr; }
    CQuovarDoc* Bound() { return GetDoc(); }

  private:
    std::vector<long>& m_hints;
    int& m_alive;
};

} // namespace

class MainWindowTest : public WorkspaceTest {
  protected:
    Witness* OpenWitness(HostView& view) {
        return static_cast<Witness*>(
            workspace->Tools().Open(std::make_unique<Witness>(&workspace->Window().Frame(), hints, alive), view));
    }

    std::vector<long> hints;
    int alive = 0;
};

// Catches a close request that is ignored for one of its two values, a dialog deleted inside its own handler (the
// sanitizer sees it) or never, and a request for a dialog that is not the view's.
TEST_F(MainWindowTest, CloseRequestEndsTheDialogForBothValues) {
    for (const WPARAM value : {FINEDIALOGO_CONFERMATO, FINEDIALOGO_ANNULLATO}) {
        Witness* dialog = OpenWitness(View());
        ASSERT_TRUE(dialog);
        View().SendMessage(WM_FINEDIALOGO, value, 0);
        View().SendMessage(WM_FINEDIALOGO, value, reinterpret_cast<LPARAM>(&View()));
        View().SendMessage(WM_FINEDIALOGO, 3, reinterpret_cast<LPARAM>(dialog));
        EXPECT_TRUE(dialog->IsWindow());
        if (value == FINEDIALOGO_CONFERMATO)
            dialog->OnOK();
        else
            dialog->OnCancel();
        EXPECT_FALSE(dialog->IsWindow()) << "the window goes at once";
        EXPECT_EQ(alive, 1) << "the object waits for its handlers to return";
        EXPECT_FALSE(workspace->ToolOf(View()));
        CWinApp::PumpMessages();
        EXPECT_EQ(alive, 0);
    }
}

// Catches dialogs that pile up on a view, and changes told to the wrong document's dialog or twice.
TEST_F(MainWindowTest, OneToolDialogPerViewHearsItsDocumentOnly) {
    HostView& first = View();
    OpenWitness(first);
    Witness* dialog = OpenWitness(first);
    CWinApp::PumpMessages();
    EXPECT_EQ(alive, 1) << "opening another ends the former";
    EXPECT_EQ(workspace->ToolOf(first), dialog);

    HostView& other = workspace->NewDocument();
    CWinApp::PumpMessages();
    hints.clear();
    other.Document().UpdateAllViews(nullptr, 77, nullptr);
    EXPECT_TRUE(hints.empty());
    first.Document().UpdateAllViews(nullptr, 77, nullptr);
    EXPECT_EQ(hints, std::vector<long>{77});
    workspace->NewView(first.Document());
    hints.clear();
    first.Document().UpdateAllViews(nullptr, 78, nullptr);
    EXPECT_EQ(hints, std::vector<long>{78}) << "once, however many views the document has";
}

// Catches a dialog that dies with its view or keeps the pointer, one that is never offered the next view, and an
// orphan that cannot be closed.
TEST_F(MainWindowTest, ClosingAViewLeavesItsDialogWithoutOne) {
    BuildSmallModel();
    HostView& view = View();
    Witness* dialog = OpenWitness(view);
    EXPECT_EQ(dialog->Bound(), &view.Document());
    EXPECT_TRUE(workspace->CloseView(view));
    CWinApp::PumpMessages();
    ASSERT_EQ(alive, 1);
    EXPECT_TRUE(dialog->IsWindow());
    EXPECT_FALSE(dialog->HasView());
    dialog->OnOK();
    EXPECT_TRUE(dialog->IsWindow()) << "without a view nobody is asked";

    HostView& next = workspace->NewDocument();
    EXPECT_EQ(dialog->Bound(), &next.Document());
    EXPECT_EQ(workspace->ToolOf(next), dialog);
    workspace->CloseView(next);
    dialog->OnCancel();
    EXPECT_TRUE(QTest::qWaitFor([this] { return alive == 0; }, 3000)) << "a cancelled dialog without a view goes";
}

// Catches a second view that replaces the first, titles that do not tell them apart, a question for a view that is not
// the last, and a camera shared by both.
TEST_F(MainWindowTest, TwoViewsOfOneDocument) {
    BuildSmallModel();
    HostView& first = View();
    Trigger("finestra.nuova");
    HostView& second = View();
    ASSERT_NE(&first, &second);
    EXPECT_EQ(&first.Document(), &second.Document());
    EXPECT_EQ(workspace->TitleOf(first), "Senza titolo 1:1");
    EXPECT_EQ(workspace->TitleOf(second), "Senza titolo 1:2");
    EXPECT_EQ(workspace->Window().Area().subWindowList().size(), 2);
    second.SetDirection(Adv3d::Alto);
    EXPECT_FALSE(first.Vista().GetAsse(2) == second.Vista().GetAsse(2));
    const unsigned drawnFirst = first.Widget().DrawCount(), drawnSecond = second.Widget().DrawCount();
    first.Document().GenNodi2Punti(CFPoint(0, 0, 9), CFPoint(1, 0, 9), 2);
    CWinApp::PumpMessages();
    first.Widget().grab();
    second.Widget().grab();
    EXPECT_GT(first.Widget().DrawCount(), drawnFirst);
    EXPECT_GT(second.Widget().DrawCount(), drawnSecond);
    EXPECT_EQ(workspace->TitleOf(first), "Senza titolo 1*:1");

    EXPECT_TRUE(workspace->CloseView(second)) << "no question: another view is left";
    CWinApp::PumpMessages();
    EXPECT_EQ(workspace->ActiveView(), &first);
    user.ExpectMessage("Salvare le modifiche a \"Senza titolo 1\"?", IDCANCEL, MB_YESNOCANCEL | MB_ICONQUESTION);
    EXPECT_FALSE(workspace->CloseView(first));
    user.ExpectMessage("Salvare le modifiche a \"Senza titolo 1\"?", IDNO);
    EXPECT_TRUE(workspace->CloseView(first));
    EXPECT_FALSE(workspace->ActiveView());
    EXPECT_FALSE(CQuovarGlobal::_GetActiveDoc());
}

// Catches a key that the toolkit's own window commands share with the menu: neither would run.
TEST_F(MainWindowTest, ClosingByKey) {
    for (const char* arrangement : {"finestra.schede", "finestra.affianca"}) {
        workspace->NewView(Document());
        Trigger(arrangement);
        const std::size_t views = workspace->Views().size();
        QTest::keyClick(View().Widget().QWidget::window()->windowHandle(), Qt::Key_W, Qt::ControlModifier);
        CWinApp::PumpMessages();
        EXPECT_EQ(workspace->Views().size(), views - 1) << arrangement;
    }
}

// Two quick keys: the dialog has gone with the first, its command has not. Catches a document that is closed under it.
TEST_F(MainWindowTest, NoCommandStartsInsideAnother) {
    user.WhenDialogOpens([this](DialogDriver& dialog) {
        dialog.Press(VK_RETURN);
        workspace->Window().Command("file.chiudi")->trigger();
        workspace->Window().Frame().SendMessage(WM_CLOSE);
        EXPECT_EQ(workspace->Views().size(), 1u);
    });
    const int cases = Document().GetSizeCasiCarico();
    Trigger("carichi.Crea Caso di Carico");
    ASSERT_EQ(workspace->Views().size(), 1u);
    EXPECT_EQ(Document().GetSizeCasiCarico(), cases + 1);
}

// Catches a menu that shows a command without a dialog or leaves one out, and undo that does not name its step.
TEST_F(MainWindowTest, MenusShowWhatThereIs) {
    QStringList titles;
    for (QAction* action : workspace->Window().menuBar()->actions()) {
        titles << action->text().remove('&');
        ASSERT_TRUE(action->menu());
        EXPECT_FALSE(action->menu()->actions().isEmpty()) << qPrintable(action->text());
    }
    EXPECT_EQ(titles.mid(0, 4), QStringList({"File", "Modifica", "Vista", "Genera"}));
    for (const ToolCommand& command : ToolCommands()) {
        std::unique_ptr<CDialogDocument> dialog = command.make(nullptr);
        ASSERT_TRUE(dialog->Create(&View())) << command.caption;
        // The menu bears the template's caption; a dialog may give itself a shorter one.
        const std::string caption = dialog->GetWindowText().ToUtf8(), offered = command.caption;
        EXPECT_FALSE(caption.empty());
        EXPECT_TRUE(caption.find(offered) != std::string::npos || offered.find(caption) != std::string::npos)
            << caption;
    }
    MainWindow& window = workspace->Window();
    window.Refresh();
    EXPECT_FALSE(window.Command("modifica.annulla")->isEnabled());
    Document().GenNodi2Punti(CFPoint(0, 0, 0), CFPoint(1, 0, 0), 2);
    CWinApp::PumpMessages();
    EXPECT_TRUE(window.Command("modifica.annulla")->text().startsWith("&Annulla ")) << "with the step's name";
    Trigger("modifica.annulla");
    EXPECT_TRUE(window.Command("modifica.ripristina")->isEnabled());
    Trigger("filtro.Travi");
    EXPECT_FALSE(View().IsSelectTravi());
    window.Refresh();
    EXPECT_FALSE(window.Command("filtro.Travi")->isChecked());
    workspace->NewDocument();
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
        EXPECT_TRUE(workspace->IsWaiting());
        const WaitBar inner("Altro", 10);
        CMainFrame::_StepBar();
        EXPECT_EQ(workspace->Window().Wait().Done(), 0u) << "an inner wait does not move the outer one's bar";
        workspace->Window().Command("file.nuovo")->trigger();
        EXPECT_EQ(workspace->Views().size(), 1u);
        View().Document().UpdateAllViews(nullptr, MODIFICA_STRUTTURA, nullptr);
        View().Widget().grab();
        EXPECT_EQ(View().Widget().DrawCount(), drawn);
    }
    EXPECT_FALSE(workspace->IsWaiting());
    View().Widget().grab();
    EXPECT_GT(View().Widget().DrawCount(), drawn);
    CMainFrame::_FineAttesa();
    EXPECT_FALSE(workspace->IsWaiting()) << "an end without a beginning does nothing";
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
