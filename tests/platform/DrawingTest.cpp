#include "tests/platform/Sheet.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0);

} // namespace

// Catches lines that are one pixel too long or too short in one of their directions.
TEST(Lines, ExcludeTheirLastPoint) {
    Sheet sheet(12, 8);
    const CRect lines[] = {{1, 0, 5, 0}, {5, 2, 1, 2}, {7, 0, 7, 4},  {9, 4, 9, 0},
                           {0, 4, 3, 7}, {6, 7, 3, 4}, {11, 5, 11, 5}}; // no length, no pixel
    for (const CRect& line : lines)
        sheet.Line(line.left, line.top, line.right, line.bottom);
    EXPECT_EQ(sheet.Rows(), ".####..#..../"
                            ".......#.#../"
                            "..####.#.#../"
                            ".......#.#../"
                            "#........#../"
                            ".#..#......./"
                            "..#..#....../"
                            "......#...../");
}

// Catches the batch that draws other pixels than the single lines.
TEST(Lines, BatchesEqualSingleLines) {
    const CPoint points[] = {{1, 1}, {9, 3}, {4, 8}, {1, 1}, {0, 9}, {9, 9}, {11, 2}, {11, 9}};
    const DWORD counts[] = {4, 2, 2};
    Sheet batch(12, 12), single(12, 12);
    batch->PolyPolyline(points, counts, 3);
    for (const int from : {0, 1, 2, 4, 6})
        single.Line(points[from].x, points[from].y, points[from + 1].x, points[from + 1].y);
    EXPECT_EQ(batch.Rows(), single.Rows());
    Sheet sheet(3, 3);
    EXPECT_FALSE(sheet->Polyline(points, 1));
    EXPECT_EQ(sheet.Rows(), "");
}

TEST(Lines, WidePensAreCentred) {
    const CPoint ends[] = {{3, 3}, {8, 3}};
    for (const int width : {3, 2}) {
        Sheet sheet(12, 8);
        CPen pen(width == 3 ? PS_SOLID : PS_DASH, width, red); // broken pens are solid from two pixels on
        sheet->SelectObject(&pen);
        sheet->Polyline(ends, 2);
        EXPECT_EQ(sheet.Box(), CRect(2, 2, 7 + width, 2 + width));
        EXPECT_EQ(sheet.Pixel(5, 2), qRgb(255, 0, 0));
    }
}

TEST(Lines, BrokenPensShowTheBackgroundInTheirGaps) {
    Sheet sheet(14, 4);
    CPen dots(PS_DOT, 1, RGB(0, 0, 0));
    sheet->SelectObject(&dots);
    sheet->SetBkMode(TRANSPARENT);
    sheet.Line(0, 0, 12, 0);
    EXPECT_EQ(sheet.Rows(), "###...###...../");
    sheet->SetBkMode(OPAQUE);
    sheet->SetBkColor(red);
    sheet.Line(0, 2, 12, 2);
    EXPECT_EQ(sheet.Pixel(0, 2), qRgb(0, 0, 0));
    EXPECT_EQ(sheet.Pixel(4, 2), qRgb(255, 0, 0));
    CPen none(PS_NULL, 5, red);
    sheet->SelectObject(&none);
    sheet.Line(0, 3, 12, 3);
    EXPECT_EQ(sheet.Pixel(5, 3), qRgb(255, 255, 255));
}

// Catches rectangles that paint over their neighbours or leave a gap before them.
TEST(Shapes, RectanglesExcludeRightAndBottom) {
    Sheet sheet(16, 6);
    CBrush brush(red);
    sheet->SelectStockObject(NULL_BRUSH);
    sheet->Rectangle(0, 0, 5, 4);
    sheet->SelectObject(&brush);
    sheet->SelectStockObject(NULL_PEN);
    sheet->Rectangle(6, 0, 11, 4); // without an outline one pixel less each way
    const CRect filled(15, 4, 12, 0);
    sheet->FillRect(&filled, &brush); // turned round: empty
    const CRect right(12, 0, 15, 4);
    sheet->FillRect(&right, &brush);
    EXPECT_EQ(sheet.Rows(), "#####.####..###./"
                            "#...#.####..###./"
                            "#...#.####..###./"
                            "#####.......###./");
}

TEST(Shapes, WideOutlinesKeepTheirPlace) {
    const auto boxOf = [](int style, int width) {
        Sheet sheet(20, 20);
        CPen pen(style, width, red);
        sheet->SelectObject(&pen);
        sheet->SelectStockObject(NULL_BRUSH);
        sheet->Rectangle(5, 5, 15, 15);
        return sheet.Box();
    };
    EXPECT_EQ(boxOf(PS_SOLID, 3), CRect(4, 4, 16, 16));
    for (const auto& [style, width] : {std::pair{PS_SOLID, 1}, {PS_INSIDEFRAME, 3}, {PS_INSIDEFRAME, 4}, {PS_DOT, 1}})
        EXPECT_EQ(boxOf(style, width), CRect(5, 5, 15, 15)) << style << ": " << width;
}

// Catches circles that are larger than their box, cut at a side, or not symmetrical.
TEST(Shapes, EllipsesFollowTheirBox) {
    CBrush brush(red);
    for (const int size : {3, 4, 7, 10, 15}) {
        Sheet outlined(20, 20), bare(20, 20);
        outlined->Ellipse(2, 3, 2 + size, 3 + size);
        bare->SelectObject(&brush);
        bare->SelectStockObject(NULL_PEN);
        bare->Ellipse(2, 3, 3 + size, 4 + size); // one pixel less, as with rectangles
        for (const Sheet* sheet : {&outlined, &bare}) {
            EXPECT_EQ(sheet->Box(), CRect(2, 3, 2 + size, 3 + size));
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x)
                    EXPECT_EQ(sheet->Pixel(2 + x, 3 + y), sheet->Pixel(1 + size - x, 3 + y))
                        << size << ": " << x << "," << y;
        }
    }
    Sheet flat(20, 20);
    flat->Ellipse(2, 2, 3, 9);
    EXPECT_EQ(flat.Box(), CRect(2, 2, 3, 9));
}

// Faults: points between pixels rounded to whole ones, a last point left out, an outline beside its points.
TEST(Shapes, PointsBetweenPixels) {
    const CPoint whole[] = {{1, 1}, {8, 1}, {8, 6}};
    const FinePoint same[] = {{1, 1}, {8, 1}, {8, 6}};
    CBrush brush(red);
    Sheet first(12, 12), second(12, 12);
    for (Sheet* sheet : {&first, &second})
        (*sheet)->SelectObject(&brush);
    first->Polygon(whole, 3);
    second->Polygon(same, 3);
    EXPECT_EQ(second.Rows(), first.Rows());
    Sheet doubled(12, 12, 2);
    const FinePoint level[] = {{2, 3.5}, {6, 3.5}};
    EXPECT_TRUE(doubled->Polyline(level, 2));
    EXPECT_EQ(doubled.Box(), CRect(4, 7, 14, 9)) << "device pixels";
}

TEST(Fills, StayInTheirRectangle) {
    Sheet sheet(6, 5);
    CBrush brush(red);
    const CRect rect(0, 0, 5, 4);
    sheet->FrameRect(&rect, &brush);
    EXPECT_EQ(sheet.Rows(), "#####./#...#./#...#./#####./");
    sheet->FillSolidRect(1, 1, 2, 2, red);
    EXPECT_EQ(sheet->GetPixel(2, 2), red);
    EXPECT_EQ(sheet->GetPixel(6, 0), CLR_INVALID);
    EXPECT_EQ(sheet->GetPixel(-1, 0), CLR_INVALID);
}

TEST(State, SelectionReturnsWhatWasThere) {
    Sheet sheet(4, 4);
    CPen first(PS_SOLID, 1, red), second(PS_SOLID, 1, RGB(0, 0, 255)), unmade;
    CPen* original = sheet->SelectObject(&first);
    ASSERT_NE(original, nullptr);
    {
        const ObjectSelection selected(sheet.Dc(), second);
        EXPECT_EQ(sheet->SelectObject(&second), &second);
    }
    EXPECT_EQ(sheet->SelectObject(&unmade), nullptr);
    EXPECT_EQ(sheet->SelectObject(&first), &first);
    first.DeleteObject(); // while selected: the context has its copy
    sheet.Line(0, 0, 2, 0);
    EXPECT_EQ(sheet->GetPixel(0, 0), red);
    EXPECT_EQ(sheet->SelectObject(original), &first);
    LOGPEN description;
    EXPECT_FALSE(first.GetLogPen(&description));
    first.Attach(second.Detach());
    EXPECT_TRUE(first.GetLogPen(&description));
    EXPECT_EQ(description.lopnColor, RGB(0, 0, 255));
    EXPECT_FALSE(second.DeleteObject());
}

TEST(State, ClipsAndSavedStates) {
    Sheet sheet(10, 10);
    const int saved = sheet->SaveDC();
    sheet->IntersectClipRect(2, 3, 8, 7);
    sheet->IntersectClipRect(0, 0, 6, 9);
    sheet->SetTextColor(red);
    CRect clip;
    sheet->GetClipBox(&clip);
    EXPECT_EQ(clip, CRect(2, 3, 6, 7));
    sheet->FillSolidRect(0, 0, 10, 10, red);
    EXPECT_EQ(sheet.Box(), CRect(2, 3, 6, 7));
    EXPECT_TRUE(sheet->RestoreDC(saved));
    EXPECT_FALSE(sheet->RestoreDC(saved));
    EXPECT_EQ(sheet->GetTextColor(), RGB(0, 0, 0));
    sheet->FillSolidRect(0, 0, 1, 5, red);
    EXPECT_EQ(sheet.Box(), CRect(0, 0, 6, 7)) << "cut no longer";
}

// Catches a scaled screen that shows 100 % drawing enlarged unevenly, shifted or smoothed.
TEST(Scale, EverythingIsSharpAtTwoHundredPercent) {
    const auto draw = [](Sheet& sheet) {
        CPen wide(PS_SOLID, 2, red);
        sheet->Rectangle(1, 1, 8, 7);
        sheet.Line(3, 4, 6, 4);
        const CPoint corner[] = {{12, 9}, {10, 9}, {10, 2}};
        sheet->Polyline(corner, 3);
        sheet->FillSolidRect(0, 9, 3, 2, red);
        sheet->SelectObject(&wide);
        sheet->SelectStockObject(NULL_BRUSH);
        sheet->Rectangle(13, 2, 18, 9);
    };
    Sheet plain(20, 12), fine(20, 12, 2);
    draw(plain);
    draw(fine);
    EXPECT_EQ(DrawnRows(plain.Image().scaled(40, 24)), fine.Rows());
    Sheet circle(20, 20, 2);
    circle->Ellipse(2, 3, 12, 13);
    EXPECT_EQ(circle.Box(), CRect(4, 6, 24, 26));
    for (int x = 0; x < 40; ++x)
        EXPECT_EQ(circle.Pixel(x, 6), circle.Pixel(x, 25)) << "top and bottom row, " << x;
}
