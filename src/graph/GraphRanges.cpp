// Steps back in the zoom, pan, the wheel and the keys. Only visible ranges change.

#include "graph/XGraph.h"

namespace
{
constexpr double WheelSteps = 10.0; // the wheel moves by this part of what is visible
constexpr double KeySteps = 10.0;   // and a key by this part of the span that was mapped last

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

void CXGraph::ZoomBack()
{
    for (CXGraphAxis& axis : m_YAxes)
        UndoZoom(axis);
    for (CXGraphAxis& axis : m_XAxes)
        UndoZoom(axis);
    Notify(XG_ZOOMCHANGE, 0);
    m_ZoomBand.Clear();
    Invalidate();
}

void CXGraph::ResetZoom()
{
    m_CursorLabel.m_bVisible = false;
    ResetRanges(m_YAxes);
    ResetRanges(m_XAxes);
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

void CXGraph::ShiftRanges(CCheckedVector<CXGraphAxis>& axes, double lowSteps, double highSteps)
{
    for (CXGraphAxis& axis : axes) {
        const double step = axis.m_fRange / KeySteps;
        axis.SetCurrentRange(axis.m_fCurMin + lowSteps * step, axis.m_fCurMax + highSteps * step, 0.0);
    }
}

void CXGraph::ResetRanges(CCheckedVector<CXGraphAxis>& axes)
{
    for (CXGraphAxis& axis : axes)
        axis.ResetRange();
}
