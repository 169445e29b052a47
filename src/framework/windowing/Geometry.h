#pragma once
// Points, sizes and rectangles in logical or device units, as classes over the
// platform's POINT, SIZE and RECT, and free of charge convertible from and to the plain
// structs of base that window-free arithmetic uses. Sums and differences wrap at 32 bits,
// as the platform's own do. Right and bottom edges lie outside a rectangle.

#include "base/Geometry.h"
#include "base/Wrap.h"

#include <windows.h>

class CPoint;
class CRect;

class CSize : public tagSIZE
{
public:
    constexpr CSize() noexcept : CSize(0, 0) {}
    constexpr CSize(int initCX, int initCY) noexcept : tagSIZE{}
    {
        cx = initCX;
        cy = initCY;
    }
    constexpr CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    constexpr explicit CSize(POINT initPt) noexcept : CSize(initPt.x, initPt.y) {}
    constexpr CSize(const TSize& initSize) noexcept : CSize(initSize.cx, initSize.cy) {}
    constexpr operator TSize() const noexcept { return {static_cast<int>(cx), static_cast<int>(cy)}; }

    constexpr bool operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    constexpr void operator+=(SIZE size) noexcept { *this = *this + size; }
    constexpr void operator-=(SIZE size) noexcept { *this = *this - size; }
    [[nodiscard]] constexpr CSize operator+(SIZE size) const noexcept
    {
        return CSize(Wrap::Add(cx, size.cx), Wrap::Add(cy, size.cy));
    }
    [[nodiscard]] constexpr CSize operator-(SIZE size) const noexcept
    {
        return CSize(Wrap::Subtract(cx, size.cx), Wrap::Subtract(cy, size.cy));
    }
    [[nodiscard]] constexpr CSize operator-() const noexcept { return CSize() - *this; }
};

class CPoint : public tagPOINT
{
public:
    constexpr CPoint() noexcept : CPoint(0, 0) {}
    constexpr CPoint(int initX, int initY) noexcept : tagPOINT{}
    {
        x = initX;
        y = initY;
    }
    constexpr CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    constexpr explicit CPoint(SIZE initSize) noexcept : CPoint(initSize.cx, initSize.cy) {}
    // The two signed 16-bit halves of a mouse message's parameter.
    constexpr explicit CPoint(LPARAM dwPoint) noexcept
        : CPoint(static_cast<short>(dwPoint & 0xFFFF), static_cast<short>((dwPoint >> 16) & 0xFFFF))
    {
    }
    constexpr CPoint(const TPoint& initPt) noexcept : CPoint(initPt.x, initPt.y) {}
    constexpr operator TPoint() const noexcept { return {static_cast<int>(x), static_cast<int>(y)}; }

    constexpr bool operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    constexpr void SetPoint(int newX, int newY) noexcept { *this = CPoint(newX, newY); }
    constexpr void Offset(int xOffset, int yOffset) noexcept { *this += CSize(xOffset, yOffset); }
    constexpr void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    constexpr void operator+=(SIZE size) noexcept { *this = *this + size; }
    constexpr void operator-=(SIZE size) noexcept { *this = *this - size; }
    constexpr void operator+=(POINT point) noexcept { *this = *this + point; }
    constexpr void operator-=(POINT point) noexcept { *this -= CSize(point); }
    [[nodiscard]] constexpr CPoint operator+(SIZE size) const noexcept
    {
        return CPoint(Wrap::Add(x, size.cx), Wrap::Add(y, size.cy));
    }
    [[nodiscard]] constexpr CPoint operator-(SIZE size) const noexcept
    {
        return CPoint(Wrap::Subtract(x, size.cx), Wrap::Subtract(y, size.cy));
    }
    [[nodiscard]] constexpr CPoint operator+(POINT point) const noexcept { return *this + CSize(point); }
    [[nodiscard]] constexpr CSize operator-(POINT point) const noexcept
    {
        return CSize(Wrap::Subtract(x, point.x), Wrap::Subtract(y, point.y));
    }
    [[nodiscard]] constexpr CPoint operator-() const noexcept { return CPoint() - CSize(x, y); }
};

class CRect : public tagRECT
{
public:
    constexpr CRect() noexcept : CRect(0, 0, 0, 0) {}
    constexpr CRect(int l, int t, int r, int b) noexcept : tagRECT{}
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    constexpr CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    constexpr explicit CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    constexpr CRect(POINT point, SIZE size) noexcept
        : CRect(point.x, point.y, Wrap::Add(point.x, size.cx), Wrap::Add(point.y, size.cy))
    {
    }
    constexpr CRect(POINT topLeft, POINT bottomRight) noexcept
        : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y)
    {
    }
    constexpr CRect(const TRect& srcRect) noexcept
        : CRect(srcRect.left, srcRect.top, srcRect.right, srcRect.bottom)
    {
    }
    constexpr operator TRect() const noexcept
    {
        return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right),
                static_cast<int>(bottom)};
    }
    constexpr operator LPRECT() noexcept { return this; }
    constexpr operator LPCRECT() const noexcept { return this; }

    [[nodiscard]] constexpr int Width() const noexcept { return Wrap::Subtract(right, left); }
    [[nodiscard]] constexpr int Height() const noexcept { return Wrap::Subtract(bottom, top); }
    [[nodiscard]] constexpr CSize Size() const noexcept { return CSize(Width(), Height()); }
    [[nodiscard]] constexpr CPoint TopLeft() const noexcept { return CPoint(left, top); }
    [[nodiscard]] constexpr CPoint BottomRight() const noexcept { return CPoint(right, bottom); }
    [[nodiscard]] constexpr CPoint CenterPoint() const noexcept
    {
        return CPoint(Wrap::Add(left, right) / 2, Wrap::Add(top, bottom) / 2);
    }

    // No width or no height, or a negative one.
    [[nodiscard]] constexpr bool IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    [[nodiscard]] constexpr bool PtInRect(POINT point) const noexcept
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr bool operator==(const RECT& rect) const noexcept
    {
        return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
    }

    constexpr void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    constexpr void SetRect(POINT topLeft, POINT bottomRight) noexcept
    {
        *this = CRect(topLeft, bottomRight);
    }
    constexpr void SetRectEmpty() noexcept { *this = CRect(); }
    constexpr void CopyRect(LPCRECT lpSrcRect) noexcept { *this = CRect(lpSrcRect); }

    constexpr void InflateRect(int l, int t, int r, int b) noexcept
    {
        left = Wrap::Subtract(left, l);
        top = Wrap::Subtract(top, t);
        right = Wrap::Add(right, r);
        bottom = Wrap::Add(bottom, b);
    }
    constexpr void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    constexpr void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    constexpr void DeflateRect(int l, int t, int r, int b) noexcept
    {
        left = Wrap::Add(left, l);
        top = Wrap::Add(top, t);
        right = Wrap::Subtract(right, r);
        bottom = Wrap::Subtract(bottom, b);
    }
    constexpr void DeflateRect(int x, int y) noexcept { DeflateRect(x, y, x, y); }
    constexpr void DeflateRect(SIZE size) noexcept { DeflateRect(size.cx, size.cy); }
    constexpr void OffsetRect(int x, int y) noexcept
    {
        left = Wrap::Add(left, x);
        right = Wrap::Add(right, x);
        top = Wrap::Add(top, y);
        bottom = Wrap::Add(bottom, y);
    }
    constexpr void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    constexpr void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    // Swaps edges so that width and height are not negative.
    constexpr void NormalizeRect() noexcept
    {
        if (left > right)
            *this = CRect(right, top, left, bottom);
        if (top > bottom)
            *this = CRect(left, bottom, right, top);
    }

    // False, and the rectangle is set empty, where nothing is common or both are empty.
    bool IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
    {
        return ::IntersectRect(this, lpRect1, lpRect2) != FALSE;
    }
    bool UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
    {
        return ::UnionRect(this, lpRect1, lpRect2) != FALSE;
    }

    constexpr void operator+=(POINT point) noexcept { OffsetRect(point); }
    constexpr void operator+=(SIZE size) noexcept { OffsetRect(size); }
    constexpr void operator-=(POINT point) noexcept { *this -= CSize(point); }
    constexpr void operator-=(SIZE size) noexcept { OffsetRect(-CSize(size)); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }
    [[nodiscard]] constexpr CRect operator+(POINT point) const noexcept { return *this + CSize(point); }
    [[nodiscard]] constexpr CRect operator-(POINT point) const noexcept { return *this - CSize(point); }
    [[nodiscard]] constexpr CRect operator+(SIZE size) const noexcept
    {
        CRect moved(*this);
        moved.OffsetRect(size);
        return moved;
    }
    [[nodiscard]] constexpr CRect operator-(SIZE size) const noexcept { return *this + -CSize(size); }
    [[nodiscard]] CRect operator&(const RECT& rect) const noexcept
    {
        CRect common;
        common.IntersectRect(this, &rect);
        return common;
    }
    [[nodiscard]] CRect operator|(const RECT& rect) const noexcept
    {
        CRect hull;
        hull.UnionRect(this, &rect);
        return hull;
    }
};
