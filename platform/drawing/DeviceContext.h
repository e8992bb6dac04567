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

enum BackgroundMode { TRANSPARENT = 1, OPAQUE = 2 };
enum DrawTextFormat : UINT {
    DT_LEFT = 0,
    DT_TOP = 0,
    DT_CENTER = 0x1,
    DT_RIGHT = 0x2,
    DT_VCENTER = 0x4,
    DT_BOTTOM = 0x8,
    DT_SINGLELINE = 0x20,
    DT_NOCLIP = 0x100,
    DT_CALCRECT = 0x400,
    DT_NOPREFIX = 0x800
};
enum ExtTextOption : UINT { ETO_OPAQUE = 2, ETO_CLIPPED = 4 };
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

    double GetScale() const; // device pixels to one device-independent pixel

    // State. Each selection returns the object selected before, null when the new one is null or does not exist.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CGdiObject* SelectObject(CGdiObject* object);
    CGdiObject* SelectStockObject(int index);
    int SaveDC();              // the number to give to RestoreDC
    BOOL RestoreDC(int saved); // -1 is the last one

    // Each returns the value before.
    COLORREF SetTextColor(COLORREF color);
    COLORREF SetBkColor(COLORREF color);
    int SetBkMode(int mode);
    COLORREF GetTextColor() const;
    COLORREF GetBkColor() const;

    // Drawing is cut to what all clip rectangles have in common.
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(LPCRECT rect);
    int GetClipBox(LPRECT rect) const;

    // Lines.
    CPoint MoveTo(int x, int y); // the position before
    CPoint MoveTo(CPoint point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(CPoint point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const CPoint* points, int count);
    BOOL Polyline(const FinePoint* points, int count); // its last point included
    // `counts[i]` points for each of the `polylines`; by far the fastest way to draw many lines of one pen.
    BOOL PolyPolyline(const CPoint* points, const DWORD* counts, int polylines);

    // Shapes: outlined by the pen, filled by the brush.
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Rectangle(LPCRECT rect);
    BOOL Ellipse(int left, int top, int right, int bottom);
    BOOL Ellipse(LPCRECT rect);
    BOOL Polygon(const CPoint* points, int count);
    BOOL Polygon(const FinePoint* points, int count);

    // Fills, without regard to the pen.
    void FillSolidRect(int x, int y, int width, int height, COLORREF color); // makes the colour the background colour
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillRect(LPCRECT rect, CBrush* brush);
    void FrameRect(LPCRECT rect, CBrush* brush);
    COLORREF GetPixel(int x, int y) const; // CLR_INVALID outside the target
    COLORREF GetPixel(CPoint point) const { return GetPixel(point.x, point.y); }

    // Text, Windows-1252.
    BOOL TextOut(int x, int y, LPCTSTR text, int length);
    BOOL TextOut(int x, int y, const CString& text);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text);
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
};

// Draws into a window's own picture, at any time; what is drawn stays until the window is erased. A null or closed
// window draws nowhere.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

    explicit CClientDC(CWnd* window);
};

struct PAINTSTRUCT {
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
