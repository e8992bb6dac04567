// What reaches the picture. The pixels are read back: a drawing that is empty, upside down or in the wrong order shows.
#include "model/element/FaceElemento.h"
#include "model/element/TipoElemento.h"
#include "model/entity/CasoCarico.h"
#include "model/view/Adv3d.h"
#include "model/view/DrawHelpers.h"
#include "platform/drawing/DeviceContext.h"
#include "tests/model/SmallModel.h"
#include "tests/platform/Sheet.h"

#include <algorithm>

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr auto info = &CElemento::DrawInformazioni;

class DrawTest : public testing::Test {
  protected:
    DrawTest() {
        m_view.SetViewport(CRect(0, 0, 400, 300));
        m_view.SetDirection(Adv3d::Front);
        m_view.SetScale(10);
        m_view.SetDC(&m_dc);
        Clear();
    }
    ~DrawTest() override { m_view.SetDC(nullptr); }

    void Clear() { m_dc.FillSolidRect(0, 0, 400, 300, white); }
    // Pixels that are not white in a rectangle, edges excluded.
    int Inked(const CRect& rect) {
        m_view.Flush();
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                count += m_dc.GetPixel(x, y) != white;
        return count;
    }
    int Inked() { return Inked(CRect(0, 0, 400, 300)); }
    // The same of what is drawn on an empty picture.
    int InkOf(CElemento& element, void (CElemento::*draw)(Adv3d*), const CRect& rect = CRect(0, 0, 400, 300)) {
        Clear();
        (element.*draw)(&m_view);
        return Inked(rect);
    }

    SmallModel m_m;
    Sheet m_sheet{400, 300};
    CDC& m_dc = m_sheet.Dc();
    Adv3d m_view;
};

// Faults: nothing drawn before a Flush or ever, hidden things drawn, the selection in no colour of its own.
TEST_F(DrawTest, LinesAndNodes) {
    CNodo& left = m_m.Node(-5, 0, 0);
    CTrave& beam = m_m.Beam(left, m_m.Node(5, 0, 0));
    EXPECT_NEAR(InkOf(beam, &CElemento::Draw), 100, 2);
    EXPECT_EQ(m_dc.GetPixel(200, 150), m_view.GetSettings(TipoElemento::Trave).GetColor());
    beam.SetSelect(1);
    InkOf(beam, &CElemento::Draw);
    EXPECT_EQ(m_dc.GetPixel(200, 150), Adv3d::selectionColor);
    Clear();
    beam.SetVisible(0);
    beam.Draw(&m_view);
    beam.DrawInformazioni(&m_view);
    beam.Draw(nullptr);
    EXPECT_EQ(Inked(), 0);
    EXPECT_GT(InkOf(left, &CElemento::Draw, CRect(145, 145, 156, 156)), 8);
    m_view.GetSettings(TipoElemento::Nodo).SetItem(CElementoSettings::Object, 0);
    EXPECT_EQ(InkOf(left, &CElemento::Draw), 0);
}

// Faults: coordinates beyond an integer's range wrapping round into the picture, a line through the picture lost
// because both its ends lie outside.
TEST_F(DrawTest, LinesAreClipped) {
    m_m.Beam(m_m.Node(-1e9, 0, 0), m_m.Node(1e9, 0, 0)).Draw(&m_view);
    EXPECT_NEAR(Inked(CRect(0, 148, 400, 153)), 400, 1);
    EXPECT_NEAR(Inked(), 400, 1);
    Clear();
    m_m.Beam(m_m.Node(1e9, 0, 1e9), m_m.Node(1e9, 0, -1e9)).Draw(&m_view);
    EXPECT_EQ(Inked(), 0);
    m_view.SetPerspective(1);
    m_m.Beam(m_m.Node(3, -1e6, 0), m_m.Node(3, 10, 0)).Draw(&m_view); // from behind the eye into the picture
    EXPECT_GT(Inked(CRect(200, 140, 400, 160)), 20);
    EXPECT_EQ(Inked(CRect(0, 0, 200, 300)), 0);
}

// Faults: an arrow on the wrong side of its node or line (a load that seems to pull), loads of another case shown.
TEST_F(DrawTest, LoadsPointWhereTheyAct) {
    CCasoCarico dead, wind;
    dead.SetID(1);
    wind.SetID(2);
    auto* down = new CCaricoUniforme(CFPoint(0, 0, -5), CCarico::Global);
    auto* push = new CCaricoNodale(CFPoint(10, 0, 0), CFPoint());
    dead.AddCarico(down);
    wind.AddCarico(push);
    CNodo& left = m_m.Node(-5, 0, 0);
    CTrave& beam = m_m.Beam(left, m_m.Node(5, 0, 0));
    beam.AddCarico(down, 1);
    left.AddCarico(push, 1);

    EXPECT_GT(InkOf(beam, &CElemento::DrawCarichi, CRect(140, 100, 260, 149)), 100); // it comes from above
    EXPECT_EQ(Inked(CRect(140, 152, 260, 300)), 0);
    m_view.SetCasoCarico(2);
    EXPECT_EQ(InkOf(beam, info), 0);
    EXPECT_GT(InkOf(left, info, CRect(100, 140, 150, 160)), 30); // it pushes from the left
    EXPECT_EQ(Inked(CRect(152, 140, 250, 160)), 0);
    m_view.GetSettings(TipoElemento::Nodo).SetItem(CElementoSettings::Carichi, 0);
    EXPECT_EQ(InkOf(left, info), 0);

    // A local load follows the line's axes: along local 3 of a column it comes from the side.
    Clear();
    CTrave& column = m_m.Beam(m_m.Node(0, 0, -5), m_m.Node(0, 0, 5));
    CCaricoConcentrato local(CFPoint(0, 0, 1), 5, CCarico::Local);
    local.DrawOn(column, m_view, 0);
    EXPECT_GT(Inked(CRect(201, 140, 240, 160)), 20);
}

// Faults: a support that looks like another, or like none.
TEST_F(DrawTest, SupportsSpringsAndReleases) {
    CNodo& node = m_m.Node(0, 0, 0);
    CTrave& beam = m_m.Beam(node, m_m.Node(10, 0, 0));
    std::vector<int> seen;
    for (unsigned mask : {7u, 63u, 4u, 32u}) {
        const CVincolo restraint(mask);
        node.SetRestraint(&restraint);
        seen.push_back(InkOf(node, info));
        EXPECT_GT(seen.back(), 0);
        EXPECT_EQ(std::count(seen.begin(), seen.end(), seen.back()), 1);
    }
    node.SetRestraint(nullptr);
    for (int kind : {CMolla::Translational, CMolla::Rotational}) {
        node.RemoveSprings();
        node.AddSpring(CMolla(kind, 100, CFPoint(0, 0, 1)));
        EXPECT_GT(InkOf(node, info, CRect(180, 151, 220, 190)), 10);
    }
    node.RemoveSprings();
    node.AddSpring(CMolla(0, 0, CFPoint(0, 0, 1))); // a spring without stiffness holds nothing
    EXPECT_EQ(InkOf(node, info), 0);
    beam.AddSpecifica(new CSpecificheSvincoliTrave(1, 0, 0, 1, 0));
    EXPECT_GT(InkOf(beam, info, CRect(280, 140, 300, 160)), 8);
    EXPECT_EQ(Inked(CRect(190, 140, 270, 160)), 0);
}

// Fault: the far wall painted over the near one.
TEST_F(DrawTest, NearFacesHideFarOnes) {
    CSetto& near = m_m.Polygon<CSetto>({CFPoint{-2, -1, -2}, {2, -1, -2}, {2, -1, 2}, {-2, -1, 2}});
    CSolaio& far = m_m.Polygon<CSolaio>({CFPoint{-4, 5, -4}, {4, 5, -4}, {4, 5, 4}, {-4, 5, 4}});
    FaceElemento faces[2];
    FaceElemento* next;
    const auto draw = [&] {
        next = faces;
        EXPECT_EQ(near.SetFacesArray(&next, &m_view, nullptr), 1);
        EXPECT_EQ(far.SetFacesArray(&next, &m_view, nullptr), 1);
        m_view.DrawFaces(faces, 2);
    };
    draw();
    ASSERT_EQ(next, faces + 2);
    const COLORREF middle = m_dc.GetPixel(200, 150), border = m_dc.GetPixel(200, 150 - 35);
    EXPECT_NE(middle, white);
    EXPECT_NE(border, white);
    EXPECT_NE(middle, border);
    m_view.vista_ruotay(180);
    draw();
    EXPECT_EQ(m_dc.GetPixel(200, 150), border);
    m_view.GetSettings(TipoElemento::Setto).SetItem(CElementoSettings::Faces, 0);
    EXPECT_EQ(near.GetSizeFaccie(&m_view), 0);
    EXPECT_EQ(near.SetFacesArray(&next, &m_view, nullptr), 0);
}

// Faults: identifiers that are not drawn when asked for, and that are when not.
TEST_F(DrawTest, Labels) {
    CTrave& beam = m_m.Beam(m_m.Node(-5, 0, 0), m_m.Node(5, 0, 0));
    EXPECT_EQ(InkOf(beam, info), 0);
    m_view.GetSettings(TipoElemento::Trave).SetItem(CElementoSettings::Identifier, 1);
    EXPECT_GT(InkOf(beam, info, CRect(195, 130, 230, 165)), 3);
    CElementoSettings quiet; // an object's own settings come before the view's
    beam.SetSettings(&quiet);
    EXPECT_EQ(InkOf(beam, info), 0);
}

// Faults: the old weight kept, another face or height taken, black for a coloured pen.
TEST_F(DrawTest, PensAndFonts) {
    CPen pen(PS_SOLID, 2, RGB(1, 2, 3));
    EXPECT_EQ(GetRGB(&pen), RGB(1, 2, 3));
    EXPECT_EQ(GetRGB(nullptr), RGB(0, 0, 0));
    CFont font;
    EXPECT_FALSE(SetFontGrassetto(font, 700));
    font.CreatePointFont(110, "Arial Narrow");
    LOGFONT before{}, after{};
    font.GetLogFont(&before);
    EXPECT_TRUE(SetFontGrassetto(font, 700));
    font.GetLogFont(&after);
    EXPECT_EQ(after.lfWeight, 700);
    EXPECT_EQ(after.lfHeight, before.lfHeight);
    EXPECT_STREQ(after.lfFaceName, before.lfFaceName);
    EXPECT_FALSE(IsPointInWnd(nullptr, CPoint(1, 1)));
}

} // namespace
