// Settings of the graph. Setters store and don't repaint.

#include "automation/SGraph.h"

namespace
{

template <class Field, class Value> HRESULT Tell(const Field& field, Value* pValue)
{
    if (pValue == nullptr)
        return S_FALSE;
    *pValue = static_cast<Value>(field);
    return S_OK;
}

} // namespace

STDMETHODIMP CSGraph::SetGraphMargins(int nLeft, int nTop, int nRight, int nBottom)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphMargins(nLeft, nTop, nRight, nBottom);
    return S_OK;
}

STDMETHODIMP CSGraph::SetBackColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_crBackColor = color;
    return S_OK;
}

// The colour of the graph area is set by the property sheet and by files alone.
STDMETHODIMP CSGraph::SetGraphColor(ULONG)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return S_OK;
}

STDMETHODIMP CSGraph::SetInnerColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_crInnerColor = color;
    return S_OK;
}

STDMETHODIMP CSGraph::SetDoubleBuffer(long bValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_bDoubleBuffer = bValue != 0;
    return S_OK;
}

STDMETHODIMP CSGraph::SetShowLegend(long bValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_bShowLegend = bValue != 0;
    return S_OK;
}

STDMETHODIMP CSGraph::SetInteraction(long bValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_bInteraction = bValue != 0;
    return S_OK;
}

STDMETHODIMP CSGraph::SetSnapCursor(long bValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_bSnapCursor = bValue != 0;
    return S_OK;
}

STDMETHODIMP CSGraph::SetLegendAlignment(EAlignment align)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_nLegendAlignment = align;
    return S_OK;
}

STDMETHODIMP CSGraph::SetSnapRange(int nValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_nSnapRange = nValue;
    return S_OK;
}

STDMETHODIMP CSGraph::SetPrintHeader(BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrText == nullptr)
        return S_FALSE;
    m_pNative->m_strPrintHeader = CString(bstrText);
    return S_OK;
}

STDMETHODIMP CSGraph::SetPrintFooter(BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrText == nullptr)
        return S_FALSE;
    m_pNative->m_strPrintFooter = CString(bstrText);
    return S_OK;
}

STDMETHODIMP CSGraph::SetCursor(long x, long y)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_ptCurrent = CPoint(x, y);
    return S_OK;
}

STDMETHODIMP CSGraph::SetCursorFlags(UINT nFlags)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_nCursorFlags = nFlags;
    return S_OK;
}

STDMETHODIMP CSGraph::DeleteMeasures()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_Measures.clear();
    return S_OK;
}

STDMETHODIMP CSGraph::ForceSnap(int nCurve)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->m_nForcedSnapCurve = nCurve;
    return S_OK;
}

STDMETHODIMP CSGraph::GetBackColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_crBackColor, pColor);
}

STDMETHODIMP CSGraph::GetGraphColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_crGraphColor, pColor);
}

STDMETHODIMP CSGraph::GetInnerColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_crInnerColor, pColor);
}

STDMETHODIMP CSGraph::GetDoubleBuffer(long* pbValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_bDoubleBuffer, pbValue);
}

STDMETHODIMP CSGraph::GetShowLegend(long* pbValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_bShowLegend, pbValue);
}

STDMETHODIMP CSGraph::GetInteraction(long* pbValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_bInteraction, pbValue);
}

STDMETHODIMP CSGraph::GetSnapCursor(long* pbValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_bSnapCursor, pbValue);
}

STDMETHODIMP CSGraph::GetLegendAlignment(EAlignment* pAalign)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_nLegendAlignment, pAalign);
}

STDMETHODIMP CSGraph::GetSnapRange(int* pnValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_nSnapRange, pnValue);
}

// Only px is tested, so that a null py faults.
STDMETHODIMP CSGraph::GetCursor(long* px, long* py)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (px == nullptr)
        return S_FALSE;
    *px = m_pNative->m_ptCurrent.x;
    *py = m_pNative->m_ptCurrent.y;
    return S_OK;
}

STDMETHODIMP CSGraph::GetOperation(EOperation* peop)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(m_pNative->m_opOperation, peop);
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
