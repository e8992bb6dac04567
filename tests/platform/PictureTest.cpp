#include "tests/platform/Sheet.h"

#include "platform/controls/ImageList.h"
#include "platform/private/paint/ImageListData.h"
#include "platform/private/paint/Picture.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/window/Application.h"

#include <array>
#include <utility>

namespace {

constexpr COLORREF red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

// A window that has been shown and waits for no painting.
class Shown : public CWnd {
  public:
    Shown() {
        Create("STATIC", "", WS_POPUP | WS_VISIBLE, CRect(0, 0, 40, 30), nullptr, 0);
        Settle();
    }

    int painted = 0;

    // What the window shows on the screen.
    QRgb At(int x, int y) {
        CWinApp::PumpMessages();
        const QImage image = m_hWnd->widget->grab().toImage();
        return image.pixel((QPointF(x, y) * image.devicePixelRatio()).toPoint());
    }
    void Update(BOOL erase) {
        Invalidate(erase);
        UpdateWindow();
    }

  protected:
    void Settle() {
        CWinApp::PumpMessages();
        UpdateWindow();
    }
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        painted += message == WM_PAINT;
        return CWnd::OnWndMsg(message, wParam, lParam, result);
    }
};

// A window that draws a blue square whenever it is told to paint, the second time through a client context.
class Painting : public Shown {
  public:
    Painting() { Settle(); }

  private:
    void OnPaint() {
        CPaintDC(this).FillSolidRect(20, 0, 5, 5, blue);
        CClientDC(this).FillSolidRect(30, 0, 5, 5, blue);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Painting, Shown)
    ON_WM_PAINT()
END_MESSAGE_MAP()

COLORREF Pixel(CWnd& window, int x, int y) {
    return CClientDC(&window).GetPixel(x, y);
}

} // namespace

// Catches drawing outside paint messages that is lost or shows only after the next resize, that flickers away with the
// next exposure, or stays under a new drawing.
TEST(Picture, KeepsWhatIsDrawnUntilInvalidateErasesIt) {
    Shown window;
    CClientDC(&window).FillSolidRect(0, 0, 5, 5, red);
    EXPECT_EQ(window.At(2, 2), qRgb(255, 0, 0));
    EXPECT_EQ(window.At(2, 2), qRgb(255, 0, 0)) << "a second look";
    window.MoveWindow(0, 0, 60, 60);
    CClientDC(&window).FillSolidRect(50, 50, 5, 5, red);
    EXPECT_EQ(Pixel(window, 52, 52), red) << "the picture grows with its window";
    CWinApp::PumpMessages();
    window.UpdateWindow(); // the resizing's own painting, which erases
    CClientDC(&window).FillSolidRect(50, 50, 5, 5, red);
    window.m_hWnd->widget->repaint();
    EXPECT_EQ(Pixel(window, 52, 52), red);
    const int before = window.painted;
    window.UpdateWindow(); // nothing is invalid
    EXPECT_EQ(window.painted, before);
    window.Update(FALSE);
    EXPECT_EQ(window.painted, before + 1);
    EXPECT_EQ(Pixel(window, 52, 52), red);
    window.Invalidate();
    EXPECT_EQ(Pixel(window, 52, 52), red) << "not before it is painted";
    window.UpdateWindow();
    EXPECT_EQ(window.painted, before + 2);
    EXPECT_NE(Pixel(window, 52, 52), red) << "erased before it returns";
}

// Catches a part that erases the whole picture, and a painting that draws over what was not erased.
TEST(Picture, IsErasedAndPaintedInTheInvalidPartOnly) {
    Painting window; // blue at 20 and at 30
    CClientDC(&window).FillSolidRect(0, 0, 40, 10, red);
    const CRect part(10, 0, 22, 10);
    window.InvalidateRect(&part);
    window.UpdateWindow();
    EXPECT_EQ(Pixel(window, 5, 2), red);
    EXPECT_NE(Pixel(window, 12, 2), red) << "erased";
    EXPECT_EQ(Pixel(window, 21, 2), blue) << "painted";
    EXPECT_EQ(Pixel(window, 23, 2), red) << "outside the part";
    EXPECT_EQ(Pixel(window, 32, 2), blue) << "through a context that is not the painting's";
    window.InvalidateRect(nullptr);
    window.UpdateWindow();
    EXPECT_NE(Pixel(window, 5, 2), red);
}

// Catches two contexts on one window of which the second draws nothing or with the first one's pen.
TEST(Picture, ServesSeveralContextsAtOnce) {
    Shown window;
    CPen redPen(PS_SOLID, 1, red), bluePen(PS_SOLID, 1, blue);
    CClientDC first(&window), second(&window);
    first.SelectObject(&redPen);
    second.SelectObject(&bluePen);
    second.IntersectClipRect(0, 0, 10, 30);
    for (int y = 0; y < 4; ++y)
        DrawLine(y % 2 ? second : first, 0, y, 20, y);
    EXPECT_EQ(Pixel(window, 15, 2), red);
    EXPECT_EQ(Pixel(window, 5, 3), blue);
    EXPECT_NE(Pixel(window, 15, 3), blue);
    EXPECT_EQ(window.At(5, 2), qRgb(255, 0, 0)) << "shown while contexts are open";
}

TEST(Picture, OutlivesAndIsOutlived) {
    CClientDC nowhere(nullptr);
    nowhere.FillSolidRect(0, 0, 5, 5, red);
    nowhere.SelectStockObject(WHITE_PEN);
    EXPECT_FALSE(nowhere.LineTo(3, 3));
    EXPECT_GT(nowhere.GetTextExtent("abc").cx, 0);
    Shown window;
    CClientDC dc(&window);
    dc.FillSolidRect(0, 0, 5, 5, red);
    window.Update(TRUE); // erased under the open context
    EXPECT_NE(dc.GetPixel(2, 2), red);
    dc.FillSolidRect(0, 0, 5, 5, red);
    EXPECT_EQ(dc.GetPixel(2, 2), red);
    window.DestroyWindow();
    CWinApp::PumpMessages();
    dc.FillSolidRect(0, 0, 5, 5, blue);
    Shown closed;
    closed.DestroyWindow();
    CClientDC(&closed).FillSolidRect(0, 0, 5, 5, red);
}

// Catches a paint handler whose own drawing asks for painting again, for ever.
TEST(Picture, PaintingEnds) {
    Painting window;
    window.Invalidate();
    EXPECT_EQ(window.At(22, 2), qRgb(0, 0, 255));
    EXPECT_EQ(window.At(32, 2), qRgb(0, 0, 255));
    const int before = window.painted;
    for (int i = 0; i < 5; ++i)
        CWinApp::PumpMessages();
    EXPECT_EQ(window.painted, before);
    EXPECT_EQ(CPaintDC(&window).m_ps.rcPaint, CRect(0, 0, 40, 30));
}

TEST(Picture, KeepsItsContentAcrossScales) {
    platform::Picture picture;
    EXPECT_TRUE(picture.Empty());
    QPainter(&picture.CanvasFor({10, 10}, 1)->image).fillRect(0, 0, 4, 4, Qt::red);
    const QImage& fine = picture.CanvasFor({12, 12}, 2)->image;
    EXPECT_EQ(fine.size(), QSize(24, 24));
    EXPECT_EQ(fine.pixel(7, 7), qRgb(255, 0, 0));
    EXPECT_EQ(qAlpha(fine.pixel(8, 8)), 0);
    EXPECT_FALSE(picture.Empty());
    picture.Erase(QRect(0, 0, 12, 12));
    EXPECT_TRUE(picture.Empty());
    EXPECT_EQ(qAlpha(picture.CanvasFor({12, 12}, 2)->image.pixel(7, 7)), 0);
}

TEST(ImageList, CutsAndMasks) {
    std::array<DWORD, 9 * 4> pixels; // two pictures and a rest
    pixels.fill(0xff0000);
    pixels[9 + 5] = 0x0000ff;
    CBitmap strip;
    ASSERT_TRUE(strip.CreateBitmap(9, 4, 1, 32, pixels.data()));
    CImageList list;
    EXPECT_EQ(list.Add(&strip, red), -1) << "not created yet";
    list.Create(4, 4, ILC_COLOR32 | ILC_MASK, 2, 2);
    EXPECT_EQ(list.Add(&strip, red), 0);
    EXPECT_EQ(list.GetImageCount(), 2);
    const QImage& second = list.Data()->images[1];
    EXPECT_EQ(std::pair(second.pixel(1, 1), qAlpha(second.pixel(0, 0))), std::pair(qRgb(0, 0, 255), 0));
    EXPECT_EQ(list.Add(strip.m_hObject), 2) << "an icon is brought to the list's size";
    EXPECT_EQ(list.Data()->images[2].size(), QSize(4, 4));
}
