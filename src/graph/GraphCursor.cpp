// The crosshair: it snaps in y to a curve and reports what it sits on.

#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "graph/CursorText.h"
#include "graph/PointSearch.h"
#include "graph/XGraph.h"

#include <algorithm>
#include <cstdlib>

namespace
{
const CPoint Nowhere(-1, -1);

// A forced snap may put the cursor at any pixel that a value maps to; from here on nothing of its
// box could be seen, and sums of pixels stay sums.
constexpr int FarthestPixel = 1 << 24;
constexpr int LargestHalf = 1 << 20;

void DrawBox(CDCEx* pDC, CPoint point, int half)
{
    const int x = std::clamp<int>(point.x, -FarthestPixel, FarthestPixel);
    const int y = std::clamp<int>(point.y, -FarthestPixel, FarthestPixel);
    half = std::clamp(half, -LargestHalf, LargestHalf);
    pDC->Rectangle(x - half, y - half, x + half + 1, y + half + 1);
}

} // namespace

void CXGraph::DrawCursor(CDCEx* pDC)
{
    SnapCursor();
    CPenSelector pen(0, 1, pDC, PS_SOLID);
    // Drawn twice, the same figure leaves nothing.
    const int mode = pDC->SetROP2(R2_NOTXORPEN);
    if (m_ptLastCursor != Nowhere)
        DrawCursorFigure(pDC, m_ptLastCursor);
    DrawCursorFigure(pDC, m_ptCurrent);
    m_ptLastCursor = m_ptCurrent;
    pDC->SetROP2(mode);
    if ((m_nCursorFlags & XGC_LEGEND) != 0)
        DrawCursorLegend(pDC);
}

void CXGraph::SnapCursor()
{
    m_nCursorCurve = -1;
    if (m_nForcedSnapCurve != -1) {
        m_nCursorCurve = m_nForcedSnapCurve;
        m_ptCurrent.y = ReadCursor(m_nForcedSnapCurve);
        return;
    }
    if (!m_bSnapCursor)
        return;
    const int count = static_cast<int>(m_Curves.size());
    for (int nCurve = 0; nCurve < count; ++nCurve) {
        const int y = ReadCursor(nCurve);
        // In 64 bits, since a value far outside the plot may have any pixel.
        if (std::llabs(static_cast<long long>(m_ptCurrent.y) - y) < m_nSnapRange) {
            m_nCursorCurve = nCurve;
            m_ptCurrent.y = y;
            return;
        }
    }
}

int CXGraph::ReadCursor(int nCurve)
{
    CXGraphDataSerie& curve = CurveAt(nCurve);
    m_fCursorX = PointSearch::ValueAtColumn(*this, nCurve, m_ptCurrent.x);
    m_fCursorY = PointSearch::Y(*this, nCurve, m_fCursorX);
    return YAxisOf(curve).GetPointForValue(TDataPoint{m_fCursorX, m_fCursorY}).y;
}

void CXGraph::DrawCursorFigure(CDCEx* pDC, CPoint point)
{
    if ((m_nCursorFlags & XGC_VERT) != 0) {
        pDC->MoveTo(point.x, m_rcInner.top);
        pDC->LineTo(point.x, m_rcInner.bottom);
    }
    if ((m_nCursorFlags & XGC_HORIZ) != 0) {
        pDC->MoveTo(m_rcInner.left, point.y);
        pDC->LineTo(m_rcInner.right, point.y);
    }
    DrawBox(pDC, point, m_nSnapRange / 2);
}

void CXGraph::DrawCursorLegend(CDCEx* pDC)
{
    m_CursorLabel.m_bVisible = true;
    CString text;
    int number = 0;
    for (CXGraphAxis& axis : m_XAxes)
        text += CursorText::XAxisLine(++number, axis, axis.GetValueForPos(m_ptCurrent.x));
    number = 0;
    for (CXGraphAxis& axis : m_YAxes)
        text += CursorText::YAxisLine(++number, axis, axis.GetValueForPos(m_ptCurrent.y));
    if (m_nCursorCurve != -1) {
        const CXGraphDataSerie& curve = CurveAt(m_nCursorCurve);
        text += CursorText::CurveLine(curve.m_cLabel, m_nCursorCurve + 1, XAxisOf(curve), m_fCursorX,
                                      YAxisOf(curve), m_fCursorY);
    }
    m_CursorLabel.m_cText = text;
    m_CursorLabel.Draw(pDC);
}

TDataPoint CXGraph::GetCursorAbsolute(int nCurve)
{
    const double x = PointSearch::ValueAtColumn(*this, nCurve, m_ptCurrent.x);
    return {x, PointSearch::Y(*this, nCurve, x)};
}

void CXGraph::SetCursorAbsolute(int nCurve, TDataPoint point, bool bForceVisible)
{
    CXGraphDataSerie& curve = CurveAt(nCurve);
    CXGraphAxis& xAxis = XAxisOf(curve);
    CXGraphAxis& yAxis = YAxisOf(curve);
    m_ptCurrent = xAxis.GetPointForValue(point);
    point.fYVal = PointSearch::Y(*this, nCurve, point.fXVal);
    if (bForceVisible) {
        BringIntoView(xAxis, point.fXVal);
        BringIntoView(yAxis, point.fYVal);
    }
    Invalidate();
}

void CXGraph::BringIntoView(CXGraphAxis& axis, double value) const
{
    const bool smooth = (m_nCursorFlags & XGC_ADJUSTSMOOTH) != 0;
    if (!smooth && value >= axis.m_fCurMin && value <= axis.m_fCurMax)
        return;
    const double half = (axis.m_fCurMax - axis.m_fCurMin) * 0.5;
    axis.SetCurrentRange(value - half, value + half, 0.0);
}
