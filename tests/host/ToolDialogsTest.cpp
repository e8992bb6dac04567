// The dialogs beside the views: which one hears and picks what, and when each ends.
#include "host/ui/ToolDialogs.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/generation/DialogGenNodi2P.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "model/element/Nodo.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

using namespace host;

namespace {

// A tool dialog that notes what it is told.
class Witness final : public CDialogDocument {
  public:
    explicit Witness(CWnd* parent) : CDialogDocument(CDialogGenNodiLineare::IDD, parent) { ++alive; }
    ~Witness() override { --alive; }
    void Update(CView*, long hint, CObject*) override { hints.push_back(hint); }
    CQuovarDoc* Bound() { return GetDoc(); }

    static inline std::vector<long> hints;
    static inline int alive = 0;
};

// A window that is no tool dialog and ends itself. At its end it asks the view, which must be there still.
class SelfEnding final : public CDialog {
  public:
    explicit SelfEnding(HostView& view) : m_view(view) { ++alive; }
    ~SelfEnding() override { --alive; }
    BOOL DestroyWindow() override {
        if (GetSafeHwnd())
            viewsSeen += m_view.GetSafeHwnd() != nullptr;
        return CDialog::DestroyWindow();
    }
    void OnCancel() override { DestroyWindow(); }

    static inline int alive = 0;
    static inline int viewsSeen = 0;

  private:
    HostView& m_view;
};

std::unique_ptr<CDialog> OpenWitness(HostView& view, CWnd& frame) {
    auto dialog = std::make_unique<Witness>(&frame);
    EXPECT_TRUE(dialog->Create(&view));
    return dialog;
}

std::unique_ptr<CDialog> OpenSelfEnding(HostView& view, CWnd&) {
    auto dialog = std::make_unique<SelfEnding>(view);
    EXPECT_TRUE(dialog->Create(CDialogGenNodi2P::IDD, &view));
    return dialog;
}

const Command witnessRow = {.menu = CommandMenu::Prompts, .dialog = 1, .open = OpenWitness};
const Command otherKind = {.menu = CommandMenu::Prompts, .dialog = 1, .kind = 1, .open = OpenWitness};
const Command secondRow = {.menu = CommandMenu::Prompts, .dialog = 2, .open = OpenWitness};
const Command selfEndingRow = {.menu = CommandMenu::Prompts, .dialog = 3, .open = OpenSelfEnding};

class ToolDialogsTest : public WorkspaceTest {
  protected:
    void SetUp() override {
        BuildSmallModel();
        Witness::hints.clear();
        SelfEnding::viewsSeen = 0;
    }
    template <class Dialog = Witness>
    Dialog* Open(const Command& row) {
        return static_cast<Dialog*>(m_workspace->Tools().Open(row, View(), m_workspace->Window().Frame()));
    }
    CNodo& Node(int index) { return *Document().GetIndexNodo(index); }
    // Another document, whose view becomes the active one.
    HostView& Elsewhere() {
        HostView& view = m_workspace->NewDocument();
        CWinApp::PumpMessages();
        return view;
    }
};

// Faults: a close request that is ignored for one of its two values, a dialog deleted inside its own handler (the
// sanitizer sees it) or never, a request for a dialog that is not the view's.
TEST_F(ToolDialogsTest, CloseRequestEndsTheDialogForBothValues) {
    for (const WPARAM value : {FINEDIALOGO_CONFERMATO, FINEDIALOGO_ANNULLATO}) {
        Witness* dialog = Open(witnessRow);
        View().SendMessage(WM_FINEDIALOGO, value, 0);
        View().SendMessage(WM_FINEDIALOGO, value, reinterpret_cast<LPARAM>(&View()));
        View().SendMessage(WM_FINEDIALOGO, 3, reinterpret_cast<LPARAM>(dialog));
        EXPECT_TRUE(dialog->IsWindow());
        if (value == FINEDIALOGO_CONFERMATO)
            dialog->OnOK();
        else
            dialog->OnCancel();
        EXPECT_FALSE(dialog->IsWindow()) << "the window goes at once";
        EXPECT_EQ(Witness::alive, 1) << "the object waits for its handlers to return";
        EXPECT_FALSE(m_workspace->ToolOf(View()));
        CWinApp::PumpMessages();
        EXPECT_EQ(Witness::alive, 0);
    }
}

// Faults: one that ends another, a second of the same command, two kinds of one class, changes told to another
// document's dialog, to one of the view's only, or once for each view.
TEST_F(ToolDialogsTest, SeveralLiveBesideAView) {
    HostView& first = View();
    Witness* dialog = Open(witnessRow);
    Witness* second = Open(secondRow);
    CWinApp::PumpMessages();
    EXPECT_EQ(Witness::alive, 2);
    EXPECT_EQ(QApplication::activeWindow(), platform::WidgetOf(*second));
    EXPECT_EQ(Open(witnessRow), dialog);
    CWinApp::PumpMessages();
    EXPECT_EQ(QApplication::activeWindow(), platform::WidgetOf(*dialog)) << "it comes to the front";
    Open(otherKind);
    CWinApp::PumpMessages();
    EXPECT_EQ(Witness::alive, 2) << "it takes the place of the other kind";

    m_workspace->NewView(first.Document());
    HostView& other = Elsewhere();
    Witness::hints.clear();
    other.Document().UpdateAllViews(nullptr, 77, nullptr);
    EXPECT_TRUE(Witness::hints.empty());
    first.Document().UpdateAllViews(nullptr, 77, nullptr);
    EXPECT_EQ(Witness::hints, (std::vector<long>{77, 77})) << "each once, however many views the document has";
}

// Faults: a second picking dialog that closes the first or shares its points, one whose end stops the other's picking.
TEST_F(ToolDialogsTest, OneOfThemPicks) {
    DialogDriver linear(*OpenLinear());
    DialogDriver twoPoints(*OpenTool(CDialogGenNodi2P::IDD));
    Click(PixelOf(Node(1)));
    EXPECT_EQ(twoPoints.Text(CDialogGenNodi2P::IDC_X1), "4");
    EXPECT_EQ(linear.Text(CDialogGenNodiLineare::IDC_X1), "0");
    ASSERT_TRUE(linear.IsOpen());
    linear.Press(VK_ESCAPE);
    CWinApp::PumpMessages();
    EXPECT_FALSE(linear.IsOpen());
    Click(PixelOf(Node(2)));
    EXPECT_EQ(twoPoints.Text(CDialogGenNodi2P::IDC_X2), "8") << "the pair goes on";

    DialogDriver again(*OpenLinear());
    OpenTool(CDialogGenNodi2P::IDD);
    Click(PixelOf(Node(2)));
    EXPECT_EQ(twoPoints.Text(CDialogGenNodi2P::IDC_X1), "8") << "brought to the front, it picks again";
    twoPoints.Press(VK_ESCAPE);
    CWinApp::PumpMessages();
    EXPECT_FALSE(View().IsDefinisciVettore());
}

// Faults: a window that ended itself and is kept, or that outlives its view.
TEST_F(ToolDialogsTest, WindowsThatEndThemselvesAreNoticed) {
    DialogDriver driver(*Open<SelfEnding>(selfEndingRow));
    driver.Press(VK_ESCAPE);
    CWinApp::PumpMessages();
    EXPECT_EQ(SelfEnding::alive, 0);
    SelfEnding* left = Open<SelfEnding>(selfEndingRow);
    left->DestroyWindow();
    EXPECT_TRUE(Open<SelfEnding>(selfEndingRow)->GetSafeHwnd()) << "asked for again before it was noticed";
    EXPECT_TRUE(m_workspace->CloseView(View()));
    CWinApp::PumpMessages();
    EXPECT_EQ(SelfEnding::alive, 0);
    EXPECT_EQ(SelfEnding::viewsSeen, 3);
}

// Faults: a dialog handed to a view of another document, which it would change, or that outlives its document; one that
// waits though another view of its document is active; one that no longer picks there; an orphan that cannot be closed.
TEST_F(ToolDialogsTest, ClosingAViewLeavesItsDialogsToTheDocumentsOtherViews) {
    HostView& first = View();
    HostDocument& document = Document();
    Witness* dialog = Open(witnessRow);
    DialogDriver linear(*OpenLinear());
    HostView& second = m_workspace->NewView(document);
    second.SetDirection(Adv3d::Front);
    EXPECT_TRUE(m_workspace->CloseView(first));
    CWinApp::PumpMessages();
    EXPECT_EQ(dialog->Bound(), &document) << "the view was active already";
    EXPECT_TRUE(m_workspace->Tools().IsOpen(dialog, second));
    Click(PixelOf(Node(1)));
    EXPECT_EQ(linear.Text(CDialogGenNodiLineare::IDC_X1), "4") << "it picks again";

    HostView& third = m_workspace->NewView(document);
    Witness* cancelled = Open(secondRow);
    HostView& other = Elsewhere();
    m_workspace->CloseView(third);
    m_workspace->ViewActivated(other);
    EXPECT_FALSE(cancelled->Bound());
    cancelled->OnOK();
    EXPECT_TRUE(cancelled->IsWindow()) << "without a view nobody is asked";
    cancelled->OnCancel();
    EXPECT_TRUE(QTest::qWaitFor([] { return Witness::alive == 1; }, 3000)) << "a cancelled dialog without a view goes";

    document.MarkSaved();
    EXPECT_TRUE(m_workspace->CloseView(second));
    CWinApp::PumpMessages();
    EXPECT_EQ(Witness::alive, 0) << "it ends with its document";
    EXPECT_FALSE(linear.IsOpen());
}

// Faults: a second of one kind that goes on waiting when the view's own ends, or then shows what was.
TEST_F(ToolDialogsTest, OneThatWaitedHearsWhatItMissed) {
    HostView& first = View();
    Witness* waiting = Open(witnessRow);
    HostView& second = m_workspace->NewView(Document());
    Witness* present = Open(witnessRow);
    EXPECT_TRUE(m_workspace->CloseView(first));
    Document().UpdateAllViews(nullptr, 77, nullptr);
    Document().UpdateAllViews(nullptr, 77, nullptr);
    EXPECT_FALSE(waiting->Bound());
    Witness::hints.clear();
    present->OnCancel();
    EXPECT_TRUE(m_workspace->Tools().IsOpen(waiting, second));
    EXPECT_EQ(Witness::hints, (std::vector<long>{77, MODIFICA_RISULTATI_CASO}));
}

// Faults: captions that keep the former name, lose their own, or get a name where the dialog shows none.
TEST_F(ToolDialogsTest, CaptionsFollowTheDocumentsName) {
    const QTemporaryDir folder;
    const auto captions = [this] { // of every command's dialog, which is opened when it is not
        std::vector<std::string> all;
        Document().SelectAll();
        for (const Command* each : Commands())
            if (CDialog* dialog = each->open ? m_workspace->Run(*each) : nullptr) {
                CWinApp::PumpMessages();
                all.push_back(dialog->GetWindowText().ToUtf8());
            }
        return all;
    };
    std::string former = "Senza nome 1 : ";
    std::vector<std::string> expected = captions();
    for (const std::string name : {"Ponte", "Torre"}) {
        ASSERT_TRUE(m_workspace->SaveAs(Document(), folder.filePath(QString::fromStdString(name + ".asg"))));
        std::size_t at = 0;
        for (const Command* each : Commands())
            if (each->open) {
                std::string& caption = expected.at(at++);
                ASSERT_EQ(caption.rfind(former, 0) == 0, each->titled) << caption;
                caption = each->titled ? name + " : " + caption.substr(former.size()) : caption;
            }
        former = name + " : ";
        EXPECT_EQ(captions(), expected);
    }
    // What a dialog gives itself when it opens is the same.
    const std::vector<std::string> followed = captions();
    m_workspace->Tools().EndAll();
    EXPECT_EQ(captions(), followed);
    // And of one that waits without a view, since the other view has the same dialog.
    const Command& linear = *FindCommand(CDialogGenNodiLineare::IDD);
    HostView& first = View();
    const CDialog* waiting = m_workspace->Run(linear);
    m_workspace->NewView(Document());
    m_workspace->Run(linear);
    m_workspace->CloseView(first);
    ASSERT_TRUE(m_workspace->SaveAs(Document(), folder.filePath("Faro.asg")));
    EXPECT_EQ(waiting->GetWindowText(), "Faro : Generazione Nodi Lineare");
}

} // namespace
