// What every tool dialog of the module keeps to. A new dialog is one row of the table.
#include "dialogs/check/DialogCheck.h"
#include "dialogs/check/DialogStrutture.h"
#include "dialogs/generation/DialogDistanza.h"
#include "dialogs/generation/DialogGenNodi2P.h"
#include "dialogs/generation/DialogGenNodiArco3Punti.h"
#include "dialogs/generation/DialogGenNodiArcoCentro.h"
#include "dialogs/generation/DialogGenNodiCerchio.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/generation/DialogIntLineaPiano.h"
#include "dialogs/generation/DialogMesh2PuntiDir.h"
#include "dialogs/generation/DialogMesh3Punti.h"
#include "dialogs/generation/DialogMesh4Punti.h"
#include "dialogs/generation/DialogNodoRelativo.h"
#include "dialogs/loads/DialogListaGruppi.h"
#include "dialogs/results/DialogDiagrammi.h"
#include "dialogs/results/DialogNodoReazioniVincolari.h"
#include "dialogs/selection/DialogBeta.h"
#include "dialogs/selection/DialogCopiaRuota.h"
#include "dialogs/selection/DialogCopiaTrasla.h"
#include "dialogs/selection/DialogMuovi.h"
#include "dialogs/selection/DialogRuota.h"
#include "dialogs/selection/DialogSpecchia.h"
#include "platform/window/Application.h"
#include "tests/dialogs/Contract.h"
#include "tests/support/TestApp.h"

#include <algorithm>
#include <memory>

namespace {

// Points picked one after the other, and what the fields then show.
struct Picked {
    std::vector<CFPoint> points;
    const char* fields;
};

// Arrows that step a whole number in an edit between two ends, by control number.
struct Spin {
    int arrows, edit;
    int lower, upper;
};

struct ToolDialog {
    const char* name;
    int templateId;
    const char* caption; // on a document called "Ponte"
    std::unique_ptr<CDialogDocument> (*make)();
    const char* opening = "";        // the one line that the host receives, "" for none
    const char* fields = "";         // what they show at every opening, see ContractFields
    std::set<int> whole = {};        // its edits of whole numbers
    std::vector<Typed> typed = {};   // a dialog with edits has one at least
    std::vector<Picked> picked = {}; // and one that picks as well
    std::vector<Spin> spins = {};
    bool okReads = true;                         // the controls, before the command
    const char* rejection = nullptr;             // told when the host rejects the parameters; null for nothing
    const CRuntimeClass* runtimeClass = nullptr; // null where it declares its own
    bool keeps = false;                          // what the fields held, from one opening to the next
};

template <class T>
std::unique_ptr<CDialogDocument> Make() {
    return std::make_unique<T>();
}

constexpr const char* picking = "StartDefinisciVettore \"\" \"\"";
constexpr const char* pickingPlane = "StartDefinisciVettore \"Definisci il punto del piano.\" \"\"";

// A command of one operation, with the undo step around it.
Lines InStep(const std::string& step, const std::string& operation) {
    return {"BeginUndo " + step, operation, "EndUndo " + step.substr(0, 1)};
}
Lines Copied(const std::string& operation) {
    return InStep("4 0 0 0 0 0 0 0 0 0 0", operation);
}
Lines Moved(const std::string& by) {
    return InStep("1 " + by + " 0 0 0 0 0 0 0", "TraslaSelezione " + by + " 0 0");
}
Lines Meshed(const std::string& corners, const std::string& parts) {
    return Copied("Mesh4Punti " + corners + " " + parts);
}
Lines OneCopy(const std::string& step) {
    return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0",
            "InizioCicloTraslaSelezione 0",
            "InizioAttesa \"Attendere...Traslazione dei nodi/elementi selezionati.\" 0",
            "CicloTraslaSelezione " + step + " 0",
            "FineCicloTraslaSelezione 1",
            "EndUndo 4",
            "FineAttesa"};
}

const std::vector<ToolDialog> toolDialogs = {
    {.name = "CDialogGenNodiLineare",
     .templateId = CDialogGenNodiLineare::IDD,
     .caption = "Ponte : Generazione Nodi Lineare",
     .make = &Make<CDialogGenNodiLineare>,
     .opening = picking,
     .fields = "[X] 1 1 0 0 0 -0 -0 -0 -0 -0 -0",
     .whole = {CDialogGenNodiLineare::IDC_NODI},
     .typed = {{{"12", "0.25", "0.1", "-2e3", "5"}, {"GenNodiLineare (0.1,-2000,5) (1.1,-2000,5) 0.25 12"}},
               {{"[Y]", "1", "1", "2", "3", "0"}, {"GenNodiLineare (2,3,0) (2,4,0) 1 1"}},
               {{"[Z]", "250"}, {"GenNodiLineare (0,0,0) (0,0,1) 1 250"}},
               {{"[Vettore]", "2", "1", "7", "8", "9", "1", "2", "3", "5", "7", "9"},
                {"GenNodiLineare (7,8,9) (11,13,15) 1 2"}}},
     // The first point is the start as well; the second moves the vector and nothing else.
     .picked = {{{{1, 2, 3}}, "[Vettore] 1 1 1 2 3 1 2 3 0 0 0"},
                {{{1, 2, 3}, {4, 5, 6}}, "[Vettore] 1 1 1 2 3 1 2 3 4 5 6"}},
     .spins = {{CDialogGenNodiLineare::IDC_SPIN_NODI, CDialogGenNodiLineare::IDC_NODI, 1, 100}},
     .rejection = "Parametri Errati!"},
    {.name = "CDialogGenNodi2P",
     .templateId = CDialogGenNodi2P::IDD,
     .caption = "Ponte : Generazione Nodi 2 Punti",
     .make = &Make<CDialogGenNodi2P>,
     .opening = picking,
     .fields = "0 0 0 0 0 0 1",
     .whole = {CDialogGenNodi2P::IDC_NODI},
     .typed = {{{"1", "2.5", "-3", "4", "5", "6e2", "-4"}, {"GenNodi2Punti (1,2.5,-3) (4,5,600) -4"}}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}}, "1 2 3 4 5 6 1"}, {{{1, 2, 3}, {4, 5, 6}, {9, 8, 7}}, "9 8 7 4 5 6 1"}},
     .spins = {{CDialogGenNodi2P::IDC_SPIN_NODI, CDialogGenNodi2P::IDC_NODI, 1, 100}},
     .rejection = "Parametri Errati!"},
    {.name = "CDialogGenNodiArco3Punti",
     .templateId = CDialogGenNodiArco3Punti::IDD,
     .caption = "Ponte : Generazione Nodi Arco 3 Punti",
     .make = &Make<CDialogGenNodiArco3Punti>,
     .opening = "StartDefinisciVettore \"Definisci il primo nodo dell' arco.\" \"\"",
     .fields = "0 0 0 0 0 0 0 0 0 1 [X - Y]",
     .whole = {CDialogGenNodiArco3Punti::IDC_NODI},
     .typed = {{{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
                {"GenNodiArco3Punti 1 (1,2,3) (4,5,6) (7,8,9) 10"}},
               {{"[Y - Z]"}, {"GenNodiArco3Punti 3 (0,0,0) (0,0,0) (0,0,0) 1"}}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, "1 2 3 4 5 6 7 8 9 1 [X - Y]"},
                {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {3, 2, 1}}, "3 2 1 4 5 6 7 8 9 1 [X - Y]"}},
     .spins = {{CDialogGenNodiArco3Punti::IDC_SPIN_NODI, CDialogGenNodiArco3Punti::IDC_NODI, 1, 1000}},
     .rejection = "Parametri Errati!"},
    {.name = "CDialogGenNodiArcoCentro",
     .templateId = CDialogGenNodiArcoCentro::IDD,
     .caption = "Ponte : Arco Centro - 1 Punto",
     .make = &Make<CDialogGenNodiArcoCentro>,
     .opening = picking,
     .fields = "0 0 0 0 0 0 [X - Y] 0 0 1 0",
     .whole = {CDialogGenNodiArcoCentro::IDC_NODI},
     // A typed radius has no effect.
     .typed = {{{"1", "2", "3", "4", "5", "6", "[X - Z]", "-90", "30", "8", "99"},
                {"GenNodiArcoCerchio 2 30 (1,2,3) (4,5,6) -90 8"}},
               {{"[Y - Z]"}, {"GenNodiArcoCerchio 3 0 (0,0,0) (0,0,0) 0 1"}}},
     .picked = {{{{1, 2, 3}}, "1 2 3 0 0 0 [X - Y] 0 0 1 0"}, {{{1, 2, 3}, {4, 6, 3}}, "1 2 3 4 6 3 [X - Y] 0 0 1 5"}},
     .spins = {{CDialogGenNodiArcoCentro::IDC_SPIN_NODI, CDialogGenNodiArcoCentro::IDC_NODI, 1, 1000}},
     .rejection = "Parametri Errati!"},
    {.name = "CDialogGenNodiCerchio",
     .templateId = CDialogGenNodiCerchio::IDD,
     .caption = "Ponte : Generazione Nodi Cerchio",
     .make = &Make<CDialogGenNodiCerchio>,
     .opening = "StartDefinisciVettore \"Definisci il centro del cerchio.\" \"\"",
     .fields = "0 0 0 [X - Y] 0 0 1",
     .whole = {CDialogGenNodiCerchio::IDC_NODI},
     .typed = {{{"1", "2", "3", "[Y - Z]", "4.5", "-30", "12"}, {"GenNodiCerchio 3 -30 12 (1,2,3) 4.5"}},
               {{"[X - Z]"}, {"GenNodiCerchio 2 0 1 (0,0,0) 0"}}},
     .picked = {{{{0, 0, 0}, {3, 4, 0}}, "0 0 0 [X - Y] 5 0 1"},
                {{{0, 0, 0}, {3, 4, 0}, {1, 1, 1}}, "1 1 1 [X - Y] 5 0 1"}},
     .spins = {{CDialogGenNodiCerchio::IDC_SPIN_NODI, CDialogGenNodiCerchio::IDC_NODI, 1, 1000}},
     .rejection = "Parametri Errati!"},
    {.name = "CDialogNodoRelativo",
     .templateId = CDialogNodoRelativo::IDD,
     .caption = "Aggiungi Nodo in coordinate relative",
     .make = &Make<CDialogNodoRelativo>,
     .opening = picking,
     .fields = "0 0 0 0 0 0 [Sì]",
     .typed = {{{"1", "2", "0", "4", "5", "6"}, {"AddNodo (5,7,6) null 1"}}},
     .picked = {{{{1, 2, 3}}, "1 2 3 0 0 0 [Sì]"}, {{{1, 2, 3}, {7, 8, 9}}, "7 8 9 0 0 0 [Sì]"}},
     .okReads = false,
     .keeps = true},
    {.name = "CDialogMesh4Punti",
     .templateId = CDialogMesh4Punti::IDD,
     .caption = "Ponte : Mesh 4 punti",
     .make = &Make<CDialogMesh4Punti>,
     .fields = "0 0 0 0 0 0 0 0 0 0 0 0 1 1",
     .whole = {MeshDialog::IDC_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI2},
     .typed = {{{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14"},
                Meshed("(1,2,3) (4,5,6) (7,8,9) (10,11,12)", "13 14")}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, "1 2 3 4 5 6 7 8 9 0 0 0 1 1"}},
     .spins = {{MeshDialog::IDC_SPIN_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI1, 1, 1000},
               {MeshDialog::IDC_SPIN_SUDDIVISIONI2, MeshDialog::IDC_SUDDIVISIONI2, 1, 1000}}},
    {.name = "CDialogMesh3Punti",
     .templateId = CDialogMesh3Punti::IDD,
     .caption = "Ponte : Mesh 3 Punti",
     .make = &Make<CDialogMesh3Punti>,
     .fields = "0 0 0 0 0 0 0 0 0 1 1",
     .whole = {MeshDialog::IDC_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI2},
     .typed = {{{"0", "0", "0", "4", "0", "0", "4", "3", "0", "2", "3"},
                Meshed("(0,0,0) (4,0,0) (4,3,0) (0,0,0)", "2 3")}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}}, "1 2 3 4 5 6 0 0 0 1 1"}},
     .spins = {{MeshDialog::IDC_SPIN_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI1, 1, 1000},
               {MeshDialog::IDC_SPIN_SUDDIVISIONI2, MeshDialog::IDC_SUDDIVISIONI2, 1, 1000}}},
    {.name = "CDialogMesh2PuntiDir",
     .templateId = CDialogMesh2PuntiDir::IDD,
     .caption = "Ponte : Mesh 2 punti Dir",
     .make = &Make<CDialogMesh2PuntiDir>,
     .fields = "0 0 0 0 0 0 0 0 0 0 0 0 1 1",
     .whole = {MeshDialog::IDC_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI2},
     .typed = {{{"0", "0", "0", "5", "0", "0", "1", "1", "0", "1", "1", "3"},
                Meshed("(0,0,0) (5,0,0) (5,0,3) (0,0,3)", "1 1")}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}, "1 2 3 4 5 6 7 8 9 0 0 0 1 1"}},
     .spins = {{MeshDialog::IDC_SPIN_SUDDIVISIONI1, MeshDialog::IDC_SUDDIVISIONI1, 1, 1000},
               {MeshDialog::IDC_SPIN_SUDDIVISIONI2, MeshDialog::IDC_SUDDIVISIONI2, 1, 1000}}},
    {.name = "CDialogDistanza",
     .templateId = CDialogDistanza::IDD,
     .caption = "Ponte : Distanza fra 2 Punti",
     .make = &Make<CDialogDistanza>,
     .opening = picking,
     .fields = "=0 =0 =0 =0 =0 =0 =0",
     .picked = {{{{0, 0, 0}, {3, 4, 12}}, "=0 =0 =0 =3 =4 =12 =13"},
                {{{0, 0, 0}, {3, 4, 12}, {1, 2, 3}}, "=1 =2 =3 =0 =0 =0 =0"}}, // nothing is measured until the next
     .runtimeClass = RUNTIME_CLASS(CDialogDocument)},
    {.name = "CDialogCopiaTrasla",
     .templateId = CDialogCopiaTrasla::IDD,
     .caption = "Ponte : Copia Trasla",
     .make = &Make<CDialogCopiaTrasla>,
     .opening = picking,
     .fields = "[Z] 1 3 [Niente] -0 -0 -0 -0 -0 -0",
     .whole = {CDialogCopiaTrasla::IDC_COPIE},
     .typed = {{{}, OneCopy("0 0 3 0")}, {{"[Y]", "1", "0.5", "[Bielle]"}, OneCopy("0 0.5 0 2")}},
     .picked = {{{{1, 1, 1}}, "[Vettore] 1 3 [Niente] 1 1 1 0 0 0"},
                {{{1, 1, 1}, {4, 5, 1}}, "[Vettore] 1 5 [Niente] 1 1 1 4 5 1"}},
     .spins = {{CDialogCopiaTrasla::IDC_SPIN_COPIE, CDialogCopiaTrasla::IDC_COPIE, 0, 100}}},
    {.name = "CDialogCopiaRuota",
     .templateId = CDialogCopiaRuota::IDD,
     .caption = "Ponte : Copia Ruota",
     .make = &Make<CDialogCopiaRuota>,
     .opening = picking,
     .fields = "0 0 0 0 0 0 1 0 [Niente]",
     .whole = {CDialogCopiaRuota::IDC_COPIE},
     .typed = {{{"0", "0", "0", "0", "0", "1", "3", "90"}, Copied("RuotaSelezione 0 0 0 0 0 1 90 3 0")},
               {{"1", "2", "3", "4", "5", "6", "1", "-7.5", "[Aste]"}, Copied("RuotaSelezione 1 2 3 4 5 6 -7.5 1 2")},
               {{"[Travi/Pilastri]", "0", "0", "0", "0", "0", "0", "-1"}, Copied("RuotaSelezione 0 0 0 0 0 0 0 -1 1")},
               {{"0", "0", "0", "0", "0", "0", "250"}, Copied("RuotaSelezione 0 0 0 0 0 0 0 250 0")}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}}, "1 2 3 4 5 6 1 0 [Niente]"}},
     .spins = {{CDialogCopiaRuota::IDC_SPIN_COPIE, CDialogCopiaRuota::IDC_COPIE, 0, 100}}},
    {.name = "CDialogBeta",
     .templateId = CDialogBeta::IDD,
     .caption = "Ponte : Angolo Beta",
     .make = &Make<CDialogBeta>,
     .typed = {{{"30"}, {}}}, // its buttons assign, OK does not
     .okReads = false},
    {.name = "CDialogMuovi",
     .templateId = CDialogMuovi::IDD,
     .caption = "Ponte : Muovi",
     .make = &Make<CDialogMuovi>,
     .opening = picking,
     .fields = "0 0 0 0 0 0",
     .typed = {{{"1", "2.5", "-3", "4", "8", "6e2"}, Moved("3 5.5 603")}, {{}, Moved("0 0 0")}},
     .picked = {{{{1, 2, 3}}, "1 2 3 0 0 0"}}},
    {.name = "CDialogRuota",
     .templateId = CDialogRuota::IDD,
     .caption = "Ponte : Ruota",
     .make = &Make<CDialogRuota>,
     .opening = picking,
     .fields = "[Asse Generico] 0 0 0 0 0 0 0",
     .typed = {{{"90", "1", "2", "3", "4", "5", "6"}, // degrees
                InStep("3 1 1 2 3 4 5 6 90 0 0", "RuotaSelezione 1 2 3 4 5 6 90 0 0")}},
     .picked = {{{{1, 2, 3}, {4, 5, 6}}, "[Asse Generico] 0 1 2 3 4 5 6"}}},
    {.name = "CDialogSpecchia",
     .templateId = CDialogSpecchia::IDD,
     .caption = "Ponte : Specchia",
     .make = &Make<CDialogSpecchia>,
     .opening = pickingPlane,
     .fields = "[// XY] 0 0 0",
     .typed = {{{"1", "2", "3"}, Copied("SpecchiaSelezione 1 2 3 0")},
               {{"1", "2", "3", "[// YZ]"}, Copied("SpecchiaSelezione 1 2 3 1")},
               {{"1", "2", "3", "[// XZ]"}, Copied("SpecchiaSelezione 1 2 3 2")},
               {{"1", "2", "3", "[Origine]"}, Copied("SpecchiaSelezione 1 2 3 3")}}, // passed on for the origin too
     .picked = {{{{1, 2, 3}}, "[// XY] 1 2 3"}, {{{1, 2, 3}, {7, 8, 9}}, "[// XY] 7 8 9"}}},
    {.name = "CDialogCheck", .templateId = CDialogCheck::IDD, .caption = "Check Modello", .make = &Make<CDialogCheck>},
    {.name = "CDialogStrutture",
     .templateId = CDialogStrutture::IDD,
     .caption = "Strutture ",
     .make = &Make<CDialogStrutture>,
     .opening = "Deseleziona null"},
    {.name = "CDialogDiagrammi",
     .templateId = CDialogDiagrammi::IDD,
     .caption = "Ponte : Diagramma - (Nessuna trave selezionata)",
     .make = &Make<CDialogDiagrammi>,
     .runtimeClass = RUNTIME_CLASS(CDialogDocument)},
    {.name = "CDialogNodoReazioniVincolari",
     .templateId = CDialogNodoReazioniVincolari::IDD,
     .caption = "Ponte : Nodo Reazioni Vincolari",
     .make = &Make<CDialogNodoReazioniVincolari>,
     .fields = "= = = = = ="},
    {.name = "CDialogListaGruppi",
     .templateId = CDialogListaGruppi::IDD,
     .caption = "Ponte : Gruppi",
     .make = &Make<CDialogListaGruppi>},
    {.name = "CDialogIntLineaPiano",
     .templateId = CDialogIntLineaPiano::IDD,
     .caption = "Ponte : Intersezione Linee Piano",
     .make = &Make<CDialogIntLineaPiano>,
     .opening = "StartDefinisciVettore \"Definisci il primo nodo\" \"\"",
     .fields = "=0 =0 =0 =0 =0 =0 =0 =0 =0",
     .picked = {{{{1, 2, 3}, {4, 5, 6}}, "=1 =2 =3 =4 =5 =6 =0 =0 =0"}}},
};

// What closing tells the view is no command, and asking for points is none.
Lines CommandsIn(Lines lines) {
    std::erase_if(lines, [](const std::string& line) {
        return line == "StopDefinisciVettore" || line.starts_with("StartDefinisciVettore") ||
               line.starts_with("WM_FINEDIALOGO");
    });
    return lines;
}

class EveryToolDialog : public DialogTest, public testing::WithParamInterface<ToolDialog> {
  protected:
    // Opens it anew.
    DialogDriver Open() {
        m_dialog->DestroyWindow();
        EXPECT_NE(m_host.Open(*m_dialog), 0);
        m_host.Take();
        return DialogDriver(*m_dialog);
    }

    const ContractFields m_fields{GetParam().templateId};
    std::unique_ptr<CDialogDocument> m_dialog = GetParam().make();
};

class EveryDialogWithFields : public EveryToolDialog {};
class EveryPickingDialog : public EveryToolDialog {};

// Catches fields, buttons or enabling that the opening before has left, and a control that the template lacks: the
// exchange reaches every bound control and throws.
TEST_P(EveryToolDialog, OpensFromItsTemplateWithItsDefaults) {
    // Hosts find their tool dialogs by class: a missing declaration makes one invisible to them.
    const CRuntimeClass* declared = GetParam().runtimeClass;
    EXPECT_STREQ(m_dialog->GetRuntimeClass()->m_lpszClassName, declared ? declared->m_lpszClassName : GetParam().name);
    EXPECT_TRUE(m_dialog->IsKindOf(RUNTIME_CLASS(CDialogDocument)));
    EXPECT_TRUE(!m_fields.Any() || !GetParam().typed.empty()) << "the table lacks what comes of typing";
    const std::string opening = GetParam().opening;
    EXPECT_TRUE(!opening.starts_with("StartDefinisciVettore") || !GetParam().picked.empty()) << "and of picking";
    for (int times = GetParam().keeps; times < 2; ++times) {
        ASSERT_NE(m_host.Open(*m_dialog), 0);
        EXPECT_EQ(m_host.Take(), opening.empty() ? Lines{} : Lines{opening});
        DialogDriver driver(*m_dialog);
        EXPECT_EQ(driver.Caption(), GetParam().caption);
        EXPECT_TRUE(m_dialog->IsWindowVisible());
        EXPECT_EQ(m_fields.Shown(driver), GetParam().fields);
        m_fields.ExpectNoPlaceholder(driver);
        EXPECT_TRUE(!GetParam().okReads || m_dialog->UpdateData(TRUE)) << "the defaults must be valid";
        m_fields.SetTexts(driver, "7");
        m_fields.ClickOtherChoices(driver);
        m_dialog->UpdateData(TRUE);
        m_dialog->DestroyWindow();
        m_host.Take();
    }
}

// Catches an edit that no field is bound to, or another one's, and a wrong argument or order of what the host is told.
TEST_P(EveryDialogWithFields, WhatIsTypedReachesTheHost) {
    for (const Typed& row : GetParam().typed) {
        DialogDriver driver = Open();
        m_fields.Type(driver, row.texts);
        driver.Press(VK_RETURN);
        const Lines lines = m_host.Take();
        EXPECT_EQ(CommandsIn(lines), row.calls);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "WM_FINEDIALOGO 1"), 1);
        EXPECT_FALSE(m_dialog->IsWindow());
    }
}

// Catches a rejection that is not told, or that keeps the dialog open.
TEST_P(EveryDialogWithFields, TellsThatTheHostRejects) {
    m_host.doc.generated = 0;
    DialogDriver driver = Open();
    if (GetParam().rejection)
        m_user.ExpectMessage(GetParam().rejection, IDOK, MB_OK);
    driver.Press(VK_RETURN);
    EXPECT_FALSE(m_dialog->IsWindow());
}

// Catches a range that is another dialog's, and arrows beside the wrong edit.
TEST_P(EveryDialogWithFields, SpinsStopAtTheirEnds) {
    for (const Spin& spin : GetParam().spins) {
        DialogDriver driver = Open();
        driver.Type(spin.edit, std::to_string(spin.upper - 1));
        for (int times = 0; times < 2; ++times)
            driver.ClickSpinUp(spin.arrows);
        EXPECT_EQ(driver.Text(spin.edit), std::to_string(spin.upper));
        driver.Type(spin.edit, std::to_string(spin.lower));
        driver.ClickSpinDown(spin.arrows);
        EXPECT_EQ(driver.Text(spin.edit), std::to_string(spin.lower));
    }
}

// Catches a pick that lands in another point, that is not shown, or that applies the command.
TEST_P(EveryPickingDialog, PicksFillTheFields) {
    for (const Picked& row : GetParam().picked) {
        const DialogDriver driver = Open();
        for (const CFPoint& point : row.points)
            m_host.View().Pick(point.x, point.y, point.z);
        EXPECT_EQ(m_fields.Shown(driver), row.fields);
        EXPECT_EQ(CommandsIn(m_host.Take()), Lines{});
    }
}

// Catches an OK that goes on with a text that does not parse. A comma is no decimal separator, whatever the machine's
// language: reading half of the text would be worse.
TEST_P(EveryDialogWithFields, TextThatIsNoNumberStopsOk) {
    if (!GetParam().okReads)
        return;
    DialogDriver driver = Open();
    m_fields.RefusesTexts(driver, m_user, GetParam().whole, {}, [&] {
        driver.Press(VK_RETURN);
        EXPECT_EQ(CommandsIn(m_host.Take()), Lines{});
        ASSERT_TRUE(driver.IsOpen());
    });
}

TEST_P(EveryToolDialog, EveryHandledNumberIsInTheTemplate) {
    ExpectHandledNumbersExist(*m_dialog, GetParam().templateId);
}

TEST_P(EveryToolDialog, CancelChangesNothing) {
    DialogDriver driver = Open();
    m_fields.SpoilTexts(driver); // no field is read, so no message
    m_host.Take();
    driver.Press(VK_ESCAPE);
    const Lines lines = m_host.Take();
    EXPECT_EQ(CommandsIn(lines), Lines{});
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "WM_FINEDIALOGO 2"), 1);
    EXPECT_FALSE(m_dialog->IsWindow());
    EXPECT_FALSE(m_host.View().IsDefinisciVettore()) << "the view stays in picking mode";
}

// Null from a getter is "none", whatever the user does then.
TEST_P(EveryToolDialog, TakesNullForNone) {
    HoldNothing(m_host);
    DialogDriver driver = Open();
    TestApp::Instance().messageHandler = [](const CString&, UINT) { return IDOK; }; // what it says is said elsewhere
    for (int code = 0; code <= 100; ++code)
        m_dialog->Update(nullptr, code, nullptr);
    m_fields.ClickEverything(driver);
    driver.MoveTo(40, 40);
    CWinApp::PumpMessages();
    if (driver.IsOpen())
        driver.Press(VK_RETURN);
}

TEST_P(EveryToolDialog, SurvivesItsView) {
    m_host.Open(*m_dialog);
    RecordingView& second = m_host.AddView();
    m_host.CloseView(m_host.View());
    CWinApp::PumpMessages();
    m_host.Take();
    DialogDriver driver(*m_dialog);
    driver.Press(VK_RETURN);
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_STRUTTURA);
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(m_host.Take(), Lines{"UpdateAllViews null 42 null"}) << "without a view it has no document to change";
    ASSERT_TRUE(m_dialog->IsWindow());
    second.tool = m_dialog.get();
    m_dialog->AggiornaVista(&second);
    driver.Press(VK_ESCAPE);
    EXPECT_FALSE(m_dialog->IsWindow());
}

TEST_P(EveryToolDialog, MayBeDestroyedWhileOpen) {
    // By its object's end and by its owner's: either must leave no window, timer or picking mode behind.
    m_host.Open(*m_dialog);
    m_dialog.reset();
    EXPECT_FALSE(m_host.View().IsDefinisciVettore());
    m_dialog = GetParam().make();
    m_host.Open(*m_dialog);
    m_host.frame.DestroyWindow();
    EXPECT_FALSE(m_dialog->IsWindow());
}

std::vector<ToolDialog> Rows(bool (*chosen)(const ToolDialog&)) {
    std::vector<ToolDialog> rows;
    std::ranges::copy_if(toolDialogs, std::back_inserter(rows), chosen);
    return rows;
}

std::string NameOf(const testing::TestParamInfo<ToolDialog>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Module, EveryToolDialog, testing::ValuesIn(toolDialogs), NameOf);
INSTANTIATE_TEST_SUITE_P(Module, EveryDialogWithFields,
                         testing::ValuesIn(Rows([](const ToolDialog& row) { return !row.typed.empty(); })), NameOf);
INSTANTIATE_TEST_SUITE_P(Module, EveryPickingDialog,
                         testing::ValuesIn(Rows([](const ToolDialog& row) { return !row.picked.empty(); })), NameOf);

} // namespace
