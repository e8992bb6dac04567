// The diagrams of a beam: the curve that is drawn, and the picture, whose pixels are read back.
#include "model/DiagramSheet.h"
#include "model/ElementoSettings.h"
#include "platform/Application.h"
#include "tests/model/SmallModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

constexpr COLORREF white = RGB(255, 255, 255), black = RGB(0, 0, 0), hair = RGB(90, 90, 90);
constexpr int width = 320, height = 200;

DiagramCurve curve(std::vector<TrattoDiagramma> pieces) {
    return DiagramCurve(std::move(pieces));
}

std::string text(const std::vector<DiagramCurve::Point>& points) {
    CString all, one;
    for (const auto& point : points) {
        one.Format("%g:%g ", point.x, point.value);
        all += one;
    }
    return all.ToUtf8();
}

using Flags = std::array<int, 9>;
enum Flag { N, V2, V3, T, M2, M3, NA, M2W2, M3W3 };
Flags only(int flag) {
    Flags flags{};
    flags[static_cast<std::size_t>(flag)] = 1;
    return flags;
}
constexpr Flags all{1, 1, 1, 1, 1, 1, 1, 1, 1};

// A beam from (0,0,0) to (4,0,0) in a window that it is drawn into.
class Diagrams : public testing::Test {
  protected:
    Diagrams() {
        window.Create("STATIC", "", WS_POPUP | WS_VISIBLE, CRect(0, 0, width, height), nullptr, 0);
        CWinApp::PumpMessages();
        results.SetLunghezzaLinea(4);
        beam.SetRisultati(&results);
    }
    ~Diagrams() override { window.DestroyWindow(); }

    // Forces of the nodes on the ends, along the local axes.
    void ends(std::initializer_list<double> forces) {
        double all[12] = {};
        std::copy(forces.begin(), forces.end(), all);
        results.SetForzeEstremi(all);
    }
    // Simply supported under 3 downwards: 6 upwards at both ends, 6 in the middle.
    void uniform() {
        ends({0, 0, 6, 0, 0, 0, 0, 0, 6});
        results.AddCarico(CTraveRisultati::Ripartito{0, 4, {0, 0, -3}, {0, 0, -3}});
    }
    void draw(const Flags& f, int reading = 0, CPoint at = {}) {
        if (!reading)
            CClientDC(&window).FillSolidRect(0, 0, width, height, white);
        beam.DisegnaDiagrammaTrave(&window, f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8], reading, at);
    }
    COLORREF pixel(int x, int y) { return CClientDC(&window).GetPixel(x, y); }
    int axis(int x) {
        int y = 0;
        while (y < height && pixel(x, y) != black)
            ++y;
        return y;
    }
    // Length of the run of colour from the axis upwards (+) or downwards (-) at a place of the beam, 0 to 1; the curve
    // itself is counted as well.
    int fill(double part) {
        const int x = 8 + static_cast<int>(std::lround(part * (width - 17))), y = axis(x);
        int up = 0, down = 0;
        while (up < height && pixel(x, y - 1 - up) != white)
            ++up;
        while (down < height && pixel(x, y + 1 + down) != white)
            ++down;
        return up > 0 && down > 0 ? 9999 : up - down;
    }
    int inked() {
        int count = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                count += pixel(x, y) != white;
        return count;
    }

    SmallModel m;
    CTrave& beam = m.beam(m.node(0, 0, 0), m.node(4, 0, 0));
    CTraveRisultati results;
    CWnd window;
};

} // namespace

// Faults: the extreme inside a stretch missed, both values of a jump not told, a level stretch named at each station.
TEST(DiagramCurve, PeaksAreEndsExtremesAndJumps) {
    EXPECT_EQ(text(curve({{0, 4, {0, 6, -1.5, 0}}}).Peaks()), "0:0 2:6 4:0 ");
    EXPECT_EQ(text(curve({{0, 2, {5}}, {2, 4, {-5}}}).Peaks()), "0:5 4:-5 ");
    EXPECT_EQ(text(curve({{0, 1, {5}}, {1, 3, {2}}, {3, 4, {-3}}}).Peaks()), "0:5 1:2 4:-3 ");
    EXPECT_EQ(text(curve({{0, 1, {10, -4}}, {1, 2, {2, -4}}}).Peaks()), "0:10 1:6 1:2 2:-2 ");
    EXPECT_EQ(text(curve({{0, 1, {7}}, {1, 2, {7}}, {2, 3, {7}}}).Peaks()), "0:7 3:7 ");
    EXPECT_EQ(text(curve({{0, 1, {0, 1}}, {1, 2, {1}}, {2, 3, {1, -1}}}).Peaks()), "0:0 2:1 3:0 ");
    EXPECT_EQ(text(curve({{0, 2, {0, 3, 0, -1}}}).Peaks()), "0:0 1:2 2:-2 ");
    // What is left of a sum is no jump.
    EXPECT_EQ(text(curve({{0, 1, {1, 1}}, {1, 2, {2 + 1e-13, 1}}}).Peaks()), "0:1 2:3 ");
    EXPECT_TRUE(DiagramCurve().Peaks().empty());
}

// Faults: the value of the wrong side of a jump, a straight line drawn where the curve is bent, a jump drawn sloping.
TEST(DiagramCurve, ValuesAndSamplesBetweenStations) {
    const DiagramCurve jumping = curve({{0, 1, {10, -4}}, {1, 1, {99}}, {1, 3, {2, -4, 1}}});
    EXPECT_EQ(jumping.Value(1, -1), 6);
    EXPECT_EQ(jumping.Value(1), 2);
    EXPECT_EQ(jumping.Value(-1), 10);
    EXPECT_EQ(jumping.Value(9, 1), -2);
    EXPECT_EQ(jumping.Value(1.5), 0.25);
    double place = 0;
    EXPECT_TRUE(jumping.FindJump(0.9, 1.1, place));
    EXPECT_EQ(place, 1);
    EXPECT_FALSE(jumping.FindJump(1.01, 3, place));
    EXPECT_EQ(jumping.Minimum(), -2);
    EXPECT_EQ(jumping.Largest(), 10);
    std::vector<DiagramCurve::Point> samples;
    jumping.Sample(0.5, [&samples](double x, double value) { samples.push_back({x, value}); });
    EXPECT_EQ(text(samples), "0:10 1:6 1:2 1.5:0.25 2:-1 2.5:-1.75 3:-2 ");
}

// Faults: upside down, on the side of the compressed fibres, a straight line or a step instead of a parabola.
TEST_F(Diagrams, BendingLiesOnTheStretchedSide) {
    uniform();
    draw(only(M2));
    const int middle = -fill(0.5);
    EXPECT_GT(middle, 100) << "the diagram uses the room it has";
    EXPECT_NEAR(-fill(0.25), 0.75 * middle, 2);
    EXPECT_NEAR(-fill(0.125), 0.4375 * middle, 2);
    draw(only(M2W2));
    EXPECT_NEAR(-fill(0.25), 0.75 * middle, 2);
    // The first end stretches below, the other one above.
    results = CTraveRisultati();
    results.SetLunghezzaLinea(4);
    ends({0, 0, -2.5, 0, 5});
    draw(only(M2));
    EXPECT_LT(fill(0.05), -40);
    EXPECT_GT(fill(0.95), 40);
}

// Faults: tension below the axis, a diagram of another quantity, a shear that does not cross in the middle.
TEST_F(Diagrams, ForcesLieAboveTheAxisWherePositive) {
    uniform();
    draw(only(V3));
    EXPECT_LT(fill(0.02), -40);
    EXPECT_GT(fill(0.98), 40);
    EXPECT_NEAR(fill(0.98), -fill(0.02), 2);
    EXPECT_NEAR(fill(0.75), fill(0.98) / 2, 3);
    EXPECT_LE(std::abs(fill(0.5)), 1);
    ends({-10, 0, 0, -3, 0, 0, 10, 0, 0, 3});
    for (const int flag : {N, NA, T}) {
        draw(only(flag));
        EXPECT_GT(fill(0.3), 40) << flag;
        EXPECT_EQ(fill(0.3), fill(0.7)) << flag;
    }
}

// Faults: two diagrams of one look, a stress without its section property drawn as if it had one.
TEST_F(Diagrams, EveryKindHasItsColour) {
    ends({-1, -1, -1, -1, 1, -1, 1, 1, 1, 1, 3, 3});
    std::set<COLORREF> seen;
    for (int flag = 0; flag < 9; ++flag) {
        draw(only(flag));
        const int x = width / 3, y = axis(x);
        const COLORREF above = pixel(x, y - 4), below = pixel(x, y + 4);
        EXPECT_NE(above == white, below == white) << flag;
        seen.insert(above == white ? below : above);
    }
    EXPECT_EQ(seen.size(), 9u);
    m.section.SetW2(0);
    draw(only(M2W2));
    EXPECT_EQ(fill(0.33), 0);
    beam.SetSezione(0, nullptr);
    draw(only(NA));
    EXPECT_EQ(fill(0.33), 0);
}

// Faults: a jump at a point load drawn beside its place, noise of the solution blown up to a full diagram.
TEST_F(Diagrams, JumpsAndNoise) {
    ends({1e-14, 0, 3, 0, 0, 0, 0, 0, 1});
    results.AddCarico(CTraveRisultati::Concentrato{1, {0, 0, -4}, {}});
    draw(only(V3));
    EXPECT_LT(fill(0.24), -80);
    EXPECT_GT(fill(0.26), 20);
    EXPECT_NEAR(-fill(0.1) / 3.0, fill(0.9), 2);
    draw(only(N));
    EXPECT_EQ(fill(0.5), 0);
}

// Faults: nothing drawn without complaint, or something drawn without results; labels over each other.
TEST_F(Diagrams, NothingToShow) {
    draw(Flags{});
    EXPECT_EQ(inked(), 0);
    beam.SetRisultati(nullptr);
    draw(all);
    draw(all, 1, CPoint(100, 100));
    EXPECT_EQ(inked(), 0);
    CElementoRisultati none;
    beam.SetRisultati(&none);
    draw(all);
    EXPECT_EQ(inked(), 0);
    beam.DisegnaDiagrammaTrave(nullptr, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, CPoint());
}

// Results that were read back as records of equally spaced sections.
TEST_F(Diagrams, RecordsOfSections) {
    CElementoRisultati records;
    records.SetSizeNodiRisultati(5);
    for (int i = 0; i < 5; ++i)
        records.GetNodoRisultati(i)->GetM2() = i == 2 ? 8 : 0;
    beam.SetRisultati(&records);
    draw(only(M2));
    EXPECT_EQ(fill(0.2), 0);
    EXPECT_NEAR(fill(0.375), fill(0.5) / 2, 3); // the stroke is steep
    EXPECT_LT(fill(0.5), -80);
}

// Faults: labels over each other or struck through by their curve, titles that run into the next panel.
TEST_F(Diagrams, LabelsKeepClear) {
    uniform();
    ends({-10, 2, 6, -3, 1, 0, 10, 2, 6, 3, 0, 1});
    for (int i = 1; i < 12; ++i)
        results.AddCarico(CTraveRisultati::Concentrato{i / 3.0, {0, i % 2 ? 3.0 : -4.0, -1}, {0, 2, 0}});
    std::vector<Diagram> diagrams;
    for (const int kind : {CElementoSettings::V2, CElementoSettings::V3, CElementoSettings::M2, CElementoSettings::M3,
                           CElementoSettings::N})
        diagrams.push_back({kind, "kN", DiagramCurve(results.GetDiagramma(kind))});
    for (const int kind : {CElementoSettings::N_A, CElementoSettings::M2_W2, CElementoSettings::M3_W3})
        diagrams.push_back({kind, "kN/m^2", {}});
    const DiagramLine line{4, "m", 1, 2};
    CClientDC dc(&window);
    for (const CRect& area : {CRect(0, 0, 320, 194), CRect(0, 0, 900, 900), CRect(0, 0, 60, 40)}) {
        DiagramSheet sheet(dc, area, diagrams, line);
        sheet.Draw();
        const std::vector<CRect>& labels = sheet.Labels();
        EXPECT_GE(labels.size(), area.Width() < 100 ? 8u : 16u) << "titles and peaks";
        for (std::size_t i = 0; i < labels.size() && area.Width() > 100; ++i) {
            EXPECT_EQ(labels[i] & area, labels[i]) << i;
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_TRUE((labels[i] & labels[k]).IsRectEmpty()) << i << " and " << k;
        }
        if (area.Width() != 900)
            continue;
        for (int i = 0; i < 5; ++i)
            for (double x = 0; x <= 4; x += 1.0 / 512) {
                const CPoint point = sheet.PointOf(i, x, diagrams[static_cast<std::size_t>(i)].curve.Value(x));
                for (CRect label : labels) {
                    label.DeflateRect(0, 3);
                    EXPECT_FALSE(label.PtInRect(point)) << i << " at " << x;
                }
            }
    }
}

// Faults: the hair line beside the pointer, one that stays behind, the mark off the curve between two stations.
TEST_F(Diagrams, ReadingFollowsThePointer) {
    uniform();
    draw(only(M2));
    const int middle = -fill(0.5);
    draw(only(M2), 1, CPoint(84, 100)); // a quarter: 3/4 of the largest value
    const int top = 13;
    EXPECT_EQ(pixel(84, top), hair);
    const double part = (84.0 - 8) / (width - 17);
    const int quarter = static_cast<int>(std::lround(middle * 4 * part * (1 - part))), y = axis(84 - 20);
    EXPECT_EQ(pixel(86, y + quarter), pixel(82, y + quarter)) << "a mark across the line";
    EXPECT_NE(pixel(82, y + quarter), white);
    EXPECT_NE(pixel(82, y + quarter), pixel(82, y + quarter / 2)) << "in the curve's colour";
    draw(only(M2), 1, CPoint(200, 100));
    EXPECT_EQ(pixel(200, top), hair);
    EXPECT_EQ(pixel(84, top), white);
    draw(only(M2), 1, CPoint(200, -1));
    EXPECT_EQ(pixel(200, top), white);
    EXPECT_LT(fill(0.5), -100) << "the diagram stays";
    draw(all, 1, CPoint(50, 50));
    int lines = 0;
    for (int x = 0; x < width; ++x)
        lines += pixel(x, 14) == hair;
    EXPECT_EQ(lines, 3) << "one in each column of panels";
}

// Fault: the point taken in the drawing area's coordinates instead of its parent's.
TEST_F(Diagrams, ReadingPointIsTheParents) {
    uniform();
    CWnd child;
    child.Create("STATIC", "", WS_CHILD | WS_VISIBLE, CRect(40, 10, 260, 180), &window, 1);
    beam.DisegnaDiagrammaTrave(&child, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, CPoint(140, 60));
    EXPECT_EQ(CClientDC(&child).GetPixel(100, 15), hair);
    child.DestroyWindow();
}
