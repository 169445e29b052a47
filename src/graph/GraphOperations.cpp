// The operation that the mouse and the keys work on, and the ways into each.

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
    m_ZoomBand.Clear();
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
    m_CursorTool.Enter();
}

void CXGraph::Edit()
{
    m_opOperation = opEditCurve;
    Invalidate();
}

void CXGraph::Measure()
{
    m_opOperation = opMeasure;
    m_MeasureTool.Clear();
    Invalidate();
}
