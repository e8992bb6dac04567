// Elements drawn through picked nodes, by mouse and by keyboard.
#include "host/view/ElementDrawing.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

using namespace host;

class ElementDrawingTest : public WorkspaceTest {
  protected:
    // Nodes 1 to 4 of a portal frame, 4 m wide and 3 m high, seen from the front.
    void MakeNodes() {
        for (CFPoint place : {CFPoint(0, 0, 0), CFPoint(0, 0, 3), CFPoint(4, 0, 3), CFPoint(4, 0, 0)})
            Document().AddNodo(place, nullptr, 1);
        CWinApp::PumpMessages();
        Document().Undo().Clear();
        View().SetDirection(Adv3d::Front);
        CWinApp::PumpMessages();
    }
    void ClickNode(int id) { Click(PixelOf(*Document().Data().FindNode(id))); }
    void TypeNode(int id) {
        Press(static_cast<Qt::Key>(Qt::Key_0 + id));
        Press(Qt::Key_Return);
    }
    std::string Sentence() { return m_workspace->Window().SentenceText().toStdString(); }
    std::vector<int> CornersOf(CPoligono& polygon) {
        std::vector<int> ids;
        for (int i = 0; i < polygon.GetSize(); ++i)
            ids.push_back(polygon.GetIDVertice(i));
        return ids;
    }
};

// Faults: a new document without the properties that the analysis needs, a row of beams that is one step or begins anew
// at each beam, an element drawn twice, a mode that Escape does not end or that ends with what it made.
TEST_F(ElementDrawingTest, AFrameIsDrawnInOneGoAndCanBeAnalysed) {
    Trigger("disegna.trave");
    EXPECT_FALSE(View().AsksForNodes()) << "there are no nodes";
    EXPECT_NE(Sentence().find("Servono almeno 2 nodi"), std::string::npos);
    MakeNodes();
    Trigger("disegna.trave");
    for (const int id : {1, 2})
        ClickNode(id);
    for (const int id : {3, 4}) // the same by keyboard
        TypeNode(id);
    ASSERT_EQ(Document().GetSizeTravi(), 3);
    EXPECT_EQ(Sentence(), "Disegna trave: 1 trave creata.");
    EXPECT_EQ(Document().Undo().UndoCount(), 3u);
    EXPECT_EQ(Document().GetIndexTrave(2)->GetNodoIniziale()->GetID(), 3);
    TypeNode(3);
    EXPECT_EQ(Sentence(), "Tra i due nodi c'è già la trave 3.");
    EXPECT_EQ(Document().GetSizeTravi(), 3);
    TypeNode(9);
    EXPECT_EQ(Sentence(), "Il nodo 9 non esiste.");
    Press(Qt::Key_Escape);
    EXPECT_TRUE(View().AsksForNodes()) << "a new row begins";
    ClickNode(1);
    Trigger("modifica.annulla"); // under the drawing
    Press(Qt::Key_Escape);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(View().AsksForNodes());
    EXPECT_EQ(m_workspace->Window().PromptText(), "");
    Trigger("modifica.ripristina");
    const CVincolo fixed(CVincolo::All);
    for (const int id : {1, 4})
        Document().Modify(*Document().Data().FindNode(id),
                          [&] { Document().Data().FindNode(id)->SetRestraint(&fixed); });
    EXPECT_FALSE(Document().RunAnalysis().refusal);
}

// Faults: corners out of their order, a wall that needs closing, a slab that cannot be closed, one without area.
TEST_F(ElementDrawingTest, PolygonsTakeTheirCornersInOrder) {
    MakeNodes();
    CFPoint middle(0, 0, 1.5);
    Document().AddNodo(middle, nullptr, 1); // 5, between 1 and 2
    CWinApp::PumpMessages();
    const struct {
        const char* command;
        std::vector<int> picks;
        std::vector<int> corners; // none: refused
    } cases[] = {{"disegna.setto", {1, 2, 3, 4}, {1, 2, 3, 4}},
                 {"disegna.setto", {4, 2, 1, 4}, {4, 2, 1}},
                 {"disegna.solaio", {1, 2, 3, 4, 5, 5}, {1, 2, 3, 4, 5}},
                 {"disegna.solaio", {1, 2, 3, 2, 1}, {1, 2, 3}},
                 {"disegna.solaio", {1, 5, 2, 2}, {}}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.command);
        const std::size_t steps = Document().Undo().UndoCount();
        Trigger(each.command);
        for (const int id : each.picks)
            TypeNode(id);
        EXPECT_EQ(Document().Undo().UndoCount(), steps + !each.corners.empty());
        if (each.corners.empty())
            EXPECT_EQ(Sentence(), "Il poligono ha area nulla.");
        else if (Document().GetSizeSolai() > 0)
            EXPECT_EQ(CornersOf(*Document().GetIndexSolaio(Document().GetSizeSolai() - 1)), each.corners);
        else
            EXPECT_EQ(CornersOf(*Document().GetIndexSetto(Document().GetSizeSetti() - 1)), each.corners);
    }
}

// Faults: arrows that go the wrong way or nowhere, keys that select by other rules than clicks, a drawing and a tool
// dialog that both take a node.
TEST_F(ElementDrawingTest, TheKeyboardWalksAndSelects) {
    MakeNodes();
    Document().AddTrave(2, 3, nullptr);
    Select({Document().Data().FindNode(1)});
    const auto selected = [this] {
        std::string text;
        for (CElemento* each : Document().Selection().All())
            text += (each->IsKindOf(RUNTIME_CLASS(CNodo)) ? "N" : "T") + std::to_string(each->GetID());
        return text;
    };
    const struct {
        Qt::Key key;
        Qt::KeyboardModifier held;
        const char* selected;
    } keys[] = {{Qt::Key_Up, Qt::NoModifier, "N1"}, // from what was selected
                {Qt::Key_Up, Qt::NoModifier, "N1"},         {Qt::Key_Space, Qt::ShiftModifier, "N1N2"},
                {Qt::Key_Right, Qt::NoModifier, "N1N2"},    {Qt::Key_Return, Qt::NoModifier, "T1"},
                {Qt::Key_Right, Qt::NoModifier, "T1"},      {Qt::Key_Space, Qt::ControlModifier, "T1N3"},
                {Qt::Key_Space, Qt::ControlModifier, "T1"}, {Qt::Key_Down, Qt::NoModifier, "T1"},
                {Qt::Key_Space, Qt::NoModifier, "N4"},      {Qt::Key_Tab, Qt::NoModifier, "N4"},
                {Qt::Key_Space, Qt::NoModifier, "T1"},      {Qt::Key_Tab, Qt::ShiftModifier, "T1"},
                {Qt::Key_Space, Qt::NoModifier, "N4"}};
    for (const auto& each : keys) {
        Press(each.key, each.held);
        EXPECT_EQ(selected(), each.selected) << each.key;
    }
    OpenLinear();
    Trigger("disegna.trave");
    Press(Qt::Key_Escape);
    EXPECT_TRUE(View().AsksForNodes()) << "the dialog goes on picking";
    EXPECT_FALSE(View().Drawing().IsActive());
}
