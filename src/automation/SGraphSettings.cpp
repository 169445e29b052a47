// Settings of the graph. Setters store and don't repaint.

#include "automation/SGraph.h"
#include "automation/WrapperCalls.h"

STDMETHODIMP CSGraph::SetGraphMargins(int nLeft, int nTop, int nRight, int nBottom)
{
    return Wrapper::Act([&] { m_pNative->SetGraphMargins(nLeft, nTop, nRight, nBottom); });
}

STDMETHODIMP CSGraph::SetBackColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->m_crBackColor = color; });
}

// The colour of the graph area is set by the property sheet and by files alone.
STDMETHODIMP CSGraph::SetGraphColor(ULONG)
{
    return Wrapper::Act([] {});
}

STDMETHODIMP CSGraph::SetInnerColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->m_crInnerColor = color; });
}

STDMETHODIMP CSGraph::SetDoubleBuffer(long bValue)
{
    return Wrapper::Act([&] { m_pNative->m_bDoubleBuffer = bValue != 0; });
}

STDMETHODIMP CSGraph::SetShowLegend(long bValue)
{
    return Wrapper::Act([&] { m_pNative->m_bShowLegend = bValue != 0; });
}

STDMETHODIMP CSGraph::SetInteraction(long bValue)
{
    return Wrapper::Act([&] { m_pNative->m_bInteraction = bValue != 0; });
}

STDMETHODIMP CSGraph::SetSnapCursor(long bValue)
{
    return Wrapper::Act([&] { m_pNative->m_bSnapCursor = bValue != 0; });
}

STDMETHODIMP CSGraph::SetLegendAlignment(EAlignment align)
{
    return Wrapper::Act([&] { m_pNative->m_nLegendAlignment = align; });
}

STDMETHODIMP CSGraph::SetSnapRange(int nValue)
{
    return Wrapper::Act([&] { m_pNative->m_nSnapRange = nValue; });
}

STDMETHODIMP CSGraph::SetPrintHeader(BSTR bstrText)
{
    return Wrapper::ActGiven(bstrText, [&] { m_pNative->m_strPrintHeader = CString(bstrText); });
}

STDMETHODIMP CSGraph::SetPrintFooter(BSTR bstrText)
{
    return Wrapper::ActGiven(bstrText, [&] { m_pNative->m_strPrintFooter = CString(bstrText); });
}

STDMETHODIMP CSGraph::SetCursor(long x, long y)
{
    return Wrapper::Act([&] { m_pNative->m_ptCurrent = CPoint(x, y); });
}

STDMETHODIMP CSGraph::SetCursorFlags(UINT nFlags)
{
    return Wrapper::Act([&] { m_pNative->m_nCursorFlags = nFlags; });
}

STDMETHODIMP CSGraph::DeleteMeasures()
{
    return Wrapper::Act([&] { m_pNative->m_Measures.clear(); });
}

STDMETHODIMP CSGraph::ForceSnap(int nCurve)
{
    return Wrapper::Act([&] { m_pNative->m_nForcedSnapCurve = nCurve; });
}

STDMETHODIMP CSGraph::GetBackColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->m_crBackColor; });
}

STDMETHODIMP CSGraph::GetGraphColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->m_crGraphColor; });
}

STDMETHODIMP CSGraph::GetInnerColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->m_crInnerColor; });
}

STDMETHODIMP CSGraph::GetDoubleBuffer(long* pbValue)
{
    return Wrapper::Answer(pbValue, [&] { return m_pNative->m_bDoubleBuffer; });
}

STDMETHODIMP CSGraph::GetShowLegend(long* pbValue)
{
    return Wrapper::Answer(pbValue, [&] { return m_pNative->m_bShowLegend; });
}

STDMETHODIMP CSGraph::GetInteraction(long* pbValue)
{
    return Wrapper::Answer(pbValue, [&] { return m_pNative->m_bInteraction; });
}

STDMETHODIMP CSGraph::GetSnapCursor(long* pbValue)
{
    return Wrapper::Answer(pbValue, [&] { return m_pNative->m_bSnapCursor; });
}

STDMETHODIMP CSGraph::GetLegendAlignment(EAlignment* pAalign)
{
    return Wrapper::Answer(pAalign, [&] { return m_pNative->m_nLegendAlignment; });
}

STDMETHODIMP CSGraph::GetSnapRange(int* pnValue)
{
    return Wrapper::Answer(pnValue, [&] { return m_pNative->m_nSnapRange; });
}

// Only px is tested, so that a null py faults.
STDMETHODIMP CSGraph::GetCursor(long* px, long* py)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!px)
        return S_FALSE;
    *px = m_pNative->m_ptCurrent.x;
    *py = m_pNative->m_ptCurrent.y;
    return S_OK;
}

STDMETHODIMP CSGraph::GetOperation(EOperation* peop)
{
    return Wrapper::Answer(peop, [&] { return m_pNative->m_opOperation; });
}

STDMETHODIMP CSGraph::GetXGraphMsgInfo(XGRAPH_MSG, BSTR)
{
    return S_FALSE;
}

STDMETHODIMP CSGraph::GetXGraphPersistInfo(XGRAPH_PERSIST, BSTR)
{
    return S_FALSE;
}

STDMETHODIMP CSGraph::GetXGraphXgcInfo(XGRAPH_XGC, BSTR)
{
    return S_FALSE;
}
