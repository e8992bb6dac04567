// The projection: where points land, and what the views do with it.
#include "model/view/Adv3d.h"
#include "model/view/Adv3dRect.h"
#include "tests/model/SmallModel.h"

#include <cmath>
#include <tuple>

namespace {

void ExpectPixel(const Adv3d& view, const CFPoint& point, double x, double y) {
    const Adv3d::Punto p = view.Project(point);
    EXPECT_TRUE(p.visible);
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
}

Adv3d Front() {
    Adv3d view;
    view.SetViewport(CRect(0, 0, 400, 300));
    view.SetDirection(Adv3d::Front);
    view.SetScale(10);
    return view;
}

// Faults: the picture upside down, left for right, near for far, in any standard direction.
TEST(ProjectionTest, StandardDirections) {
    Adv3d view = Front();
    ExpectPixel(view, {0, 0, 0}, 200, 150);
    EXPECT_GT(view.GetDepth({0, -1, 0}), view.GetDepth({0, 1, 0})); // the eye stands at negative Y
    const std::pair<Adv3d::Direzione, CPoint> directions[] = {{Adv3d::Front, {230, 130}},  {Adv3d::Back, {170, 130}},
                                                              {Adv3d::Right, {250, 130}},  {Adv3d::Left, {150, 130}},
                                                              {Adv3d::Bottom, {230, 200}}, {Adv3d::Top, {230, 100}}};
    for (const auto& [direction, place] : directions) {
        view.SetDirection(direction);
        ExpectPixel(view, {3, 5, 2}, place.x, place.y);
    }
    EXPECT_GT(view.GetDepth({0, 0, 1}), 0);
    view.SetDirection(Adv3d::Axonometry);
    EXPECT_LT(view.Project({0, 0, 1}).y, view.Project({0, 0, 0}).y);
    EXPECT_GT(view.Project({1, 0, 0}).x, view.Project({0, 0, 0}).x);
    EXPECT_GT(view.Project({0, 1, 0}).x, view.Project({0, 0, 0}).x);
}

// Faults: radians for degrees, a turn the wrong way round, axes that drift apart after many small turns.
TEST(ProjectionTest, RotationsAboutTheScreenAxes) {
    Adv3d view = Front();
    view.vista_ruotaz(90); // counter-clockwise: what points right points up
    ExpectPixel(view, {1, 0, 0}, 200, 140);
    view = Front();
    view.vista_ruotax(90); // what points up comes towards the eye
    EXPECT_NEAR(view.GetDepth({0, 0, 1}), 1, 1e-12);
    view = Front();
    view.vista_ruotay(90); // what comes towards the eye points right
    ExpectPixel(view, {0, -1, 0}, 210, 150);

    view = Front();
    for (int i = 0; i < 36000; ++i) {
        view.vista_ruotax(0.37);
        view.vista_ruotay(-0.11);
    }
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(view.GetAxis(i).GetMod(), 1, 1e-12);
        EXPECT_NEAR(Dot(view.GetAxis(i), view.GetAxis((i + 1) % 3)), 0, 1e-12);
    }
    const CFPoint before = view.GetAxis(0);
    view.SetAxes(CFPoint(0, 0, 1), CFPoint(0, 0, -2));
    EXPECT_EQ(view.GetAxis(0), before);
}

// Faults: the point under the mouse slides away while zooming; a model that does not fit, or is a dot in the middle.
TEST(ProjectionTest, ZoomKeepsItsPointAndFitShowsAll) {
    for (int perspective : {0, 1}) {
        Adv3d view = Front();
        view.SetPerspective(perspective);
        const CFPoint held = view.Unproject(CPoint(320, 90), view.GetTarget());
        view.Zoom(1.7, CPoint(320, 90));
        ExpectPixel(view, held, 320, 90);
        view.Zoom(0, CPoint(1, 1));
        view.Zoom(-2, CPoint(1, 1));
        ExpectPixel(view, held, 320, 90);

        view.SetDirection(Adv3d::Axonometry);
        view.FitToBounds({-10, 0, 0}, {30, 20, 12}, 20);
        double left = 1e9, right = -1e9, top = 1e9, bottom = -1e9;
        for (int i = 0; i < 8; ++i) {
            const Adv3d::Punto p = view.Project({i & 1 ? -10.0 : 30.0, i & 2 ? 0.0 : 20.0, i & 4 ? 0.0 : 12.0});
            ASSERT_TRUE(p.visible);
            left = std::min(left, p.x), right = std::max(right, p.x);
            top = std::min(top, p.y), bottom = std::max(bottom, p.y);
        }
        EXPECT_TRUE(left >= 20 - 1e-6 && right <= 380 + 1e-6) << left << " to " << right;
        EXPECT_TRUE(top >= 20 - 1e-6 && bottom <= 280 + 1e-6) << top << " to " << bottom;
        EXPECT_TRUE(right - left > 300 || bottom - top > 200);
    }
    Adv3d view = Front();
    view.FitToBounds({5, 5, 5}, {5, 5, 5});
    EXPECT_EQ(view.GetScale(), 10);
    ExpectPixel(view, {5, 5, 5}, 200, 150);
    view.FitToBounds({std::nan(""), 0, 0}, {1, 1, 1});
    EXPECT_EQ(view.GetTarget(), CFPoint(5, 5, 5));
}

// Faults: near things smaller than far ones, points behind the eye mirrored into the picture, picking off the plane.
TEST(ProjectionTest, Perspective) {
    Adv3d view = Front();
    view.SetPerspective(1);
    const double near = view.Project({5, -10, 0}).x - 200, far = view.Project({5, 10, 0}).x - 200;
    EXPECT_GT(near, 50);
    EXPECT_LT(far, 50);
    EXPECT_FALSE(view.Project({5, -1e4, 0}).visible);
    EXPECT_FALSE(view.Project({std::nan(""), 0, 0}).visible);
    const CFPoint point(3, -7, 2);
    const Adv3d::Punto p = view.Project(point);
    const CFPoint back = view.Unproject(p.Pixel(), point);
    EXPECT_NEAR((back - point).GetMod(), 0, view.GetUnitsPerPixel(point));
    EXPECT_NEAR(view.Project(point + CFPoint(view.GetUnitsPerPixel(point), 0, 0)).x, p.x + 1, 1e-6);
}

// Faults: a click just beside a line or inside a wall that misses; a frame that takes what only crosses it; hidden
// things picked; a region that does not cover what it stands for.
TEST(HitTest, ClicksAndFrames) {
    SmallModel m;
    Adv3d view = Front();
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(5, 0, 0), &c = m.Node(5, 0, 5), &d = m.Node(0, 0, 5);
    CTrave& beam = m.Beam(a, b);
    CSetto& wall = m.Polygon<CSetto>({&a, &b, &c, &d});
    const std::tuple<CElemento*, CPoint, bool> clicks[] = {
        {&a, {204, 147}, true},     {&a, {207, 150}, false},   {&beam, {225, 153}, true}, {&beam, {225, 156}, false},
        {&beam, {260, 150}, false}, {&wall, {225, 125}, true}, {&wall, {225, 160}, false}}; // one beyond the beam's end
    for (const auto& [element, point, hit] : clicks)
        EXPECT_EQ(element->PtIn(point, &view) != 0, hit) << point.x << "," << point.y;
    EXPECT_TRUE(beam.IsInRect(CPoint(255, 155), CPoint(200, 150), &view)); // corners in any order, edges included
    EXPECT_FALSE(beam.IsInRect(CPoint(210, 140), CPoint(300, 160), &view));
    EXPECT_TRUE(wall.IsInRect(CPoint(199, 99), CPoint(251, 151), &view));
    EXPECT_FALSE(wall.IsInRect(CPoint(199, 101), CPoint(251, 151), &view));
    for (CElemento* element : std::initializer_list<CElemento*>{&a, &beam, &wall}) {
        EXPECT_FALSE(element->PtIn(CPoint(225, 150), nullptr));
        EXPECT_FALSE(element->IsInRect(CPoint(0, 0), CPoint(400, 300), nullptr));
        EXPECT_TRUE(element->Select(CPoint(0, 0), CPoint(400, 300), &view));
        EXPECT_TRUE(element->IsSelect());
        EXPECT_EQ(element->Select(1, &view), 0); // set, not toggled
        EXPECT_EQ(element->Select(0, nullptr), 1);
        element->SetVisible(0);
        EXPECT_FALSE(element->Select(CPoint(0, 0), CPoint(400, 300), &view) || element->IsSelect());
        element->SetVisible(1);
    }

    Adv3dRect region(&view), blind;
    EXPECT_TRUE(region.IsEmpty());
    beam.UpdateInvalideRect(&region, 1);
    EXPECT_TRUE(region.GetRect().PtInRect(CPoint(200, 150)) && region.GetRect().PtInRect(CPoint(250, 150)));
    EXPECT_FALSE(region.GetRect().PtInRect(CPoint(250, 130)));
    d.UpdateInvalideRect(&region, 0);
    EXPECT_TRUE(region.GetRect().PtInRect(CPoint(200, 100)));
    wall.UpdateInvalideRect(&blind, 5);
    a.UpdateInvalideRect(nullptr, 5);
    EXPECT_TRUE(blind.IsEmpty());
}

} // namespace
