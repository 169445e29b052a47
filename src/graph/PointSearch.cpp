#include "graph/PointSearch.h"

#include "graph/XGraph.h"

#include <algorithm>

namespace PointSearch
{
int Index(CXGraph& graph, int nCurve, double x)
{
    const CXGraphDataSerie& curve = graph.CurveAt(nCurve);
    int index = 0;
    graph.XAxisOf(curve).FindIndexForX(index, x, nCurve);
    return std::min(index, curve.m_nCount - 1);
}

double ValueAtColumn(CXGraph& graph, int nCurve, int x)
{
    return graph.XAxisOf(graph.CurveAt(nCurve)).GetValueForPos(x);
}

double Y(CXGraph& graph, int nCurve, double x)
{
    const int index = Index(graph, nCurve, x);
    return index < 0 ? 0.0 : graph.CurveAt(nCurve).m_pData[index].fYVal;
}
} // namespace PointSearch
