// The command block 40000 to 40015 that a host sends to the window, and trends as curves.

#include "framework/windowing/ModuleState.h"
#include "graph/CommandIds.h"
#include "graph/XGraph.h"

#include <memory>

void CXGraph::OnInsertLabel()
{
    InsertCenteredLabel(CString());
    Invalidate();
}

void CXGraph::OnProperties()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    HitTest(true, false);
}

void CXGraph::OnLinearTrend()
{
    AddLinearTrend(GetCurve(m_nSelectedCurve));
}

void CXGraph::OnCubicTrend()
{
    AddCubicTrend(GetCurve(m_nSelectedCurve));
}

void CXGraph::OnPassOn()
{
    Notify(CommandId::PassOn, 0);
}

void CXGraph::AddLinearTrend(CXGraphDataSerie* pCurve)
{
    if (GetCurveIndex(pCurve) != -1)
        AppendTrend(*pCurve, std::unique_ptr<TDataPoint[]>(pCurve->GetLinearTrend(0)), L" linear trend");
}

void CXGraph::AddCubicTrend(CXGraphDataSerie* pCurve)
{
    if (GetCurveIndex(pCurve) != -1)
        AppendTrend(*pCurve, std::unique_ptr<TDataPoint[]>(pCurve->GetCubicTrend(0)), L" cubic trend");
}

void CXGraph::AppendTrend(const CXGraphDataSerie& curve, std::unique_ptr<TDataPoint[]> points,
                          LPCWSTR pszKind)
{
    // The list may move when it grows, so the label is taken first.
    const CString label = curve.m_cLabel + pszKind;
    CXGraphDataSerie* trend = SetData(points.get(), curve.m_nCount, static_cast<int>(m_Curves.size()),
                                      curve.m_nXAxis, curve.m_nYAxis, true);
    if (trend)
        trend->m_cLabel = label;
}

void CXGraph::OpenSheet(CXGraphAxis* pAxis, CXGraphDataSerie* pCurve)
{
    ShowChartSheet(*this, pAxis, pCurve);
    Invalidate();
}
