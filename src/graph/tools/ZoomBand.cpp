#include "graph/tools/ZoomBand.h"

#include "draw/DCEx.h"
#include "draw/Selectors.h"
#include "graph/FrameLayout.h"
#include "graph/XGraph.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr int SmallestBand = 15; // pixels each way; below it a rubber band is dropped
constexpr COLORREF BandColor = 0xFF9696;

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
} // namespace

void CZoomBand::Clear()
{
    m_rcZoom.SetRectEmpty();
}

void CZoomBand::Follow()
{
    m_rcZoom = Band();
}

CRect CZoomBand::Band() const
{
    return FrameLayout::Band(m_Graph.m_ptLButtonDown, m_Graph.m_ptCurrent, m_Graph.m_rcInner);
}

void CZoomBand::DrawZoomRect(CDCEx* pDC)
{
    const CRect rcBand = Band();
    if (!m_Graph.m_bDoubleBuffer && !m_rcZoom.IsRectEmpty())
        pDC->DrawFocusRect(&m_rcZoom); // the second time erases
    m_rcZoom = rcBand;
    if (m_Graph.m_bDoubleBuffer) {
        const CBrushSelector selectBrush(BandColor, pDC);
        const COLORREF crBack = pDC->SetBkColor(m_Graph.m_crInnerColor);
        const int nMode = pDC->SetROP2(R2_NOTXORPEN);
        pDC->Rectangle(&m_rcZoom);
        pDC->SetBkColor(crBack);
        pDC->SetROP2(nMode);
    }
    pDC->DrawFocusRect(&m_rcZoom);
}

void CZoomBand::ApplyZoomRect()
{
    if (m_rcZoom.Width() < SmallestBand || m_rcZoom.Height() < SmallestBand)
        return;
    for (CXGraphAxis& axis : m_Graph.m_YAxes)
        ZoomAxis(axis, std::min(m_rcZoom.bottom, m_Graph.m_rcInner.bottom),
                 std::max(m_rcZoom.top, m_Graph.m_rcInner.top));
    for (CXGraphAxis& axis : m_Graph.m_XAxes)
        ZoomAxis(axis, std::max(m_rcZoom.left, m_Graph.m_rcInner.left),
                 std::min(m_rcZoom.right, m_Graph.m_rcInner.right));
    m_Graph.Notify(XG_ZOOMCHANGE, 0);
    m_rcZoom.SetRectEmpty();
}
