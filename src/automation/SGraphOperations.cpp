// What the mouse and the keys do, the cursor, trends and files.

#include "automation/SGraph.h"
#include "automation/WrapperCalls.h"

STDMETHODIMP CSGraph::InsertDataNotation(int nCurve, int nIndex)
{
    return Wrapper::Act([&] { m_pNative->InsertDataNotation(nCurve, nIndex); });
}

// The curve is taken from the handle that the wrapper delivers, whatever that is; the graph adds
// no trend of what is none of its curves.
HRESULT CSGraph::AddTrend(ISGraphDataSerie* pSerie, void (CXGraph::*add)(CXGraphDataSerie*))
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!pSerie)
        return S_FALSE;
    UINT* pHandle = nullptr;
    pSerie->GetObjectHandle(&pHandle);
    if (!pHandle)
        return S_FALSE;
    (m_pNative->*add)(reinterpret_cast<CXGraphDataSerie*>(pHandle));
    return S_OK;
}

STDMETHODIMP CSGraph::AddLinearTrend(ISGraphDataSerie* pSerie)
{
    return AddTrend(pSerie, &CXGraph::AddLinearTrend);
}

STDMETHODIMP CSGraph::AddCubicTrend(ISGraphDataSerie* pSerie)
{
    return AddTrend(pSerie, &CXGraph::AddCubicTrend);
}

HRESULT CSGraph::Run(void (CXGraph::*operation)())
{
    return Wrapper::Act([&] { (m_pNative->*operation)(); });
}

STDMETHODIMP CSGraph::Edit()
{
    return Run(&CXGraph::Edit);
}

STDMETHODIMP CSGraph::Zoom()
{
    return Run(&CXGraph::Zoom);
}

STDMETHODIMP CSGraph::ResetZoom()
{
    return Run(&CXGraph::ResetZoom);
}

STDMETHODIMP CSGraph::Pan()
{
    return Run(&CXGraph::Pan);
}

STDMETHODIMP CSGraph::NoOp()
{
    return Run(&CXGraph::NoOp);
}

STDMETHODIMP CSGraph::Measure()
{
    return Run(&CXGraph::Measure);
}

// Has no effect by design: hosts enter the cursor's mode by the graph's command.
STDMETHODIMP CSGraph::Cursor()
{
    return Wrapper::Act([] {});
}

STDMETHODIMP CSGraph::GetZoomDepth(int* pnValue)
{
    return Wrapper::Answer(pnValue, [&] { return m_pNative->GetZoomDepth(); });
}

STDMETHODIMP CSGraph::GetCursorAbsolute(int nCurve, TDataPoint* pPoint)
{
    return Wrapper::Answer(pPoint, [&] { return m_pNative->GetCursorAbsolute(nCurve); });
}

STDMETHODIMP CSGraph::SetCursorAbsolute(int nCurve, TDataPoint* pPoint, long bForceVisible)
{
    return Wrapper::ActGiven(pPoint,
                             [&] { m_pNative->SetCursorAbsolute(nCurve, *pPoint, bForceVisible != 0); });
}

STDMETHODIMP CSGraph::Save(BSTR bstrFile, UINT nFlags)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return bstrFile && m_pNative->Save(bstrFile, nFlags) ? S_OK : S_FALSE;
}

STDMETHODIMP CSGraph::Load(BSTR bstrFile)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return bstrFile && m_pNative->Load(bstrFile) ? S_OK : S_FALSE;
}
