// What the mouse and the keys do, the cursor, files and trends: the native side of these comes
// with the interaction of the graph, and until then they say so.

#include "automation/SGraph.h"

STDMETHODIMP CSGraph::InsertDataNotation(int, int)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::AddLinearTrend(ISGraphDataSerie*)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::AddCubicTrend(ISGraphDataSerie*)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::Edit()
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::Zoom()
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::ResetZoom()
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::Pan()
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::NoOp()
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::Measure()
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::GetZoomDepth(int*)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::GetCursorAbsolute(int, TDataPoint*)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::SetCursorAbsolute(int, TDataPoint*, long)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::Save(BSTR, UINT)
{
    return E_NOTIMPL;
}

STDMETHODIMP CSGraph::Load(BSTR)
{
    return E_NOTIMPL;
}

// Has no effect by design: hosts enter the cursor's mode by the graph's command.
STDMETHODIMP CSGraph::Cursor()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return S_OK;
}
