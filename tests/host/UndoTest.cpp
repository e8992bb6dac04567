// Undo and redo: exact, one step per command, whatever the bracketing.
#include "host/document/HostDocument.h"
#include "model/CasoCarico.h"
#include "model/Combinazione.h"
#include "model/Gruppo.h"
#include "model/Materiale.h"
#include "model/Sezione.h"
#include "model/Spessore.h"
#include "model/Trave.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

class UndoTest : public testing::Test {
  protected:
    void SetUp() override {
        BuildEverything(document);
        document.Undo().Clear();
    }

    void ExpectExact(const char* what, const std::function<void()>& command) {
        SCOPED_TRACE(what);
        ::ExpectExact(
            document, command, [this] { EXPECT_TRUE(document.Undo().Undo()); },
            [this] { EXPECT_TRUE(document.Undo().Redo()); });
    }

    HostDocument document;
};

// Catches a kind of change that the journal forgets, links to the wrong object, or brings back in another order.
TEST_F(UndoTest, EveryCommandComesBackBitForBit) {
    HostSelection& selection = document.Selection();
    ExpectExact("generation", [&] { document.GenNodiLineare({0, 0, 20}, {1, 0, 20}, 0.5, 10); });
    ExpectExact("mesh", [&] { document.Mesh4Punti({0, 0, 30}, {4, 0, 30}, {4, 4, 30}, {0, 4, 30}, 3, 2); });
    ExpectExact("beam", [&] { document.AddTrave(1, 18, nullptr); });
    document.SelezionaTutto();
    ExpectExact("move", [&] { selection.TraslaSelezione(0.1, 0.2, 0.3, 0, 0); });
    ExpectExact("rotate", [&] { selection.RuotaSelezione(0, 0, 0, 1, 1, 1, 37, 0, 0); });
    ExpectExact("mirror", [&] { selection.SpecchiaSelezione(-3, 0, 0, 1); });
    ExpectExact("copy", [&] { selection.TraslaSelezione(40, 0, 0, 3, UNIONE_TRAVI); });
    ExpectExact("units", [&] { document.ChangeUnits(Lunghezza::Pollici, Forza::ChiloLibbre); });
    ExpectExact("units again", [&] { document.ChangeUnits(Lunghezza::Millimetri, Forza::Newton); });
    ExpectExact("beta", [&] { document.AssegnaBetaSelezione(12.5, 1, 0); });
    ExpectExact("tolerance", [&] { document.SetTolleranza(0.25); });
}

TEST_F(UndoTest, RemovingGivesEverythingBack) {
    document.Selection().Add(document.GetIndexNodo(7)); // carries loads, meets beams, slabs and a wall
    document.Selection().Add(document.GetIndexTrave(3));
    ExpectExact("node with its elements", [&] { document.EliminaSelezione(); });
    EXPECT_TRUE(document.Selection().IsEmpty());
    ExpectExact("load case", [&] { document.EliminaCasoCarico(document.GetIndexCasoCarico(2)->GetID()); });
    ExpectExact("current load case in a combination", [&] { document.EliminaCasoCarico(1); });
    EXPECT_FALSE(document.GetIndexCombinazione(0)->IsCDC(1)); // the combination is whole without it
    ExpectExact("group", [&] { document.EliminaGruppo(0); });
    ExpectExact("material", [&] { document.Remove({document.GetIndexMateriale(0)}); });
    ExpectExact("section", [&] { document.Remove({document.GetIndexSezione(1)}); });
    ExpectExact("thickness", [&] { document.Remove({document.GetIndexSpessore(0)}); });
    document.SelezionaTutto();
    ExpectExact("everything", [&] { document.EliminaSelezione(); });
    EXPECT_EQ(document.GetSizeNodi(), 0);
    // All the way back over all of these, and forth again.
    const std::string last = Dump(document.Data());
    while (document.Undo().Undo()) {
    }
    while (document.Undo().Redo()) {
    }
    EXPECT_EQ(Dump(document.Data()), last);
}

// Catches steps that swallow the next command, double, or never close.
TEST_F(UndoTest, BracketsNestAndSurviveBeingForgotten) {
    HostUndo& undo = document.Undo();
    const auto begin = [&](unsigned kind) { undo.BeginUndo(kind, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0); };
    const auto addNode = [&](double x) {
        CFPoint place(x, 50, 50);
        return document.AddNodo(place, nullptr, 1);
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
    const int id = document.AddNodo(place, nullptr, 1)->GetID();
    document.Undo().Undo();
    EXPECT_EQ(document.AddNodo(place, nullptr, 1)->GetID(), id);
}

TEST_F(UndoTest, ModifiedFollowsTheSavedState) {
    document.MarkSaved();
    EXPECT_FALSE(document.IsModified());
    document.GenNodi2Punti({70, 0, 0}, {80, 0, 0}, 5);
    EXPECT_TRUE(document.IsModified());
    document.Undo().Undo();
    EXPECT_FALSE(document.IsModified());
    document.Undo().Redo();
    document.MarkSaved();
    document.Undo().Undo();
    EXPECT_TRUE(document.IsModified());
    // Another change in the place of the saved one is not the saved one.
    document.GenNodi2Punti({70, 0, 0}, {80, 0, 0}, 6);
    EXPECT_TRUE(document.IsModified());
}

// With a scheduler, what happens before control is back in the loop is one step and one notification.
TEST_F(UndoTest, ChangesOfOneTurnOfTheLoopAreOneStep) {
    int scheduled = 0;
    document.SetIdleScheduler([&] { ++scheduled; });
    for (int i = 0; i < 10; ++i) {
        CFPoint place(i, 90, 0);
        document.AddNodo(place, nullptr, 1);
    }
    EXPECT_EQ(scheduled, 1);
    document.Idle();
    EXPECT_EQ(document.Undo().UndoCount(), 1u);
    CFPoint place(0, 91, 0);
    document.AddNodo(place, nullptr, 1);
    document.Idle();
    EXPECT_EQ(document.Undo().UndoCount(), 2u);
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
