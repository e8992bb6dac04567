// Undo and redo: exact, one step per command, whatever the bracketing.
#include "host/document/HostDocument.h"
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
