// The operation that the mouse and the keys work on, and the ways into each.

#include "graph/WrapArithmetic.h"
#include "graph/XGraph.h"

void CXGraph::NoOp()
{
    m_CursorLabel.m_bVisible = false;
    m_opOperation = opNone;
    Invalidate();
}

void CXGraph::Zoom()
{
    m_CursorLabel.m_bVisible = false;
    m_rcZoom.SetRectEmpty();
    m_opOperation = opZoom;
    Invalidate();
}

void CXGraph::Pan()
{
    m_CursorLabel.m_bVisible = false;
    m_opOperation = opPan;
    for (CXGraphAxis& axis : m_YAxes)
        axis.m_bAutoScale = false;
    for (CXGraphAxis& axis : m_XAxes)
        axis.m_bAutoScale = false;
    Invalidate();
}

void CXGraph::Cursor()
{
    Pan();
    m_opOperation = opCursor;
    m_ptLastCursor = CPoint(-1, -1);
    m_nCursorCurve = m_nForcedSnapCurve;
    if ((m_nCursorFlags & XGC_LEGEND) != 0)
        m_CursorLabel.m_rcObject.SetRect(WrapAdd(m_rcInner.left, 1), m_rcInner.top,
                                         WrapAdd(m_rcInner.left, 150), WrapAdd(m_rcInner.top, 50));
}

void CXGraph::Edit()
{
    m_opOperation = opEditCurve;
    Invalidate();
}

void CXGraph::Measure()
{
    m_opOperation = opMeasure;
    m_rcMeasure.SetRectEmpty();
    Invalidate();
}
