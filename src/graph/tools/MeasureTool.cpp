#include "graph/tools/MeasureTool.h"

#include "draw/DCEx.h"
#include "draw/KeptFonts.h"
#include "draw/Selectors.h"
#include "graph/PointSearch.h"
#include "graph/XGraph.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace
{
constexpr COLORREF GuideColor = 0xC8C8C8;
constexpr COLORREF ElbowColor = 0x0000FF;
constexpr int ArrowSize = 6;
constexpr int SmallestSpan = 7; // below it an arrow points across
constexpr long long FarAway = 10000000;

// A point may have any pixel; an arrow beyond this is not seen, and its corners stay sums.
LONG Reachable(LONG pixel)
{
    constexpr LONG farthest = 1 << 26;
    return std::clamp(pixel, -farthest, farthest);
}

long long Distance(int from, int to)
{
    return std::llabs(static_cast<long long>(to) - from);
}
} // namespace

void CMeasureTool::FindNearestPoint(CPoint& point)
{
    long long best = FarAway;
    int nearest = point.y;
    const int count = static_cast<int>(m_Graph.m_Curves.size());
    for (int nCurve = 0; nCurve < count; ++nCurve) {
        CXGraphDataSerie& curve = m_Graph.CurveAt(nCurve);
        const double x = PointSearch::ValueAtColumn(m_Graph, nCurve, point.x);
        const int index = PointSearch::Index(m_Graph, nCurve, x);
        if (index < 0)
            continue;
        const int y = m_Graph.YAxisOf(curve).GetPointForValue(curve.m_pData[index]).y;
        if (Distance(point.y, y) >= best)
            continue;
        best = Distance(point.y, y);
        nearest = y;
        if (point == m_Graph.m_ptLButtonDown) {
            m_Graph.m_nCursorCurve = nCurve;
            m_LiveMeasure.nCurve1 = nCurve;
            m_LiveMeasure.nIndex1 = index;
        } else {
            m_nMeasureCurve2 = nCurve;
            m_LiveMeasure.nCurve2 = nCurve;
            m_LiveMeasure.nIndex2 = index;
        }
    }
    point.y = nearest;
}

void CMeasureTool::Clear()
{
    m_rcMeasure.SetRectEmpty();
}

void CMeasureTool::Keep()
{
    m_Graph.m_Measures.push_back(m_LiveMeasure);
}

void CMeasureTool::DrawLive(CDCEx* pDC)
{
    CRect rcLive(0, 0, 0, 0);
    DrawMeasure(pDC, rcLive);
}

void CMeasureTool::DrawMeasures(CDCEx* pDC)
{
    // By value and index: a stored span names its ends by numbers that may be stale.
    for (std::size_t k = 0; k < m_Graph.m_Measures.size(); ++k) {
        const TMeasureSpan span = m_Graph.m_Measures[k];
        const CPoint from = PointOfCurve(span.nCurve1, span.nIndex1);
        const CPoint to = PointOfCurve(span.nCurve2, span.nIndex2);
        CRect rc(from.x, from.y, to.x, to.y);
        DrawMeasure(pDC, rc);
    }
}

CPoint CMeasureTool::PointOfCurve(int nCurve, int nIndex)
{
    CXGraphDataSerie& curve = m_Graph.CurveAt(nCurve);
    if (curve.m_nCount < 1)
        return {m_Graph.m_rcInner.left, m_Graph.m_rcInner.bottom};
    const TDataPoint& point = curve.m_pData[std::clamp(nIndex, 0, curve.m_nCount - 1)];
    return {m_Graph.XAxisOf(curve).GetPointForValue(point).x,
            m_Graph.YAxisOf(curve).GetPointForValue(point).y};
}

void CMeasureTool::DrawMeasure(CDCEx* pDC, CRect& rc)
{
    const CArialSelector selectFont(-11, FW_BOLD, pDC, true);
    const COLORREF background = pDC->SetBkColor(m_Graph.m_crInnerColor);
    if (rc.IsRectEmpty() && m_Graph.m_opOperation == opMeasure)
        rc = m_rcMeasure = LiveMeasureRect();

    DrawMeasureLines(pDC, rc);
    DrawMeasureArrows(pDC, rc);
    pDC->SetBkMode(TRANSPARENT); // to the end of the frame
    DrawMeasureTexts(pDC, rc);
    pDC->SetBkColor(background);
}

CRect CMeasureTool::LiveMeasureRect() const
{
    return CRect(std::max(m_Graph.m_ptLButtonDown.x, m_Graph.m_rcInner.left),
                 std::max(m_Graph.m_ptLButtonDown.y, m_Graph.m_rcInner.top),
                 std::min(m_Graph.m_ptCurrent.x, m_Graph.m_rcInner.right),
                 std::min(m_Graph.m_ptCurrent.y, m_Graph.m_rcInner.bottom));
}

void CMeasureTool::DrawMeasureLines(CDCEx* pDC, const CRect& rc)
{
    {
        CPenSelector pen(GuideColor, 1, pDC, PS_DOT);
        pDC->MoveTo(m_Graph.m_rcInner.left, rc.top);
        pDC->LineTo(m_Graph.m_rcInner.right, rc.top);
        pDC->MoveTo(rc.right, m_Graph.m_rcInner.top);
        pDC->LineTo(rc.right, m_Graph.m_rcInner.bottom);
    }
    CPenSelector pen(ElbowColor, 1, pDC, PS_DOT);
    pDC->MoveTo(rc.left, rc.top);
    pDC->LineTo(rc.right, rc.top);
    pDC->LineTo(rc.right, rc.bottom);
}

void CMeasureTool::DrawMeasureArrows(CDCEx* pDC, const CRect& rc)
{
    const LONG left = Reachable(rc.left);
    const LONG top = Reachable(rc.top);
    const LONG right = Reachable(rc.right);
    const LONG bottom = Reachable(rc.bottom);
    if (Distance(rc.left, rc.right) < SmallestSpan)
        DrawTriangleUp(CPoint(right - 3, top + 3), ArrowSize, ElbowColor, false, pDC);
    else
        DrawTriangleLeft(CPoint(left, top - 3), ArrowSize, ElbowColor, false, pDC);
    if (Distance(rc.top, rc.bottom) < SmallestSpan)
        DrawTriangleRight(CPoint(right - 6, bottom - 6), ArrowSize, ElbowColor, false, pDC);
    else
        DrawTriangleDown(CPoint(right - 3, bottom - 6), ArrowSize, ElbowColor, false, pDC);
}

// Placed by the span's own ends, but read off the curves of the latest drag.
void CMeasureTool::DrawMeasureTexts(CDCEx* pDC, CRect rc)
{
    const CXGraphDataSerie& first = m_Graph.CurveAt(m_Graph.m_nCursorCurve);
    const CXGraphDataSerie& second = m_Graph.CurveAt(m_nMeasureCurve2);
    const double fromX = m_Graph.XAxisOf(first).GetValueForPos(rc.left);
    const double toX = m_Graph.XAxisOf(second).GetValueForPos(rc.right);
    const CString textX = m_Graph.XAxisOf(first).FormatValue(toX - fromX);
    if (Distance(rc.left, rc.right) > pDC->GetTextExtent(textX).cx)
        pDC->DrawText(textX, &rc, DT_CENTER | DT_SINGLELINE | DT_NOCLIP);

    const double fromY = PointSearch::Y(m_Graph, m_Graph.m_nCursorCurve, fromX);
    const double toY = PointSearch::Y(m_Graph, m_nMeasureCurve2, toX);
    const CXGraphAxis& axis = m_Graph.YAxisOf(first);
    const CString textY =
        AfxFormatNumber(axis.m_cDisplayFmt, std::fabs(toY - fromY)) + L" " + axis.m_cLabel;
    if (Distance(rc.top, rc.bottom) > pDC->GetTextExtent(textY).cy)
        pDC->DrawText(textY, &rc, DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
}
