// What the user does in a structure view.
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "model/element/Poligono.h"
#include "model/element/TipoElemento.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <vector>

using namespace host;

namespace {

using Generation = CDialogGenNodiLineare;

std::vector<CElemento*> Selected(HostDocument& document) {
    return document.Selection().All();
}

using Elements = std::vector<CElemento*>;

} // namespace

using ViewTest = WorkspaceTest;

// Catches picks that deliver the pointer's place instead of the node's, picks far from any node, and pairs that lose
// their order.
TEST_F(ViewTest, PicksSnapToTheNearestNodeInPairs) {
    BuildSmallModel();
    CDialogDocument* dialog = OpenLinear();
    ASSERT_TRUE(dialog);
    DialogDriver driver(*dialog);
    ASSERT_TRUE(View().IsDefinisciVettore());

    const CPoint first = PixelOf(*Document().GetIndexNodo(1));
    Click({first.x + 6, first.y - 7});
    EXPECT_EQ(driver.Text(Generation::IDC_X1), "4");
    EXPECT_EQ(driver.Text(Generation::IDC_X_INIZIALE), "4");
    EXPECT_TRUE(View().Vector().secondIsNext);

    const CPoint between = PixelOf(CFPoint(2, 0, 0)); // on a beam, but 12 pixels from no node
    Click(between);
    EXPECT_EQ(driver.Text(Generation::IDC_X2), "0");
    EXPECT_TRUE(View().Vector().secondIsNext);
    EXPECT_TRUE(Document().Selection().IsEmpty()) << "a pick selects nothing";

    Click(PixelOf(*Document().GetIndexNodo(2)));
    EXPECT_EQ(driver.Text(Generation::IDC_X2), "8");
    Click(PixelOf(*Document().GetIndexNodo(3)));
    EXPECT_EQ(driver.Text(Generation::IDC_X_INIZIALE), "0") << "the third pick is a first point again";
    EXPECT_EQ(driver.Text(Generation::IDC_X_INIZIALE + 2), "3");
    EXPECT_EQ(driver.Text(Generation::IDC_X2), "8");
}

// Catches a camera that ends the picking or eats a pick, and an Escape that ends it for good or goes on with the pair.
TEST_F(ViewTest, CameraDoesNotInterruptPickingAndEscapeBeginsThePairAgain) {
    BuildSmallModel();
    DialogDriver driver(*OpenLinear());
    Click(PixelOf(*Document().GetIndexNodo(1)));
    const CPoint middle = View().Vista().GetViewport().CenterPoint();
    const CFPoint axis = View().Vista().GetAxis(0);
    Drag(middle, {middle.x + 60, middle.y + 25}, Qt::RightButton);
    EXPECT_FALSE(View().Vista().GetAxis(0) == axis) << "the right button turns the model";
    const double scale = View().Vista().GetScale();
    Wheel(middle, 1);
    EXPECT_GT(View().Vista().GetScale(), scale);
    const CPoint before = PixelOf(*Document().GetIndexNodo(2));
    Drag(middle, {middle.x - 30, middle.y + 10}, Qt::MiddleButton);
    EXPECT_EQ(PixelOf(*Document().GetIndexNodo(2)).x, before.x - 30);
    EXPECT_TRUE(View().IsDefinisciVettore());
    EXPECT_TRUE(View().Vector().secondIsNext);
    View().Fit();
    Click(PixelOf(*Document().GetIndexNodo(2)));
    EXPECT_EQ(driver.Text(Generation::IDC_X2), "8");

    Click(PixelOf(*Document().GetIndexNodo(0)));
    EXPECT_EQ(View().Prompt(), "Fare clic sul secondo nodo del vettore (Esc per ricominciare).");
    Press(Qt::Key_Escape);
    EXPECT_TRUE(View().IsDefinisciVettore());
    EXPECT_TRUE(driver.IsOpen());
    EXPECT_EQ(View().Prompt(), "Fare clic sul primo nodo del vettore.");
    Click(PixelOf(*Document().GetIndexNodo(2)));
    EXPECT_EQ(driver.Text(Generation::IDC_X1), "8") << "a first point";
    EXPECT_EQ(driver.Text(Generation::IDC_X2), "8");
}

// Catches a restart that goes on with a second point, and a prompt that the status bar does not show.
TEST_F(ViewTest, RestartAsksForAFirstPointAndShowsItsPrompt) {
    BuildSmallModel();
    View().StartDefinisciVettore("Definisci il primo nodo.", "");
    Click(PixelOf(*Document().GetIndexNodo(0)));
    EXPECT_TRUE(View().Vector().secondIsNext);
    EXPECT_EQ(m_workspace->Window().PromptText(), "Definisci il primo nodo.");
    View().StopDefinisciVettore();
    View().StartDefinisciVettore("Definisci il secondo nodo.", "");
    EXPECT_FALSE(View().Vector().secondIsNext);
    m_workspace->Window().Refresh();
    EXPECT_EQ(m_workspace->Window().PromptText(), "Definisci il secondo nodo.");
    View().StopDefinisciVettore();
    m_workspace->Window().Refresh();
    EXPECT_EQ(m_workspace->Window().PromptText(), "");
}

// Catches a click and a rectangle that follow different rules, and a rectangle that takes what it only touches.
TEST_F(ViewTest, ReplacesCtrlTogglesShiftAdds) {
    BuildSmallModel();
    HostDocument& document = Document();
    CTrave* beam = document.GetIndexTrave(0);
    CTrave* other = document.GetIndexTrave(1);
    Click(PixelOf(CFPoint(2, 0, 0)));
    EXPECT_EQ(Selected(document), Elements{beam});
    Click(PixelOf(CFPoint(6, 0, 0)));
    EXPECT_EQ(Selected(document), Elements{other});
    Click(PixelOf(CFPoint(2, 0, 0)), Qt::ControlModifier);
    EXPECT_EQ(Selected(document), (Elements{other, beam}));
    Click(PixelOf(CFPoint(6, 0, 0)), Qt::ControlModifier);
    EXPECT_EQ(Selected(document), Elements{beam});

    const CPoint corner = PixelOf(CFPoint(5.5, 0, 3.5));
    const CPoint far = PixelOf(CFPoint(8.5, 0, 6.5));
    const struct {
        Qt::KeyboardModifier held;
        bool beam, wall;
    } drags[] = {{Qt::ShiftModifier, true, true},
                 {Qt::ShiftModifier, true, true},
                 {Qt::ControlModifier, true, false},
                 {Qt::ControlModifier, true, true},
                 {Qt::NoModifier, false, true}};
    for (const auto& drag : drags) {
        Drag(corner, far, Qt::LeftButton, drag.held);
        EXPECT_EQ(beam->IsSelect(), drag.beam) << drag.held;
        EXPECT_EQ(document.GetSizeSettiSelect(), drag.wall) << drag.held;
        EXPECT_EQ(document.Selection().Size(Kind::Node), drag.wall ? 4 : 0) << drag.held;
        EXPECT_EQ(document.GetSizeSolaiSelect(), 0);
    }

    Click(PixelOf(CFPoint(-0.8, 0, 5)));
    EXPECT_TRUE(Selected(document).empty()) << "a click on nothing empties the selection";
}

// Catches walls and slabs that cannot be hit from the side, and lines that cannot when the eye stands among them.
TEST_F(ViewTest, WhatIsSeenEdgeOnOrInPartIsHit) {
    BuildSmallModel();
    HostDocument& document = Document();
    KindFilter planes;
    planes.beams = planes.nodes = planes.trusses = false;
    View().SetFilter(planes);
    View().SetDirection(Adv3d::Top);
    for (const Kind kind : {Kind::Wall, Kind::Slab}) {
        auto* plane = static_cast<CPoligono*>(document.Data().At(kind, 0));
        const CPoint at = PixelOf((*plane->GetVertice(0)->GetPunto() + *plane->GetVertice(2)->GetPunto()) * 0.5);
        Click({at.x, at.y + 3});
        EXPECT_EQ(Selected(document), Elements{plane});
        Click({at.x, at.y + 9});
        EXPECT_TRUE(Selected(document).empty()) << "as far as a click may miss a line, no further";
    }
    View().SetFilter({});
    View().SetDirection(Adv3d::Right);
    View().SetPerspective(true);
    View().Vista().SetScale(View().Vista().GetScale() * 2500); // the eye is well before the far end of the beams
    Adv3d::Punto from, to;
    CTrave* beam = document.GetIndexTrave(1);
    const CFPoint first = *beam->GetNodoIniziale()->GetPunto(), second = *beam->GetNodoFinale()->GetPunto();
    ASSERT_NE(View().Vista().Project(first).visible, View().Vista().Project(second).visible);
    ASSERT_TRUE(View().Vista().ProjectSegment(first, second, from, to));
    EXPECT_TRUE(
        beam->PtIn(CPoint(static_cast<int>(from.x + to.x) / 2, static_cast<int>(from.y + to.y) / 2), &View().Vista()));
}

// Catches an assignment that reaches what the view does not show.
TEST_F(ViewTest, BetaOfTheViewLeavesHiddenBeamsAlone) {
    BuildSmallModel();
    HostDocument& document = Document();
    const std::size_t steps = document.Undo().UndoCount();
    View().SetShown(TipoElemento::Trave, CElementoSettings::Object, false);
    document.AssegnaBetaVista(30, 1, 0);
    EXPECT_EQ(document.GetIndexTrave(0)->GetBeta(), 0);
    EXPECT_EQ(document.Undo().UndoCount(), steps);
    View().SetShown(TipoElemento::Trave, CElementoSettings::Object, true);
    document.GetIndexTrave(1)->SetVisible(0);
    document.AssegnaBetaVista(30, 1, 0);
    EXPECT_EQ(document.GetIndexTrave(0)->GetBeta(), 30);
    EXPECT_EQ(document.GetIndexTrave(1)->GetBeta(), 0);
}

// Catches filters that are not asked, and hits on objects that the view does not show.
TEST_F(ViewTest, FiltersAndHiddenKindsAreNotHit) {
    BuildSmallModel();
    HostDocument& document = Document();
    KindFilter filter;
    filter.beams = filter.nodes = false;
    View().SetFilter(filter);
    EXPECT_FALSE(View().IsSelectTravi());
    EXPECT_FALSE(View().IsSelectNodi());
    EXPECT_FALSE(View().IsSelectElementi()) << "not all kinds of elements";
    Click(PixelOf(CFPoint(2, 0, 0)));
    Click(PixelOf(*document.GetIndexNodo(1)), Qt::ControlModifier);
    EXPECT_TRUE(Selected(document).empty());
    Click(PixelOf(CFPoint(3, 0, 5)));
    EXPECT_EQ(document.GetSizeSolaiSelect(), 1);
    View().SetFilter({false, false, false, false, false});
    EXPECT_FALSE(View().IsSelectElementi());
    Drag({3, 3}, {View().Widget().width() - 3, View().Widget().height() - 3}, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Selected(document).size(), 1u) << "an empty filter selects nothing";

    View().SetFilter({});
    EXPECT_TRUE(View().IsSelectElementi());
    View().SetShown(TipoElemento::Trave, CElementoSettings::Object, false);
    Click(PixelOf(CFPoint(2, 0, 0)));
    EXPECT_TRUE(Selected(document).empty());
}

// Catches a view that draws the model at every mouse move, and one that keeps a picture which is out of date.
TEST_F(ViewTest, DrawsTheModelOnlyWhenItChanged) {
    BuildSmallModel();
    ViewWidget& widget = View().Widget();
    widget.grab();
    const unsigned drawn = widget.DrawCount();
    Drag(PixelOf(CFPoint(5, 0, 2)), PixelOf(CFPoint(5.5, 0, 2.5)));
    widget.grab();
    EXPECT_EQ(widget.DrawCount(), drawn);
    const QImage before = widget.grab().toImage();
    Document().GenNodi2Punti(CFPoint(0, 0, 5), CFPoint(1, 0, 5), 5);
    CWinApp::PumpMessages();
    EXPECT_NE(widget.grab().toImage(), before);
    EXPECT_GT(widget.DrawCount(), drawn);
    const unsigned changed = widget.DrawCount();
    View().Invalidate(TRUE);
    widget.grab();
    EXPECT_GT(widget.DrawCount(), changed) << "what a dialog changed on the settings must be seen";
}

// Catches an orbit that tilts columns, a zoom that loses the point under the pointer, and a change of units that loses
// the model.
TEST_F(ViewTest, OrbitKeepsTheVerticalAndZoomThePointer) {
    BuildSmallModel();
    View().SetDirection(Adv3d::Axonometry);
    View().Orbit(70, -20);
    EXPECT_NEAR(View().Vista().GetAxis(0).z, 0, 1e-9) << "the screen's horizontal stays level";
    const CPoint at(200, 150);
    const CFPoint under = View().Vista().Unproject(at, View().Vista().GetTarget());
    View().Zoom(2, at);
    EXPECT_NEAR(CFPoint::GetMod(View().Vista().Unproject(at, View().Vista().GetTarget()), under), 0, 1e-6);
    View().Zoom(1e30, at);
    EXPECT_LT(View().Vista().GetScale(), 1e9);
    CNodo& node = *Document().GetIndexNodo(2);
    const CPoint before = PixelOf(node);
    Document().ChangeUnits(Lunghezza::Inches, Forza::Kips);
    CWinApp::PumpMessages();
    EXPECT_TRUE(PixelOf(node) == before);
    Document().Undo().Undo();
    CWinApp::PumpMessages();
    EXPECT_TRUE(PixelOf(node) == before);
}
