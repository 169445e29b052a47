#include "pie3d/GdiPlus.h"

#include "framework/windowing/GdiObjects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <span>
#include <vector>

namespace GdiPlus
{
namespace
{

Gdiplus::RectF ToGdi(const TRectF& rc) noexcept
{
    return {rc.x, rc.y, rc.width, rc.height};
}

// Blending takes a region, a canvas and a bitmap. Wine's library doesn't look whether it got the last.
bool HasRoomToBlend() noexcept
{
    std::array<CRgn, 3> objects;
    return std::all_of(objects.begin(), objects.end(), [](CRgn& object) {
        return object.CreateRectRgnIndirect(CRect(0, 0, 1, 1)) != FALSE;
    });
}

INT LengthOf(std::wstring_view text) noexcept
{
    // More has no place in any window, and GDI+ lays out every character of what it gets.
    constexpr std::size_t longest = 4096;
    return static_cast<INT>(text.size() < longest ? text.size() : longest);
}

bool IsFinite(const TRectF& rc) noexcept
{
    return std::isfinite(rc.x) && std::isfinite(rc.y) && std::isfinite(rc.width) &&
           std::isfinite(rc.height);
}

// The pixels of a bitmap for as long as the object lives, if they could be had.
class CPixels
{
public:
    CPixels(const CBitmap& bitmap, UINT mode) noexcept : m_pBitmap(bitmap.Get())
    {
        m_are = Flat::GdipBitmapLockBits(m_pBitmap, nullptr, mode, PixelFormat32bppARGB, &m_data) ==
                Gdiplus::Ok;
    }
    CPixels(const CPixels&) = delete;
    CPixels& operator=(const CPixels&) = delete;
    ~CPixels()
    {
        if (m_are)
            Flat::GdipBitmapUnlockBits(m_pBitmap, &m_data);
    }

    [[nodiscard]] bool Are() const noexcept { return m_are; }
    [[nodiscard]] void* Row(UINT y) const noexcept
    {
        return static_cast<BYTE*>(m_data.Scan0) + static_cast<INT_PTR>(y) * m_data.Stride;
    }

private:
    Gdiplus::GpBitmap* m_pBitmap; // itself, since its owner may pass it on meanwhile
    Gdiplus::BitmapData m_data{};
    bool m_are = false;
};

using CFontFamily = CHandle<Gdiplus::GpFontFamily, &Flat::GdipDeleteFontFamily>;

CFont FontOf(const CFontFamily& family, std::int32_t points, std::int32_t style) noexcept
{
    CFont font;
    Flat::GdipCreateFont(family.Get(), static_cast<float>(points), style, Gdiplus::UnitPoint,
                         font.Put());
    return font;
}

} // namespace

CPath NewPath() noexcept
{
    CPath path;
    Flat::GdipCreatePath(Gdiplus::FillModeAlternate, path.Put());
    return path;
}

CSolidBrush NewSolidBrush(Argb color) noexcept
{
    CSolidBrush brush;
    Flat::GdipCreateSolidFill(color, brush.Put());
    return brush;
}

CLineBrush NewLineBrush(TPoint from, TPoint to, Argb fromColor, Argb toColor) noexcept
{
    const Gdiplus::GpPoint start(from.x, from.y);
    const Gdiplus::GpPoint end(to.x, to.y);
    CLineBrush brush;
    Flat::GdipCreateLineBrushI(&start, &end, fromColor, toColor, Gdiplus::WrapModeTile, brush.Put());
    return brush;
}

CPen NewPen(Argb color, float width) noexcept
{
    CPen pen;
    Flat::GdipCreatePen1(color, width, Gdiplus::UnitWorld, pen.Put());
    return pen;
}

CPen NewPen(const CLineBrush& brush, float width) noexcept
{
    CPen pen;
    Flat::GdipCreatePen2(brush.Get(), width, Gdiplus::UnitWorld, pen.Put());
    return pen;
}

CFont NewFont(const wchar_t* face, std::int32_t points, std::int32_t style) noexcept
{
    CFontFamily family;
    Flat::GdipCreateFontFamilyFromName(face, nullptr, family.Put());
    CFont font = FontOf(family, points, style);
    if (!font) {
        Flat::GdipGetGenericFontFamilySansSerif(family.Put());
        font = FontOf(family, points, style);
    }
    return font;
}

CStringFormat NewStringFormat(INT flags) noexcept
{
    CStringFormat format;
    Flat::GdipCreateStringFormat(0, 0, format.Put());
    Flat::GdipSetStringFormatFlags(format.Get(), flags);
    return format;
}

CBitmap NewBitmap(TSize size) noexcept
{
    CBitmap bitmap;
    Flat::GdipCreateBitmapFromScan0(size.cx, size.cy, 0, PixelFormat32bppARGB, nullptr, bitmap.Put());
    return bitmap;
}

CBitmap CopyOf(const CBitmap& bitmap) noexcept
{
    UINT width = 0;
    UINT height = 0;
    Flat::GdipGetImageWidth(bitmap.Get(), &width);
    Flat::GdipGetImageHeight(bitmap.Get(), &height);
    CBitmap copy = NewBitmap({static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)});
    const CPixels from(bitmap, Gdiplus::ImageLockModeRead);
    const CPixels to(copy, Gdiplus::ImageLockModeWrite);
    if (!from.Are() || !to.Are())
        return {};
    for (UINT y = 0; y < height; ++y)
        std::memcpy(to.Row(y), from.Row(y), width * sizeof(Argb));
    return copy;
}

void SetColor(const CSolidBrush& brush, Argb color) noexcept
{
    Flat::GdipSetSolidFillColor(brush.Get(), color);
}

void SetColor(const CPen& pen, Argb color) noexcept
{
    Flat::GdipSetPenColor(pen.Get(), color);
}

void SetBrush(const CPen& pen, const CLineBrush& brush) noexcept
{
    Flat::GdipSetPenBrushFill(pen.Get(), brush.Get());
}

void SetColors(const CLineBrush& brush, Argb from, Argb to) noexcept
{
    Flat::GdipSetLineColors(brush.Get(), from, to);
}

std::int32_t ResetPath(const CPath& path) noexcept
{
    return Flat::GdipResetPath(path.Get());
}

std::int32_t AddPath(const CPath& path, const CPath& added) noexcept
{
    return Flat::GdipAddPathPath(path.Get(), added.Get(), FALSE);
}

void AddPie(const CPath& path, const TRectF& rc, float start, float sweep) noexcept
{
    if (PieGeometry::DrawableAngles(start, sweep))
        Flat::GdipAddPathPie(path.Get(), rc.x, rc.y, rc.width, rc.height, start, sweep);
}

void AddArc(const CPath& path, const TRectF& rc, float start, float sweep) noexcept
{
    if (PieGeometry::DrawableAngles(start, sweep))
        Flat::GdipAddPathArc(path.Get(), rc.x, rc.y, rc.width, rc.height, start, sweep);
}

void AddLine(const CPath& path, TPointF from, TPointF to) noexcept
{
    Flat::GdipAddPathLine(path.Get(), from.x, from.y, to.x, to.y);
}

bool Contains(const CPath& path, TPointF point) noexcept
{
    INT points = 0;
    if (Flat::GdipGetPointCount(path.Get(), &points) != Gdiplus::Ok || points == 0)
        return false;
    BOOL inside = FALSE;
    Flat::GdipIsVisiblePathPoint(path.Get(), point.x, point.y, nullptr, &inside);
    return inside != FALSE;
}

CGraphics CGraphics::Of(const CBitmap& bitmap) noexcept
{
    CGraphics graphics;
    Flat::GdipGetImageGraphicsContext(bitmap.Get(), graphics.m_graphics.Put());
    return graphics;
}

CGraphics CGraphics::Of(HDC hDC) noexcept
{
    CGraphics graphics;
    Flat::GdipCreateFromHDC(hDC, graphics.m_graphics.Put());
    return graphics;
}

void CGraphics::SmoothHighQuality() const noexcept
{
    Flat::GdipSetSmoothingMode(m_graphics.Get(), Gdiplus::SmoothingModeHighQuality);
}

void CGraphics::FillRectangle(Gdiplus::GpBrush* brush, const TRectF& rc) const noexcept
{
    Flat::GdipFillRectangle(m_graphics.Get(), brush, rc.x, rc.y, rc.width, rc.height);
}

void CGraphics::DrawRectangle(const CPen& pen, const TRectF& rc) const noexcept
{
    Flat::GdipDrawRectangle(m_graphics.Get(), pen.Get(), rc.x, rc.y, rc.width, rc.height);
}

void CGraphics::FillEllipse(Gdiplus::GpBrush* brush, const TRectF& rc) const noexcept
{
    Flat::GdipFillEllipse(m_graphics.Get(), brush, rc.x, rc.y, rc.width, rc.height);
}

void CGraphics::DrawEllipse(const CPen& pen, const TRectF& rc) const noexcept
{
    Flat::GdipDrawEllipse(m_graphics.Get(), pen.Get(), rc.x, rc.y, rc.width, rc.height);
}

void CGraphics::FillPie(Gdiplus::GpBrush* brush, const TRectF& rc, float start,
                        float sweep) const noexcept
{
    if (PieGeometry::DrawableAngles(start, sweep))
        Flat::GdipFillPie(m_graphics.Get(), brush, rc.x, rc.y, rc.width, rc.height, start, sweep);
}

void CGraphics::DrawPie(const CPen& pen, const TRectF& rc, float start, float sweep) const noexcept
{
    switch (PieGeometry::OutlineAngles(rc, start, sweep)) {
    case PieGeometry::EOutline::whole:
        Flat::GdipDrawPie(m_graphics.Get(), pen.Get(), rc.x, rc.y, rc.width, rc.height, start, sweep);
        break;
    case PieGeometry::EOutline::radii: {
        const PieGeometry::TRadii radii = PieGeometry::RadiiOf(rc, start, sweep);
        DrawLine(pen, radii.first, radii.centre);
        DrawLine(pen, radii.centre, radii.last);
        break;
    }
    case PieGeometry::EOutline::nothing:
        break;
    }
}

void CGraphics::FillPath(Gdiplus::GpBrush* brush, const CPath& path) const noexcept
{
    Flat::GdipFillPath(m_graphics.Get(), brush, path.Get());
}

void CGraphics::DrawPath(const CPen& pen, const CPath& path) const noexcept
{
    if (path.Get()) // else refused by most platforms, but Wine's follows it
        Flat::GdipDrawPath(m_graphics.Get(), pen.Get(), path.Get());
}

void CGraphics::DrawLine(const CPen& pen, TPointF from, TPointF to) const noexcept
{
    Flat::GdipDrawLine(m_graphics.Get(), pen.Get(), from.x, from.y, to.x, to.y);
}

TRectF CGraphics::Measure(std::wstring_view text, const CFont& font, const TRectF& layout) const noexcept
{
    const Gdiplus::RectF place = ToGdi(layout);
    Gdiplus::RectF box;
    INT fitted = 0;
    INT lines = 0;
    if (Flat::GdipMeasureString(m_graphics.Get(), text.data(), LengthOf(text), font.Get(), &place,
                                nullptr, &box, &fitted, &lines) != Gdiplus::Ok) {
        return {};
    }
    return {box.X, box.Y, box.Width, box.Height};
}

void CGraphics::DrawString(std::wstring_view text, const CFont& font, const TRectF& layout,
                           Gdiplus::GpBrush* brush, const CStringFormat* format) const noexcept
{
    if (!IsFinite(layout))
        return;
    const Gdiplus::RectF place = ToGdi(layout);
    Flat::GdipDrawString(m_graphics.Get(), text.data(), LengthOf(text), font.Get(), &place,
                         format ? format->Get() : nullptr, brush);
}

void CGraphics::DrawWhole(const CBitmap& bitmap, TPoint at) const noexcept
{
    if (!HasRoomToBlend())
        return;
    CCachedBitmap cached;
    Flat::GdipCreateCachedBitmap(bitmap.Get(), m_graphics.Get(), cached.Put());
    Flat::GdipDrawCachedBitmap(m_graphics.Get(), cached.Get(), at.x, at.y);
}

void Save(const CBitmap& bitmap, const wchar_t* file, std::wstring_view mimeType)
{
    UINT count = 0;
    UINT size = 0;
    Flat::GdipGetImageEncodersSize(&count, &size);
    // The records lie at the front, the texts that they point to behind them.
    std::vector<Gdiplus::ImageCodecInfo> codecs(size / sizeof(Gdiplus::ImageCodecInfo) + 1);
    if (Flat::GdipGetImageEncoders(count, size, codecs.data()) != Gdiplus::Ok)
        return;
    for (const Gdiplus::ImageCodecInfo& codec : std::span(codecs).first(count)) {
        if (codec.MimeType == mimeType) {
            Flat::GdipSaveImageToFile(bitmap.Get(), file, &codec.Clsid, nullptr);
            return;
        }
    }
}

ULONG_PTR Start() noexcept
{
    const Gdiplus::GdiplusStartupInput input; // version 1, with thread and codecs, no callback
    ULONG_PTR token = 0;
    return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok ? token : 0;
}

void Stop(ULONG_PTR token) noexcept
{
    if (token != 0)
        Gdiplus::GdiplusShutdown(token);
}

} // namespace GdiPlus
