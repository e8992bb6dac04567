// Polygons: areas, axes and planes.
#include "tests/model/SmallModel.h"

namespace {

double Area(CPoligono& polygon) {
    CGrandezza value;
    polygon.GetArea(value);
    return value.GetValue();
}

double Share(CPoligono& polygon, int i) {
    CGrandezza value;
    polygon.GetAreaNodo(i, value);
    return value.GetValue();
}

// Faults: half or twice the area, digits lost far from the origin, a concave corner counted the wrong way, shares that
// do not add up to the whole.
TEST(PolygonTest, AreasAndShares) {
    SmallModel m;
    auto& square = m.Polygon<CSolaio>({CFPoint{1e6, 0, 3}, {1e6 + 2, 0, 3}, {1e6 + 2, 3, 3}, {1e6, 3, 3}});
    EXPECT_DOUBLE_EQ(Area(square), 6);
    for (int i = 0; i < 4; ++i)
        EXPECT_DOUBLE_EQ(Share(square, i), 1.5);

    auto& angle = m.Polygon<CSolaio>({CFPoint{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}});
    EXPECT_DOUBLE_EQ(Area(angle), 3);
    double sum = 0;
    for (int i = 0; i < 6; ++i)
        sum += Share(angle, i);
    EXPECT_NEAR(sum, 3, 1e-12);

    CGrandezza value(9);
    EXPECT_FALSE(square.GetAreaNodo(&m.Node(0, 0, 0), value));
    EXPECT_EQ(value.GetValue(), 0);
    EXPECT_TRUE(square.GetAreaNodo(square.GetVertice(2), value));
    EXPECT_DOUBLE_EQ(value.GetValue(), 1.5);
    EXPECT_STREQ(value.GetUnitText(), "m^2");
    square.SetVisible(0);
    EXPECT_FALSE(square.GetAreaView(value));
    EXPECT_TRUE(square.GetArea(value));
}

// Faults: a normal that depends on where the polygon starts, a left-handed triad, axes that are no unit vectors.
TEST(PolygonTest, LocalAxes) {
    SmallModel m;
    auto& wall = m.Polygon<CSetto>({CFPoint{0, 1, 0}, {4, 1, 0}, {4, 1, 3}, {0, 1, 3}});
    double v[12];
    ASSERT_TRUE(wall.GetVersoriLocali(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11]));
    const double wanted[12] = {1, 0, 0, 0, 0, 1, 0, -1, 0, 2, 1, 1.5};
    for (int i = 0; i < 12; ++i)
        EXPECT_NEAR(v[i], wanted[i], 1e-12) << i;
    CFPoint second;
    ASSERT_TRUE(wall.GetDir2(second));
    EXPECT_NEAR(second.z, 1, 1e-12);
    EXPECT_TRUE(wall.IsParallelo(CFPoint(1, 0, -5)));
    EXPECT_FALSE(wall.IsParallelo(CFPoint(1, 0.01, 0)));

    CFPoint middle;
    ASSERT_TRUE(wall.GetNodoMedio(middle, 3)); // the closing side
    EXPECT_EQ(middle, CFPoint(0, 1, 1.5));
    EXPECT_FALSE(wall.GetNodoMedio(middle, 4));
}

// Fault: a plane made of three points on a line, with a normal out of rounding.
TEST(PolygonTest, DegeneratePolygonsHaveNoAxes) {
    SmallModel m;
    auto& line = m.Polygon<CSolaio>({CFPoint{0, 0, 0}, {1, 1e-12, 0}, {2, 0, 0}});
    CFPoint axis;
    EXPECT_FALSE(line.GetDir(axis, 2));
    EXPECT_EQ(Area(line), 0);
    CPoligono few;
    few.AggiungiVertice(&m.Node(5, 5, 5));
    EXPECT_FALSE(few.GetDir(axis, 0));
    EXPECT_EQ(few.GetOutOfPlane(), 0);
    few.AggiungiVertice(12);
    few.AggiungiVertice(13);
    EXPECT_FALSE(few.GetDir(axis, 0)); // not linked yet
    EXPECT_EQ(few.GetIDVertice(2), 13);
}

} // namespace
