// The model check in the application: its window, and the check without windows. What each message takes is tested
// where it is made.
#include "host/commands/Check.h"
#include "dialogs/check/DialogCheck.h"
#include "dialogs/frame/host/QuovarGlobal.h"
#include "host/document/HostDocument.h"
#include "host/files/ProjectFile.h"
#include "host/ui/MainWindow.h"
#include "model/element/Nodo.h"
#include "model/entity/Materiale.h"
#include "platform/window/Application.h"
#include "tests/host/TestModel.h"
#include "tests/host/WorkspaceTest.h"
#include "tests/support/TestApp.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>

using namespace host;

namespace {

using Rows = std::vector<std::string>;

const Rows sound = {"--- Check Modello --- ", "", "", "--- Fine Messaggi ---"};

} // namespace

class CheckTest : public WorkspaceTest {
  protected:
    Rows Check() {
        CDialogDocument* dialog = OpenTool(CDialogCheck::IDD);
        return dialog ? DialogDriver(*dialog).Rows(CDialogCheck::IDC_LIST_ERRORS) : Rows();
    }
    // Rows and exit status of the check without windows.
    std::pair<int, Rows> Printed(const QString& path) {
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::tmpfile(), &std::fclose);
        const int status = PrintCheck(*m_workspace, path, out.get());
        std::rewind(out.get());
        Rows rows(1);
        for (int c; (c = std::fgetc(out.get())) != EOF;)
            if (c == '\n')
                rows.emplace_back();
            else
                rows.back().push_back(static_cast<char>(c));
        EXPECT_EQ(rows.back(), "") << "the last line is not ended";
        rows.pop_back();
        return {status, rows};
    }
    QString Saved(const char* name) {
        const QString path = m_folder.filePath(name);
        SaveProject(Document().Data(), QFile::encodeName(path).toStdString(), "prova");
        return path;
    }

    QTemporaryDir m_folder;
};

// Catches rows that select one object at a time with a notification each, and a request that reaches another document.
TEST_F(CheckTest, PickingAllRowsSelectsAllWithOneNotification) {
    constexpr int beams = 500;
    BuildCantilever(Document());
    for (int i = 0; i < beams; ++i) {
        CFPoint place(6 + 3 * i, 0, 1);
        Document().AddNodo(place, nullptr, 0);
        Document().AddTrave(i + 2, i + 3, nullptr);
    }
    Document().Remove({Document().GetIndexMateriale(0)});
    CWinApp::PumpMessages();
    Check();
    struct Counter : DocumentObserver {
        void OnDocumentUpdate(CView*, long hint, CObject*) override { ends += hint == MODIFICA_SELEZIONE_FINE; }
        int ends = 0;
    } counter;
    Document().AddObserver(&counter);
    HostView& checked = View();
    HostView& other = m_workspace->NewDocument();
    m_workspace->Window().ShowView(checked);
    DialogDriver driver(*m_workspace->ToolOf(checked));
    driver.ClickRow(CDialogCheck::IDC_LIST_ERRORS, 0);
    CWinApp::PumpMessages();
    EXPECT_TRUE(checked.Document().Selection().IsEmpty()) << "a heading only clears";
    counter.ends = 0;
    driver.Press(VK_END, ShiftKey);
    CWinApp::PumpMessages();
    EXPECT_EQ(checked.Document().GetSizeTraviSelect(), beams + 1);
    EXPECT_EQ(counter.ends, 1);
    checked.Document().RemoveObserver(&counter);
    other.Document().UpdateAllViews(nullptr, MODIFICA_CHECK, nullptr); // another document's
    EXPECT_EQ(static_cast<int>(driver.Rows(CDialogCheck::IDC_LIST_ERRORS).size()), beams + 3);
}

// The window stands under the view, on the screen, and is not moved over it.
TEST_F(CheckTest, StandsBelowTheView) {
    Check();
    CRect window, around;
    m_workspace->ToolOf(View())->GetWindowRect(window);
    View().GetParent()->GetWindowRect(around);
    EXPECT_EQ(window.left, std::max(around.left, 0));
    EXPECT_GE(window.top, around.top + around.Height() / 2);
    EXPECT_LT(window.Height(), around.Height() / 2);
}

// Catches an exit status that says sound where something was found, and rows in another encoding.
TEST_F(CheckTest, PrintedRowsAndExitStatus) {
    {
        HostDocument& document = Document(); // printing opens others
        BuildCantilever(document);
        EXPECT_EQ(Printed(Saved("sano.asg")), std::pair(0, sound));
        CNodo& foot = *document.GetIndexNodo(0);
        const CVincolo hinge(CVincolo::Tx | CVincolo::Ty | CVincolo::Tz);
        document.Modify(foot, [&] { foot.SetRestraint(&hinge); });
    }
    Rows labile = sound;
    labile.insert(labile.begin() + 2, "Attenzione la Struttura n.ro 1, è labile");
    m_workspace->ViewActivated(*m_workspace->Views().front());
    EXPECT_EQ(Printed(Saved("labile.asg")), std::pair(1, labile));
    m_workspace->ViewActivated(*m_workspace->Views().front());
    Document().Remove({Document().GetIndexMateriale(0)});
    labile.resize(3);
    labile.push_back("CTrave n.ro 1 L'elemento non ha un materiale.");
    EXPECT_EQ(Printed(Saved("guasto.asg")), std::pair(1, labile));
    TestApp::Instance().messageHandler = [](const CString&, UINT) { return IDOK; };
    EXPECT_EQ(PrintCheck(*m_workspace, m_folder.filePath("manca.asg"), stderr), 2);
}

// A model has the same faults in whatever unit it is shown. Catches a length of the host's own that is counted in the
// document's unit: nodes near each other, a line of next to no length, a wall that is hardly warped.
TEST_F(CheckTest, TheUnitChangesNoRow) {
    BuildCantilever(Document());
    const auto node = [this](double x, double z) {
        CFPoint place(x, 0, z);
        return Document().AddNodo(place, nullptr, 0)->GetID();
    };
    for (const double x : {3 + 5e-6, 3 + 2e-5, 3 + 5e-4, 4e-7, 4e-6}) // metres
        Document().AddTrave(1, node(x, 0), nullptr);
    int corners[4];
    for (int i = 0; i < 4; ++i)
        corners[i] = node(i == 1 || i == 2 ? 8 : 5, i < 2 ? 0 : 2);
    Document().AddSetto({corners[0], corners[1], corners[2], corners[3]});
    const Rows metres = Printed(Saved("metri.asg")).second;
    EXPECT_GT(metres.size(), sound.size());
    for (const Lunghezza unit : {Lunghezza::Millimetres, Lunghezza::Centimetres, Lunghezza::Inches}) {
        m_workspace->ViewActivated(*m_workspace->Views().front());
        Document().ChangeUnits(unit, Forza::Newton);
        EXPECT_EQ(Printed(Saved("altra.asg")).second, metres) << static_cast<int>(unit);
    }
}

// What other people's models are told. They are all one structure whose supports hold it, and their elements are sound.
TEST_F(CheckTest, ModelsOfAPeer) {
    const std::filesystem::path folder = std::filesystem::path(QUOVAR_SHARED_DIR) / "data" / "frame3dd";
    if (!std::filesystem::exists(folder))
        GTEST_SKIP() << "no models in " << folder;
    TestApp::Instance().messageHandler = [](const CString&, UINT) { return IDOK; }; // what the import left out
    for (const char* name : {"exA", "exB", "exC", "exH"}) {
        SCOPED_TRACE(name);
        const auto [status, rows] = Printed(QString::fromStdString((folder / (std::string(name) + ".3dd")).string()));
        EXPECT_EQ(status, 0);
        EXPECT_EQ(rows, sound);
    }
}
