// What reaches the picture. The pixels are read back: a drawing that is empty, upside down or in the wrong order shows.
#include "model/Adv3d.h"
#include "model/CasoCarico.h"
#include "model/DrawHelpers.h"
#include "model/FaceElemento.h"
#include "platform/DeviceContext.h"
#include "tests/model/SmallModel.h"

#include <algorithm>

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr auto info = &CElemento::DrawInformazioni;

class DrawTest : public testing::Test {
  protected:
    DrawTest() {
        dc.CreateCompatibleDC(nullptr);
        bitmap.CreateBitmap(400, 300, 1, 32, nullptr);
        dc.SelectObject(&bitmap);
        view.SetViewport(CRect(0, 0, 400, 300));
        view.SetDirezione(Adv3d::Fronte);
        view.SetScala(10);
        view.SetDC(&dc);
        clear();
    }
    ~DrawTest() override { view.SetDC(nullptr); }

    void clear() { dc.FillSolidRect(0, 0, 400, 300, white); }
    // Pixels that are not white in a rectangle, edges excluded.
    int inked(const CRect& rect) {
        view.Flush();
        int count = 0;
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                count += dc.GetPixel(x, y) != white;
        return count;
    }
    int inked() { return inked(CRect(0, 0, 400, 300)); }
    // The same of what is drawn on an empty picture.
    int inkOf(CElemento& element, void (CElemento::*draw)(Adv3d*), const CRect& rect = CRect(0, 0, 400, 300)) {
        clear();
        (element.*draw)(&view);
        return inked(rect);
    }

    SmallModel m;
    CDC dc;
    CBitmap bitmap;
    Adv3d view;
};

// Faults: nothing drawn before a Flush or ever, hidden things drawn, the selection in no colour of its own.
TEST_F(DrawTest, LinesAndNodes) {
    CNodo& left = m.node(-5, 0, 0);
    CTrave& beam = m.beam(left, m.node(5, 0, 0));
    EXPECT_NEAR(inkOf(beam, &CElemento::Draw), 100, 2);
    EXPECT_EQ(dc.GetPixel(200, 150), view.GetSettings(TipoElemento::Trave).GetColore());
    beam.SetSelect(1);
    inkOf(beam, &CElemento::Draw);
    EXPECT_EQ(dc.GetPixel(200, 150), view.GetColoreSelezione());
    clear();
    beam.SetVisible(0);
    beam.Draw(&view);
    beam.DrawInformazioni(&view);
    beam.Draw(nullptr);
    EXPECT_EQ(inked(), 0);
    EXPECT_GT(inkOf(left, &CElemento::Draw, CRect(145, 145, 156, 156)), 8);
    view.GetSettings(TipoElemento::Nodo).SetVoce(CElementoSettings::Oggetto, 0);
    EXPECT_EQ(inkOf(left, &CElemento::Draw), 0);
}

// Faults: coordinates beyond an integer's range wrapping round into the picture, a line through the picture lost
// because both its ends lie outside.
TEST_F(DrawTest, LinesAreClipped) {
    m.beam(m.node(-1e9, 0, 0), m.node(1e9, 0, 0)).Draw(&view);
    EXPECT_NEAR(inked(CRect(0, 148, 400, 153)), 400, 1);
    EXPECT_NEAR(inked(), 400, 1);
    clear();
    m.beam(m.node(1e9, 0, 1e9), m.node(1e9, 0, -1e9)).Draw(&view);
    EXPECT_EQ(inked(), 0);
    view.SetProspettiva(1);
    m.beam(m.node(3, -1e6, 0), m.node(3, 10, 0)).Draw(&view); // from behind the eye into the picture
    EXPECT_GT(inked(CRect(200, 140, 400, 160)), 20);
    EXPECT_EQ(inked(CRect(0, 0, 200, 300)), 0);
}

// Faults: an arrow on the wrong side of its node or line (a load that seems to pull), loads of another case shown.
TEST_F(DrawTest, LoadsPointWhereTheyAct) {
    CCasoCarico dead, wind;
    dead.SetID(1);
    wind.SetID(2);
    auto* down = new CCaricoUniforme(CFPoint(0, 0, -5), CCarico::Globale);
    auto* push = new CCaricoNodale(CFPoint(10, 0, 0), CFPoint());
    dead.AddCarico(down);
    wind.AddCarico(push);
    CNodo& left = m.node(-5, 0, 0);
    CTrave& beam = m.beam(left, m.node(5, 0, 0));
    beam.AddCarico(down, 1);
    left.AddCarico(push, 1);

    EXPECT_GT(inkOf(beam, &CElemento::DrawCarichi, CRect(140, 100, 260, 149)), 100); // it comes from above
    EXPECT_EQ(inked(CRect(140, 152, 260, 300)), 0);
    view.SetCasoCarico(2);
    EXPECT_EQ(inkOf(beam, info), 0);
    EXPECT_GT(inkOf(left, info, CRect(100, 140, 150, 160)), 30); // it pushes from the left
    EXPECT_EQ(inked(CRect(152, 140, 250, 160)), 0);
    view.GetSettings(TipoElemento::Nodo).SetVoce(CElementoSettings::Carichi, 0);
    EXPECT_EQ(inkOf(left, info), 0);

    // A local load follows the line's axes: along local 3 of a column it comes from the side.
    clear();
    CTrave& column = m.beam(m.node(0, 0, -5), m.node(0, 0, 5));
    CCaricoConcentrato local(CFPoint(0, 0, 1), 5, CCarico::Locale);
    local.DrawSu(column, view, 0);
    EXPECT_GT(inked(CRect(201, 140, 240, 160)), 20);
}

// Faults: a support that looks like another, or like none.
TEST_F(DrawTest, SupportsSpringsAndReleases) {
    CNodo& node = m.node(0, 0, 0);
    CTrave& beam = m.beam(node, m.node(10, 0, 0));
    std::vector<int> seen;
    for (unsigned mask : {7u, 63u, 4u, 32u}) {
        const CVincolo restraint(mask);
        node.SetVincolo(&restraint);
        seen.push_back(inkOf(node, info));
        EXPECT_GT(seen.back(), 0);
        EXPECT_EQ(std::count(seen.begin(), seen.end(), seen.back()), 1);
    }
    node.SetVincolo(nullptr);
    for (int kind : {CMolla::Traslazionale, CMolla::Rotazionale}) {
        node.EliminaMolle();
        node.AddMolla(CMolla(kind, 100, CFPoint(0, 0, 1)));
        EXPECT_GT(inkOf(node, info, CRect(180, 151, 220, 190)), 10);
    }
    node.EliminaMolle();
    node.AddMolla(CMolla(0, 0, CFPoint(0, 0, 1))); // a spring without stiffness holds nothing
    EXPECT_EQ(inkOf(node, info), 0);
    beam.AddSpecifica(new CSpecificheSvincoliTrave(1, 0, 0, 1, 0));
    EXPECT_GT(inkOf(beam, info, CRect(280, 140, 300, 160)), 8);
    EXPECT_EQ(inked(CRect(190, 140, 270, 160)), 0);
}

// Fault: the far wall painted over the near one.
TEST_F(DrawTest, NearFacesHideFarOnes) {
    CSetto& near = m.polygon<CSetto>({CFPoint{-2, -1, -2}, {2, -1, -2}, {2, -1, 2}, {-2, -1, 2}});
    CSolaio& far = m.polygon<CSolaio>({CFPoint{-4, 5, -4}, {4, 5, -4}, {4, 5, 4}, {-4, 5, 4}});
    FaceElemento faces[2];
    FaceElemento* next;
    const auto draw = [&] {
        next = faces;
        EXPECT_EQ(near.SetFacesArray(&next, &view, nullptr), 1);
        EXPECT_EQ(far.SetFacesArray(&next, &view, nullptr), 1);
        view.DrawFaces(faces, 2);
    };
    draw();
    ASSERT_EQ(next, faces + 2);
    const COLORREF middle = dc.GetPixel(200, 150), border = dc.GetPixel(200, 150 - 35);
    EXPECT_NE(middle, white);
    EXPECT_NE(border, white);
    EXPECT_NE(middle, border);
    view.vista_ruotay(180);
    draw();
    EXPECT_EQ(dc.GetPixel(200, 150), border);
    view.GetSettings(TipoElemento::Setto).SetVoce(CElementoSettings::Facce, 0);
    EXPECT_EQ(near.GetSizeFaccie(&view), 0);
    EXPECT_EQ(near.SetFacesArray(&next, &view, nullptr), 0);
}

// Faults: identifiers that are not drawn when asked for, and that are when not.
TEST_F(DrawTest, Labels) {
    CTrave& beam = m.beam(m.node(-5, 0, 0), m.node(5, 0, 0));
    EXPECT_EQ(inkOf(beam, info), 0);
    view.GetSettings(TipoElemento::Trave).SetVoce(CElementoSettings::Identificatore, 1);
    EXPECT_GT(inkOf(beam, info, CRect(195, 130, 230, 165)), 3);
    CElementoSettings quiet; // an object's own settings come before the view's
    beam.SetSettings(&quiet);
    EXPECT_EQ(inkOf(beam, info), 0);
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
