#include "objects/PlotHost.h"

#include "graph/XGraph.h"

namespace PlotHost
{

CRect InnerRect(const CXGraph& graph)
{
    return graph.m_rcInner;
}

COLORREF GraphColor(const CXGraph& graph)
{
    return graph.m_crGraphColor;
}

EOperation Operation(const CXGraph& graph)
{
    return graph.m_opOperation;
}

CXGraphAxis& XAxis(CXGraph& graph, int nAxis)
{
    return *graph.GetXAxis(nAxis);
}

CXGraphAxis& YAxis(CXGraph& graph, int nAxis)
{
    return *graph.GetYAxis(nAxis);
}

CXGraphDataSerie& Curve(CXGraph& graph, int nCurve)
{
    return *graph.GetCurve(nCurve);
}

int CurveCount(const CXGraph& graph)
{
    return static_cast<int>(graph.m_Curves.size());
}

int CurveIndex(const CXGraph& graph, const CXGraphDataSerie& curve)
{
    return graph.GetCurveIndex(&curve);
}

int AxisIndex(const CXGraph& graph, const CXGraphAxis& axis)
{
    const auto& axes = axis.IsVertical() ? graph.m_YAxes : graph.m_XAxes;
    for (std::size_t i = 0; i < axes.size(); ++i) {
        if (&axes[i] == &axis)
            return static_cast<int>(i);
    }
    return -1;
}

TFrameRoom* FrameRoom(CXGraph& graph)
{
    return graph.FrameRoom();
}

bool Owns(const CXGraph& graph, const TObjectRef& entry)
{
    return graph.Owns(entry);
}

CWnd& Window(CXGraph& graph)
{
    return graph;
}

void Repaint(CXGraph& graph)
{
    graph.Invalidate();
}

} // namespace PlotHost
