// Zoom by a rubber band with a history on each axis, and pan. Only visible ranges change.

#include "graph/XGraph.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr int SmallestBand = 15; // pixels each way; below it a rubber band is dropped
constexpr double WheelSteps = 10.0;

// The span is assigned as it was drawn, without the rules for equal bounds; a span of nothing is
// no zoom and leaves no history. Nor is one that has no bounds, on an axis whose range is beyond
// numbers.
void ZoomAxis(CXGraphAxis& axis, int nLow, int nHigh)
{
    const double low = axis.GetValueForPos(nLow);
    const double high = axis.GetValueForPos(nHigh);
    if (high - low == 0.0 || !std::isfinite(low) || !std::isfinite(high))
        return;
    axis.m_ZoomHistory.push_back({axis.m_fCurMin, axis.m_fCurMax});
    axis.m_fCurMin = low;
    axis.m_fCurMax = high;
    axis.RecalcStep();
}

void UndoZoom(CXGraphAxis& axis)
{
    if (axis.m_ZoomHistory.empty())
        return;
    const TRangeEntry last = axis.m_ZoomHistory.back();
    axis.m_ZoomHistory.pop_back();
    axis.m_fCurMin = last.fMin;
    axis.m_fCurMax = last.fMax;
    axis.RecalcStep();
}

void PanAxis(CXGraphAxis& axis, int nFrom, int nTo)
{
    const double distance = axis.GetValueForPos(nTo) - axis.GetValueForPos(nFrom);
    axis.SetCurrentRange(axis.m_fCurMin - distance, axis.m_fCurMax - distance, 0.0);
}
} // namespace

void CXGraph::ApplyZoomRect()
{
    if (m_rcZoom.Width() < SmallestBand || m_rcZoom.Height() < SmallestBand)
        return;
    for (CXGraphAxis& axis : m_YAxes)
        ZoomAxis(axis, std::min(m_rcZoom.bottom, m_rcInner.bottom),
                 std::max(m_rcZoom.top, m_rcInner.top));
    for (CXGraphAxis& axis : m_XAxes)
        ZoomAxis(axis, std::max(m_rcZoom.left, m_rcInner.left),
                 std::min(m_rcZoom.right, m_rcInner.right));
    Notify(XG_ZOOMCHANGE, 0);
    m_rcZoom.SetRectEmpty();
}

void CXGraph::ZoomBack()
{
    for (CXGraphAxis& axis : m_YAxes)
        UndoZoom(axis);
    for (CXGraphAxis& axis : m_XAxes)
        UndoZoom(axis);
    Notify(XG_ZOOMCHANGE, 0);
    m_rcZoom.SetRectEmpty();
    Invalidate();
}

void CXGraph::ResetZoom()
{
    m_CursorLabel.m_bVisible = false;
    for (CXGraphAxis& axis : m_YAxes)
        axis.ResetRange();
    for (CXGraphAxis& axis : m_XAxes)
        axis.ResetRange();
    Invalidate();
}

int CXGraph::GetZoomDepth() const
{
    return m_XAxes.empty() ? 0 : static_cast<int>(m_XAxes[0].m_ZoomHistory.size());
}

void CXGraph::PanBy(CPoint point)
{
    for (CXGraphAxis& axis : m_YAxes)
        PanAxis(axis, m_ptPan.y, point.y);
    for (CXGraphAxis& axis : m_XAxes)
        PanAxis(axis, m_ptPan.x, point.x);
    m_ptPan = point;
    Invalidate();
}

BOOL CXGraph::OnMouseWheel(UINT nFlags, short zDelta, CPoint)
{
    for (CXGraphAxis& axis : (nFlags & MK_SHIFT) != 0 ? m_YAxes : m_XAxes) {
        axis.m_bAutoScale = false;
        const double step = (axis.m_fCurMax - axis.m_fCurMin) / WheelSteps;
        const double shift = zDelta >= 0 ? step : -step;
        axis.SetCurrentRange(axis.m_fCurMin + shift, axis.m_fCurMax + shift, 0.0);
    }
    Invalidate();
    return TRUE;
}
