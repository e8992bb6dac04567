// Loads, assigned by the user and taken off again.
#include "host/commands/AssignLoad.h"
#include "host/ui/MainWindow.h"
#include "model/element/Solaio.h"
#include "model/entity/Combinazione.h"
#include "platform/window/Application.h"
#include "tests/host/AnalysisModel.h"
#include "tests/host/AskedDialog.h"
#include "tests/host/WorkspaceTest.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace host;

namespace {

// Fields of the kind that is shown: "x=1 z=-2".
void Type(QDialog& dialog, const QString& fields) {
    for (const QString& field : fields.split(' '))
        for (QLineEdit* edit : dialog.findChildren<QLineEdit*>())
            if (edit->isVisible() && edit->objectName().section('.', 1) == field.section('=', 0, 0))
                edit->setText(field.section('=', 1));
}

// To the next dialog.
void Answer(const char* kind, const char* fields, const char* reference = "Globale", int axis = 2) {
    WhenAsked([=](QDialog& dialog) {
        Find<QComboBox>(dialog, "tipo").setCurrentText(kind);
        Find<QComboBox>(dialog, "riferimento").setCurrentText(reference);
        Find<QComboBox>(dialog, "asse").setCurrentIndex(axis);
        Type(dialog, fields);
        dialog.accept();
    });
}

QStringList Choices(QDialog& dialog, const char* box) {
    QStringList texts;
    for (int i = 0; i < Find<QComboBox>(dialog, box).count(); ++i)
        texts << Find<QComboBox>(dialog, box).itemText(i);
    return texts;
}

QString LabelOf(QDialog& dialog, const char* field) {
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        if (label->buddy() == &Find<QLineEdit>(dialog, field))
            return label->isVisible() ? label->text() : "hidden";
    return "none";
}

// A column of 4 m held at both ends: its local axes are Z, Y and -X. Column and foot are selected.
struct Column : AnalysisModel {
    static constexpr double L = 4;
    Column() {
        document.Selection().Add(foot);
        document.Selection().Add(beam);
    }
    CNodo* foot = Node(0, 0, 0, CVincolo::All);
    CTrave* beam = Beam(foot, Node(0, 0, L, CVincolo::All));
};

} // namespace

// What is typed for each kind reaches the foot's reaction as the closed form says. Catches a field that stands for its
// neighbour, axes or a reference that get lost, a load on what cannot carry it, and results that outlive the model.
TEST(AssignLoad, ValuesReachTheAnalysis) {
    constexpr double L = Column::L, E = Column::E, A = Column::A, a = 1.5, b = L - a;
    constexpr double point = b * b * (3 * a + b) / (L * L * L); // the part of a point load that the near end takes
    constexpr double part = a / (2 * L * L * L) * (2 * L * L * L - 2 * a * a * L + a * a * a); // uniform from it to a
    enum { UX, UY, UZ, RX, RY, RZ };
    const struct {
        const char* kind;
        const char* fields;
        const char* reference;
        int axis, component;
        double reaction;
    } cases[] = {
        {"Forza nodale", "fy=7 mz=5", "", 0, UY, -7},
        {"Forza nodale", "fy=7 mz=5", "", 0, RZ, -5},
        {"Spostamento imposto", "uz=0.001", "", 0, UZ, E * A * 0.001 / L},
        {"Spostamento imposto", "rz=0.01", "", 0, RZ, Column::G * Column::J * 0.01 / L},
        {"Uniforme", "z=-6", "Globale", 0, UZ, 6 * L / 2},
        {"Uniforme", "z=-6", "Locale", 0, UX, -6 * L / 2},
        {"Trapezoidale", "a=1.5 inizio=-6 fine=-6", "Locale", 1, UY, 6 * part},
        {"Trapezoidale", "fine=6", "Globale", 2, UZ, -6 * L / 6},
        {"Concentrato", "distanza=1.5 fx=9", "Globale", 0, UX, -9 * point},
        {"Concentrato", "distanza=1.5 fx=9", "Locale", 0, UZ, -9 * b / L},
        {"Concentrato", "distanza=1.5 mz=9", "Globale", 0, RZ, -9 * b / L},
        {"Temperatura", "media=30", "", 0, UZ, E * A * Column::alpha * 30},
        {"Temperatura", "media=30 alfa=2e-5", "", 0, UZ, E * A * 2e-5 * 30},
        {"Temperatura", "gradiente2=10", "", 0, RX, E * Column::I3 * Column::alpha * 10},
        {"Temperatura", "gradiente3=10", "", 0, RY, E * Column::I2 * Column::alpha * 10},
        {"Peso proprio", "z=-10", "", 0, UZ, Column::density * A * 10 * L / 2},
    };
    for (const auto& each : cases) { // warmer at the side of its axis, the free column would bend away from there
        SCOPED_TRACE(each.kind);
        Column model;
        QWidget parent;
        model.Run();
        Answer(each.kind, each.fields, each.reference, each.axis);
        RunAssignLoad(model.document, parent);
        EXPECT_FALSE(model.document.Analysis().Results(model.firstCase->GetID()));
        EXPECT_EQ(model.document.Undo().UndoName(), "Assegna Carico");
        model.Run();
        ExpectClose(model.Reaction(model.foot, each.component), each.reaction);
    }
}

// What cannot be is refused and stays in its field; the shortest element decides about distances.
TEST(AssignLoad, BadInputIsRefused) {
    Column model;
    model.document.Selection().Add(model.Truss(model.foot, model.Node(0, 3, 0)));
    model.document.ChangeUnits(Lunghezza::Centimetres, Forza::Newton);
    QWidget parent;
    UserScript user;
    const std::size_t steps = model.document.Undo().UndoCount();
    const char tooFar[] =
        "La distanza deve essere compresa tra 0 e 300 cm, la lunghezza dell'elemento selezionato più corto.";
    WhenAsked([](QDialog& dialog) {
        const auto refused = [&dialog](const char* field, const char* text) {
            Find<QLineEdit>(dialog, field).setText(text);
            dialog.accept();
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(Find<QLineEdit>(dialog, field).text(), text);
            EXPECT_EQ(Find<QLineEdit>(dialog, field).selectedText(), text);
        };
        Find<QComboBox>(dialog, "tipo").setCurrentText("Uniforme");
        EXPECT_EQ(LabelOf(dialog, "uniforme.z"), "Carico Z (N/cm):");
        Find<QComboBox>(dialog, "riferimento").setCurrentText("Locale");
        EXPECT_EQ(LabelOf(dialog, "uniforme.z"), "Carico 3 (N/cm):");
        refused("uniforme.x", "2,5");
        refused("uniforme.x", "0");
        Find<QComboBox>(dialog, "tipo").setCurrentText("Concentrato");
        EXPECT_EQ(LabelOf(dialog, "uniforme.z"), "hidden");
        EXPECT_EQ(LabelOf(dialog, "concentrato.mx"), "Momento 1 (N*cm):");
        Type(dialog, "fx=1");
        refused("concentrato.distanza", "300.1");
        refused("concentrato.distanza", "-1");
        Find<QComboBox>(dialog, "tipo").setCurrentText("Trapezoidale");
        EXPECT_EQ(Find<QLineEdit>(dialog, "trapezoidale.a").text(), "300");
        EXPECT_EQ(Choices(dialog, "asse"), QStringList({"1", "2", "3"}));
        Type(dialog, "inizio=1 da=150");
        refused("trapezoidale.a", "150");
        Type(dialog, "a=300.0001"); // as a length is shown, rounded
        dialog.accept();
        EXPECT_FALSE(dialog.isVisible());
    });
    user.ExpectMessage("Immettere un numero.");
    user.ExpectMessage("Il carico è nullo.");
    user.ExpectMessage(tooFar);
    user.ExpectMessage(tooFar);
    user.ExpectMessage("La fine del tratto deve seguire l'inizio.");
    RunAssignLoad(model.document, parent);
    EXPECT_EQ(model.document.Undo().UndoCount(), steps + 1);
}

// A case has one self weight: shown, replaced, taken away. Catches a mass that counts twice.
TEST(AssignLoad, SelfWeightBelongsToTheCase) {
    AnalysisModel model;
    QWidget parent;
    UserScript user;
    CCasoCarico* second = model.document.CreaCasoCarico("Peso");
    const auto weigh = [&](const char* shown, const char* typed) {
        WhenAsked([=](QDialog& dialog) {
            EXPECT_EQ(Choices(dialog, "tipo"), QStringList("Peso proprio")) << "nothing is selected";
            EXPECT_EQ(Find<QComboBox>(dialog, "caso").currentText(), "Caso 1");
            Find<QComboBox>(dialog, "caso").setCurrentText("Peso");
            EXPECT_EQ(Find<QLineEdit>(dialog, "peso.z").text(), shown);
            Type(dialog, QString("z=") + typed);
            dialog.accept();
        });
        RunAssignLoad(model.document, parent);
    };
    weigh("-9.80665", "-10");
    weigh("-10", "-5");
    EXPECT_EQ(second->GetSizeCarichi(), 1);
    EXPECT_EQ(SelfWeightOf(*second), CFPoint(0, 0, -5));
    weigh("-5", "0");
    EXPECT_EQ(second->GetSizeCarichi(), 0);
    user.ExpectMessage("Il carico è nullo.");
    weigh("-9.80665", "0");
    model.document.Undo().Undo();
    model.document.Undo().Undo();
    EXPECT_EQ(SelfWeightOf(*second), CFPoint(0, 0, -10));
    EXPECT_EQ(model.firstCase->GetSizeCarichi(), 0);
}

class AssignLoadCommandTest : public WorkspaceTest {
  protected:
    CCasoCarico& FirstCase() { return *Document().GetIndexCasoCarico(0); }
};

// From the menu, one step each, bit for bit: the order of the case's loads included. Catches a load of its own for each
// element, and loads that stay in the case, or leave it, against what still carries them.
TEST_F(AssignLoadCommandTest, LoadsAreSharedTakenOffAndUndone) {
    BuildSmallModel();
    CTrave *first = Document().GetIndexTrave(0), *last = Document().GetIndexTrave(1);
    CAsta* bar = Document().GetIndexAsta(0);
    const auto assign = [this](const char* kind, const char* fields) {
        ExpectOneStep("Assegna Carico", [&] {
            Answer(kind, fields);
            Trigger("assegna.carico");
        });
    };
    Document().SelectAll();
    assign("Uniforme", "x=1");
    CCarico* shared = first->GetIndexCarico(0);
    ASSERT_TRUE(shared);
    EXPECT_EQ(last->GetIndexCarico(0), shared);
    EXPECT_EQ(bar->GetIndexCarico(0), shared);
    EXPECT_EQ(Document().GetIndexNodo(0)->GetSizeCarichi() + Document().GetIndexSolaio(0)->GetSizeCarichi(), 0);
    EXPECT_EQ(FirstCase().GetSizeCarichi(), 1);
    Select({first});
    assign("Temperatura", "media=10");
    assign("Peso proprio", "z=-10");
    Select({Document().GetIndexNodo(0), last});
    WhenAsked([](QDialog& dialog) { EXPECT_EQ(Choices(dialog, "tipo").size(), 7); });
    Trigger("assegna.carico");
    assign("Forza nodale", "fx=1");
    assign("Peso proprio", "z=-5"); // leaves the middle, enters at the end

    const auto remove = [this] { Trigger("assegna.elimina_carichi"); };
    Select({first}); // the temperature goes, what others carry stays
    ExpectOneStep("Elimina Carichi", remove);
    EXPECT_EQ(first->GetSizeCarichi(), 0);
    EXPECT_EQ(last->GetIndexCarico(0), shared);
    EXPECT_EQ(FirstCase().GetSizeCarichi(), 3);
    m_user.ExpectMessage("Gli oggetti selezionati non hanno carichi nel caso \"Caso 1\".");
    remove();
    Document().SelectAll();
    ExpectOneStep("Elimina Carichi", remove);
    ASSERT_EQ(FirstCase().GetSizeCarichi(), 1) << "the self weight";
    EXPECT_EQ(SelfWeightOf(FirstCase()), CFPoint(0, 0, -5));
}

// Another case keeps its loads; without a case that could have loads, the user is told.
TEST_F(AssignLoadCommandTest, TheCaseIsAskedForOrMissing) {
    BuildSmallModel();
    CTrave* beam = Document().GetIndexTrave(0);
    CCasoCarico* second = Document().CreaCasoCarico("Vento");
    Document().SelectCasoCarico(second->GetID());
    CWinApp::PumpMessages();
    EXPECT_TRUE(m_workspace->Window().Command("assegna.carico")->isEnabled());
    EXPECT_FALSE(m_workspace->Window().Command("assegna.elimina_carichi")->isEnabled());
    Select({beam});
    WhenAsked([](QDialog& dialog) {
        EXPECT_EQ(Choices(dialog, "tipo").size(), 5);
        EXPECT_EQ(Find<QComboBox>(dialog, "caso").currentText(), "Vento");
        Find<QComboBox>(dialog, "caso").setCurrentText("Caso 1");
        Type(dialog, "x=1");
        dialog.accept();
    });
    Trigger("assegna.carico");
    EXPECT_EQ(FirstCase().GetSizeCarichi(), 1);
    Answer("Concentrato", "fx=1");
    Trigger("assegna.carico");
    Trigger("assegna.elimina_carichi"); // those of "Vento"
    ASSERT_EQ(beam->GetSizeCarichi(), 1);
    EXPECT_EQ(beam->GetIndexIDCasoCarico(0), FirstCase().GetID());

    auto combination = std::make_unique<CCombinazione>();
    combination->SetNome("SLU");
    Document().SelectCasoCarico(Document().AddNew(std::move(combination))->GetID());
    m_user.ExpectMessage("Scegliere prima il caso di carico di cui eliminare i carichi.");
    Trigger("assegna.elimina_carichi");
    Document().Remove({&FirstCase(), second});
    m_user.ExpectMessage("Creare prima un caso di carico.");
    Trigger("assegna.carico");
}
