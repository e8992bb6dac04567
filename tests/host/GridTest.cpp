// The construction lines in the view: what is picked, made and drawn, and what stays of them.
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/generation/DialogGrigliaNodi.h"
#include "dialogs/generation/DialogIntLineaPiano.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/GridSight.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QPainter>
#include <QTest>

#include <cmath>
#include <optional>
#include <random>

using namespace host;

namespace {

using G = CDialogGrigliaNodi;

class GridTest : public WorkspaceTest {
  protected:
    // From the menu, in the view's middle.
    DialogDriver OpenGrid() {
        m_dialog = dynamic_cast<G*>(m_workspace->Run(*FindCommand(G::IDD)));
        EXPECT_TRUE(m_dialog);
        return DialogDriver(*m_dialog);
    }
    ConstructionGrid& Grid() { return Document().Data().Grid(); }
    void DoubleClick(CPoint at) {
        QTest::mouseDClick(&View().Widget(), Qt::LeftButton, Qt::NoModifier, QPoint(at.x, at.y));
        CWinApp::PumpMessages();
    }

    G* m_dialog = nullptr;
};

// Catches a grid that follows half a reading, a pick beside what is drawn, a crossing for who needs a node, and a grid
// that goes with its dialog.
TEST_F(GridTest, FollowsItsDialogAndIsPicked) {
    BuildSmallModel(); // seen along Y
    Document().MarkSaved();
    DialogDriver driver = OpenGrid();
    EXPECT_TRUE(Grid().shown);
    EXPECT_FALSE(Document().IsModified()) << "only looked at";
    driver.Click(G::IDC_PIANO_XZ);
    driver.Type(G::IDC_PASSO_X, "0.5");
    driver.Type(G::IDC_PASSO_Y, "0.75");
    driver.Type(G::IDC_NEG_X, "-3");
    driver.Press(VK_RETURN);
    EXPECT_EQ(Grid().lines[0].spacing, 0.5);
    EXPECT_EQ(Grid().lines[0].First(), 0) << "a negative number of lines is none";
    EXPECT_TRUE(Document().IsModified());
    const ConstructionGrid former = Grid();
    m_user.ExpectMessage("Immettere un numero.");
    driver.SetText(G::IDC_ANGOLO_X, "30");
    driver.SetText(G::IDC_ANGOLO_Y, "mah");
    driver.Press(VK_RETURN);
    driver.SetText(G::IDC_ANGOLO_Y, "-60"); // both directions are one
    m_user.ExpectMessage("Le due direzioni della griglia coincidono, o la griglia è troppo grande: resta com'era.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(Grid(), former);
    EXPECT_EQ(driver.Text(G::IDC_ANGOLO_Y), "-60");
    Document().ChangeUnits(Lunghezza::Millimetres, Document().GetForza());
    CWinApp::PumpMessages();
    EXPECT_EQ(driver.Text(G::IDC_PASSO_Y), "750");
    Document().Undo().Undo();
    CWinApp::PumpMessages();
    EXPECT_EQ(Grid(), former);
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(Grid(), former);

    DialogDriver picker(*OpenLinear());
    const CPoint crossing = PixelOf(CFPoint(1.5, 0, 2.25));
    Click({crossing.x + 3, crossing.y - 3});
    EXPECT_EQ(picker.Text(CDialogGenNodiLineare::IDC_X1) + " " + picker.Text(CDialogGenNodiLineare::IDC_X1 + 2),
              "1.5 2.25");
    picker.Press(VK_ESCAPE);
    Select({Document().GetIndexTrave(0)});
    CDialogDocument* cut = OpenTool(CDialogIntLineaPiano::IDD);
    Click(crossing);
    Click(PixelOf(*Document().GetIndexNodo(1)));
    EXPECT_EQ(DialogDriver(*cut).Text(CDialogIntLineaPiano::IDC_X1), "4");
    DialogDriver(*cut).Press(VK_ESCAPE);

    m_workspace->NewView(Document());
    DialogDriver left = OpenGrid();
    left.Type(G::IDC_PASSO_X, "mah");
    m_workspace->CloseView(View()); // says nothing about the text
    EXPECT_FALSE(left.IsOpen());
}

// Catches a double click that makes two nodes, or one where there is one, and lines that are hidden and picked.
TEST_F(GridTest, ADoubleClickMakesANode) {
    BuildSmallModel();
    Grid().plane = 1;
    Grid().lines[0].spacing = Grid().lines[1].spacing = 0.5;
    const int nodes = Document().GetSizeNodi();
    const CPoint crossing = PixelOf(CFPoint(1.5, 0, 2.5));
    DoubleClick(crossing); // hidden: fits
    EXPECT_EQ(Document().GetSizeNodi(), nodes);
    Trigger("vista.griglia");
    ExpectOneStep("Aggiungi nodo", [&] { DoubleClick(PixelOf(CFPoint(1.5, 0, 2.5))); });
    ASSERT_EQ(Document().GetSizeNodi(), nodes + 1);
    EXPECT_EQ(*Document().GetIndexNodo(nodes)->GetPunto(), CFPoint(1.5, 0, 2.5));
    m_user.ExpectMessage("Nodo n.ro " + std::to_string(Document().GetIndexNodo(nodes)->GetID()) +
                         " (1.5, 0, 2.5)\nVincoli: nessuno\nMolle: 0\nCarichi: 0");
    DoubleClick(PixelOf(CFPoint(1.5, 0, 2.5)));
    EXPECT_EQ(Document().GetSizeNodi(), nodes + 1);
    View().Zoom(0.5, CPoint(10, 10));
    const double scale = View().Vista().GetScale();
    DoubleClick(CPoint(3, 3));
    EXPECT_GT(View().Vista().GetScale(), scale) << "fitted";
}

// Against the plain walk over all crossings, in parallel and in perspective, from random places; where lines are near
// enough to be thinned, there is none to compare with. Catches lines cut away that are in sight, and crossings at other
// places than those of the lines.
TEST(GridSightTest, FindsWhatAPlainWalkFinds) {
    const ConstructionGrid grid{true, 1, 20, {1, 2, 3}, {{4, 6, 0.8, 10}, {3, 5, -1.1, -15}}};
    std::mt19937 random(5);
    const auto upTo = [&random](double most) { return static_cast<double>(random()) / 4294967296.0 * most; };
    int found = 0, missed = 0;
    for (int round = 0; round < 3000; ++round) {
        Adv3d vista;
        vista.SetViewport(CRect(0, 0, 600, 400));
        vista.vista_ruotax(upTo(360));
        vista.vista_ruotay(upTo(360));
        vista.SetPerspective(round % 2);
        vista.SetTarget(CFPoint(upTo(4), upTo(4), upTo(4)));
        vista.SetScale(60 + upTo(round % 5 ? 200 : 2000));
        const CPoint at(static_cast<int>(upTo(600)), static_cast<int>(upTo(400)));
        double nearest = 15, narrowest = 1e9;
        for (int i = grid.lines[0].First(); i <= grid.lines[0].Last(); ++i)
            for (int j = grid.lines[1].First(); j <= grid.lines[1].Last(); ++j) {
                const Adv3d::Punto seen = vista.Project(grid.Crossing(i, j));
                const Adv3d::Punto next = vista.Project(grid.Crossing(i + 1, j));
                const Adv3d::Punto beside = vista.Project(grid.Crossing(i, j + 1));
                if (!seen.visible)
                    continue;
                nearest = std::min(nearest, std::hypot(seen.x - at.x, seen.y - at.y));
                const double ax = next.x - seen.x, ay = next.y - seen.y, bx = beside.x - seen.x, by = beside.y - seen.y;
                narrowest = std::min(narrowest,
                                     std::fabs(ax * by - ay * bx) / std::max(std::hypot(ax, ay), std::hypot(bx, by)));
            }
        if (narrowest < 10)
            continue;
        const std::optional<CFPoint> crossing = GridSight(grid, vista).Nearest(at, 15);
        const Adv3d::Punto seen = vista.Project(crossing.value_or(CFPoint()));
        EXPECT_NEAR(crossing ? std::hypot(seen.x - at.x, seen.y - at.y) : 15, nearest, 1e-6) << round;
        ++(crossing ? found : missed);
    }
    EXPECT_TRUE(found > 100 && missed > 100) << found << " " << missed;
}

// 10,001 by 10,001 lines, and the most that can be typed: the drawing depends on the window. Catches a walk over all.
TEST_F(GridTest, DrawsWhatIsInSight) {
    BuildSmallModel();
    const auto pixels = [this](int count, double spacing) {
        Grid() = {true, 1, 0, {0, 0, 0}, {{count, count, spacing, 0}, {count, count, spacing, 0}}};
        View().Invalidate();
        const QImage picture = View().Widget().grab().toImage();
        int colored[2] = {}; // at most one of the two rows lies on a line
        for (int x = 0; x < picture.width(); ++x)
            for (const int row : {0, 1})
                colored[row] += picture.pixelColor(x, picture.height() / 2 + 3 * row) == QColor(180, 192, 212);
        return std::min(colored[0], colored[1]);
    };
    const int sparse = pixels(5000, 1);
    EXPECT_GT(sparse, 2);
    EXPECT_GT(pixels(2'000'000'000, 1e-3), sparse);
    EXPECT_LT(pixels(2'000'000'000, 1e-3), View().Widget().width() / 3) << "thinned";
}

} // namespace
