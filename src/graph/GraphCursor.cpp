// The cursor's place in the data, as a host asks for it and sets it.

#include "graph/PointSearch.h"
#include "graph/XGraph.h"

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

void CXGraph::BringIntoView(CXGraphAxis& axis, double fValue) const
{
    const bool smooth = (m_nCursorFlags & XGC_ADJUSTSMOOTH) != 0;
    if (!smooth && fValue >= axis.m_fCurMin && fValue <= axis.m_fCurMax)
        return;
    const double half = (axis.m_fCurMax - axis.m_fCurMin) * 0.5;
    axis.SetCurrentRange(fValue - half, fValue + half, 0.0);
}
