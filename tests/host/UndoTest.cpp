// Undo and redo: exact, one step per command, whatever the bracketing.
#include "host/document/HostDocument.h"
#include "model/design/ElementoProgetto.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"

#include <gtest/gtest.h>

#include <functional>

using namespace host;

namespace {

class UndoTest : public testing::Test {
  protected:
    void SetUp() override {
        BuildEverything(m_document);
        m_document.Undo().Clear();
    }

    void ExpectExact(const char* what, const std::function<void()>& command) {
        SCOPED_TRACE(what);
        ::ExpectExact(
            m_document, command, [this] { EXPECT_TRUE(m_document.Undo().Undo()); },
            [this] { EXPECT_TRUE(m_document.Undo().Redo()); });
    }

    HostDocument m_document;
};

// Catches a kind of change that the journal forgets, links to the wrong object, or brings back in another order.
TEST_F(UndoTest, EveryCommandComesBackBitForBit) {
    HostSelection& selection = m_document.Selection();
    ExpectExact("generation", [&] { m_document.GenNodiLineare({0, 0, 20}, {1, 0, 20}, 0.5, 10); });
    ExpectExact("arc", [&] { m_document.GenNodiArco3Punti(1, {0, 0, 40}, {1, 1, 40}, {2, 0, 41}, 7); });
    ExpectExact("turn", [&] { m_document.GenNodiArcoCerchio(2, 10, {0, 0, 50}, {3, 0, 50}, -200, 7); });
    ExpectExact("circle", [&] { m_document.GenNodiCerchio(3, 0, 7, {0, 0, 60}, 2); });
    ExpectExact("mesh", [&] { m_document.Mesh4Punti({0, 0, 30}, {4, 0, 30}, {4, 4, 30}, {0, 4, 30}, 3, 2); });
    ExpectExact("beam", [&] { m_document.AddTrave(1, 18, nullptr); });
    m_document.SelectAll();
    ExpectExact("move", [&] { selection.TraslaSelezione(0.1, 0.2, 0.3, 0, 0); });
    ExpectExact("rotate", [&] { selection.RuotaSelezione(0, 0, 0, 1, 1, 1, 37, 0, 0); });
    ExpectExact("mirror", [&] { selection.SpecchiaSelezione(-3, 0, 0, 1); });
    ExpectExact("copy", [&] { selection.TraslaSelezione(40, 0, 0, 3, UNIONE_TRAVI); });
    ExpectExact("units", [&] { m_document.ChangeUnits(Lunghezza::Inches, Forza::Kips); });
    ExpectExact("units again", [&] { m_document.ChangeUnits(Lunghezza::Millimetres, Forza::Newton); });
    ExpectExact("beta", [&] { m_document.AssegnaBetaSelezione(12.5, 1, 0); });
    ExpectExact("tolerance", [&] { m_document.SetTolerance(0.25); });
}

TEST_F(UndoTest, RemovingGivesEverythingBack) {
    m_document.Selection().Add(m_document.GetIndexNodo(7)); // carries loads, meets beams, slabs and a wall
    m_document.Selection().Add(m_document.GetIndexTrave(3));
    ExpectExact("node with its elements", [&] { m_document.DeleteSelection(); });
    EXPECT_TRUE(m_document.Selection().IsEmpty());
    ExpectExact("load case", [&] { m_document.EliminaCasoCarico(m_document.GetIndexCasoCarico(2)->GetID()); });
    ExpectExact("current load case in a combination", [&] { m_document.EliminaCasoCarico(1); });
    EXPECT_FALSE(m_document.GetIndexCombinazione(0)->IsCDC(1)); // the combination is whole without it
    ExpectExact("group", [&] { m_document.EliminaGruppo(0); });
    ExpectExact("material", [&] { m_document.Remove({m_document.GetIndexMateriale(0)}); });
    ExpectExact("section", [&] { m_document.Remove({m_document.GetIndexSezione(1)}); });
    ExpectExact("thickness", [&] { m_document.Remove({m_document.GetIndexSpessore(0)}); });
    m_document.SelectAll();
    ExpectExact("everything", [&] { m_document.DeleteSelection(); });
    EXPECT_EQ(m_document.GetSizeNodi(), 0);
    // All the way back over all of these, and forth again.
    const std::string last = Dump(m_document.Data());
    while (m_document.Undo().Undo()) {
    }
    while (m_document.Undo().Redo()) {
    }
    EXPECT_EQ(Dump(m_document.Data()), last);
}

// Catches a record for each element of each group that it leaves, which made large deletions quadratic, and members
// that come back in another order.
TEST_F(UndoTest, GroupsChangeOnceACommand) {
    m_document.SelectAll();
    for (const char* name : {"A", "B", "C"})
        m_document.CreateGroup(name);
    HostUndo& undo = m_document.Undo();
    const auto recordsOf = [&](const char* what, const std::function<void()>& command) {
        const std::size_t before = undo.RecordCount();
        ExpectExact(what, command);
        return undo.RecordCount() - before;
    };
    const int beams = m_document.GetSizeTravi();
    m_document.Selection().Clear();
    for (int i = beams; i-- > 0;)
        if (i % 3 != 1)
            m_document.Selection().Add(m_document.GetIndexTrave(i));
    const std::size_t groups = static_cast<std::size_t>(m_document.GetSizeGruppi());
    EXPECT_LE(recordsOf("beams", [&] { m_document.DeleteSelection(); }), groups + 1);
    EXPECT_EQ(recordsOf("group between others", [&] { m_document.EliminaGruppo(static_cast<int>(groups) - 2); }), 2u);
    CTrave* beam = m_document.GetIndexTrave(0);
    recordsOf("group and member", [&] { m_document.Remove({m_document.GetIndexGruppo(0), beam}); });
}

// Catches steps that swallow the next command, double, or never close.
TEST_F(UndoTest, BracketsNestAndSurviveBeingForgotten) {
    HostUndo& undo = m_document.Undo();
    const auto begin = [&](unsigned kind) { undo.BeginUndo(kind, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0); };
    const auto addNode = [&](double x) {
        CFPoint place(x, 50, 50);
        return m_document.AddNodo(place, nullptr, 1);
    };
    begin(4);
    undo.EndUndo(4);
    EXPECT_EQ(undo.UndoCount(), 0u) << "a step without changes is kept";

    begin(5);
    addNode(1);
    begin(1);
    addNode(2);
    undo.EndUndo(1);
    addNode(3);
    undo.EndUndo(5);
    EXPECT_EQ(undo.UndoCount(), 1u);
    EXPECT_EQ(undo.UndoName(), "Suddivisione linea");

    undo.EndUndo(3); // an end without a beginning
    addNode(4);
    addNode(5);
    EXPECT_EQ(undo.UndoCount(), 3u) << "outside a bracket each change is a step";

    begin(4);
    addNode(6); // the end is forgotten
    EXPECT_TRUE(undo.CanUndo());
    EXPECT_FALSE(undo.CanRedo());
    ASSERT_TRUE(undo.Undo());
    EXPECT_EQ(undo.UndoCount(), 3u);
    EXPECT_EQ(undo.RedoCount(), 1u);
    addNode(7);
    EXPECT_EQ(undo.RedoCount(), 0u) << "redo after a new command would mix two pasts";
    EXPECT_EQ(undo.UndoCount(), 4u);
}

// A node made again after its undo has the number that it had: otherwise numbers drift with every undo.
TEST_F(UndoTest, NumbersAreGivenAgainAfterUndo) {
    CFPoint place(60, 0, 0);
    const int id = m_document.AddNodo(place, nullptr, 1)->GetID();
    m_document.Undo().Undo();
    EXPECT_EQ(m_document.AddNodo(place, nullptr, 1)->GetID(), id);
}

TEST_F(UndoTest, ModifiedFollowsTheSavedState) {
    m_document.MarkSaved();
    m_document.Data().Info().author = "Io"; // the first step of all, of a record alone
    m_document.MarkSaved();
    m_document.Undo().Undo();
    EXPECT_TRUE(m_document.IsModified());
    m_document.Undo().Redo();
    EXPECT_FALSE(m_document.IsModified());
    m_document.GenNodi2Punti({70, 0, 0}, {80, 0, 0}, 5);
    EXPECT_TRUE(m_document.IsModified());
    m_document.Undo().Undo();
    EXPECT_FALSE(m_document.IsModified());
    m_document.Undo().Redo();
    m_document.MarkSaved();
    m_document.Undo().Undo();
    EXPECT_TRUE(m_document.IsModified());
    // Another change in the place of the saved one is not the saved one.
    m_document.GenNodi2Punti({70, 0, 0}, {80, 0, 0}, 6);
    EXPECT_TRUE(m_document.IsModified());
}

class CodesTest : public UndoTest, public DocumentObserver {
  protected:
    ~CodesTest() override { m_document.RemoveObserver(this); }
    void OnDocumentUpdate(CView*, long hint, CObject*) override { m_codes.push_back(hint); }
    std::vector<long> CodesOf(const std::function<void()>& command) {
        m_codes.clear();
        command();
        return m_codes;
    }
    // The command sends these, and so do its undo and its redo.
    void Expect(const char* what, const std::function<void()>& command, const std::vector<long>& codes) {
        EXPECT_EQ(CodesOf(command), codes) << what;
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(CodesOf([this] { m_document.Undo().Undo(); }), codes) << what << ", undone";
            EXPECT_EQ(CodesOf([this] { m_document.Undo().Redo(); }), codes) << what << ", redone";
        }
    }

    std::vector<long> m_codes;
};

// As a dialog divides a line: everything but the nodes and the new elements is written directly.
void Divide(HostDocument& document, CTrave& line, int parts) {
    CNodo* const last = line.GetNodoFinale();
    CNodo* before = line.GetNodoIniziale();
    CFPoint axis;
    line.GetDir(axis, 0);
    const double step = line.GetLunghezzaLinea() / parts;
    const CFPoint from = *before->GetPunto();
    document.m_pUndo->BeginUndo(UNDO_DIVIDI, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    document.UpdateAllViews(nullptr, MODIFICA_ELEMENTI_INIZIO);
    for (int i = 1; i <= parts; ++i) {
        CFPoint place = from + axis * (step * i);
        CNodo* node = i < parts ? document.AddNodo(place, nullptr, 1) : last;
        if (i == 1) {
            line.SetNodi(before, node);
        } else {
            CTrave* part = document.AddTrave(before->GetID(), node->GetID(), nullptr);
            part->SetMateriale(line.GetIDMateriale(), line.GetMateriale());
            part->SetSezione(line.GetIDSezione(), line.GetSezione());
            for (int k = 0; k < line.GetSizeCarichi(); ++k)
                part->AddCarico(line.GetIndexCarico(k), 1);
        }
        before = node;
    }
    document.UpdateAllViews(nullptr, MODIFICA_ELEMENTI_VISTE);
    document.UpdateAllViews(nullptr, MODIFICA_STRUTTURA);
    document.m_pUndo->EndUndo(UNDO_DIVIDI);
}

// Catches windows that go on showing what was undone.
TEST_F(CodesTest, UndoAndRedoSendWhatTheChangeSent) {
    HostSelection& selection = m_document.Selection();
    m_document.AddObserver(this);
    const long model = MODIFICA_STRUTTURA, lengths = MODIFICA_LUNGHEZZE;
    Expect("nodes", [&] { m_document.GenNodiLineare({0, 0, 20}, {1, 0, 20}, 0.5, 10); }, {model});
    Expect("beam", [&] { m_document.AddTrave(1, 18, nullptr); }, {model});
    m_document.SelectAll();
    Expect("move", [&] { selection.TraslaSelezione(0.1, 0.2, 0.3, 0, 0); }, {model, lengths});
    Expect("rotate", [&] { selection.RuotaSelezione(0, 0, 0, 1, 1, 1, 37, 0, 0); }, {model, lengths});
    Expect("group", [&] { m_document.CreateGroup("Tutto"); }, {model, MODIFICA_GRUPPI});
    Expect("no group", [&] { m_document.EliminaGruppo(0); }, {model, MODIFICA_GRUPPI});
    Expect("units", [&] { m_document.ChangeUnits(Lunghezza::Inches, Forza::Kips); }, {model, lengths, MODIFICA_UNITA});
    Expect("divided", [&] { Divide(m_document, *m_document.GetIndexTrave(3), 4); },
           {MODIFICA_ELEMENTI_INIZIO, MODIFICA_ELEMENTI_VISTE, model, model, lengths});
    CCasoCarico* loadCase = m_document.GetIndexCasoCarico(1);
    Expect("rename",
           [&] {
               loadCase->SetNome("Altro");
               m_document.UpdateAllViews(nullptr, MODIFICA_CASI_CARICO);
           },
           {MODIFICA_CASI_CARICO, model});
    Expect("current case", [&] { m_document.EliminaCasoCarico(m_document.Data().CurrentCase()); },
           {model, MODIFICA_RISULTATI_CASO});
    CElementoProgetto design;
    design.SetSizeNodiProgetto(15);
    m_document.GetIndexTrave(0)->SetProgetto(&design);
    unsigned long beam = MODIFICA_PROGETTO_TRAVE;
    CQuovarGlobal::_SetInformazioniAggiuntive(beam, 1);
    Expect("reinforcement",
           [&] {
               design.GetNodoProgetto(0)->GetArm(0).SetValue(3);
               m_document.UpdateAllViews(nullptr, static_cast<long>(beam));
           },
           {static_cast<long>(beam), model, MODIFICA_PROGETTO | PROGETTO_TRAVI});
}

// Catches what a dialog writes that no step knows: a divided line would end at a node that is gone.
TEST_F(UndoTest, DirectWritesBelongToTheirBracket) {
    CTrave& line = *m_document.GetIndexTrave(3); // with loads
    ExpectExact("division", [&] { Divide(m_document, line, 3); });
    ExpectExact("written before what it is written with", [&] {
        const UndoStep step(m_document.Undo(), "Prova");
        line.SetSezione(0, nullptr);
        CFPoint place(1, 2, 77);
        line.SetNodi(line.GetNodoIniziale(), m_document.AddNodo(place, nullptr, 1));
        m_document.GetIndexSetto(0)->SetMateriale(0, nullptr);
        m_document.MoveNodes({{line.GetNodoFinale(), {1, 2, 78}}});
        line.SetBeta(12);
        m_document.Remove({m_document.GetIndexAsta(0)});
    });
    ExpectExact("a new line whose state was kept before its node came", [&] {
        const UndoStep step(m_document.Undo(), "Prova");
        CTrave* made = m_document.AddTrave(1, 18, nullptr);
        CTrave* other = m_document.AddTrave(2, 18, nullptr);
        m_document.Modify(*made, [&] { made->SetBeta(3); });
        CFPoint place(1, 2, 79);
        CNodo* node = m_document.AddNodo(place, nullptr, 1);
        made->SetNodi(made->GetNodoIniziale(), node);
        m_document.ChangeUnits(Lunghezza::Feet, Forza::Newton);
        place.z = 80;
        other->SetNodi(node, m_document.AddNodo(place, nullptr, 1));
    });
    ExpectExact("written, and taken back by a command", [&] {
        const UndoStep step(m_document.Undo(), "Prova");
        CCasoCarico* made = m_document.CreaCasoCarico();
        line.AddCarico(m_document.AddCarico(*made, std::make_unique<CCaricoUniforme>(CFPoint(0, 0, -1), 0)), 1);
        m_document.EliminaCasoCarico(made->GetID());
        m_document.GenNodi2Punti({0, 0, 90}, {1, 0, 90}, 2);
    });
    ExpectExact("an exception on the way", [&] {
        try {
            const UndoStep step(m_document.Undo(), "Prova");
            line.EliminaCarichi();
            throw 1;
        } catch (int) {
        }
    });
    const std::size_t steps = m_document.Undo().UndoCount();
    m_document.Undo().Begin("Niente");
    line.SetBeta(line.GetBeta());
    m_document.Undo().End();
    EXPECT_EQ(m_document.Undo().UndoCount(), steps) << "the same value is no change";
}

// Outside brackets the code ends the step, however many turns of the loop the typing takes.
TEST_F(UndoTest, DirectWritesWaitForTheirCode) {
    m_document.SetIdleScheduler([] {});
    m_document.MarkSaved();
    CElementoProgetto design;
    design.SetSizeNodiProgetto(15);
    CTrave& beam = *m_document.GetIndexTrave(0);
    beam.SetProgetto(&design);
    const auto arm = [&]() -> CGrandezza& { return beam.GetProgetto()->GetNodoProgetto(3)->GetArm(1); };
    const auto send = [&] { m_document.UpdateAllViews(nullptr, MODIFICA_PROGETTO_TRAVE); };
    arm();
    send();
    EXPECT_FALSE(m_document.Undo().CanUndo()) << "read only";
    for (const double typed : {1.0, 12.0, 12.5}) {
        arm().SetValue(typed);
        m_document.Idle();
        EXPECT_TRUE(m_document.IsModified());
    }
    send();
    EXPECT_EQ(m_document.Undo().UndoCount(), 1u);
    EXPECT_EQ(m_document.Undo().UndoName(), "Modifica armatura");
    arm().SetValue(7);
    m_document.SetTolerance(0.5); // another step, before its code
    EXPECT_EQ(m_document.Undo().UndoCount(), 2u);
    m_document.Undo().Undo();
    m_document.Undo().Undo();
    EXPECT_EQ(arm().GetValue(), 12.5);
    m_document.Undo().Undo();
    EXPECT_EQ(arm().GetValue(), 0);
    EXPECT_FALSE(m_document.IsModified());
    m_document.Undo().Redo();
    EXPECT_EQ(arm().GetValue(), 12.5);
    CElementoProgetto anew; // values of the former design have no place in it
    anew.SetSizeNodiProgetto(15);
    beam.SetProgetto(&anew);
    m_document.Undo().Undo();
    EXPECT_EQ(arm().GetValue(), 0);
    EXPECT_FALSE(design.GetNodoProgetto(3)->GetArm(1).GetValue() != 12.5);
    beam.SetProgetto(nullptr);
    m_document.Undo().Redo();
}

TEST_F(UndoTest, NumbersAndRecordsComeBack) {
    CCasoCarico* loadCase = m_document.GetIndexCasoCarico(2);
    const int id = loadCase->GetID();
    ExpectExact("number", [&] {
        const UndoStep step(m_document.Undo(), "Prova");
        loadCase->SetID(id + 70);
        EXPECT_NE(m_document.CreaCasoCarico()->GetID(), id + 70);
    });
    EXPECT_EQ(m_document.Find(Kind::LoadCase, id + 70), loadCase);
    loadCase->SetID(m_document.GetIndexCasoCarico(0)->GetID());
    m_document.UpdateAllViews(nullptr, MODIFICA_CASI_CARICO);
    EXPECT_EQ(loadCase->GetID(), id + 70) << "a number that is taken";
    ExpectExact("number of a new one", [&] {
        const UndoStep step(m_document.Undo(), "Prova");
        loadCase = m_document.CreaCasoCarico();
        loadCase->SetID(id + 90);
    });
    EXPECT_EQ(m_document.Find(Kind::LoadCase, id + 90), loadCase);

    m_document.MarkSaved();
    const std::size_t steps = m_document.Undo().UndoCount();
    {
        const UndoStep step(m_document.Undo(), "Opzioni analisi");
        m_document.m_pAnalisi->m_bAnalisiModale = 1;
        m_document.Data().Info().notes = "Nota";
    }
    EXPECT_EQ(m_document.Undo().UndoCount(), steps + 1);
    EXPECT_TRUE(m_document.IsModified());
    m_document.Data().Info().author = "Io"; // without a bracket or a code
    EXPECT_TRUE(m_document.Undo().Undo());
    EXPECT_TRUE(m_document.Data().Info().author.IsEmpty());
    EXPECT_EQ(m_document.Data().Info().notes, "Nota");
    EXPECT_TRUE(m_document.Undo().Undo());
    EXPECT_EQ(m_document.m_pAnalisi->m_bAnalisiModale, 0);
    EXPECT_FALSE(m_document.IsModified());
    m_document.Undo().Redo();
    EXPECT_EQ(m_document.m_pAnalisi->m_bAnalisiModale, 1);

    m_document.MarkSaved();
    m_document.SetModifiedFlag(); // by a dialog
    m_document.Undo().Undo();
    m_document.Undo().Redo();
    EXPECT_TRUE(m_document.IsModified());
    m_document.MarkSaved();
    EXPECT_FALSE(m_document.IsModified());
}

// With a scheduler, what happens before control is back in the loop is one step and one notification.
TEST_F(UndoTest, ChangesOfOneTurnOfTheLoopAreOneStep) {
    int scheduled = 0;
    m_document.SetIdleScheduler([&] { ++scheduled; });
    for (int i = 0; i < 10; ++i) {
        CFPoint place(i, 90, 0);
        m_document.AddNodo(place, nullptr, 1);
    }
    EXPECT_EQ(scheduled, 1);
    m_document.Idle();
    EXPECT_EQ(m_document.Undo().UndoCount(), 1u);
    CFPoint place(0, 91, 0);
    m_document.AddNodo(place, nullptr, 1);
    m_document.Idle();
    EXPECT_EQ(m_document.Undo().UndoCount(), 2u);
}

// A sweep over all groups, or over all members, for each that goes would outlast the runner's limit.
TEST(UndoSize, ManyGroupsGoOneByOne) {
    constexpr int count = 100'000;
    HostDocument document;
    document.SetIdleScheduler([] {});
    document.GenNodiLineare({0, 0, 0}, {1, 0, 0}, 1, 1);
    for (int i = 0; i < count; ++i)
        document.AddNew(std::make_unique<CGruppo>());
    document.Idle();
    for (int i = 0; i < count / 2; ++i) // every other one, as the list of groups deletes what is selected in it
        document.EliminaGruppo(i);
    document.Idle();
    ASSERT_EQ(document.GetSizeGruppi(), count / 2);
    EXPECT_EQ(document.GetIndexGruppo(9)->GetID(), 20);
    document.Undo().Undo();
    ASSERT_EQ(document.GetSizeGruppi(), count);
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(document.GetIndexGruppo(i)->GetID(), i + 1);
}

// A journal that looked for each object anew would outlast the runner's limit.
TEST(UndoSize, AMillionObjectsAreQuick) {
    HostDocument document;
    document.GenNodiLineare({0, 0, 0}, {1, 0, 0}, 1, 1'000'000);
    document.Undo().Begin("Travi");
    for (int id = 1; id < 1'000'000; ++id)
        document.AddTrave(id, id + 1, nullptr);
    document.Undo().End();
    document.Undo().Undo();
    document.Undo().Undo();
    EXPECT_EQ(document.GetSizeNodi(), 0);
    document.Undo().Redo();
    document.Undo().Redo();
    EXPECT_EQ(document.GetSizeTravi(), 999'999);
}

} // namespace
