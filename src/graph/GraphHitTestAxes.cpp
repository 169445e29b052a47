#include "base/Wrap.h"
#include "graph/AxisClick.h"
#include "graph/DragState.h"
#include "graph/GraphHitTest.h"
#include "graph/XGraph.h"

namespace
{
constexpr int BandHalf = 10; // pixels to each side of a marker

int YPosition(CPoint point)
{
    return point.y;
}

int XPosition(CPoint point)
{
    return point.x;
}

CRect YBand(const CRect& inner, CPoint marker)
{
    return CRect(inner.left, Wrap::Subtract(marker.y, BandHalf), inner.right,
                 Wrap::Add(marker.y, BandHalf));
}

CRect XBand(const CRect& inner, CPoint marker)
{
    return CRect(Wrap::Subtract(marker.x, BandHalf), inner.top, Wrap::Add(marker.x, BandHalf),
                 inner.bottom);
}
} // namespace

const TAxisClick YAxisClick{&CXGraph::m_YAxes, &TDragState::nYMarker, &TDragState::rcYBand, YBand,
                            YPosition,         XG_YAXISCLICK,         XG_YAXISDBLCLICK,     true};
const TAxisClick XAxisClick{&CXGraph::m_XAxes, &TDragState::nXMarker, &TDragState::rcXBand, XBand,
                            XPosition,         XG_XAXISCLICK,         XG_XAXISDBLCLICK,     false};

bool CGraphHitTest::TestAxes(const TAxisClick& kind)
{
    auto& axes = m_Graph.*kind.pAxes;
    // By index, and the count read anew: a host may change the list while a property sheet is open.
    for (std::size_t nAxis = 0; nAxis < axes.size(); ++nAxis) {
        if (m_Graph.m_opOperation == opNone && TestAxisMarkers(axes[nAxis], kind))
            return true;
        if (!m_bCheckOnly)
            ClickAxis(nAxis, kind);
        else if (axes[nAxis].m_rcObject.PtInRect(m_Point))
            return true;
    }
    return false;
}

bool CGraphHitTest::TestAxisMarkers(CXGraphAxis& axis, const TAxisClick& kind)
{
    for (std::size_t nMarker = 0; nMarker < axis.m_AxisMarkers.size(); ++nMarker) {
        if (DragState().*kind.pDragged == -1) {
            const double value = axis.m_AxisMarkers[nMarker].fValue;
            DragState().*kind.pBand =
                kind.pfnBand(m_Graph.m_rcInner, axis.GetPointForValue(TDataPoint{value, value}));
        }
        if (m_bCheckOnly && !m_Graph.m_bLButtonDown) {
            if ((DragState().*kind.pBand).PtInRect(m_Point))
                return true;
            continue;
        }
        DragAxisMarker(axis, nMarker, kind);
    }
    return false;
}

void CGraphHitTest::DragAxisMarker(CXGraphAxis& axis, std::size_t nMarker, const TAxisClick& kind)
{
    int& dragged = DragState().*kind.pDragged;
    const bool inBand = (DragState().*kind.pBand).PtInRect(m_Point) != FALSE;
    if (m_Graph.m_bRButtonDown && inBand) {
        axis.DeleteAxisMarker(static_cast<int>(nMarker));
        m_Graph.Invalidate();
    } else if (m_Graph.m_bLButtonDown && dragged == -1 && inBand) {
        dragged = static_cast<int>(nMarker);
    }
    if (!m_Graph.m_bLButtonDown)
        dragged = -1;
    if (dragged != -1) {
        axis.m_AxisMarkers[static_cast<std::size_t>(dragged)].fValue =
            axis.GetValueForPos(kind.pfnPosition(m_Point));
        m_Graph.Invalidate();
    }
}

void CGraphHitTest::ClickAxis(std::size_t nAxis, const TAxisClick& kind)
{
    CXGraphAxis& axis = (m_Graph.*kind.pAxes)[nAxis];
    const bool inside = axis.m_rcObject.PtInRect(m_Point) != FALSE;
    if (m_Graph.m_opOperation == opNone && axis.m_bSelected && !inside)
        axis.SetAxisMarker(static_cast<int>(axis.m_AxisMarkers.size()),
                           axis.GetValueForPos(kind.pfnPosition(m_Point)), 0, 0);
    axis.m_bSelected = inside;
    if (!inside)
        return;

    // A Y axis reports its click in any case, an X axis only where nothing else took it.
    if (kind.bAlwaysPosts || !m_bHandled) {
        m_bHandled = true;
        m_Graph.Notify(m_bDblClick ? kind.nDblClick : kind.nClick, nAxis);
    }
    if (m_bDblClick && m_Graph.m_bInteraction)
        m_Graph.OpenSheet(&axis, nullptr);
}
