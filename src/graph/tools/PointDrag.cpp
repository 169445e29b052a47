#include "graph/tools/PointDrag.h"

#include "base/Wrap.h"
#include "draw/DCEx.h"
#include "draw/KeptFonts.h"
#include "graph/DragState.h"
#include "graph/PointSearch.h"
#include "graph/XGraph.h"

#include <algorithm>
#include <utility>

void CPointDrag::LetGo()
{
    DragState().nCurve = -1;
    DragState().nPoint = -1;
}

void CPointDrag::Grab(CPoint point, int nCurve)
{
    CXGraphDataSerie& curve = m_Graph.m_Curves[nCurve];
    CXGraphAxis& axis = m_Graph.m_XAxes[static_cast<std::size_t>(curve.m_nXAxis)];
    const double x = axis.GetValueForPos(Wrap::Subtract(point.x, curve.m_nMarkerSize / 2));
    DragState().nCurve = nCurve;
    DragState().nPoint = PointSearch::Index(m_Graph, nCurve, x);
}

void CPointDrag::Drag(CPoint point)
{
    m_bPointDragged = false;
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
        m_Graph.m_YAxes[static_cast<std::size_t>(curve.m_nYAxis)].GetValueForPos(point.y);
    PointChange() = TPointChange{drag.nCurve, nPoint, y, newY};
    m_Graph.Notify(XG_POINTCHANGED,
                   static_cast<WPARAM>(static_cast<LONG>(reinterpret_cast<LONG_PTR>(&PointChange()))));
    y = newY;
    m_fEditValue = newY;
    m_bPointDragged = true;
    m_Graph.Invalidate();
}

void CPointDrag::DrawValue(CDCEx* pDC)
{
    constexpr int distance = 10;
    const CArialSelector selectFont(13, FW_NORMAL, pDC, true);
    pDC->SetBkMode(TRANSPARENT);
    CString strValue;
    strValue.Format(L"%.2f", m_fEditValue);
    pDC->TextOut(Wrap::Add(m_Graph.m_ptCurrent.x, distance), m_Graph.m_ptCurrent.y, strValue);
}
