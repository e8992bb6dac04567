// Generation and measuring in the application: what the user picks in the view ends up in the document and in sight.
#include "dialogs/generation/DialogDistanza.h"
#include "dialogs/generation/DialogMesh4Punti.h"
#include "dialogs/generation/DialogNodoRelativo.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "model/element/Setto.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace host;

namespace {

class GenerationCommandsTest : public WorkspaceTest {
  protected:
    void SetUp() override { BuildSmallModel(); }

    void Pick(const CFPoint& node) { Click(PixelOf(node)); }
    std::string PromptText() { return View().Prompt().ToUtf8(); }
};

// Catches a round that the dialog's activation breaks, a mesh that is no step of its own, and picks that go elsewhere
// once the first mesh is there.
TEST_F(GenerationCommandsTest, MeshesOneRoundAfterTheOther) {
    DialogDriver driver(*OpenTool(CDialogMesh4Punti::IDD));
    driver.Type(MeshDialog::IDC_SUDDIVISIONI1, "3");
    const int walls = Document().GetSizeSetti();
    const CFPoint rounds[][4] = {{{0, 0, 0}, {4, 0, 0}, {4, 0, 4}, {0, 0, 3}},
                                 {{4, 0, 0}, {8, 0, 0}, {8, 0, 4}, {4, 0, 4}}};
    int made = 0;
    for (const auto& corners : rounds) {
        ExpectOneStep("Mesh", [&] {
            for (const CFPoint& corner : corners)
                Pick(corner);
        });
        EXPECT_EQ(PromptText(), "Definisci il primo nodo.");
        EXPECT_EQ(Document().GetSizeSetti(), walls + 3 * ++made);
    }
    m_user.ExpectMessage(
        "I punti non sono i vertici, in ordine, di un quadrilatero convesso o di un triangolo: la mesh "
        "non è stata generata.",
        IDOK, MB_OK);
    for (const CFPoint& corner : {rounds[0][0], rounds[0][2], rounds[0][1], rounds[0][3]})
        Pick(corner);
    EXPECT_TRUE(driver.IsOpen());
}

// Catches a wait that does not hear the user, one that lets him at the half made model, and what stays behind.
TEST_F(GenerationCommandsTest, ALongMeshIsBrokenOff) {
    const int nodes = Document().GetSizeNodi();
    DialogDriver driver(*OpenTool(CDialogMesh4Punti::IDD));
    for (const int parts : {MeshDialog::IDC_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI2})
        driver.Type(parts, "400");
    const int corners[] = {MeshDialog::IDC_X2, MeshDialog::IDC_X3, MeshDialog::IDC_Y3, MeshDialog::IDC_Y4};
    for (const int edit : corners)
        driver.Type(edit, "5000");
    auto* stop = m_workspace->Window().findChild<QPushButton*>("interrompi");
    ASSERT_TRUE(stop);
    QWindow* window = m_workspace->Window().windowHandle();
    for (const bool byKey : {true, false}) {
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            if (!stop->isVisible())
                return;
            user.stop();
            QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier); // dropped, as all else is
            EXPECT_TRUE(Document().Selection().IsEmpty());
            if (byKey) {
                QWindow* dialog = platform::WidgetOf(*m_workspace->ToolOf(View()))->windowHandle();
                QTest::keyClick(dialog, Qt::Key_Escape);
                QCoreApplication::postEvent(dialog, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, {})); // impatient
            } else {
                QTest::mouseClick(window, Qt::LeftButton, {}, stop->mapTo(&m_workspace->Window(), QPoint(5, 5)));
            }
        });
        user.start(10);
        driver.Click(MeshDialog::IDC_APPLICA);
        CWinApp::PumpMessages();
        EXPECT_TRUE(driver.IsOpen()) << "the key was the wait's";
        EXPECT_FALSE(stop->isVisible());
        EXPECT_EQ(Document().GetSizeNodi(), nodes) << byKey;
        EXPECT_EQ(Document().Undo().UndoCount(), 0u) << byKey;
    }
}

// Catches a measure that stays after the next pick, or in another unit, and one beside a dialog that asks for points.
TEST_F(GenerationCommandsTest, APickedPairIsMeasuredUntilTheNextPick) {
    OpenTool(CDialogDistanza::IDD);
    Pick({0, 0, 3});
    EXPECT_FALSE(View().Vector().vector);
    Pick({4, 0, 0});
    EXPECT_EQ(PromptText(), "dx 4   dy 0   dz -3 m   Fare clic sul primo nodo del vettore.");
    ASSERT_TRUE(View().Vector().vector);
    EXPECT_TRUE(View().Vector().vector->first == CFPoint(0, 0, 3));
    Pick({8, 0, 0});
    EXPECT_FALSE(View().Vector().vector);
    Document().ChangeUnits(Lunghezza::Feet, Forza::Kips);
    CWinApp::PumpMessages();
    EXPECT_FALSE(View().Vector().from) << "the first point was of another unit";
    Document().Undo().Undo();
    CWinApp::PumpMessages();
    OpenTool(CDialogMesh4Punti::IDD);
    Pick({0, 0, 3});
    Pick({4, 0, 0});
    EXPECT_FALSE(View().Vector().vector);
}

// Catches a click in the view that forgets what was typed before it, and nodes that pile up at one place.
TEST_F(GenerationCommandsTest, RelativeNodesKeepTheTypedOffset) {
    DialogDriver driver(*OpenTool(CDialogNodoRelativo::IDD));
    driver.Type(CDialogNodoRelativo::IDC_DX + 2, "1.5");
    m_workspace->Window().activateWindow(); // as a window manager does before it passes the click on
    CWinApp::PumpMessages();
    Pick({8, 0, 0});
    const int nodes = Document().GetSizeNodi();
    for (int times = 0; times < 3; ++times) {
        driver.Click(CDialogNodoRelativo::IDC_APPLICA);
        CWinApp::PumpMessages();
    }
    CFPoint last(8, 0, 4.5);
    EXPECT_TRUE(Document().GetNodo(last, nullptr, 0));
    EXPECT_EQ(Document().GetSizeNodi(), nodes + 3);
    EXPECT_EQ(Document().Undo().UndoCount(), 3u);
    driver.Click(CDialogNodoRelativo::IDC_AGGIORNAMENTO_SI + 1);
    driver.Type(CDialogNodoRelativo::IDC_DX + 2, "-1.5");
    driver.Click(CDialogNodoRelativo::IDC_APPLICA);
    EXPECT_EQ(Document().GetSizeNodi(), nodes + 3) << "there is one";
    driver.Type(CDialogNodoRelativo::IDC_DX, "1e308");
    m_user.ExpectMessage("Le coordinate non sono valide: il nodo non è stato creato.", IDOK, MB_OK);
    driver.Click(CDialogNodoRelativo::IDC_APPLICA);
    EXPECT_EQ(Document().GetSizeNodi(), nodes + 3);
}

} // namespace
