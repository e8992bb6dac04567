// Pens, brushes, fonts and bitmaps. Each object owns one handle; a device context copies what it needs of an object
// when that is selected, so deleting a selected object does no harm as long as it is not selected again.
#pragma once

#include "platform/core/Geometry.h"
#include "platform/core/Object.h"
#include "platform/core/String.h"

class CDC;

namespace platform {
struct GdiData;
struct PenData;
struct BrushData;
struct FontData;
struct BitmapData;
} // namespace platform

// Null when there is no object. Owned by the CGdiObject that holds it.
using HGDIOBJ = platform::GdiData*;

enum PenStyle { PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_NULL, PS_INSIDEFRAME };
enum BrushStyle : UINT { BS_SOLID, BS_NULL, BS_HOLLOW = BS_NULL };
enum FontWeight { FW_DONTCARE = 0, FW_LIGHT = 300, FW_NORMAL = 400, FW_MEDIUM = 500, FW_BOLD = 700, FW_HEAVY = 900 };
enum StockObject {
    WHITE_BRUSH,
    LTGRAY_BRUSH,
    GRAY_BRUSH,
    DKGRAY_BRUSH,
    BLACK_BRUSH,
    NULL_BRUSH,
    HOLLOW_BRUSH = NULL_BRUSH,
    WHITE_PEN,
    BLACK_PEN,
    NULL_PEN,
    OEM_FIXED_FONT = 10,
    ANSI_FIXED_FONT,
    ANSI_VAR_FONT,
    SYSTEM_FONT,
    DEFAULT_GUI_FONT = 17
};
inline constexpr BYTE DEFAULT_CHARSET = 1;

struct LOGPEN {
    UINT lopnStyle = PS_SOLID;
    POINT lopnWidth; // x counts; 0 and 1 are one pixel
    COLORREF lopnColor = 0;
};

struct LOGBRUSH {
    UINT lbStyle = BS_SOLID;
    COLORREF lbColor = 0;
};

struct LOGFONT {
    LONG lfHeight = 0;      // pixels: negative the em square, positive ascent plus descent, 0 the dialog font's height
    LONG lfWidth = 0;       // not used: the face's own proportions hold
    LONG lfEscapement = 0;  // tenths of a degree, counterclockwise, of the line of text
    LONG lfOrientation = 0; // follows lfEscapement
    LONG lfWeight = 0;      // 0 to 1000
    BYTE lfItalic = 0;
    BYTE lfUnderline = 0;
    BYTE lfStrikeOut = 0;
    BYTE lfCharSet = 0;
    BYTE lfOutPrecision = 0;
    BYTE lfClipPrecision = 0;
    BYTE lfQuality = 0;
    BYTE lfPitchAndFamily = 0;
    char lfFaceName[32] = {};
};

class CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)

    CGdiObject() = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    ~CGdiObject() override { DeleteObject(); }

    HGDIOBJ m_hObject = nullptr;
    operator HGDIOBJ() const { return m_hObject; }

    // 0 when there was nothing.
    BOOL DeleteObject();
    // Takes a handle over from Detach of an object of the same class; 0 for null.
    BOOL Attach(HGDIOBJ handle);
    HGDIOBJ Detach();

  protected:
    BOOL Replace(HGDIOBJ handle);
};

class CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

    CPen() = default;
    CPen(int style, int width, COLORREF color) { CreatePen(style, width, color); }

    // Width in pixels, 0 and 1 alike; broken styles are solid from 2 on.
    BOOL CreatePen(int style, int width, COLORREF color);
    // Non-zero when the pen exists, with `description` filled.
    int GetLogPen(LOGPEN* description) const;

    const platform::PenData* Data() const;
};

class CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

    // The picture of that number, along the resource chain; 0 when there is none or it cannot be read.
    BOOL LoadBitmap(UINT id);
    // The same for icons.
    BOOL LoadIcon(UINT id);
    // `bits`: null for black, or rows of pixels 0x00RRGGBB. 0 for other than one plane of 32-bit pixels.
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);

    platform::BitmapData* Data() const;
};

class CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

    CBrush() = default;
    explicit CBrush(COLORREF color) { CreateSolidBrush(color); }

    BOOL CreateSolidBrush(COLORREF color);
    BOOL CreateBrushIndirect(const LOGBRUSH* description);

    const platform::BrushData* Data() const;
};

class CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

    // Tenths of a point at 96 dpi, rounded to whole pixels: 80 is an em square of 11.
    BOOL CreatePointFont(int tenths, LPCTSTR face, CDC* device = nullptr);
    // lfHeight holds the tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* description, CDC* device = nullptr);
    BOOL CreateFontIndirect(const LOGFONT* description);
    // Non-zero when the font exists, with `description` filled.
    int GetLogFont(LOGFONT* description) const;

    const platform::FontData* Data() const;
};

namespace platform {

// The stock object of that number, owned by the system and never deleted; null for an unknown number.
CGdiObject* StockObject(int index);

} // namespace platform
