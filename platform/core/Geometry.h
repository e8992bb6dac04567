// Points, sizes and rectangles in whole device-independent pixels, y growing downwards. A rectangle is half open: its
// right and bottom edges are the first ones outside it.
#pragma once

#include "platform/core/Types.h"

#include <algorithm>

struct CSize {
    LONG cx = 0;
    LONG cy = 0;

    constexpr CSize() = default;
    constexpr CSize(int width, int height) : cx(width), cy(height) {}

    constexpr bool operator==(const CSize&) const = default;
};

struct CPoint {
    LONG x = 0;
    LONG y = 0;

    constexpr CPoint() = default;
    constexpr CPoint(int left, int top) : x(left), y(top) {}
    // The point packed in a mouse message; the halves are signed, since a captured mouse goes left of its window.
    constexpr explicit CPoint(LPARAM packed)
        : x(static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(packed)))),
          y(static_cast<std::int16_t>(HIWORD(static_cast<std::uintptr_t>(packed)))) {}

    constexpr bool operator==(const CPoint&) const = default;
    constexpr CPoint operator+(CSize size) const { return {x + size.cx, y + size.cy}; }
    constexpr CPoint operator-(CSize size) const { return {x - size.cx, y - size.cy}; }
    constexpr CPoint operator+(CPoint point) const { return {x + point.x, y + point.y}; }
    constexpr CSize operator-(CPoint point) const { return {x - point.x, y - point.y}; }
};

// A point between pixels, for curves: whole pixels leave kinks in them.
struct FinePoint {
    double x = 0;
    double y = 0;
};

struct CRect {
    LONG left = 0;
    LONG top = 0;
    LONG right = 0;
    LONG bottom = 0;

    constexpr CRect() = default;
    constexpr CRect(int l, int t, int r, int b) : left(l), top(t), right(r), bottom(b) {}
    constexpr CRect(CPoint point, CSize size)
        : left(point.x), top(point.y), right(point.x + size.cx), bottom(point.y + size.cy) {}
    constexpr CRect(CPoint topLeft, CPoint bottomRight)
        : left(topLeft.x), top(topLeft.y), right(bottomRight.x), bottom(bottomRight.y) {}

    // Operations that fill or read a rectangle take its address; a rectangle itself may stand there.
    constexpr operator CRect*() { return this; }
    constexpr operator const CRect*() const { return this; }

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CSize Size() const { return {Width(), Height()}; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr CPoint BottomRight() const { return {right, bottom}; }
    constexpr CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    constexpr BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    constexpr BOOL PtInRect(CPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    constexpr void SetRectEmpty() { *this = CRect(); }

    constexpr void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    constexpr void InflateRect(int l, int t, int r, int b) {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    constexpr void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
    constexpr void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    constexpr void OffsetRect(int dx, int dy) { InflateRect(-dx, -dy, dx, dy); }

    // Rectangles made from two picked corners may have them in any order; PtInRect and the unions need this first.
    constexpr void NormalizeRect() {
        *this = {std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom)};
    }

    // Both return 0 and leave this rectangle empty when the result is; an empty operand adds nothing to a union.
    constexpr BOOL UnionRect(const CRect* a, const CRect* b) {
        const CRect first = *a, second = *b;
        if (first.IsRectEmpty() || second.IsRectEmpty())
            *this = first.IsRectEmpty() ? second : first;
        else
            *this = {std::min(first.left, second.left), std::min(first.top, second.top),
                     std::max(first.right, second.right), std::max(first.bottom, second.bottom)};
        if (IsRectEmpty())
            SetRectEmpty();
        return !IsRectEmpty();
    }
    constexpr BOOL IntersectRect(const CRect* a, const CRect* b) {
        const CRect first = *a, second = *b;
        *this = {std::max(first.left, second.left), std::max(first.top, second.top),
                 std::min(first.right, second.right), std::min(first.bottom, second.bottom)};
        if (first.IsRectEmpty() || second.IsRectEmpty() || IsRectEmpty())
            SetRectEmpty();
        return !IsRectEmpty();
    }

    constexpr bool operator==(const CRect&) const = default;
    constexpr CRect operator&(const CRect& other) const {
        CRect result;
        result.IntersectRect(this, &other);
        return result;
    }
    constexpr CRect operator|(const CRect& other) const {
        CRect result;
        result.UnionRect(this, &other);
        return result;
    }
    constexpr CRect& operator|=(const CRect& other) { return *this = *this | other; }
};

using POINT = CPoint;
using SIZE = CSize;
using RECT = CRect;
using LPRECT = CRect*;
using LPCRECT = const CRect*;
