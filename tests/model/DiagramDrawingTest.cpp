// The diagrams of a beam: the curve that is drawn, and the picture, whose pixels are read back.
#include "model/result/DiagramSheet.h"
#include "model/view/ElementoSettings.h"
#include "platform/window/Application.h"
#include "tests/model/SmallModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

constexpr COLORREF white = RGB(255, 255, 255), black = RGB(0, 0, 0), hair = RGB(90, 90, 90);
constexpr int width = 320, height = 200;

DiagramCurve Curve(std::vector<DiagramStretch> pieces) {
    return DiagramCurve(std::move(pieces));
}

std::string Text(const std::vector<DiagramCurve::Point>& points) {
    CString all, one;
    for (const auto& point : points) {
        one.Format("%g:%g ", point.x, point.value);
        all += one;
    }
    return all.ToUtf8();
}

using Flags = std::array<int, 9>;
enum Flag { N, V2, V3, T, M2, M3, NA, M2W2, M3W3 };
Flags Only(int flag) {
    Flags flags{};
    flags[static_cast<std::size_t>(flag)] = 1;
    return flags;
}
constexpr Flags all{1, 1, 1, 1, 1, 1, 1, 1, 1};

// A beam from (0,0,0) to (4,0,0) in a window that it is drawn into.
class Diagrams : public testing::Test {
  protected:
    Diagrams() {
        m_window.Create("STATIC", "", WS_POPUP | WS_VISIBLE, CRect(0, 0, width, height), nullptr, 0);
        CWinApp::PumpMessages();
        m_results.SetLineLength(4);
        m_beam.SetRisultati(&m_results);
    }
    ~Diagrams() override { m_window.DestroyWindow(); }

    // Forces of the nodes on the ends, along the local axes.
    void Ends(std::initializer_list<double> forces) {
        double all[12] = {};
        std::copy(forces.begin(), forces.end(), all);
        m_results.SetEndForces(all);
    }
    // Simply supported under 3 downwards: 6 upwards at both ends, 6 in the middle.
    void Uniform() {
        Ends({0, 0, 6, 0, 0, 0, 0, 0, 6});
        m_results.AddCarico(CTraveRisultati::Distributed{0, 4, {0, 0, -3}, {0, 0, -3}});
    }
    void Draw(const Flags& f, int reading = 0, CPoint at = {}) {
        if (!reading)
            CClientDC(&m_window).FillSolidRect(0, 0, width, height, white);
        m_beam.DisegnaDiagrammaTrave(&m_window, f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], f[8], reading, at);
    }
    COLORREF Pixel(int x, int y) { return CClientDC(&m_window).GetPixel(x, y); }
    int Axis(int x) {
        int y = 0;
        while (y < height && Pixel(x, y) != black)
            ++y;
        return y;
    }
    // Length of the run of colour from the axis upwards (+) or downwards (-) at a place of the beam, 0 to 1; the curve
    // itself is counted as well.
    int Fill(double part) {
        const int x = 8 + static_cast<int>(std::lround(part * (width - 17))), y = Axis(x);
        int up = 0, down = 0;
        while (up < height && Pixel(x, y - 1 - up) != white)
            ++up;
        while (down < height && Pixel(x, y + 1 + down) != white)
            ++down;
        return up > 0 && down > 0 ? 9999 : up - down;
    }
    int Inked() {
        int count = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                count += Pixel(x, y) != white;
        return count;
    }

    SmallModel m_m;
    CTrave& m_beam = m_m.Beam(m_m.Node(0, 0, 0), m_m.Node(4, 0, 0));
    CTraveRisultati m_results;
    CWnd m_window;
};

} // namespace

// Faults: the extreme inside a stretch missed, both values of a jump not told, a level stretch named at each station.
TEST(DiagramCurve, PeaksAreEndsExtremesAndJumps) {
    EXPECT_EQ(Text(Curve({{0, 4, {0, 6, -1.5, 0}}}).Peaks()), "0:0 2:6 4:0 ");
    EXPECT_EQ(Text(Curve({{0, 2, {5}}, {2, 4, {-5}}}).Peaks()), "0:5 4:-5 ");
    EXPECT_EQ(Text(Curve({{0, 1, {5}}, {1, 3, {2}}, {3, 4, {-3}}}).Peaks()), "0:5 1:2 4:-3 ");
    EXPECT_EQ(Text(Curve({{0, 1, {10, -4}}, {1, 2, {2, -4}}}).Peaks()), "0:10 1:6 1:2 2:-2 ");
    EXPECT_EQ(Text(Curve({{0, 1, {7}}, {1, 2, {7}}, {2, 3, {7}}}).Peaks()), "0:7 3:7 ");
    EXPECT_EQ(Text(Curve({{0, 1, {0, 1}}, {1, 2, {1}}, {2, 3, {1, -1}}}).Peaks()), "0:0 2:1 3:0 ");
    EXPECT_EQ(Text(Curve({{0, 2, {0, 3, 0, -1}}}).Peaks()), "0:0 1:2 2:-2 ");
    // What is left of a sum is no jump.
    EXPECT_EQ(Text(Curve({{0, 1, {1, 1}}, {1, 2, {2 + 1e-13, 1}}}).Peaks()), "0:1 2:3 ");
    EXPECT_TRUE(DiagramCurve().Peaks().empty());
}

// Faults: the value of the wrong side of a jump, a straight line drawn where the curve is bent, a jump drawn sloping.
TEST(DiagramCurve, ValuesAndSamplesBetweenStations) {
    const DiagramCurve jumping = Curve({{0, 1, {10, -4}}, {1, 1, {99}}, {1, 3, {2, -4, 1}}});
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
    EXPECT_EQ(Text(samples), "0:10 1:6 1:2 1.5:0.25 2:-1 2.5:-1.75 3:-2 ");
}

// Faults: upside down, on the side of the compressed fibres, a straight line or a step instead of a parabola.
TEST_F(Diagrams, BendingLiesOnTheStretchedSide) {
    Uniform();
    Draw(Only(M2));
    const int middle = -Fill(0.5);
    EXPECT_GT(middle, 100) << "the diagram uses the room it has";
    EXPECT_NEAR(-Fill(0.25), 0.75 * middle, 2);
    EXPECT_NEAR(-Fill(0.125), 0.4375 * middle, 2);
    Draw(Only(M2W2));
    EXPECT_NEAR(-Fill(0.25), 0.75 * middle, 2);
    // The first end stretches below, the other one above.
    m_results = CTraveRisultati();
    m_results.SetLineLength(4);
    Ends({0, 0, -2.5, 0, 5, 0, 0, 0, 2.5, 0, 5});
    Draw(Only(M2));
    EXPECT_LT(Fill(0.05), -40);
    EXPECT_GT(Fill(0.95), 40);
}

// Faults: tension below the axis, a diagram of another quantity, a shear that does not cross in the middle.
TEST_F(Diagrams, ForcesLieAboveTheAxisWherePositive) {
    Uniform();
    Draw(Only(V3));
    EXPECT_LT(Fill(0.02), -40);
    EXPECT_GT(Fill(0.98), 40);
    EXPECT_NEAR(Fill(0.98), -Fill(0.02), 2);
    EXPECT_NEAR(Fill(0.75), Fill(0.98) / 2, 3);
    EXPECT_LE(std::abs(Fill(0.5)), 1);
    Ends({-10, 0, 0, -3, 0, 0, 10, 0, 0, 3});
    for (const int flag : {N, NA, T}) {
        Draw(Only(flag));
        EXPECT_GT(Fill(0.3), 40) << flag;
        EXPECT_EQ(Fill(0.3), Fill(0.7)) << flag;
    }
}

// Faults: two diagrams of one look, a stress without its section property drawn as if it had one.
TEST_F(Diagrams, EveryKindHasItsColour) {
    Ends({-1, -1, -1, -1, 1, -1, 1, 1, 1, 1, 3, 3});
    std::set<COLORREF> seen;
    for (int flag = 0; flag < 9; ++flag) {
        Draw(Only(flag));
        const int x = width / 3, y = Axis(x);
        const COLORREF above = Pixel(x, y - 4), below = Pixel(x, y + 4);
        EXPECT_NE(above == white, below == white) << flag;
        seen.insert(above == white ? below : above);
    }
    EXPECT_EQ(seen.size(), 9u);
    m_m.section.SetW2(0);
    Draw(Only(M2W2));
    EXPECT_EQ(Fill(0.33), 0);
    m_beam.SetSezione(0, nullptr);
    Draw(Only(NA));
    EXPECT_EQ(Fill(0.33), 0);
}

// Faults: a jump at a point load drawn beside its place, noise of the solution blown up to a full diagram.
TEST_F(Diagrams, JumpsAndNoise) {
    Ends({1e-14, 0, 3, 0, 0, 0, 0, 0, 1});
    m_results.AddCarico(CTraveRisultati::PointForce{1, {0, 0, -4}, {}});
    Draw(Only(V3));
    EXPECT_LT(Fill(0.24), -80);
    EXPECT_GT(Fill(0.26), 20);
    EXPECT_NEAR(-Fill(0.1) / 3.0, Fill(0.9), 2);
    Draw(Only(N));
    EXPECT_EQ(Fill(0.5), 0);
    // A line without load in a loaded structure: its own forces are all noise.
    m_results = CTraveRisultati();
    m_results.SetLineLength(4);
    Ends({-1e-9, 0, 1e-9, 0, 0, 0, 1e-9, 0, -1e-9, 0, 4e-9});
    m_results.SetCaseScale({10, 40});
    for (const int flag : {N, V3, M2}) {
        Draw(Only(flag));
        EXPECT_EQ(Fill(0.5), 0) << flag;
    }
}

// Fault: results that were changed at the second end drawn as if they were not.
TEST_F(Diagrams, BothEndsAreAsStored) {
    Ends({-10, 0, 0, 0, 0, 0, 10});
    m_results.GetNodeResults(1)->GetV1() *= -1;
    Draw(Only(N));
    EXPECT_GT(Fill(0.02), 60);
    EXPECT_NEAR(Fill(0.02), -Fill(0.98), 2);
    EXPECT_LE(std::abs(Fill(0.5)), 1);
    EXPECT_EQ(m_results.GetInternalForce(CElementoSettings::N, 4), -10);
}

// Faults: nothing drawn without complaint, or something drawn without results; labels over each other.
TEST_F(Diagrams, NothingToShow) {
    Draw(Flags{});
    EXPECT_EQ(Inked(), 0);
    m_beam.SetRisultati(nullptr);
    Draw(all);
    Draw(all, 1, CPoint(100, 100));
    EXPECT_EQ(Inked(), 0);
    CElementoRisultati none;
    m_beam.SetRisultati(&none);
    Draw(all);
    EXPECT_EQ(Inked(), 0);
    m_beam.DisegnaDiagrammaTrave(nullptr, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, CPoint());
}

// Results that were read back as records of equally spaced sections.
TEST_F(Diagrams, RecordsOfSections) {
    CElementoRisultati records;
    records.SetNodeResultCount(5);
    for (int i = 0; i < 5; ++i)
        records.GetNodeResults(i)->GetM2() = i == 2 ? 8 : 0;
    m_beam.SetRisultati(&records);
    Draw(Only(M2));
    EXPECT_EQ(Fill(0.2), 0);
    EXPECT_NEAR(Fill(0.375), Fill(0.5) / 2, 3); // the stroke is steep
    EXPECT_LT(Fill(0.5), -80);
}

// Faults: labels over each other or struck through by their curve, titles that run into the next panel.
TEST_F(Diagrams, LabelsKeepClear) {
    Uniform();
    Ends({-10, 2, 6, -3, 1, 0, 10, 2, 6, 3, 0, 1});
    for (int i = 1; i < 12; ++i)
        m_results.AddCarico(CTraveRisultati::PointForce{i / 3.0, {0, i % 2 ? 3.0 : -4.0, -1}, {0, 2, 0}});
    std::vector<Diagram> diagrams;
    for (const int kind : {CElementoSettings::V2, CElementoSettings::V3, CElementoSettings::M2, CElementoSettings::M3,
                           CElementoSettings::N})
        diagrams.push_back({kind, "kN", DiagramCurve(m_results.GetDiagram(kind))});
    for (const int kind : {CElementoSettings::N_A, CElementoSettings::M2_W2, CElementoSettings::M3_W3})
        diagrams.push_back({kind, "kN/m^2", {}});
    const DiagramLine line{4, "m", 1, 2};
    CClientDC dc(&m_window);
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

// Fault: a value far from the others labelled, though larger ones beside each other found no room.
TEST_F(Diagrams, NoSmallerLabelThanThoseLeftOut) {
    std::vector<DiagramStretch> pieces{{0, 2, {3}}};
    for (int i = 0; i < 8; ++i)
        pieces.push_back({2 + i * 0.001, 2 + (i + 1) * 0.001, {100.0 - i}});
    pieces.push_back({2.008, 4, {3}});
    const std::vector<Diagram> diagrams{{CElementoSettings::N, "kN", DiagramCurve(pieces)}};
    const DiagramLine line{4, "m", 1, 2};
    CClientDC dc(&m_window);
    DiagramSheet sheet(dc, CRect(0, 0, 320, 194), diagrams, line);
    sheet.Draw();
    const CPoint middle = sheet.PointOf(0, 2, 0);
    ASSERT_GE(sheet.Labels().size(), 2u);
    for (std::size_t i = 1; i < sheet.Labels().size(); ++i)
        EXPECT_LT(std::abs(sheet.Labels()[i].CenterPoint().x - middle.x), 60) << "the far ones say 3";
}

// Faults: the hair line beside the pointer, one that stays behind, the mark off the curve between two stations.
TEST_F(Diagrams, ReadingFollowsThePointer) {
    Uniform();
    Draw(Only(M2));
    const int middle = -Fill(0.5);
    Draw(Only(M2), 1, CPoint(84, 100)); // a quarter: 3/4 of the largest value
    const int top = 13;
    EXPECT_EQ(Pixel(84, top), hair);
    const double part = (84.0 - 8) / (width - 17);
    const int quarter = static_cast<int>(std::lround(middle * 4 * part * (1 - part))), y = Axis(84 - 20);
    EXPECT_EQ(Pixel(86, y + quarter), Pixel(82, y + quarter)) << "a mark across the line";
    EXPECT_NE(Pixel(82, y + quarter), white);
    EXPECT_NE(Pixel(82, y + quarter), Pixel(82, y + quarter / 2)) << "in the curve's colour";
    Draw(Only(M2), 1, CPoint(200, 100));
    EXPECT_EQ(Pixel(200, top), hair);
    EXPECT_EQ(Pixel(84, top), white);
    Draw(Only(M2), 1, CPoint(200, -1));
    EXPECT_EQ(Pixel(200, top), white);
    EXPECT_LT(Fill(0.5), -100) << "the diagram stays";
    Draw(all, 1, CPoint(50, 50));
    int lines = 0;
    for (int x = 0; x < width; ++x)
        lines += Pixel(x, 14) == hair;
    EXPECT_EQ(lines, 3) << "one in each column of panels";
}

// Fault: the point taken in the drawing area's coordinates instead of its parent's.
TEST_F(Diagrams, ReadingPointIsTheParents) {
    Uniform();
    CWnd child;
    child.Create("STATIC", "", WS_CHILD | WS_VISIBLE, CRect(40, 10, 260, 180), &m_window, 1);
    m_beam.DisegnaDiagrammaTrave(&child, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, CPoint(140, 60));
    EXPECT_EQ(CClientDC(&child).GetPixel(100, 15), hair);
    child.DestroyWindow();
}
