#include "graph/GraphHitTest.h"

#include "framework/windowing/ModuleState.h"
#include "graph/AxisClick.h"
#include "graph/DragState.h"
#include "graph/XGraph.h"

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
    m_Graph.m_PointDrag.Drag(m_Point);
    return !m_bHandled && TestLegend();
}

bool CGraphHitTest::TestObjects()
{
    if (!m_bCheckOnly) {
        if (m_Graph.m_ObjectTracker.Click(m_Point, m_bDblClick)) {
            m_bHandled = true;
            m_bContinue = false;
        }
        return false;
    }
    for (POSITION place = m_Graph.m_Objects.GetHeadPosition(); place != nullptr;) {
        const auto* object = static_cast<CXGraphObject*>(m_Graph.m_Objects.GetNext(place));
        if (object->m_bVisible && object->m_rcObject.PtInRect(m_Point))
            return true;
    }
    return false;
}

bool CGraphHitTest::TestCurves()
{
    if (!m_bCheckOnly)
        m_Graph.m_nSelectedCurve = -1;
    if (!m_Graph.m_bLButtonDown)
        m_Graph.m_PointDrag.LetGo();
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
        m_Graph.m_PointDrag.Grab(m_Point, static_cast<int>(nCurve));
    CXGraphDataSerie& curve = m_Graph.m_Curves[nCurve];
    curve.m_bSelected = true;
    m_bHandled = true;
    if (m_bDblClick && m_Graph.m_bInteraction)
        m_Graph.OpenSheet(nullptr, &curve);
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
