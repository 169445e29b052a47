// The painting of a curve: lines or dots, the segments that the mouse can hit, the fill, and
// the markers of the second pass.
//
// Segments and dots that can't show are not drawn. Solid lines go out as polylines, which
// draw the same pixels as line after line; other pens start their pattern at each line.

#include "objects/XGraphDataSerie.h"

#include "base/Colors.h"
#include "draw/CurveKey.h"
#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "objects/AxisTicks.h"
#include "objects/ColumnWalk.h"
#include "objects/FrameRoom.h"
#include "objects/PlotHost.h"
#include "objects/PolylineBatches.h"
#include "objects/XGraphAxis.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace
{

constexpr int SolidFill = 6;

static_assert(sizeof(TPoint) == sizeof(POINT));

const POINT* AsPoints(std::span<const TPoint> points) noexcept
{
    return reinterpret_cast<const POINT*>(points.data());
}

bool IsInside(const CRect& rect, TPoint point) noexcept
{
    return rect.PtInRect(CPoint(point));
}

// What the plot's clip region shows, grown by some pixels to each side as far as an int goes. In
// a window too small for its axes the plot is inverted, and the region is its mirror image.
TRect ReachOf(CRect rect, std::int64_t nBy) noexcept
{
    rect.NormalizeRect();
    const auto cut = [](std::int64_t value) {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
    };
    return {cut(rect.left - nBy), cut(rect.top - nBy), cut(rect.right + nBy), cut(rect.bottom + nBy)};
}

// Joined lines are drawn at once; a pen with a pattern has to begin it anew at each line.
void DrawPolyline(CDCEx* pDC, std::span<const TPoint> points, bool bJoin)
{
    if (bJoin) {
        pDC->Polyline(AsPoints(points), static_cast<int>(points.size()));
        return;
    }
    pDC->MoveTo(CPoint(points.front()));
    for (const TPoint point : points.subspan(1))
        pDC->LineTo(CPoint(point));
}

void DrawDot(CDCEx* pDC, const TRect& reach, TPoint center, int nRadius)
{
    if (center.x < reach.left || center.x > reach.right || center.y < reach.top ||
        center.y > reach.bottom)
        return;
    pDC->Ellipse(Wrap::Subtract(center.x, nRadius), Wrap::Subtract(center.y, nRadius),
                 Wrap::Add(center.x, nRadius), Wrap::Add(center.y, nRadius));
}

// Appends to a chain of points, keeping of a stretch on one outer side of the plot its two
// ends alone: nothing inside the plot changes by what is left out.
class CChain
{
public:
    CChain(std::vector<TPoint>& points, const TRect& reach)
        : m_points(points), m_reach(reach), m_nFirst(points.size())
    {
    }

    void Append(TPoint point)
    {
        const std::size_t nSize = m_points.size();
        if (nSize > m_nFirst && m_points[nSize - 1] == point)
            return;
        if (nSize >= m_nFirst + 2 && SameSide(m_points[nSize - 2], m_points[nSize - 1], point))
            m_points[nSize - 1] = point;
        else
            m_points.push_back(point);
    }

private:
    [[nodiscard]] bool SameSide(TPoint a, TPoint b, TPoint c) const noexcept
    {
        return (a.x < m_reach.left && b.x < m_reach.left && c.x < m_reach.left) ||
               (a.x > m_reach.right && b.x > m_reach.right && c.x > m_reach.right);
    }

    std::vector<TPoint>& m_points;
    TRect m_reach;
    std::size_t m_nFirst;
};

// What the fill changes on a canvas, put back at the end.
class CFillMode
{
public:
    CFillMode(CDCEx* pDC, bool bTransparent)
        : m_pDC(pDC), m_nOldBack(pDC->SetBkMode(bTransparent ? TRANSPARENT : OPAQUE)),
          m_nOldRaster(bTransparent ? pDC->SetROP2(R2_NOTXORPEN) : R2_COPYPEN)
    {
    }
    CFillMode(const CFillMode&) = delete;
    CFillMode& operator=(const CFillMode&) = delete;
    ~CFillMode()
    {
        m_pDC->SetBkMode(m_nOldBack);
        m_pDC->SetROP2(m_nOldRaster);
    }

private:
    CDCEx* m_pDC;
    int m_nOldBack;
    int m_nOldRaster;
};

} // namespace

// Beyond this a pen or a dot covers the plot in any case, while the platform's cost grows on.
int CXGraphDataSerie::LineSize() const noexcept
{
    constexpr int nLargest = 32767;
    return std::clamp(m_nLineSize, -nLargest, nLargest);
}

// Pixels by which a stroke reaches beyond the points: the radius of a dot and half the pen's
// width, with room to spare.
int CXGraphDataSerie::PenReach() const noexcept
{
    return 2 * std::abs(LineSize()) + 2;
}

void CXGraphDataSerie::Draw(CDCEx* pDC)
{
    m_Segments.clear();
    if (!m_pGraph || Points().empty())
        return;
    const COLORREF crLine = pDC->m_bMono ? Black : m_bSelected ? m_crColor ^ 0xFFFFFF : m_crColor;
    const CPenSelector pen(crLine, LineSize(), pDC, AxisPainting::PenStyle(m_nLineStyle));
    CRoomyList polygon(m_pGraph, &TFrameRoom::polygon);
    DrawShape(pDC, *polygon);
    if (m_bFillBeneath)
        DrawFill(pDC, *polygon);
}

void CXGraphDataSerie::DrawShape(CDCEx* pDC, std::vector<TPoint>& polygon)
{
    CXGraphAxis& xAxis = PlotHost::XAxis(*m_pGraph, m_nXAxis);
    CXGraphAxis& yAxis = PlotHost::YAxis(*m_pGraph, m_nYAxis);
    xAxis.m_fRange = xAxis.m_fCurMax - xAxis.m_fCurMin;
    yAxis.m_fRange = yAxis.m_fCurMax - yAxis.m_fCurMin;
    const AxisMapping::CMapper x(xAxis.GetScale());
    const AxisMapping::CMapper y(yAxis.GetScale());
    const ColumnWalk::TCurve curve{Points(), x, y, IsAscending()};

    const CRect plot = PlotHost::InnerRect(*m_pGraph);
    const TRect reach = ReachOf(plot, PenReach());
    const bool bJoin = m_nLineStyle == PS_SOLID;
    CRoomyList room(m_pGraph, &TFrameRoom::line);
    CPolylineBatches lines(reach, *room,
                           [&](std::span<const TPoint> points) { DrawPolyline(pDC, points, bJoin); });
    CChain chain(polygon, reach);

    if (m_bFillBeneath) {
        polygon.reserve(lines.UsualPoints);
        chain.Append(curve.PixelAt(0));
    }
    if (m_nType == gtScatter)
        DrawDot(pDC, reach, curve.PixelAt(0), LineSize());
    const auto ends = WalkVisibleSegments(curve, {reach.left, reach.right}, [&](TPoint from, TPoint to) {
        if (IsInside(plot, from) || IsInside(plot, to))
            m_Segments.push_back({from, to});
        if (m_nType == gtLine)
            lines.Add(from, to);
        else if (m_nType == gtScatter)
            DrawDot(pDC, reach, to, LineSize());
        if (m_bFillBeneath) {
            chain.Append(from);
            chain.Append(to);
        }
    });
    lines.Flush();
    if (!m_bFillBeneath)
        return;
    chain.Append(ends.ptLast);
    if (m_nFillCurve == FillToBottom) {
        polygon.push_back({ends.ptLast.x, static_cast<std::int32_t>(plot.bottom)});
        polygon.push_back({ends.ptFirst.x, static_cast<std::int32_t>(plot.bottom)});
    } else {
        AppendPartner(polygon, PenReach());
    }
}

// The partner's points from the last to the first, none of them skipped for its column.
void CXGraphDataSerie::AppendPartner(std::vector<TPoint>& polygon, int nReach) const
{
    const CXGraphDataSerie& partner = PlotHost::Curve(*m_pGraph, static_cast<short>(m_nFillCurve));
    const AxisMapping::CMapper x(PlotHost::XAxis(*m_pGraph, partner.m_nXAxis).GetScale());
    const AxisMapping::CMapper y(PlotHost::YAxis(*m_pGraph, partner.m_nYAxis).GetScale());
    const std::span<const TDataPoint> points = partner.Points();
    CChain chain(polygon, ReachOf(PlotHost::InnerRect(*m_pGraph), nReach));
    for (std::size_t i = points.size(); i-- > 0;)
        chain.Append({x.Pixel(points[i].fXVal), y.Pixel(points[i].fYVal)});
}

void CXGraphDataSerie::DrawFill(CDCEx* pDC, std::vector<TPoint>& polygon)
{
    const CFillMode mode(pDC, m_bFillTransparent);
    const CPenSelector pen(Black, 0, pDC, PS_NULL);
    const COLORREF crFill = pDC->m_bMono ? Black : m_crFillColor;
    std::optional<CBrushSelector> brush;
    if (m_nFillStyle == SolidFill)
        brush.emplace(crFill, pDC);
    else if (CBrushSelector::IsHatch(m_nFillStyle))
        brush.emplace(m_nFillStyle, crFill, pDC);
    else
        return; // no such pattern
    pDC->Polygon(AsPoints(polygon), static_cast<int>(polygon.size()));
}

void CXGraphDataSerie::DrawMarkers(CDCEx* pDC)
{
    if (!m_pGraph || Points().empty())
        return;
    CXGraphAxis& xAxis = PlotHost::XAxis(*m_pGraph, m_nXAxis);
    CXGraphAxis& yAxis = PlotHost::YAxis(*m_pGraph, m_nYAxis);
    const AxisMapping::CMapper x(xAxis.GetScale());
    const AxisMapping::CMapper y(yAxis.GetScale());
    const CRect plot = PlotHost::InnerRect(*m_pGraph);

    // In 64 bits: the smallest width over a size of -1 has no quotient in 32.
    const std::int64_t nRoom = m_nMarkerSize == 0 ? 0 : std::int64_t{plot.Width()} / m_nMarkerSize / 4;
    std::int64_t nStep = nRoom > 0 ? m_nCount / nRoom : 2;
    if (nStep < 1)
        nStep = 2;
    if (PlotHost::Operation(*m_pGraph) == opEditCurve)
        nStep = 1;

    const int nKey = m_nMarkerType != 0 ? m_nMarker : PlotHost::CurveIndex(*m_pGraph, *this);
    const COLORREF crKey = pDC->m_bMono ? Black : m_crColor;
    const std::int64_t nSize =
        m_nMarkerSize < 0 ? -static_cast<std::int64_t>(m_nMarkerSize) : m_nMarkerSize;
    const TRect reach = ReachOf(plot, nSize + 2);
    CCurveKeys keys(pDC, m_nMarkerSize);
    std::optional<CPoint> last;
    for (std::int64_t i = 0; i < m_nCount; i += nStep) {
        const TDataPoint& point = m_pData[i];
        const CPoint corner(Wrap::Subtract(x.Pixel(point.fXVal), m_nMarkerSize / 2),
                            Wrap::Subtract(y.Pixel(point.fYVal), m_nMarkerSize / 2));
        // A key over itself changes nothing, one outside shows nothing.
        if ((last && *last == corner) || corner.x < reach.left || corner.x > reach.right ||
            corner.y < reach.top || corner.y > reach.bottom)
            continue;
        keys.Draw(corner, nKey, crKey, m_nMarkerType == 1);
        last = corner;
    }
}
