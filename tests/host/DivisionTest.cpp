// Divided lines against statics, and what the parts have of the line.
#include "dialogs/generation/DialogDividiLinea.h"
#include "dialogs/generation/DialogIntLineaPiano.h"
#include "dialogs/generation/DialogSpezza.h"
#include "host/document/CarriedLoads.h"
#include "model/element/Poligono.h"
#include "model/entity/Gruppo.h"
#include "tests/host/AnalysisModel.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"
#include "tests/host/WorkspaceTest.h"
#include "tests/support/DialogTest.h"

#include <cmath>

using namespace host;

namespace {

// A beam with a load of every kind, some across the places 0.25, 0.5 and 0.75 of its length 13 and some right there.
class LoadedBeam : public AnalysisModel {
  public:
    LoadedBeam(CFPoint to, double beta, bool released) {
        beam = Beam(Node(0, 0, 0, CVincolo::All), Node(to.x, to.y, to.z, CVincolo::All));
        document.Modify(*beam, [&] { beam->SetBeta(beta); });
        if (released) {
            Release(beam, 0, 0, 0, 1, 0);
            Release(beam, 1, 0, 1, 1, 1);
        }
        On(beam, CCaricoUniforme(CFPoint(0.5, 1.5, -2.5), CCarico::Local));
        On(beam, CCaricoUniforme(CFPoint(1, 0, -3), CCarico::Global));
        CCaricoTrapezoidale trapezoid;
        trapezoid.GetStretch(0) = {0, 13, 1, 2};
        trapezoid.GetStretch(1) = {9.75, 2, -4, 3}; // from its end
        trapezoid.GetStretch(2) = {7, 8, 5, 5};
        On(beam, trapezoid)->SetReference(CCarico::Global);
        On(beam, CCaricoConcentrato(CFPoint(1, 2, -9), 6.5, CCarico::Local));
        CCaricoConcentrato turning(CFPoint(0, 3, 1), 11.1, CCarico::Global);
        turning.GetMomentVector() = CFPoint(4, -5, 6);
        On(beam, turning);
        turning.GetDistance() = 13 * (1 + 0.9e-6); // the end, as rounded: where that is released, it turns the beam
        On(beam, turning);
        CCaricoTemperatura heat;
        heat.GetTemperature() = 25;
        heat.GetGradient2() = 3;
        heat.GetGradient3() = -2;
        On(beam, heat);
        Run();
    }

    CTrave* beam;
};

// Catches a load on a wrong part or at a wrong place, axes that turn, and a release that stays between two parts.
TEST(Division, DiagramsAreThoseOfTheWholeLine) {
    const CFPoint ends[] = {{3, 4, 12}, {13, 0, 0}, {0, 0, -13}, {13e-4, 0, 13}};
    AttachDialogModule();
    for (int i = 0; i < 8; ++i) {
        LoadedBeam whole(ends[i / 2], 10.0 * i, i % 2), divided(ends[i / 2], 10.0 * i, i % 2);
        UserScript user;
        user.WhenDialogOpens([](DialogDriver& driver) {
            driver.Type(CDialogDividiLinea::IDC_N_NODI, "3");
            driver.Click(CDialogDividiLinea::IDC_INSERISCI_NODI);
            driver.Type(CDialogDividiLinea::IDC_DISTANZA, "2.1");
            driver.Click(CDialogDividiLinea::IDC_INSERISCI_NODO);
            driver.Click(IDOK);
        });
        CDialogDividiLinea dialog;
        dialog.SetDoc(&divided.document);
        dialog.SetLinea(divided.beam);
        dialog.DoModal();
        divided.Run();
        ASSERT_EQ(divided.document.GetSizeTravi(), 5);
        double start = 0;
        for (int part = 0; part < 5; ++part) {
            CTrave* beam = divided.document.GetIndexTrave(part);
            const double length = beam->GetLunghezzaLinea();
            for (const int kind : {CElementoSettings::N, CElementoSettings::V2, CElementoSettings::V3,
                                   CElementoSettings::T, CElementoSettings::M2, CElementoSettings::M3})
                for (int j = 0; j <= 4; ++j) {
                    const auto side = j < 4 ? CTraveRisultati::After : CTraveRisultati::Before;
                    SCOPED_TRACE(testing::Message() << i << " part " << part << " kind " << kind << " at " << j);
                    ExpectClose(divided.Force(beam, kind, length * j / 4, side),
                                whole.Force(whole.beam, kind, start + length * j / 4, side), 100);
                }
            start += length;
        }
    }
}

class DivisionCommands : public WorkspaceTest {
  protected:
    DivisionCommands() {
        BuildEverything(Document());
        Select({Document().GetIndexTrave(0), Document().GetIndexTrave(3)}); // one with releases, one with loads
        Document().CreateGroup("Parti");
        Document().Idle();
    }
    void Split(const char* parts) {
        m_user.WhenDialogOpens([parts](DialogDriver& driver) {
            driver.Type(CDialogSpezza::IDC_DIVISIONI, parts);
            driver.Click(IDOK);
        });
        Trigger(CDialogSpezza::IDD);
    }
    // Loads that no element carries.
    int Idle() {
        int idle = 0;
        for (int i = 0; i < Document().GetSizeCasiCarico(); ++i) {
            CCasoCarico& loadCase = *Document().GetIndexCasoCarico(i);
            LoadNumbers carried;
            for (const Kind kind : {Kind::Node, Kind::Beam, Kind::Truss, Kind::Wall, Kind::Slab})
                for (int j = 0; j < Document().Data().Size(kind); ++j)
                    carried.merge(LoadsOf(*Document().Data().As<CElementoCarico>(kind, j), loadCase.GetID()));
            idle += loadCase.GetSizeCarichi() - static_cast<int>(carried.size());
        }
        return idle;
    }
};

// Catches what undo and redo leave behind, loads that nobody carries any more, and parts that miss what the line had.
TEST_F(DivisionCommands, OneStepGivesTheLinesBack) {
    const int idle = Idle();
    const int beams = Document().GetSizeTravi();
    CTrave* first = Document().GetIndexTrave(0);
    ExpectOneStep("Spezza", [this] { Split("3"); });
    EXPECT_EQ(Idle(), idle);
    ASSERT_EQ(Document().GetSizeTravi(), beams + 4);
    CTrave* parts[] = {first, Document().GetIndexTrave(beams), Document().GetIndexTrave(beams + 1)};
    const unsigned releases[][2] = {{first->GetReleases(0), 0}, {0, 0}, {0, 1u << CSpecificheSvincoliTrave::M3}};
    EXPECT_NE(releases[0][0], 0u);
    CGruppo* group = Document().GetGroup("Parti");
    EXPECT_EQ(group->GetSizeElementi(), 6);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(parts[i]->GetReleases(0), releases[i][0]) << i;
        EXPECT_EQ(parts[i]->GetReleases(1), releases[i][1]) << i;
        EXPECT_EQ(parts[i]->GetBeta(), 33.3);
        EXPECT_FALSE(parts[i]->IsVisible());
        EXPECT_TRUE(parts[i]->IsGruppo(group->GetID()) &&
                    group->IsElemento(parts[i]->GetTipoElemento(), parts[i]->GetID()));
    }
    Select({Document().GetIndexTrave(3)});
    ExpectOneStep("Suddivisione linea", [this] {
        m_user.WhenDialogOpens([](DialogDriver& driver) {
            driver.Click(CDialogDividiLinea::IDC_MEZZO);
            driver.Click(IDOK);
        });
        Trigger(CDialogDividiLinea::IDD);
    });
    EXPECT_EQ(Idle(), idle);
    // A place that falls on the first node leaves nothing behind.
    ExpectOneStep("Suddivisione linea", [this] {
        m_user.WhenDialogOpens([](DialogDriver& driver) {
            driver.Type(CDialogDividiLinea::IDC_DISTANZA, "1e-12");
            driver.Click(CDialogDividiLinea::IDC_INSERISCI_NODO);
            driver.Click(CDialogDividiLinea::IDC_MEZZO);
            driver.Click(IDOK);
        });
        Trigger(CDialogDividiLinea::IDD);
    });
    for (int i = 0; i < Document().GetSizeTravi(); ++i)
        EXPECT_GT(Document().GetIndexTrave(i)->GetLunghezzaLinea(), 0.1);
}

// Catches a line cut beside another one's node and left apart from it, and parts without length at the line's ends.
TEST_F(DivisionCommands, PointsMeetNodesWithinTheTolerance) {
    CTrave& line = *Document().GetIndexTrave(0);
    CFPoint along;
    line.GetDir(along, 0);
    const CNodo* const end = line.GetNodoFinale();
    CFPoint place = *line.GetNodoIniziale()->GetPunto() + along * 1.0003;
    CNodo* const there = Document().AddNodo(place, nullptr, 1);
    Document().Idle();
    Select({&line});
    const int nodes = Document().GetSizeNodi(), beams = Document().GetSizeTravi();
    m_user.WhenDialogOpens([&](DialogDriver& driver) {
        for (const double distance : {0.0005, 1.0, 1.0008, line.GetLunghezzaLinea() - 0.0005}) {
            driver.Type(CDialogDividiLinea::IDC_DISTANZA, std::to_string(distance));
            driver.Click(CDialogDividiLinea::IDC_INSERISCI_NODO);
        }
        driver.Click(IDOK);
    });
    ExpectOneStep("Suddivisione linea", [this] { Trigger(CDialogDividiLinea::IDD); });
    EXPECT_EQ(Document().GetSizeNodi(), nodes);
    ASSERT_EQ(Document().GetSizeTravi(), beams + 1);
    EXPECT_EQ(line.GetNodoFinale(), there);
    EXPECT_EQ(Document().GetIndexTrave(beams)->GetNodoIniziale(), there);
    EXPECT_EQ(Document().GetIndexTrave(beams)->GetNodoFinale(), end);
}

// Catches a command that begins what it cannot finish.
TEST_F(DivisionCommands, RefusesWhatMakesNoSense) {
    const std::string before = State();
    const auto refused = [this](const char* parts, const std::string& why) {
        m_user.ExpectMessage(why + ": il comando non è stato eseguito.");
        m_user.WhenDialogOpens([parts](DialogDriver& driver) {
            driver.Type(CDialogSpezza::IDC_DIVISIONI, parts);
            driver.Click(IDOK);
        });
        m_user.WhenDialogOpens([parts](DialogDriver& driver) {
            EXPECT_EQ(driver.Text(CDialogSpezza::IDC_DIVISIONI), parts);
            driver.Press(VK_ESCAPE);
        });
        Trigger(CDialogSpezza::IDD);
    };
    refused("-3", "Il numero delle divisioni deve essere almeno 2");
    refused("2000000000", "Il numero delle divisioni è troppo grande");
    refused("100000", "La trave n.ro 1 è troppo corta per il numero delle divisioni");
    m_user.ExpectMessage("Selezionare una sola trave o asta.");
    Trigger(CDialogDividiLinea::IDD);
    Select({Document().GetIndexNodo(0)});
    m_user.ExpectMessage("Selezionare prima le travi o le aste.");
    Trigger(CDialogSpezza::IDD);
    Select({Document().GetIndexTrave(0)});
    EXPECT_EQ(State(), before);
}

// Catches lines cut at their ends, crossings that get two nodes, and lines beyond the picked nodes left out.
TEST(DivisionByPlane, CutsWhatCrosses) {
    AnalysisModel model;
    CNodo* plane[] = {model.Node(0, 0, 1), model.Node(1, 0, 1), model.Node(0, 1, 1)};
    CTrave* column = model.Beam(model.Node(50, 0, 0), model.Node(50, 0, 4));
    CAsta* brace = model.Truss(model.Node(49, 0, 0), model.Node(51, 0, 2)); // crosses the column in the plane
    CTrave* touching = model.Beam(plane[0], model.Node(0, 0, 9));
    CTrave* inside = model.Beam(plane[0], plane[1]);
    model.Beam(model.Node(7, 0, 0), model.Node(8, 0, 4)); // not selected
    model.document.Selection().Add({column, brace, touching, inside});
    CPoligono polygon;
    for (CNodo* node : plane)
        polygon.AggiungiVertice(node);
    const int nodes = model.document.GetSizeNodi();
    ExpectExact(
        model.document, [&] { model.document.Selection().IntersezioneLineePiano(&polygon); },
        [&] { model.document.Undo().Undo(); }, [&] { model.document.Undo().Redo(); });
    EXPECT_EQ(model.document.GetSizeNodi(), nodes + 1);
    EXPECT_EQ(model.document.GetSizeTravi(), 5);
    EXPECT_EQ(model.document.GetSizeAste(), 2);
    EXPECT_EQ(column->GetNodoFinale(), brace->GetNodoFinale());
    EXPECT_EQ(*column->GetNodoFinale()->GetPunto(), CFPoint(50, 0, 1));
}

} // namespace
