// The windows of results on a model that is really analysed, and the capture of their pictures.
#include "dialogs/results/DialogDiagrammi.h"
#include "dialogs/results/DialogNodoReazioniVincolari.h"
#include "host/commands/Commands.h"
#include "host/document/ExampleModel.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/HostView.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QTemporaryDir>

using namespace host;

namespace {

class ResultsWindows : public WorkspaceTest {
  protected:
    template <class Dialog>
    Dialog* Open() {
        return dynamic_cast<Dialog*>(m_workspace->Run(*FindCommand(Dialog::IDD)));
    }
    CNodo* Support() {
        for (int i = 0; i < Document().GetSizeNodi(); ++i)
            if (Document().GetIndexNodo(i)->GetReazioniVincolari())
                return Document().GetIndexNodo(i);
        return nullptr;
    }
    // Captures as the menu does, with a file named so; an empty path is none.
    void Capture(CDialogDiagrammi& diagrams, const QString& path) {
        HostView::pictureFileHook = [&path] { return path; };
        diagrams.SendMessage(WM_COMMAND, CDialogDiagrammi::ID_DIAGRAMMI_CATTURAIMMAGINE);
        HostView::pictureFileHook = nullptr;
    }
};

// Faults: diagrams and reactions of results that the model no longer has, kinds of the menu that miss the open window.
TEST_F(ResultsWindows, FollowTheAnalysisAndTheModel) {
    BuildExample(Document());
    CTrave* beam = Document().GetIndexTrave(0);
    Document().Selection().Add(beam);
    auto* diagrams = Open<CDialogDiagrammi>();
    ASSERT_TRUE(diagrams);
    CWinApp::PumpMessages();
    DialogDriver driver(*diagrams);
    EXPECT_TRUE(driver.Caption().ends_with("Diagramma - (I risultati non sono validi)")) << driver.Caption();
    ASSERT_FALSE(Document().RunAnalysis().refusal);
    CWinApp::PumpMessages();
    EXPECT_TRUE(driver.Caption().ends_with("Diagramma - Trave " + std::to_string(beam->GetID()))) << driver.Caption();
    diagrams->GetM2() = 0;
    View().SetResultShown(CElementoSettings::M2, true);
    EXPECT_EQ(diagrams->GetM2(), 1);
    Trigger("analisi.mostra_risultato.M2");
    EXPECT_EQ(diagrams->GetM2(), 0);

    CNodo* support = Support();
    ASSERT_TRUE(support);
    Document().Selection().Add(support);
    auto* reactions = Open<CDialogNodoReazioniVincolari>();
    ASSERT_TRUE(reactions);
    const std::string title = "Nodo n.ro " + std::to_string(support->GetID());
    EXPECT_EQ(DialogDriver(*reactions).Text(CDialogNodoReazioniVincolari::IDC_NODO), title);
    EXPECT_FALSE(DialogDriver(*reactions).Text(CDialogNodoReazioniVincolari::IDC_FX + 2).empty());
    CFPoint place(50, 50, 0);
    Document().AddNodo(place, nullptr, 1);
    CWinApp::PumpMessages();
    EXPECT_EQ(DialogDriver(*reactions).Text(CDialogNodoReazioniVincolari::IDC_NODO), title + " non disponibili");
}

// Faults: a window without a view that goes on drawing the beam of its document, seen by the memory checkers, or that
// outlives the document.
TEST_F(ResultsWindows, EndsWithItsDocument) {
    BuildExample(Document());
    Document().Selection().Add(Document().GetIndexTrave(0));
    ASSERT_FALSE(Document().RunAnalysis().refusal);
    auto* diagrams = Open<CDialogDiagrammi>();
    ASSERT_TRUE(diagrams);
    diagrams->SendMessage(WM_COMMAND, CDialogDiagrammi::ID_DIAGRAMMI_VISUALIZZAVALORI);
    CWinApp::PumpMessages();
    DialogDriver driver(*diagrams);
    driver.MoveTo(60, 40);
    HostView& view = View();
    HostView& last = m_workspace->NewView(Document());
    m_workspace->NewDocument();
    ASSERT_TRUE(m_workspace->CloseView(view));
    CWinApp::PumpMessages();
    driver.MoveTo(80, 50);
    last.Document().MarkSaved(); // nobody asks whether to keep it
    ASSERT_TRUE(m_workspace->CloseView(last));
    CWinApp::PumpMessages();
    EXPECT_FALSE(driver.IsOpen());
}

// Faults: a picture of the wrong place or window, one that reaches only the clipboard or only the file, a cancelled
// file name that loses the clipboard's, a picture that could not be written and nobody said so.
TEST_F(ResultsWindows, CaptureGoesToClipboardAndFile) {
    auto* diagrams = Open<CDialogDiagrammi>();
    ASSERT_TRUE(diagrams);
    CWinApp::PumpMessages();
    CWnd* area = diagrams->GetDlgItem(CDialogDiagrammi::IDC_DIAGRAMMA);
    CRect rect;
    area->GetClientRect(rect);
    CClientDC(area).FillSolidRect(rect, RGB(0, 200, 0));
    CClientDC(area).FillSolidRect(0, 0, 10, 10, RGB(200, 0, 0));
    const QTemporaryDir folder;
    const QString path = folder.filePath("figura.png");
    Capture(*diagrams, path);
    const QImage saved(path), copied = QApplication::clipboard()->image();
    for (const QImage& picture : {saved, copied}) {
        ASSERT_EQ(picture.deviceIndependentSize().toSize(), QSize(rect.Width(), rect.Height()));
        EXPECT_EQ(picture.pixel(2, 2), qRgb(200, 0, 0));
        EXPECT_EQ(picture.pixel(picture.width() - 1, picture.height() - 1), qRgb(0, 200, 0));
    }
    m_workspace->Window().activateWindow();
    QApplication::clipboard()->clear();
    Capture(*diagrams, {});
    EXPECT_EQ(QApplication::clipboard()->image().pixel(2, 2), qRgb(200, 0, 0)) << "the dialog, not what it lies over";
    EXPECT_EQ(QApplication::clipboard()->image().size(), copied.size());
    m_user.ExpectMessage("Impossibile scrivere l'immagine \"" + folder.filePath("figura.nonso").toStdString() + "\".");
    Capture(*diagrams, folder.filePath("figura.nonso"));
}

} // namespace
