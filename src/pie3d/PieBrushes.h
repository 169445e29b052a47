#pragma once
// What the slices of every style are painted with.

#include "pie3d/GdiPlus.h"

namespace PieBrushes
{

// A vertical gradient over the rectangle that the slices are drawn on.
class CSliceGradient
{
public:
    explicit CSliceGradient(const TRect& rc) noexcept
        : m_brush(GdiPlus::NewLineBrush({rc.right / 2, rc.top}, {rc.right / 2, rc.bottom}, 0xFF000000,
                                        0xFF000000))
    {
    }

    // The brush in these colours from top to bottom, good until the next call.
    [[nodiscard]] Gdiplus::GpBrush* Between(PieColors::Argb top, PieColors::Argb bottom) const noexcept
    {
        GdiPlus::SetColors(m_brush, top, bottom);
        return m_brush.Get();
    }

private:
    GdiPlus::CLineBrush m_brush;
};

// The veil and the outline of a selected element.
class CSelection
{
public:
    explicit CSelection(PieColors::Argb color) noexcept
        : m_brush(GdiPlus::NewSolidBrush(PieColors::WithAlpha(color, 0x64))),
          m_pen(GdiPlus::NewPen(color, 1.0f))
    {
    }

    void MarkPie(const GdiPlus::CGraphics& graphics, const PieGeometry::TRectF& rc, float start,
                 float sweep) const noexcept
    {
        graphics.FillPie(m_brush.Get(), rc, start, sweep);
        graphics.DrawPie(m_pen, rc, start, sweep);
    }
    void FillPath(const GdiPlus::CGraphics& graphics, const GdiPlus::CPath& path) const noexcept
    {
        graphics.FillPath(m_brush.Get(), path);
    }
    void DrawPath(const GdiPlus::CGraphics& graphics, const GdiPlus::CPath& path) const noexcept
    {
        graphics.DrawPath(m_pen, path);
    }

private:
    GdiPlus::CSolidBrush m_brush;
    GdiPlus::CPen m_pen;
};

} // namespace PieBrushes
