// Results in the life of a document: when they are there, when they go, and what is refused.
#include "host/analysis/SparseCholesky.h"
#include "host/app/Options.h"
#include "host/app/Results.h"
#include "host/commands/AnalysisCommand.h"
#include "host/document/DocumentObserver.h"
#include "host/files/ProjectFile.h"
#include "host/ui/MainWindow.h"
#include "model/entity/Combinazione.h"
#include "platform/core/Collections.h"
#include "platform/window/Application.h"
#include "tests/host/AnalysisModel.h"
#include "tests/host/TestModel.h"
#include "tests/host/WorkspaceTest.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <sstream>

using namespace host;

namespace {

using Model = AnalysisModel;
constexpr unsigned all = CVincolo::All;

std::string Said(const CString& text) {
    return text.ToUtf8();
}

struct Cantilever : Model {
    CNodo* root = Node(0, 0, 0, all);
    CNodo* tip = Node(4, 0, 0);
    CTrave* beam = Beam(root, tip);
    CCaricoNodale* load = On(tip, CCaricoNodale({0, 0, -10}, {}));
};

struct Hints : DocumentObserver {
    explicit Hints(HostDocument& observed) : document(observed) { document.AddObserver(this); }
    ~Hints() { document.RemoveObserver(this); }
    void OnDocumentUpdate(CView*, long hint, CObject*) override { all.push_back(hint); }
    long Count(long hint) const { return std::count(all.begin(), all.end(), hint); }

    HostDocument& document;
    std::vector<long> all;
};

// Every sort of mechanism is named by a node and how it moves. Catches a singular system that is solved all the same, a
// message about some other node, and a sound structure that is refused.
TEST(AnalysisRefusal, MechanismsAreNamed) {
    {
        Model m; // free at one end of everything
        CNodo* root = m.Node(0, 0, 0, CVincolo::Tx | CVincolo::Ty | CVincolo::Tz | CVincolo::Rx);
        m.Beam(root, m.Node(4, 0, 0));
        EXPECT_EQ(Said(m.Refusal()).rfind("La struttura è labile: il nodo n.ro 2 si sposta in direzione ", 0), 0u)
            << Said(m.Refusal());
    }
    {
        Model m; // a shaft that nothing keeps from turning
        CNodo* root = m.Node(0, 0, 0, all & ~CVincolo::Rx);
        m.Beam(root, m.Node(4, 0, 0, CVincolo::Ty | CVincolo::Tz));
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: il nodo n.ro 1 ruota attorno all'asse X.");
    }
    {
        Model m; // a square of bars without a diagonal
        CNodo* corner[4] = {m.Node(0, 0, 0, all), m.Node(3, 0, 0, all), m.Node(3, 0, 3, CVincolo::Ty),
                            m.Node(0, 0, 3, CVincolo::Ty)};
        for (int i = 1; i < 4; ++i)
            m.Truss(corner[i], corner[(i + 1) % 4]);
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: il nodo n.ro 3 si sposta in direzione X.");
        m.Truss(corner[0], corner[2]);
        EXPECT_EQ(Said(m.Refusal()), "");
    }
    {
        Model m; // two bars in line
        CNodo* middle = m.Node(2, 0, 0, CVincolo::Ty);
        m.Truss(m.Node(0, 0, 0, all), middle);
        m.Truss(middle, m.Node(4, 0, 0, all));
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: il nodo n.ro 1 si sposta in direzione Z.");
    }
    {
        Model m; // nothing holds it
        m.Beam(m.Node(0, 0, 0, all), m.Node(4, 0, 0));
        CNodo* last = m.Node(0, 3, 0);
        for (int i = 1; i < 14; ++i) {
            CNodo* next = m.Node(i, 3, 0);
            m.Beam(last, next);
            last = next;
        }
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: nessun vincolo trattiene i nodi n.ro 3, 4, 5, 6, 7, 8, 9, "
                                     "10, 11, 12, 13, 14 e altri 2.");
    }
    {
        Cantilever m; // hinged at its root
        m.Release(m.beam, 0, 0, 0, 1, 0);
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: il nodo n.ro 2 si sposta in direzione Z.");
    }
}

TEST(AnalysisRefusal, LoadsThatNothingCarries) {
    {
        Model m;
        CNodo* foot = m.Node(0, 0, 0, all);
        CNodo* top = m.Node(0, 0, 3, CVincolo::Tx | CVincolo::Ty);
        m.Truss(foot, top);
        EXPECT_EQ(Said(m.Refusal()), "");
        m.Force(top, {}, {0, 5, 0});
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: il nodo n.ro 2 ruota attorno all'asse Y.");
    }
    {
        Model m;
        CTrave* beam = m.Beam(m.Node(0, 0, 0, all), m.Node(4, 0, 0, all));
        for (const int end : {0, 1})
            m.Release(beam, end, 1, 0, 0, 0);
        m.On(beam, CCaricoUniforme({0, 0, -3}, CCarico::Global));
        EXPECT_EQ(Said(m.Refusal()), "");
        m.On(beam, CCaricoUniforme({0.1, 0, 0}, CCarico::Global));
        EXPECT_EQ(Said(m.Refusal()), "La struttura è labile: la trave n.ro 1, svincolata ai due estremi, scorre lungo "
                                     "il proprio asse al nodo n.ro " +
                                         std::to_string(beam->GetIDNodoIniziale()) + ".");
    }
}

// Long chains, soft springs and stiff links are no mechanisms, and all their digits are there; the same with a hinge is
// one. Catches a verdict by small pivots alone, and a residual that the assembled matrix has rounded away.
TEST(AnalysisRefusal, SoftnessIsNoMechanism) {
    for (const bool hinged : {false, true}) {
        Model m;
        constexpr int pieces = 1000;
        constexpr double length = 40;
        CNodo* last = m.Node(0, 0, 0, all);
        for (int i = 1; i <= pieces; ++i) {
            CNodo* next = m.Node(i * length / pieces, 0, 0);
            CTrave* piece = m.Beam(last, next);
            if (hinged && i == pieces / 2)
                m.Release(piece, 0, 0, 0, 1, 0);
            last = next;
        }
        m.Force(last, {0, 0, -1});
        if (hinged) {
            EXPECT_EQ(Said(m.Refusal()).rfind("La struttura è labile: il nodo n.ro ", 0), 0u);
            continue;
        }
        EXPECT_TRUE(m.document.RunAnalysis().notes.empty());
        m.Run();
        ExpectClose(m.Moved(last, 2), -length * length * length / (3 * Model::E * Model::I2));
    }
    Model m; // on springs 1e12 times softer than itself
    CNodo* ends[2] = {m.Node(0, 0, 0, all & ~(CVincolo::Tz | CVincolo::Ry)), m.Node(4, 0, 0)};
    m.Beam(ends[0], ends[1]);
    constexpr double soft = 1e-7;
    for (CNodo* each : ends)
        m.document.Modify(*each, [&] { each->AddSpring(CMolla(CMolla::Translational, soft, {0, 0, 1})); });
    m.Force(ends[1], {0, 0, -1});
    m.Run();
    ExpectClose(m.Moved(ends[1], 2), -1 / soft);
}

TEST(AnalysisRefusal, WhatIsMissingIsNamed) {
    Model empty;
    EXPECT_EQ(Said(empty.Refusal()), "Il modello non ha travi né aste da analizzare.");
    Cantilever m;
    m.document.Modify(*m.beam, [&] { m.beam->SetSezione(0, nullptr); });
    EXPECT_EQ(Said(m.Refusal()), "Trave n.ro 1: manca la sezione.");
    m.document.Undo().Undo();
    m.document.Modify(*m.section, [&] { m.section->SetJ(0); });
    EXPECT_EQ(Said(m.Refusal()), "Trave n.ro 1: un momento d'inerzia della sezione non è maggiore di zero.");
    EXPECT_FALSE(m.document.m_pAnalisi->m_bRisultatiValidi);
    EXPECT_EQ(m.beam->GetRisultati(), nullptr);
    m.document.Undo().Undo();
    m.document.Modify(*m.tip, [&] { m.tip->SetPoint(CFPoint(0, 0, 0)); });
    EXPECT_EQ(Said(m.Refusal()), "Trave n.ro 1: la lunghezza è nulla.");
    m.document.Undo().Undo();
    m.document.Modify(*m.load, [&] { m.load->GetForceVector() = CFPoint(0, 1e308, 1e308); });
    m.On(m.beam, CCaricoUniforme({0, 0, 1e308}, CCarico::Global));
    EXPECT_EQ(Said(m.Refusal()), "I risultati del caso di carico n.ro 1 non sono numeri finiti.");
    ASSERT_TRUE(m.document.EliminaCasoCarico(m.firstCase->GetID()));
    EXPECT_EQ(Said(m.Refusal()), "Il modello non ha casi di carico.");
}

// What the digits of the solution do not reach is said: a soft piece that is no mechanism, results that are not exact.
// Catches a false verdict on a sound structure, and wrong numbers that look like others.
TEST(AnalysisRefusal, AFactorTooLargeIsNotBegun) {
    SparseMatrix stiffness(3, 3);
    stiffness.setIdentity();
    const int nodes[] = {4, 4, 7};
    EXPECT_TRUE(SparseCholesky(1000).Factor(stiffness, nodes));
    EXPECT_THROW(SparseCholesky(8).Factor(stiffness, nodes), Refusal);
}

TEST(AnalysisRefusal, LostDigitsAreTold) {
    {
        Model m; // 8 m with a piece of a hundredth of a millimetre
        CNodo *root = m.Node(0, 0, 0, all), *near = m.Node(4, 0, 0), *far = m.Node(4.00001, 0, 0);
        m.Beam(root, near);
        m.Beam(near, far);
        m.Beam(far, m.Node(8, 0, 0));
        const std::string said = Said(m.Refusal());
        EXPECT_EQ(said.rfind("Il calcolo non distingue se la struttura è labile o ha rigidezze troppo diverse fra loro "
                             "(l'elemento n.ro 2 è troppo corto rispetto agli altri): il nodo n.ro ",
                             0),
                  0u)
            << said;
    }
    Model m;
    CNodo* last = m.Node(0, 0, 0, all);
    for (int i = 1; i <= 3000; ++i) {
        CNodo* next = m.Node(i * 0.01, 0, 0);
        m.Beam(last, next);
        last = next;
    }
    m.Force(last, {0, 0, -1});
    const host::AnalysisOutcome outcome = m.document.RunAnalysis();
    ASSERT_FALSE(outcome.refusal) << Said(outcome.refusal->message);
    ASSERT_EQ(outcome.notes.size(), 1u);
    EXPECT_EQ(Said(outcome.notes[0]).rfind("I risultati del caso di carico n.ro 1 sono poco precisi: al nodo n.ro ", 0),
              0u);
}

// Catches loads that vanish or move without a word, and one that is refused because its ends are exchanged.
TEST(AnalysisOutcomes, LoadsBeyondTheEndsAreSaid) {
    const auto trapezoid = [](double from, double to) {
        CCaricoTrapezoidale load;
        load.SetReference(CCarico::Global);
        load.GetStretch(2) = {from, to, -6, -12};
        return load;
    };
    const std::string beyond =
        "Un carico dell'elemento n.ro 1 va oltre la sua lunghezza: la parte fuori non è considerata.";
    struct {
        double from, to, reaction;
        bool inside;
    } const cases[] = {
        {1, 3, 18, true}, {3, 1, 18, true}, {3, 5, 7.5, false}, {5, 6, 0, false}, {0, 4 + 1e-9, 36, true}};
    for (const auto& each : cases) {
        Cantilever m;
        m.document.Modify(*m.load, [&] { m.load->GetForceVector() = CFPoint(); });
        m.On(m.beam, trapezoid(each.from, each.to));
        const host::AnalysisOutcome outcome = m.document.RunAnalysis();
        ASSERT_FALSE(outcome.refusal);
        EXPECT_NEAR(m.Reaction(m.root, 2), each.reaction, 1e-7) << each.from;
        EXPECT_EQ(outcome.notes.empty() ? "" : Said(outcome.notes[0]), each.inside ? "" : beyond) << each.from;
    }
    Cantilever m;
    for (const double place : {0.0, 4.0, 4.5})
        m.On(m.beam, CCaricoConcentrato({0, 0, -1}, place, CCarico::Global));
    const host::AnalysisOutcome outcome = m.document.RunAnalysis();
    EXPECT_NEAR(m.Reaction(m.root, 2), 12, 1e-9) << "the tip's load, and those at both ends of the beam";
    EXPECT_NEAR(m.Reaction(m.root, 4), -44, 1e-9);
    ASSERT_EQ(outcome.notes.size(), 1u);
    EXPECT_EQ(Said(outcome.notes[0]), beyond);
}

// Walls and slabs, loads on nodes without members, and displacements of free components.
TEST(AnalysisOutcomes, WhatIsLeftOutIsSaid) {
    Cantilever m;
    std::vector<int> corners;
    for (const CFPoint& place : {CFPoint(0, 5, 0), CFPoint(4, 5, 0), CFPoint(4, 9, 0), CFPoint(0, 9, 0)})
        corners.push_back(m.Node(place.x, place.y, place.z)->GetID());
    m.document.AddSolaio(corners);
    m.Force(m.document.GetIndexNodo(2), {0, 0, -5});
    m.On(m.tip, CCaricoSpostamento({0, 0, 1}, {}));
    CNodo* sprung = m.Node(9, 9, 9);
    m.document.Modify(*sprung, [&] { sprung->AddSpring(CMolla(CMolla::Translational, 100, {0, 0, 1})); });
    const host::AnalysisOutcome outcome = m.document.RunAnalysis();
    ASSERT_FALSE(outcome.refusal);
    ASSERT_EQ(outcome.notes.size(), 4u);
    EXPECT_EQ(Said(outcome.notes[0]),
              "Il nodo n.ro 7 non appartiene a travi o aste: le sue molle non sono considerate.");
    EXPECT_EQ(Said(outcome.notes[1]),
              "I solai non sono analizzati: 1 nel modello, esclusi con il loro peso e i loro carichi.");
    EXPECT_EQ(Said(outcome.notes[2]), "Uno spostamento imposto al nodo n.ro 2, non vincolato in quella direzione, "
                                      "non è considerato.");
    EXPECT_EQ(Said(outcome.notes[3]),
              "Il nodo n.ro 3 non appartiene a travi o aste: i suoi carichi non sono considerati.");
}

// Any change takes the results away, once, and nothing is left pointing at them. Catches a beam that is deleted and
// restored with the results it had (the sanitizer sees the records go).
TEST(AnalysisOutcomes, ResultsLastUntilTheNextChange) {
    Cantilever m;
    Hints hints(m.document);
    m.Run();
    EXPECT_TRUE(m.document.m_pAnalisi->m_bRisultatiValidi);
    EXPECT_EQ(hints.Count(MODIFICA_RISULTATI), 1);
    EXPECT_NEAR(m.Reaction(m.root, 2), 10, 1e-9);
    EXPECT_EQ(m.tip->GetReazioniVincolari(), nullptr);
    ASSERT_NE(m.beam->GetLineResults(), nullptr);
    EXPECT_EQ(m.beam->GetLineResults()->GetID(), m.beam->GetID());

    hints.all.clear();
    m.document.Remove({m.beam});
    EXPECT_FALSE(m.document.m_pAnalisi->m_bRisultatiValidi);
    EXPECT_EQ(hints.Count(MODIFICA_RISULTATI_ELIMINATI), 1);
    EXPECT_EQ(m.root->GetReazioniVincolari(), nullptr);
    m.document.Undo().Undo();
    EXPECT_EQ(m.beam->GetRisultati(), nullptr);
    EXPECT_EQ(hints.Count(MODIFICA_RISULTATI_ELIMINATI), 1) << "they were gone already";
    m.Run();
    m.document.Modify(*m.beam, [&] { m.beam->SetBeta(10); });
    m.document.Undo().Undo();
    EXPECT_EQ(m.beam->GetRisultati(), nullptr);
    EXPECT_FALSE(m.document.m_pAnalisi->m_bRisultatiValidi) << "undo brings the model back, not its results";
}

// Only sums, names and sets change: the results stay, and the combination shows what it is now. A case takes its
// results along; brought back, or new, it has none, and then no others count as the model's either. Catches the sum of
// before, one that counts a case without results as nothing, and results that a new case inherits with its number.
TEST(AnalysisOutcomes, WhatNoResultDependsOnKeepsThem) {
    Cantilever m;
    CCasoCarico* second = m.document.CreaCasoCarico();
    m.On(m.tip, CCaricoNodale({0, 0, -30}, {}), second);
    m.Run();
    const int first = m.firstCase->GetID(), other = second->GetID();
    CCombinazione sum;
    sum.SetNome("Somma");
    sum.AddCDC(first, 1);
    sum.AddCDC(other, 2);
    auto* taken = new CCombinazione;
    *taken = sum;
    ASSERT_TRUE(m.document.AddCombinazione(taken, nullptr));
    m.document.SelectCasoCarico(taken->GetID());
    const auto moment = [&m] { return m.Force(m.beam, CElementoSettings::M2, 0); };
    EXPECT_NEAR(moment(), -40 - 240, 1e-9);
    sum.SetFattoreCDC(sum.GetIndexCDC(other), -1);
    m.document.ModificaCombinazione(taken->GetID(), sum);
    EXPECT_NEAR(moment(), -40 + 120, 1e-9);
    m.document.Undo().Undo();
    EXPECT_NEAR(moment(), -40 - 240, 1e-9);
    second->SetNome("Vento");
    m.document.UpdateAllViews(nullptr, MODIFICA_CASI_CARICO, nullptr);
    m.document.Selection().Add(m.beam);
    m.document.CreateGroup("A");
    m.document.SetTolerance(0.01);
    m.document.EliminaGruppo(0);
    EXPECT_NEAR(moment(), -40 - 240, 1e-9);
    m.document.EliminaCasoCarico(other);
    EXPECT_TRUE(m.document.m_pAnalisi->m_bRisultatiValidi);
    EXPECT_EQ(m.document.Analysis().Results(other), nullptr);
    EXPECT_NEAR(moment(), -40, 1e-9) << "the combination has lost the case too";
    m.document.Undo().Undo();
    EXPECT_FALSE(m.document.m_pAnalisi->m_bRisultatiValidi);
    EXPECT_EQ(m.beam->GetRisultati(), nullptr);
    m.Run();
    m.document.CreaCasoCarico();
    EXPECT_FALSE(m.document.m_pAnalisi->m_bRisultatiValidi);
}

// The elements follow the current case, undo of the choice included; choosing a case keeps the results.
TEST(AnalysisOutcomes, ElementsShowTheCurrentCase) {
    Cantilever m;
    CCasoCarico* second = m.document.CreaCasoCarico();
    m.On(m.tip, CCaricoNodale({0, 0, -30}, {}), second);
    m.Run();
    EXPECT_NEAR(m.Force(m.beam, CElementoSettings::M2, 0), -40, 1e-9);
    m.document.SelectCasoCarico(second->GetID());
    EXPECT_TRUE(m.document.m_pAnalisi->m_bRisultatiValidi);
    EXPECT_NEAR(m.Force(m.beam, CElementoSettings::M2, 0), -120, 1e-9);
    EXPECT_NEAR(m.Reaction(m.root, 2), 30, 1e-9);
    m.document.Undo().Undo();
    EXPECT_NEAR(m.Force(m.beam, CElementoSettings::M2, 0), -40, 1e-9);
    double low = 0, high = 0;
    int first = 1;
    EXPECT_TRUE(m.beam->UpdateMinMaxRisultati(CElementoSettings::M2, first, low, high));
    EXPECT_NEAR(low, -40, 1e-9);
    EXPECT_NEAR(high, 0, 1e-9);
    EXPECT_FALSE(m.beam->UpdateMinMaxRisultati(CElementoSettings::M2_W2, first, low, high)) << "no W2 is known";
    m.document.Modify(*m.section, [&] { m.section->SetW2(0.5); });
    m.Run();
    EXPECT_NEAR(m.Force(m.beam, CElementoSettings::M2_W2, 0), -80, 1e-9);
}

// The road by which a dialog changes one value of a case: read, point, change, store, restore.
TEST(AnalysisOutcomes, RecordsAreReadChangedAndStored) {
    Cantilever m;
    CQuovarAnalisi& analysis = *m.document.m_pAnalisi;
    CObArray records;
    EXPECT_FALSE(analysis.LeggiRisultati(m.firstCase->GetID(), records, 0)) << "no results yet";
    m.Force(m.tip, {7, 0, 0});
    m.Run();
    const int id = m.firstCase->GetID();
    EXPECT_FALSE(analysis.LeggiRisultati(99, records, 0));
    ASSERT_TRUE(analysis.LeggiRisultati(id, records, 0));
    ASSERT_EQ(records.GetSize(), 1);
    ASSERT_TRUE(analysis.AggiornaRiferimentiRisultati(records));
    EXPECT_EQ(m.beam->GetRisultati(), records.GetAt(0));
    double& axial = m.beam->GetRisultati()->GetNodeResults(1)->GetV1();
    EXPECT_NEAR(axial, 7, 1e-9);
    axial = -axial;
    EXPECT_TRUE(analysis.CreaRisultati(id, records, 0));
    analysis.RipristinaRisultati();
    CElemento::_DestroyArray(records, 1);
    EXPECT_NEAR(m.beam->GetRisultati()->GetNodeResults(1)->GetV1(), -7, 1e-9);
    EXPECT_NEAR(m.Force(m.beam, CElementoSettings::N, 4), -7, 1e-9) << "the diagram shows it";
    EXPECT_NEAR(m.Force(m.beam, CElementoSettings::N, 0), 7, 1e-9);
    EXPECT_FALSE(analysis.AggiornaRiferimentiRisultati(records)) << "not one for each line";
}

// ---- The command and the batch

class AnalysisCommandTest : public WorkspaceTest {};

TEST_F(AnalysisCommandTest, TellsWhatItCannotDoAndWhatItLeftOut) {
    BuildEverything(Document());
    m_user.ExpectMessage("Analisi eseguita con queste limitazioni:\n"
                         "I setti non sono analizzati: 2 nel modello, esclusi con il loro peso e i loro carichi.\n"
                         "I solai non sono analizzati: 4 nel modello, esclusi con il loro peso e i loro carichi.",
                         IDOK, MB_OK | MB_ICONINFORMATION);
    Trigger("analisi.esegui");
    m_user.Verify();
    EXPECT_TRUE(Document().m_pAnalisi->m_bRisultatiValidi);
    EXPECT_FALSE(m_workspace->IsWaiting());
    Document().Remove({Document().GetIndexTrave(0)});
    CVincolo none;
    for (int i = 0; i < Document().GetSizeNodi(); ++i)
        Document().Modify(*Document().GetIndexNodo(i), [&] { Document().GetIndexNodo(i)->SetRestraint(&none); });
    Document().m_pAnalisi->m_bAnalisiStatica = 0;
    m_user.ExpectMessage("L'analisi statica non è attiva.", IDOK, MB_OK | MB_ICONEXCLAMATION);
    Trigger("analisi.esegui");
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// Catches digits that are lost, a table without its heading, and an exit status that a script cannot trust.
TEST(AnalysisBatch, PrintsTablesAndReportsByStatus) {
    QTemporaryDir folder;
    const std::string path = folder.filePath("mensola.3dd").toStdString();
    const auto write = [&path](const char* restrained) {
        QFile file(QString::fromStdString(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write((std::string("Mensola (kN,m)\n2\n1 0 0 0 0\n2 3 0 0 0\n1\n1 ") + restrained +
                    "\n1\n1 1 2 0.1 0 0 0.001 0.002 0.003 3e7 1.2e7 0 2.5\n0\n0\n10\n1\n-1\n"
                    "1\n0 0 0\n1\n2 0 0 -10 0 0 0\n0\n0\n0\n0\n0\n")
                       .c_str());
    };
    write("1 1 1 1 1 1");
    testing::internal::CaptureStdout();
    EXPECT_EQ(PrintResults(path), 0);
    const auto lines = Lines(testing::internal::GetCapturedStdout());
    ASSERT_EQ(lines.size(), 10u);
    EXPECT_EQ(lines[0], "caso,tipo,id,nodo,ux,uy,uz,rx,ry,rz");
    EXPECT_EQ(lines[1], "1,nodo,1,1,0,0,0,0,0,0");
    double ux, uy, uz;
    ASSERT_EQ(std::sscanf(lines[2].c_str(), "1,nodo,2,2,%lf,%lf,%lf", &ux, &uy, &uz), 3);
    ExpectClose(uz, -10.0 * 27 / (3 * 3e7 * 0.002));
    EXPECT_EQ(lines[4], "caso,tipo,id,nodo,F1,F2,F3,M1,M2,M3");
    EXPECT_EQ(lines[5].rfind("1,trave,1,1,", 0), 0u);
    EXPECT_EQ(lines[6].rfind("1,trave,1,2,", 0), 0u);
    EXPECT_EQ(lines[8], "caso,tipo,id,nodo,Fx,Fy,Fz,Mx,My,Mz");
    EXPECT_EQ(lines[9].rfind("1,vincolo,1,1,0,0,10", 0), 0u) << lines[9];

    write("1 1 1 1 0 1");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(PrintResults(path), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "quovar: La struttura è labile: il nodo n.ro 2 si sposta in direzione Z.\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(PrintResults(folder.filePath("assente.asg").toStdString()), 2);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

// The example that ./run opens: it must be sound, and its reactions must carry its loads.
TEST(AnalysisBatch, ExampleIsInEquilibrium) {
    HostDocument document;
    BuildEverything(document);
    ASSERT_FALSE(document.RunAnalysis().refusal);
    const int id = document.GetIndexCasoCarico(1)->GetID();
    double sum = 0, load = 0;
    for (const auto& reaction : document.Analysis().Results(id)->reactions)
        sum += reaction.values[2];
    for (int i = 0; i < document.GetSizeTravi(); ++i) {
        CTrave* beam = document.GetIndexTrave(i);
        for (int j = 0; j < beam->GetSizeCarichi(); ++j)
            if (beam->GetIndexIDCasoCarico(j) == id)
                load +=
                    static_cast<CCaricoUniforme*>(beam->GetIndexCarico(j))->GetCarico().z * beam->GetLunghezzaLinea();
    }
    ASSERT_NE(load, 0);
    EXPECT_NEAR(sum / -load, 1, 1e-9);
}

} // namespace
