#include "graph/HitTest.h"

#include "framework/windowing/ModuleState.h"
#include "graph/AxisClick.h"
#include "graph/DragState.h"
#include "graph/PointSearch.h"
#include "graph/WrapArithmetic.h"
#include "graph/XGraph.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int HitWidth = 4; // of a curve's line, in pixels
}

bool CXGraph::HitTest(bool bDblClick, bool bCheckOnly)
{
    // A sheet that opens finds its resources through the module's state.
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return m_bInteraction && CGraphHitTest(*this, bDblClick, bCheckOnly).Run();
}

CGraphHitTest::CGraphHitTest(CXGraph& graph, bool bDblClick, bool bCheckOnly)
    : m_Graph(graph), m_Point(graph.m_ptCurrent), m_bDblClick(bDblClick), m_bCheckOnly(bCheckOnly)
{
}

bool CGraphHitTest::Run()
{
    if (TestAxes(YAxisClick) || TestAxes(XAxisClick) || TestObjects() || TestCurves())
        return true;
    DragPoint();
    return !m_bHandled && TestLegend();
}

bool CGraphHitTest::TestObjects()
{
    if (!m_bCheckOnly) {
        ClickObjects();
        return false;
    }
    for (POSITION place = m_Graph.m_Objects.GetHeadPosition(); place != nullptr;) {
        const auto* object = static_cast<CXGraphObject*>(m_Graph.m_Objects.GetNext(place));
        if (object->m_bVisible && object->m_rcObject.PtInRect(m_Point))
            return true;
    }
    return false;
}

void CGraphHitTest::ClickObjects()
{
    for (const TObjectRef& entry : m_Graph.ListObjects()) {
        // An editor that opens or closes tells the host, which may have removed this one.
        if (!m_Graph.Owns(entry))
            continue;
        CXGraphObject* object = entry.pObject;
        object->m_bSelected = object->m_bVisible && object->m_rcObject.PtInRect(m_Point);
        if (object->m_bSelected) {
            if (m_bDblClick) {
                m_bHandled = true;
                m_bContinue = false;
                object->BeginEdit();
                if (!m_Graph.Owns(entry))
                    continue;
            }
            if (!object->m_bEditing && m_Graph.m_pTracker == nullptr) {
                m_bHandled = true;
                m_bContinue = false;
                object->BeginSize();
                m_Graph.m_pTracker = &object->m_Tracker;
            }
            continue;
        }
        if (object->m_bEditing)
            object->EndEdit();
        if (m_Graph.Owns(entry) && object->m_bSizing) {
            m_Graph.m_pTracker = nullptr;
            object->EndSize();
        }
    }
}

bool CGraphHitTest::TestCurves()
{
    if (!m_bCheckOnly)
        m_Graph.m_nSelectedCurve = -1;
    if (!m_Graph.m_bLButtonDown) {
        DragState().nCurve = -1;
        DragState().nPoint = -1;
    }
    for (std::size_t nCurve = 0; nCurve < m_Graph.m_Curves.size(); ++nCurve) {
        CXGraphDataSerie& curve = m_Graph.m_Curves[nCurve];
        if (!curve.m_bVisible)
            continue;
        if (!m_bCheckOnly)
            curve.m_bSelected = false;
        if (!m_bContinue || m_bHandled || !curve.HitTestCurve(m_Point, HitWidth))
            continue;
        if (m_bCheckOnly)
            return true;
        ClickCurve(nCurve);
    }
    return false;
}

void CGraphHitTest::ClickCurve(std::size_t nCurve)
{
    m_Graph.Notify(m_bDblClick ? XG_CURVEDBLCLICK : XG_CURVECLICK, nCurve);
    m_Graph.m_nSelectedCurve = static_cast<int>(nCurve);
    if (DragState().nPoint == -1)
        GrabPoint(nCurve);
    CXGraphDataSerie& curve = m_Graph.m_Curves[nCurve];
    curve.m_bSelected = true;
    m_bHandled = true;
    if (m_bDblClick && m_Graph.m_bInteraction)
        m_Graph.OpenSheet(nullptr, &curve);
}

void CGraphHitTest::GrabPoint(std::size_t nCurve)
{
    CXGraphDataSerie& curve = m_Graph.m_Curves[nCurve];
    CXGraphAxis& axis = m_Graph.m_XAxes[static_cast<std::size_t>(curve.m_nXAxis)];
    const double x = axis.GetValueForPos(WrapSubtract(m_Point.x, curve.m_nMarkerSize / 2));
    DragState().nCurve = static_cast<int>(nCurve);
    DragState().nPoint = PointSearch::Index(m_Graph, static_cast<int>(nCurve), x);
}

void CGraphHitTest::DragPoint()
{
    m_Graph.m_bPointDragged = false;
    const TDragState& drag = DragState();
    if (!m_Graph.m_bLButtonDown || drag.nPoint == -1 || m_Graph.m_opOperation != opEditCurve)
        return;
    // Since it was taken hold of, the curve may have gone or been given fewer points.
    if (std::cmp_greater_equal(drag.nCurve, m_Graph.m_Curves.size()))
        return;
    CXGraphDataSerie& curve = m_Graph.m_Curves[static_cast<std::size_t>(drag.nCurve)];
    const int nPoint = std::min(drag.nPoint, curve.m_nCount - 1);
    if (nPoint < 0)
        return;
    double& y = curve.m_pData[nPoint].fYVal;
    const double newY =
        m_Graph.m_YAxes[static_cast<std::size_t>(curve.m_nYAxis)].GetValueForPos(m_Point.y);
    PointChange() = TPointChange{drag.nCurve, nPoint, y, newY};
    m_Graph.Notify(XG_POINTCHANGED,
                   static_cast<WPARAM>(static_cast<LONG>(reinterpret_cast<LONG_PTR>(&PointChange()))));
    y = newY;
    m_Graph.m_fEditValue = newY;
    m_Graph.m_bPointDragged = true;
    m_Graph.Invalidate();
}

bool CGraphHitTest::TestLegend()
{
    int nRow = -1;
    for (std::size_t k = 0; k < m_Graph.m_LegendEntries.size(); ++k) {
        const TLegendEntry& entry = m_Graph.m_LegendEntries[k];
        const bool inside = entry.rcRow.PtInRect(m_Point) != FALSE;
        if (inside && m_bCheckOnly)
            return true;
        // The rows are those of the last frame: a curve that has gone since is left alone.
        if (m_Graph.GetCurveIndex(entry.pCurve) != -1)
            entry.pCurve->m_bSelected = inside;
        if (inside) {
            nRow = static_cast<int>(k);
            break;
        }
    }
    if (m_bDblClick && m_Graph.m_bInteraction)
        DoubleClickLegend(nRow);
    return false;
}

void CGraphHitTest::DoubleClickLegend(int nRow)
{
    if (nRow == -1) {
        m_Graph.Notify(XG_GRAPHDBLCLICK, 0);
        m_Graph.OpenSheet(nullptr, nullptr);
        return;
    }
    // The row may be one of a frame from before a curve went.
    if (std::cmp_greater_equal(nRow, m_Graph.m_Curves.size()))
        return;
    m_Graph.m_nSelectedCurve = nRow;
    m_Graph.OpenSheet(nullptr, &m_Graph.m_Curves[static_cast<std::size_t>(nRow)]);
}
