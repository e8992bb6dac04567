// Restraints, springs and end releases, assigned by the user.
#include "host/files/ProjectFile.h"
#include "host/ui/MainWindow.h"
#include "host/ui/ViewWidget.h"
#include "platform/Application.h"
#include "tests/host/CheckBuilder.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace {

// Acts in the application's own modal dialog once it is open.
void WhenAsked(std::function<void(QDialog&)> action) {
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog) << "no dialog opened";
        action(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

template <class Widget>
Widget& Find(QDialog& dialog, const char* name) {
    return *dialog.findChild<Widget*>(name);
}

} // namespace

class AssignTest : public WorkspaceTest {
  protected:
    QTemporaryDir folder;
};

// Catches a box that stands for its neighbour, a command that is more than one step, and attributes that the file, the
// picture or undo forgets.
TEST_F(AssignTest, RestraintsAreAssignedDrawnSavedAndUndone) {
    CheckBuilder model(Document());
    CNodo& node = model.At(2);
    Document().Selection().Clear();
    CWinApp::PumpMessages();
    EXPECT_FALSE(workspace->Window().Command("assegna.vincolo")->isEnabled());
    View().Fit();
    CWinApp::PumpMessages();
    const QImage before = View().Widget().grab().toImage();
    Document().Selection().Add(&node);
    Document().Selection().Add(Document().GetIndexTrave(0));
    const std::size_t steps = Document().Undo().UndoCount();
    WhenAsked([](QDialog& dialog) { dialog.reject(); });
    Trigger("assegna.vincolo");
    EXPECT_EQ(Document().Undo().UndoCount(), steps) << "cancelled";
    WhenAsked([](QDialog& dialog) {
        EXPECT_FALSE(Find<QCheckBox>(dialog, "Traslazione X").isChecked());
        Find<QCheckBox>(dialog, "Traslazione Y").click();
        Find<QCheckBox>(dialog, "Rotazione X").click();
        dialog.accept();
    });
    Trigger("assegna.vincolo");
    ASSERT_TRUE(node.GetVincolo());
    EXPECT_EQ(node.GetVincolo()->GetMaschera(), unsigned{CVincolo::Ty | CVincolo::Rx});
    EXPECT_EQ(Document().Undo().UndoCount(), steps + 1);
    EXPECT_EQ(Document().Undo().UndoName(), "Assegna vincolo");

    WhenAsked([](QDialog& dialog) {
        EXPECT_EQ(Find<QComboBox>(dialog, "tipo").currentText(), "Traslazionale");
        Find<QComboBox>(dialog, "tipo").setCurrentIndex(1);
        Find<QLineEdit>(dialog, "rigidezza").setText("2,5");
        dialog.accept(); // refused: the separator is the full stop
        Find<QLineEdit>(dialog, "rigidezza").setText("-1");
        dialog.accept();
        Find<QLineEdit>(dialog, "rigidezza").setText("2.5");
        Find<QLineEdit>(dialog, "z").setText("0");
        dialog.accept();
        Find<QLineEdit>(dialog, "x").setText("1");
        dialog.accept();
    });
    user.ExpectMessage("Immettere un numero.");
    user.ExpectMessage("La rigidezza non può essere negativa.");
    user.ExpectMessage("La direzione non può essere nulla.");
    Trigger("assegna.molla");
    ASSERT_EQ(node.GetSizeMolle(), 1);
    EXPECT_EQ(node.GetIndexMolla(0)->GetTipo(), CMolla::Rotazionale);
    EXPECT_EQ(node.GetIndexMolla(0)->GetRigidezza().GetValore(), 2.5);
    EXPECT_EQ(node.GetIndexMolla(0)->GetDirezione(), CFPoint(1, 0, 0));

    WhenAsked([](QDialog& dialog) {
        Find<QCheckBox>(dialog, "M21").click();
        Find<QCheckBox>(dialog, "T2").click();
        dialog.accept();
    });
    Trigger("assegna.svincoli");
    CTrave* beam = Document().GetIndexTrave(0);
    EXPECT_EQ(beam->GetSvincoli(0), 1u << CSpecificheSvincoliTrave::M2);
    EXPECT_EQ(beam->GetSvincoli(1), 1u << CSpecificheSvincoliTrave::T);
    EXPECT_EQ(Document().Undo().UndoCount(), steps + 3);

    Document().Selection().Clear();
    CWinApp::PumpMessages();
    EXPECT_NE(View().Widget().grab().toImage(), before) << "nothing of it is drawn";
    const std::string path = QFile::encodeName(folder.filePath("assegna.asg")).toStdString();
    SaveProject(Document().Data(), path, "prova");
    DocumentData read = LoadProject(path);
    EXPECT_EQ(read.CercaNodo(2)->GetVincolo()->GetMaschera(), unsigned{CVincolo::Ty | CVincolo::Rx});
    ASSERT_EQ(read.CercaNodo(2)->GetSizeMolle(), 1);
    EXPECT_EQ(read.CercaNodo(2)->GetIndexMolla(0)->GetRigidezza().GetValore(), 2.5);
    EXPECT_EQ(read.As<CTrave>(Kind::Beam, 0)->GetSvincoli(0), 1u << CSpecificheSvincoliTrave::M2);

    Trigger("modifica.annulla");
    EXPECT_EQ(beam->GetSizeSpecifiche(), 0);
    EXPECT_EQ(node.GetSizeMolle(), 1);
    Trigger("modifica.annulla");
    EXPECT_EQ(node.GetSizeMolle(), 0);
    Trigger("modifica.annulla");
    EXPECT_FALSE(node.GetVincolo());
}

// Assigning again replaces; what releases nothing or fixes nothing takes away. Nothing that fits is said, not ignored.
TEST_F(AssignTest, AssigningReplacesAndTakesAway) {
    CheckBuilder model(Document());
    CTrave& beam = *Document().GetIndexTrave(0);
    model.Release(beam, {0, 1});
    model.Release(beam, {1});
    EXPECT_EQ(beam.GetSizeSpecifiche(), 1);
    model.Release(beam, {});
    EXPECT_EQ(beam.GetSizeSpecifiche(), 0);
    user.ExpectMessage("Selezionare prima i nodi.");
    Trigger("assegna.vincolo"); // only the beam is selected
    CNodo& node = model.At(1);
    model.Spring(node, CMolla::Traslazionale, 1, {1, 0, 0});
    model.Spring(node, CMolla::Traslazionale, 2, {1, 0, 0});
    EXPECT_EQ(node.GetSizeMolle(), 2);
    WhenAsked([](QDialog& dialog) {
        Find<QComboBox>(dialog, "tipo").setCurrentIndex(2);
        dialog.accept();
    });
    Trigger("assegna.molla");
    EXPECT_EQ(node.GetSizeMolle(), 0);
    model.Fix(node, 0);
    EXPECT_FALSE(node.GetVincolo());
    user.ExpectMessage("Selezionare prima le travi.");
    Trigger("assegna.svincoli");
}
