// Restraints, springs and end releases, assigned by the user.
#include "host/commands/Assign.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/ViewWidget.h"
#include "model/element/Molla.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"
#include "tests/host/AskedDialog.h"
#include "tests/host/TestModel.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace host;

using AssignTest = WorkspaceTest;

// Catches a box that stands for its neighbour, a command that is more than one step, and attributes that the picture or
// undo forgets.
TEST_F(AssignTest, RestraintsAreAssignedDrawnAndUndone) {
    BuildCantilever(Document());
    CNodo& node = *Document().GetIndexNodo(1);
    Select({});
    EXPECT_FALSE(m_workspace->Window().Command("assegna.vincolo")->isEnabled());
    View().Fit();
    CWinApp::PumpMessages();
    const QImage before = View().Widget().grab().toImage();
    Select({&node, Document().GetIndexTrave(0)});
    const std::size_t steps = Document().Undo().UndoCount();
    WhenAsked([](QDialog& dialog) { dialog.reject(); });
    Trigger("assegna.vincolo");
    EXPECT_EQ(Document().Undo().UndoCount(), steps) << "cancelled";
    ExpectOneStep("Assegna vincolo", [this] {
        WhenAsked([](QDialog& dialog) {
            EXPECT_FALSE(Find<QCheckBox>(dialog, "Traslazione X").isChecked());
            Find<QCheckBox>(dialog, "Traslazione Y").click();
            Find<QCheckBox>(dialog, "Rotazione X").click();
            dialog.accept();
        });
        Trigger("assegna.vincolo");
    });
    ASSERT_TRUE(node.GetVincolo());
    EXPECT_EQ(node.GetVincolo()->GetMask(), unsigned{CVincolo::Ty | CVincolo::Rx});

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
    m_user.ExpectMessage("Immettere un numero.");
    m_user.ExpectMessage("La rigidezza non può essere negativa.");
    m_user.ExpectMessage("La direzione non può essere nulla.");
    ExpectOneStep("Assegna molla", [this] { Trigger("assegna.molla"); });
    ASSERT_EQ(node.GetSizeMolle(), 1);
    EXPECT_EQ(node.GetIndexMolla(0)->GetTipo(), CMolla::Rotational);
    EXPECT_EQ(node.GetIndexMolla(0)->GetStiffness().GetValue(), 2.5);
    EXPECT_EQ(node.GetIndexMolla(0)->GetDirection(), CFPoint(1, 0, 0));

    WhenAsked([](QDialog& dialog) {
        Find<QCheckBox>(dialog, "M21").click();
        Find<QCheckBox>(dialog, "T2").click();
        dialog.accept();
    });
    ExpectOneStep("Assegna svincoli", [this] { Trigger("assegna.svincoli"); });
    CTrave* beam = Document().GetIndexTrave(0);
    EXPECT_EQ(beam->GetReleases(0), 1u << CSpecificheSvincoliTrave::M2);
    EXPECT_EQ(beam->GetReleases(1), 1u << CSpecificheSvincoliTrave::T);

    Select({});
    EXPECT_NE(View().Widget().grab().toImage(), before) << "nothing of it is drawn";
}

// Catches a form that opens on a button, one whose Tab or Enter presses Annulla and loses what was entered, and a
// support that fixes other components than its name says.
TEST_F(AssignTest, FormsAreFilledInByKeyboard) {
    BuildCantilever(Document());
    Select({Document().GetIndexNodo(0), Document().GetIndexTrave(0)});
    for (const char* command : {"assegna.vincolo", "assegna.molla", "assegna.svincoli", "assegna.carico"}) {
        SCOPED_TRACE(command);
        WhenAsked([](QDialog& dialog) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            const auto press = [&dialog](Qt::Key key) { QTest::keyClick(dialog.windowHandle(), key); };
            const QWidget* first = dialog.focusWidget();
            const auto isLast = [&dialog] {
                const auto* button = qobject_cast<QPushButton*>(dialog.focusWidget());
                return button && button->text() == "Annulla";
            };
            EXPECT_FALSE(qobject_cast<const QPushButton*>(first));
            int fields = 0;
            for (; fields < 20 && !isLast(); ++fields)
                press(Qt::Key_Tab);
            EXPECT_GT(fields, 3);
            press(Qt::Key_Tab);
            EXPECT_EQ(dialog.focusWidget(), first) << "the buttons come last";
            press(Qt::Key_Backtab);
            if (dialog.windowTitle() == "Carico")
                Find<QLineEdit>(dialog, "nodale.fx").setText("1");
            press(Qt::Key_Return);
            EXPECT_EQ(dialog.result(), QDialog::Accepted);
        });
        Trigger(command);
    }
    for (const Support& each : Supports()) {
        AssignRestraint(Document(), CVincolo());
        WhenAsked([&each](QDialog& dialog) {
            Find<QPushButton>(dialog, each.name).click();
            dialog.accept();
        });
        Trigger("assegna.vincolo");
        EXPECT_EQ(Document().GetIndexNodo(0)->GetVincolo()->GetMask(), each.fixed);
        AssignRestraint(Document(), CVincolo());
        Trigger(QString("assegna.vincolo.") + each.name);
        EXPECT_EQ(Document().GetIndexNodo(0)->GetVincolo()->GetMask(), each.fixed);
    }
    EXPECT_EQ(Supports()[2].fixed, unsigned{CVincolo::Ty | CVincolo::Tz}) << "rolls along X";
}

// Assigning again replaces; what releases nothing or fixes nothing takes away. Nothing that fits is said, not ignored.
TEST_F(AssignTest, AssigningReplacesAndTakesAway) {
    BuildCantilever(Document());
    CTrave& beam = *Document().GetIndexTrave(0);
    Select({&beam});
    const std::pair<bool, bool> ends[] = {{true, true}, {false, true}, {false, false}};
    for (const auto& [first, second] : ends) {
        EndReleases releases;
        releases.released[0][CSpecificheSvincoliTrave::M3] = first;
        releases.released[1][CSpecificheSvincoliTrave::M3] = second;
        AssignReleases(Document(), releases);
        EXPECT_EQ(beam.GetSizeSpecifiche(), int{first} + int{second});
    }
    m_user.ExpectMessage("Selezionare prima i nodi.");
    Trigger("assegna.vincolo"); // only the beam is selected
    CNodo& node = *Document().GetIndexNodo(0);
    Select({&node});
    const CMolla spring(CMolla::Translational, 1, {1, 0, 0});
    AssignSpring(Document(), &spring, true);
    AssignSpring(Document(), &spring, true);
    EXPECT_EQ(node.GetSizeMolle(), 2);
    WhenAsked([](QDialog& dialog) {
        Find<QComboBox>(dialog, "tipo").setCurrentIndex(2);
        dialog.accept();
    });
    Trigger("assegna.molla");
    EXPECT_EQ(node.GetSizeMolle(), 0);
    AssignRestraint(Document(), CVincolo());
    EXPECT_FALSE(node.GetVincolo());
    m_user.ExpectMessage("Selezionare prima le travi.");
    Trigger("assegna.svincoli");
}
