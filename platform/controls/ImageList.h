// Pictures of one size, found by index, for trees and lists.
#pragma once

#include "platform/drawing/Gdi.h"

#include <memory>

using HICON = HGDIOBJ; // the handle of a CBitmap that was loaded as an icon

enum ImageListFlag : UINT { ILC_COLOR = 0, ILC_MASK = 1, ILC_COLOR8 = 8, ILC_COLOR24 = 24, ILC_COLOR32 = 32 };
inline constexpr COLORREF CLR_NONE = 0xFFFFFFFF;

namespace platform {
struct ImageListData;
}

class CImageList : public CObject {
    DECLARE_DYNAMIC(CImageList)

    CImageList();
    ~CImageList() override;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    // The size of a picture in device-independent pixels; the other arguments are accepted and not used.
    BOOL Create(int width, int height, UINT flags, int initial, int grow);

    // The index of the first new picture, -1 when there is none. A wide bitmap holds several, side by side; pixels of
    // the mask colour become transparent. The bitmap stays the caller's.
    int Add(CBitmap* bitmap, COLORREF mask);
    int Add(HICON icon);
    int GetImageCount() const;

    // The pictures for the window layer; they stay while either side has them.
    const std::shared_ptr<platform::ImageListData>& Data() const { return m_data; }

  private:
    std::shared_ptr<platform::ImageListData> m_data; // never null
};
