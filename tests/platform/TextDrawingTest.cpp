#include "tests/platform/Sheet.h"

#include "platform/private/paint/Fonts.h"

namespace {

int WidthOf(const char* face, int tenths, const CString& text) {
    CFont font;
    font.CreatePointFont(tenths, face);
    CDC dc;
    dc.SelectObject(&font);
    return dc.GetTextExtent(text).cx;
}

} // namespace

// Catches a machine without the substitutes, where another face changes every layout: the advances of these letters in
// the classic faces are known (1479, 1139, 455, 455 and 1139 of 2048 to the em).
TEST(Fonts, HaveTheClassicAdvances) {
    EXPECT_EQ(WidthOf("Arial", 7500, "Hello"), 2279);
    EXPECT_EQ(WidthOf("MS Sans Serif", 7500, "Hello"), 2279);
    EXPECT_NEAR(WidthOf("Arial Narrow", 7500, "Hello"), 2279 * 0.82, 4);
    EXPECT_GT(WidthOf("Arial Black", 7500, "Hello"), 2279);
    EXPECT_EQ(WidthOf("Courier New", 7500, "il"), WidthOf("Courier New", 7500, "MW"));
    EXPECT_EQ(WidthOf("Arial", 7500, "\xe0"), WidthOf("Arial", 7500, "a")) << "an accent changes no advance";
    EXPECT_EQ(WidthOf("Arial", 80, ""), 0);
}

TEST(Fonts, SizesAreInTenthsOfAPointOrPixels) {
    CFont font;
    LOGFONT description;
    EXPECT_FALSE(font.GetLogFont(&description));
    font.CreatePointFont(80, "Arial");
    ASSERT_TRUE(font.GetLogFont(&description));
    EXPECT_EQ(description.lfHeight, -11);
    CDC dc;
    TEXTMETRIC metrics;
    dc.SelectObject(&font);
    dc.GetTextMetrics(&metrics);
    EXPECT_EQ(metrics.tmHeight, 13) << "the dialog font's base unit";
    description.lfHeight = 40; // of the cell, not of the em square
    description.lfWeight = FW_BOLD;
    font.CreateFontIndirect(&description);
    dc.SelectObject(&font);
    dc.GetTextMetrics(&metrics);
    EXPECT_NEAR(metrics.tmHeight, 40, 1);
    EXPECT_EQ(metrics.tmWeight, 700);
    EXPECT_EQ(platform::ToolkitFont("Arial Black", 11, 400).weight(), 900);
    EXPECT_EQ(platform::ToolkitFont(nullptr, 0).pixelSize(), 11);
}

// Catches labels that stand beside their place, and boxes of background that cover what is below a label.
TEST(Text, KeepsItsPlaceAndBackground) {
    CDC dc;
    Sheet opaque(60, 40); // the mode at the start
    opaque->SetBkColor(RGB(200, 200, 200));
    opaque->TextOut(30, 20, "IMI");
    EXPECT_EQ(opaque.Box(), CRect(CPoint(30, 20), dc.GetTextExtent("IMI")));
    Sheet sheet(60, 40);
    sheet->SetBkMode(TRANSPARENT);
    sheet->SetTextColor(RGB(255, 0, 0));
    sheet->TextOut(30, 20, "I");
    EXPECT_LT(sheet.Box().Width(), dc.GetTextExtent("I").cx);
    EXPECT_EQ(sheet.Box().bottom, 30) << "a capital stands on the baseline";
}

TEST(Text, TurnsCounterclockwise) {
    LOGFONT description;
    description.lfHeight = -11;
    description.lfEscapement = 900;
    CFont upwards;
    upwards.CreateFontIndirect(&description);
    Sheet sheet(60, 60);
    sheet->SetBkMode(TRANSPARENT);
    sheet->SelectObject(&upwards);
    sheet->TextOut(30, 40, "IIIIIIII");
    EXPECT_LE(sheet.Box().bottom, 40);
    EXPECT_GE(sheet.Box().left, 30);
    EXPECT_GT(sheet.Box().Height(), sheet.Box().Width());
}

TEST(Text, DrawTextPlacesLines) {
    CDC dc;
    const auto widthOf = [&](const char* text) { return static_cast<int>(dc.GetTextExtent(text).cx); };
    const int height = dc.GetTextExtent("x").cy;
    struct Case {
        const char* text;
        UINT format;
        int lines, width;
    };
    for (const Case& each : {Case{"uno\r\ndue\ntre", 0, 3, widthOf("uno")},
                             {"a\nb", DT_SINGLELINE, 1, widthOf("a b")},
                             {"&Nuovo && altro", 0, 1, widthOf("Nuovo & altro")},
                             {"a&b", DT_NOPREFIX, 1, widthOf("a&b")}}) {
        CRect rect(10, 10, 11, 11);
        EXPECT_EQ(dc.DrawText(each.text, &rect, DT_CALCRECT | each.format), each.lines * height) << each.text;
        EXPECT_EQ(rect, CRect(10, 10, 10 + each.width, 10 + each.lines * height)) << each.text;
    }
}

TEST(Text, DrawTextAlignsAndClips) {
    const CRect frame(10, 10, 70, 50);
    const auto boxOf = [&](const CString& text, UINT format) {
        Sheet sheet(90, 60);
        sheet->SetBkColor(RGB(200, 200, 200));
        CRect rect = frame;
        sheet->DrawText(text, rect, format);
        return sheet.Box();
    };
    CDC dc;
    const CSize size = dc.GetTextExtent("IMI");
    EXPECT_EQ(boxOf("IMI", DT_SINGLELINE | DT_CENTER | DT_VCENTER),
              CRect(CPoint(10 + (60 - size.cx) / 2, 10 + (40 - size.cy) / 2), size));
    EXPECT_EQ(boxOf("IMI", DT_SINGLELINE | DT_RIGHT | DT_BOTTOM), CRect(CPoint(70 - size.cx, 50 - size.cy), size));
    EXPECT_EQ(boxOf("IMI", DT_RIGHT | DT_BOTTOM).top, 10) << "several lines start at the top";
    const CString wide('M', 30);
    EXPECT_EQ(boxOf(wide, DT_SINGLELINE).right, 70);
    EXPECT_EQ(boxOf(wide, DT_SINGLELINE | DT_NOCLIP).right, 90);
}
