// The ellipses of the canvas: those that are far larger than it are drawn by what it shows of them.

#include "draw/DCEx.h"

#include "draw/CanvasReach.h"
#include "draw/EllipsePart.h"

#include <algorithm>

using CanvasReach::IsRecording;
using CanvasReach::Within;

namespace
{
// Beyond these the platform takes ten milliseconds and more for one ellipse, and a curve may have
// thousands. A dot's pen is as wide as half the dot.
constexpr LONG WidestOfPlatform = 1 << 7;
constexpr LONG LargestOfPlatform = 1 << 14;

// The platform has no pattern for lines wider than a pixel.
bool IsSolid(const LOGPEN& pen) noexcept
{
    return pen.lopnStyle == PS_SOLID || (pen.lopnStyle < PS_NULL && pen.lopnWidth.x > 1);
}

class CNullPen
{
public:
    explicit CNullPen(HDC hDC) noexcept
        : m_hDC(hDC), m_hOld(::SelectObject(hDC, ::GetStockObject(NULL_PEN)))
    {
    }
    CNullPen(const CNullPen&) = delete;
    CNullPen& operator=(const CNullPen&) = delete;
    ~CNullPen() { ::SelectObject(m_hDC, m_hOld); }

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};
} // namespace

BOOL CDCEx::Ellipse(int x1, int y1, int x2, int y2)
{
    CRect rect(x1, y1, x2, y2);
    if (m_bScaling)
        ScaleRect(rect);
    constexpr LONG large = 2 * WidestOfPlatform;
    if (Within({rect.Width(), rect.Height()}, large) || IsRecording(m_hDC))
        return CDC::Ellipse(&rect);
    return LargeEllipse(rect);
}

BOOL CDCEx::LargeEllipse(const CRect& rect)
{
    CRect visible;
    LOGPEN pen{};
    if (::GetClipBox(m_hDC, &visible) == ERROR || ::GetROP2(m_hAttribDC) != R2_COPYPEN ||
        ::GetObject(::GetCurrentObject(m_hDC, OBJ_PEN), sizeof pen, &pen) == 0)
        return CDC::Ellipse(&rect);
    switch (EllipsePart(visible, rect, std::max(pen.lopnWidth.x, 1L))) {
    case EEllipsePart::nothing:
        return TRUE;
    case EEllipsePart::inside: {
        const CNullPen noLine(m_hDC);
        return ::Rectangle(m_hDC, visible.left, visible.top, visible.right + 1, visible.bottom + 1);
    }
    case EEllipsePart::line: {
        if (!IsSolid(pen))
            break;
        const COLORREF crBack = ::GetBkColor(m_hDC); // no ellipse changes it
        CDC::FillSolidRect(&visible, pen.lopnColor);
        ::SetBkColor(m_hDC, crBack);
        return TRUE;
    }
    case EEllipsePart::mixed:
        if (pen.lopnWidth.x > WidestOfPlatform ||
            !Within({rect.Width(), rect.Height()}, LargestOfPlatform))
            return HugeEllipse(rect, visible, pen);
        break;
    }
    return CDC::Ellipse(&rect);
}

// The rim of a wide pen is the difference of two ellipses.
BOOL CDCEx::HugeEllipse(const CRect& rect, const CRect& visible, const LOGPEN& pen)
{
    constexpr LONG widest = 16;
    const LongLines::TArea area = LongLines::AreaAround(visible, 2 * widest);
    if (pen.lopnStyle == PS_NULL || pen.lopnWidth.x <= widest)
        return LongPolygon(EllipseOutline(visible, rect, 0), area);
    LOGBRUSH brush{};
    ::GetObject(::GetCurrentObject(m_hDC, OBJ_BRUSH), sizeof brush, &brush);
    if (!IsSolid(pen) || brush.lbStyle == BS_NULL)
        return CDC::Ellipse(&rect); // within the frame, or a ring
    const CNullPen noLine(m_hDC);
    const double reach = pen.lopnWidth.x / 2.0;
    const int state = SaveDC();
    ::SelectObject(m_hDC, ::GetStockObject(DC_BRUSH));
    ::SetDCBrushColor(m_hDC, pen.lopnColor);
    const BOOL drawn = LongPolygon(EllipseOutline(visible, rect, reach), area);
    RestoreDC(state);
    return LongPolygon(EllipseOutline(visible, rect, -reach), area) && drawn;
}
