// Drawing. Coordinates are device-independent pixels; rectangles exclude their right and bottom edge, ellipses follow
// their bounding box, lines exclude their last point, pens are centred. Nothing is smoothed but text. A device context
// without a target keeps its state, measures text and draws nowhere.
#pragma once

#include "platform/drawing/Gdi.h"

#include <memory>

class CWnd;

namespace platform {
class Surface;
}

using HDC = platform::Surface*;

enum BackgroundMode { TRANSPARENT = 1, OPAQUE = 2 };
enum PolyFillMode { ALTERNATE = 1, WINDING = 2 };
enum RasterOp2 {
    R2_BLACK = 1,
    R2_NOTCOPYPEN = 4,
    R2_NOT = 6,
    R2_XORPEN = 7,
    R2_MASKPEN = 9,
    R2_NOTXORPEN = 10,
    R2_NOP = 11,
    R2_COPYPEN = 13,
    R2_MERGEPEN = 15,
    R2_WHITE = 16
};
enum TextAlignment : UINT {
    TA_LEFT = 0,
    TA_NOUPDATECP = 0,
    TA_TOP = 0,
    TA_UPDATECP = 1,
    TA_RIGHT = 2,
    TA_CENTER = 6,
    TA_BOTTOM = 8,
    TA_BASELINE = 24
};
enum DrawTextFormat : UINT {
    DT_LEFT = 0,
    DT_TOP = 0,
    DT_CENTER = 0x1,
    DT_RIGHT = 0x2,
    DT_VCENTER = 0x4,
    DT_BOTTOM = 0x8,
    DT_WORDBREAK = 0x10,
    DT_SINGLELINE = 0x20,
    DT_EXPANDTABS = 0x40,
    DT_NOCLIP = 0x100,
    DT_CALCRECT = 0x400,
    DT_NOPREFIX = 0x800,
    DT_END_ELLIPSIS = 0x8000
};
enum ExtTextOption : UINT { ETO_OPAQUE = 2, ETO_CLIPPED = 4 };
enum BlitOperation : DWORD {
    BLACKNESS = 0x00000042,
    NOTSRCCOPY = 0x00330008,
    DSTINVERT = 0x00550009,
    SRCINVERT = 0x00660046,
    SRCAND = 0x008800C6,
    SRCCOPY = 0x00CC0020,
    SRCPAINT = 0x00EE0086,
    PATCOPY = 0x00F00021,
    WHITENESS = 0x00FF0062
};
enum DeviceCapability {
    TECHNOLOGY = 2,
    HORZRES = 8,
    VERTRES = 10,
    BITSPIXEL = 12,
    PLANES = 14,
    NUMCOLORS = 24,
    LOGPIXELSX = 88,
    LOGPIXELSY = 90
};
inline constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

// Pixels.
struct TEXTMETRIC {
    LONG tmHeight = 0; // ascent and descent
    LONG tmAscent = 0;
    LONG tmDescent = 0;
    LONG tmInternalLeading = 0;
    LONG tmExternalLeading = 0;
    LONG tmAveCharWidth = 0;
    LONG tmMaxCharWidth = 0;
    LONG tmWeight = 0;
    BYTE tmItalic = 0;
};

class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)

    CDC();
    ~CDC() override;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    // A device context in memory: it draws once a bitmap is selected. `device` gives its scale and may be null.
    BOOL CreateCompatibleDC(CDC* device);
    BOOL DeleteDC();
    HDC GetSafeHdc() const;  // null while there is no target
    double GetScale() const; // device pixels to one device-independent pixel
    int GetDeviceCaps(int index) const;

    // State. Each selection returns the object selected before, null when the new one is null or does not exist.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap); // device contexts in memory only
    CGdiObject* SelectObject(CGdiObject* object);
    CGdiObject* SelectStockObject(int index);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    int SaveDC();              // the number to give to RestoreDC
    BOOL RestoreDC(int saved); // -1 is the last one

    // Each returns the value before.
    COLORREF SetTextColor(COLORREF color);
    COLORREF SetBkColor(COLORREF color);
    int SetBkMode(int mode);
    UINT SetTextAlign(UINT flags);
    int SetROP2(int mode); // for pens and the filling of shapes
    int SetPolyFillMode(int mode);
    COLORREF GetTextColor() const;
    COLORREF GetBkColor() const;
    int GetBkMode() const;
    UINT GetTextAlign() const;
    int GetROP2() const;
    int GetPolyFillMode() const;

    // The point of the target where 0, 0 lies; drawing goes there from now on.
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(CPoint origin) { return SetViewportOrg(origin.x, origin.y); }
    CPoint OffsetViewportOrg(int dx, int dy);
    CPoint GetViewportOrg() const;
    // Drawing is cut to what all clip rectangles since SelectClipRgn(nullptr) have in common.
    int SelectClipRgn(std::nullptr_t);
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(LPCRECT rect);
    int ExcludeClipRect(int left, int top, int right, int bottom);
    int ExcludeClipRect(LPCRECT rect);
    int GetClipBox(LPRECT rect) const;

    // Lines.
    CPoint MoveTo(int x, int y); // the position before
    CPoint MoveTo(CPoint point) { return MoveTo(point.x, point.y); }
    CPoint GetCurrentPosition() const;
    BOOL LineTo(int x, int y);
    BOOL LineTo(CPoint point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const CPoint* points, int count);
    BOOL Polyline(const FinePoint* points, int count); // its last point included
    // `counts[i]` points for each of the `polylines`; by far the fastest way to draw many lines of one pen.
    BOOL PolyPolyline(const CPoint* points, const DWORD* counts, int polylines);
    BOOL Arc(int left, int top, int right, int bottom, int startX, int startY, int endX, int endY);
    BOOL Arc(LPCRECT rect, CPoint start, CPoint end);

    // Shapes: outlined by the pen, filled by the brush. Arcs run counterclockwise between the rays from the centre.
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Rectangle(LPCRECT rect);
    BOOL RoundRect(int left, int top, int right, int bottom, int width, int height);
    BOOL RoundRect(LPCRECT rect, CPoint corner);
    BOOL Ellipse(int left, int top, int right, int bottom);
    BOOL Ellipse(LPCRECT rect);
    BOOL Pie(int left, int top, int right, int bottom, int startX, int startY, int endX, int endY);
    BOOL Pie(LPCRECT rect, CPoint start, CPoint end);
    BOOL Chord(LPCRECT rect, CPoint start, CPoint end);
    BOOL Polygon(const CPoint* points, int count);
    BOOL Polygon(const FinePoint* points, int count);
    BOOL PolyPolygon(const CPoint* points, const int* counts, int polygons);

    // Fills, without regard to the pen and the drawing mode.
    void FillSolidRect(int x, int y, int width, int height, COLORREF color); // makes the colour the background colour
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillRect(LPCRECT rect, CBrush* brush);
    void FrameRect(LPCRECT rect, CBrush* brush);
    void InvertRect(LPCRECT rect);
    void Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void DrawFocusRect(LPCRECT rect); // a second time removes it
    COLORREF SetPixel(int x, int y, COLORREF color);
    COLORREF SetPixel(CPoint point, COLORREF color) { return SetPixel(point.x, point.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return SetPixel(x, y, color) != CLR_INVALID; }
    COLORREF GetPixel(int x, int y) const; // CLR_INVALID outside the target
    COLORREF GetPixel(CPoint point) const { return GetPixel(point.x, point.y); }

    // Copies. A source without a bitmap copies nothing.
    BOOL PatBlt(int x, int y, int width, int height, DWORD operation);
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, int sourceWidth,
                    int sourceHeight, DWORD operation);

    // Text, Windows-1252.
    BOOL TextOut(int x, int y, LPCTSTR text, int length);
    BOOL TextOut(int x, int y, const CString& text);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, const int* spacing = nullptr);
    CSize GetTextExtent(LPCTSTR text, int length) const;
    CSize GetTextExtent(const CString& text) const;
    BOOL GetTextMetrics(TEXTMETRIC* metrics) const;
    // The height of the text. '&' underlines the next character unless DT_NOPREFIX; DT_CALCRECT only fits the
    // rectangle.
    int DrawText(LPCTSTR text, int length, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format);

  protected:
    explicit CDC(std::unique_ptr<platform::Surface> surface);

    std::unique_ptr<platform::Surface> m_surface; // never null

  private:
    friend class CImageList;
};

// Draws into a window's own picture, at any time; what is drawn stays until the window is erased. A null or closed
// window draws nowhere.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

    explicit CClientDC(CWnd* window);
};

struct PAINTSTRUCT {
    HDC hdc = nullptr;
    BOOL fErase = FALSE;
    CRect rcPaint; // around what is to be painted, outside of which nothing is drawn
};

// The same for the handler of WM_PAINT, whose caller shows the result.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

    explicit CPaintDC(CWnd* window);

    PAINTSTRUCT m_ps;
};

// Selects an object while it lives.
class ObjectSelection {
  public:
    ObjectSelection(CDC& dc, CGdiObject& object) : m_dc(dc), m_previous(dc.SelectObject(&object)) {}
    ObjectSelection(CDC& dc, int stockObject) : m_dc(dc), m_previous(dc.SelectStockObject(stockObject)) {}
    ~ObjectSelection() {
        if (m_previous)
            m_dc.SelectObject(m_previous);
    }
    ObjectSelection(const ObjectSelection&) = delete;
    ObjectSelection& operator=(const ObjectSelection&) = delete;

  private:
    CDC& m_dc;
    CGdiObject* m_previous;
};
