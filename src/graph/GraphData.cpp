// Data entry: curves and their axes, removal and selection.

#include "graph/XGraph.h"
#include "objects/DataExtent.h"

#include <optional>
#include <utility>

namespace
{

template <typename Element> bool SelectOne(CCheckedVector<Element>& elements, int nIndex)
{
    if (!elements.IsInside(nIndex))
        return false;
    for (std::size_t i = 0; i < elements.size(); ++i)
        elements[i].m_bSelected = i == static_cast<std::size_t>(nIndex);
    return true;
}

void AppendAxis(CCheckedVector<CXGraphAxis>& axes, CXGraph* pGraph, EAxisKind kind)
{
    CXGraphAxis axis;
    axis.m_pGraph = pGraph;
    axis.m_AxisKind = kind;
    axes.push_back(axis);
}

TDataExtent ExtentOf(const CXGraphDataSerie& curve)
{
    return DataExtent::Widen(DataExtent::Nothing, curve.Points());
}

} // namespace

CXGraphDataSerie* CXGraph::SetData(TDataPoint* pValues, long nCount, int nCurve, int nXAxis, int nYAxis,
                                   bool bAutoDelete)
{
    if (!pValues || nCount <= 0)
        return nullptr;

    std::optional<TDataExtent> extent; // where the copying has found it already
    if (std::cmp_equal(nCurve, m_Curves.size())) {
        CXGraphDataSerie curve;
        curve.m_nXAxis = nXAxis;
        curve.m_nYAxis = nYAxis;
        curve.m_nIndex = nCurve;
        curve.m_crColor = CXGraphDataSerie::CreationColor(nCurve);
        if (bAutoDelete)
            extent = curve.CopyData(pValues, nCount);
        else
            curve.ReplaceData(pValues, nCount, false);
        m_Curves.push_back(std::move(curve));
    } else {
        // The caller's array itself, whatever bAutoDelete says: it then becomes the curve's.
        CXGraphDataSerie& curve = m_Curves[nCurve];
        curve.m_nXAxis = nXAxis;
        curve.m_nYAxis = nYAxis;
        curve.ReplaceData(pValues, nCount, bAutoDelete);
    }
    if (std::cmp_equal(nXAxis, m_XAxes.size()))
        AppendAxis(m_XAxes, this, akXAxis);
    if (std::cmp_equal(nYAxis, m_YAxes.size()))
        AppendAxis(m_YAxes, this, akYAxis);

    CXGraphDataSerie* pCurve = &m_Curves[nCurve];
    pCurve->m_pGraph = this;
    WidenAxes(nXAxis, nYAxis, extent ? *extent : ExtentOf(*pCurve));
    Invalidate();
    return pCurve;
}

bool CXGraph::Autoscale(int nXAxis, int nYAxis, int nCurve)
{
    return WidenAxes(nXAxis, nYAxis, ExtentOf(m_Curves[nCurve]));
}

bool CXGraph::WidenAxes(int nXAxis, int nYAxis, const TDataExtent& data)
{
    CXGraphAxis& xAxis = m_XAxes[nXAxis];
    CXGraphAxis& yAxis = m_YAxes[nYAxis];
    const TDataExtent extent =
        DataExtent::Widen({xAxis.m_fMin, xAxis.m_fMax, yAxis.m_fMin, yAxis.m_fMax}, data);
    xAxis.SetRange(extent.fMinX, extent.fMaxX);
    return yAxis.SetRange(extent.fMinY, extent.fMaxY);
}

bool CXGraph::DeleteXAxis(int nAxis)
{
    return m_XAxes.EraseAt(nAxis);
}

bool CXGraph::DeleteYAxis(int nAxis)
{
    if (!m_YAxes.IsInside(nAxis))
        return false;
    if (!m_XAxes.empty())
        m_XAxes.pop_back();
    return true;
}

bool CXGraph::DeleteCurve(int nCurve)
{
    return m_Curves.EraseAt(nCurve);
}

bool CXGraph::SelectXAxis(int nAxis)
{
    if (!SelectOne(m_XAxes, nAxis))
        return false;
    Invalidate();
    return true;
}

bool CXGraph::SelectYAxis(int nAxis)
{
    if (!SelectOne(m_YAxes, nAxis))
        return false;
    Invalidate();
    return true;
}

bool CXGraph::SelectCurve(int nCurve)
{
    if (!SelectOne(m_Curves, nCurve))
        return false;
    Invalidate();
    return true;
}
