#pragma once
// Owners of what GDI+ makes, over its flat functions. Each is empty when its making failed;
// every drawing call with an empty owner fails inside GDI+ and leaves its piece undrawn, so
// painters need not look at results. Pixels are floats, colours ARGB, angles degrees.

#include "base/Geometry.h"
#include "pie3d/PieColors.h"
#include "pie3d/PieGeometry.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <string_view>
#include <utility>

namespace GdiPlus
{

namespace Flat = Gdiplus::DllExports;

using PieColors::Argb;
using PieGeometry::TPointF;
using PieGeometry::TRectF;

// One object of GDI+, freed by Delete. Moved, never copied.
template <class T, auto Delete> class CHandle
{
public:
    CHandle() noexcept = default;
    CHandle(CHandle&& other) noexcept : m_pObject(std::exchange(other.m_pObject, nullptr)) {}
    CHandle& operator=(CHandle&& other) noexcept
    {
        std::swap(m_pObject, other.m_pObject);
        return *this;
    }
    ~CHandle() { Reset(); }

    void Reset() noexcept
    {
        if (m_pObject)
            Delete(std::exchange(m_pObject, nullptr));
    }
    [[nodiscard]] T* Get() const noexcept { return m_pObject; }
    [[nodiscard]] explicit operator bool() const noexcept { return m_pObject != nullptr; }
    // For the functions that make an object; what was there is freed first.
    [[nodiscard]] T** Put() noexcept
    {
        Reset();
        return &m_pObject;
    }

private:
    T* m_pObject = nullptr;
};

using CPath = CHandle<Gdiplus::GpPath, &Flat::GdipDeletePath>;
using CSolidBrush = CHandle<Gdiplus::GpSolidFill, &Flat::GdipDeleteBrush>;
using CLineBrush = CHandle<Gdiplus::GpLineGradient, &Flat::GdipDeleteBrush>;
using CPen = CHandle<Gdiplus::GpPen, &Flat::GdipDeletePen>;
using CFont = CHandle<Gdiplus::GpFont, &Flat::GdipDeleteFont>;
using CStringFormat = CHandle<Gdiplus::GpStringFormat, &Flat::GdipDeleteStringFormat>;
using CBitmap = CHandle<Gdiplus::GpBitmap, &Flat::GdipDisposeImage>;
using CCachedBitmap = CHandle<Gdiplus::GpCachedBitmap, &Flat::GdipDeleteCachedBitmap>;

[[nodiscard]] CPath NewPath() noexcept; // of alternating fill
[[nodiscard]] CSolidBrush NewSolidBrush(Argb color) noexcept;
// A tiled gradient from one point to another.
[[nodiscard]] CLineBrush NewLineBrush(TPoint from, TPoint to, Argb fromColor, Argb toColor) noexcept;
[[nodiscard]] CPen NewPen(Argb color, float width) noexcept;
[[nodiscard]] CPen NewPen(const CLineBrush& brush, float width) noexcept;
// Where the family or the font cannot be made, the generic sans serif family takes its place.
[[nodiscard]] CFont NewFont(const wchar_t* face, std::int32_t points, std::int32_t style) noexcept;
[[nodiscard]] CStringFormat NewStringFormat(INT flags) noexcept;
[[nodiscard]] CBitmap NewBitmap(TSize size) noexcept;         // transparent, 32 bits ARGB
[[nodiscard]] CBitmap CopyOf(const CBitmap& bitmap) noexcept; // of a bitmap of that kind

void SetColor(const CSolidBrush& brush, Argb color) noexcept;
void SetColor(const CPen& pen, Argb color) noexcept;
void SetBrush(const CPen& pen, const CLineBrush& brush) noexcept;
void SetColors(const CLineBrush& brush, Argb from, Argb to) noexcept;

// The status of GDI+.
std::int32_t ResetPath(const CPath& path) noexcept;
std::int32_t AddPath(const CPath& path, const CPath& added) noexcept;

// Additions to a path. A pie or an arc thinner than a thousandth of a degree adds nothing.
void AddPie(const CPath& path, const TRectF& rc, float start, float sweep) noexcept;
void AddArc(const CPath& path, const TRectF& rc, float start, float sweep) noexcept;
void AddLine(const CPath& path, TPointF from, TPointF to) noexcept;
[[nodiscard]] bool Contains(const CPath& path, TPointF point) noexcept;

[[nodiscard]] constexpr TRectF ToFloats(const TRect& rc) noexcept
{
    return {static_cast<float>(rc.left), static_cast<float>(rc.top), static_cast<float>(rc.Width()),
            static_cast<float>(rc.Height())};
}

[[nodiscard]] constexpr TPointF ToFloats(TPoint point) noexcept
{
    return {static_cast<float>(point.x), static_cast<float>(point.y)};
}

// Something to draw on.
class CGraphics
{
public:
    [[nodiscard]] static CGraphics Of(const CBitmap& bitmap) noexcept;
    [[nodiscard]] static CGraphics Of(HDC hDC) noexcept;

    void SmoothHighQuality() const noexcept;

    void FillRectangle(Gdiplus::GpBrush* brush, const TRectF& rc) const noexcept;
    void DrawRectangle(const CPen& pen, const TRectF& rc) const noexcept;
    void FillEllipse(Gdiplus::GpBrush* brush, const TRectF& rc) const noexcept;
    void DrawEllipse(const CPen& pen, const TRectF& rc) const noexcept;
    void FillPie(Gdiplus::GpBrush* brush, const TRectF& rc, float start, float sweep) const noexcept;
    void DrawPie(const CPen& pen, const TRectF& rc, float start, float sweep) const noexcept;
    void FillPath(Gdiplus::GpBrush* brush, const CPath& path) const noexcept;
    void DrawPath(const CPen& pen, const CPath& path) const noexcept;
    void DrawLine(const CPen& pen, TPointF from, TPointF to) const noexcept;

    // The size of a text; the layout's place is that of rc.
    [[nodiscard]] TRectF Measure(std::wstring_view text, const CFont& font,
                                 const TRectF& layout = {}) const noexcept;
    void DrawString(std::wstring_view text, const CFont& font, const TRectF& layout,
                    Gdiplus::GpBrush* brush, const CStringFormat* format = nullptr) const noexcept;

    // The picture as a whole, at a point.
    void DrawWhole(const CBitmap& bitmap, TPoint at) const noexcept;

private:
    CHandle<Gdiplus::GpGraphics, &Flat::GdipDeleteGraphics> m_graphics;
};

// Writes the picture with the encoder of a MIME type, if there is one.
void Save(const CBitmap& bitmap, const wchar_t* file, std::wstring_view mimeType);

// One start of GDI+; everything above lives within one. The token, or 0 if it failed.
[[nodiscard]] ULONG_PTR Start() noexcept;
void Stop(ULONG_PTR token) noexcept;

} // namespace GdiPlus
