// Data, axes, curves, operations and the window.

#include "automation/SGraph.h"

#include "automation/SGraphAxis.h"
#include "automation/SGraphDataSerie.h"
#include "automation/SGraphLabel.h"

#include <memory>

namespace
{

// A wrapper of a native object, with one reference that the caller owns. Nobody asked for one
// with a null pointer.
template <class Wrapper, class Interface> void HandOut(CXGraphObject* pNative, Interface** ppWrapper)
{
    if (ppWrapper == nullptr)
        return;
    if (SUCCEEDED(Wrapper::CreateInstance(ppWrapper)))
        (*ppWrapper)->SetObjectHandle(reinterpret_cast<UINT*>(pNative));
}

template <class Elements> HRESULT Count(const Elements& elements, int* pnValue)
{
    if (pnValue == nullptr)
        return S_FALSE;
    *pnValue = static_cast<int>(elements.size());
    return S_OK;
}

void __stdcall FreeGraphs(DWORD_PTR)
{
    CXGraph::FreeAll();
}

// A graph that has been made lives to the end of the module, which then has to free it.
void FreeGraphsWithModule()
{
    static const HRESULT result = _pModule->AddTermFunc(&FreeGraphs, 0);
    static_cast<void>(result);
}

} // namespace

IDispatch* NewUnattachedGraph()
{
    IDispatch* pGraph = nullptr;
    CSGraph::CreateInstance(&pGraph);
    return pGraph;
}

STDMETHODIMP CSGraph::SetData(ISGraphDataSerie** pSerie, TDataPoint* pValues, long nCount, int nCurve,
                              int nXAxis, int nYAxis, long bAutoDelete)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CXGraphDataSerie* pCurve =
        m_pNative->SetData(pValues, nCount, nCurve, nXAxis, nYAxis, bAutoDelete != 0);
    HandOut<CSGraphDataSerie>(pCurve, pSerie);
    return S_OK;
}

STDMETHODIMP CSGraph::GetXAxis(ISGraphAxis** pGraphAxis, int nAxis)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    HandOut<CSGraphAxis>(m_pNative->GetXAxis(nAxis), pGraphAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::GetYAxis(ISGraphAxis** pGraphAxis, int nAxis)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    HandOut<CSGraphAxis>(m_pNative->GetYAxis(nAxis), pGraphAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::GetCurve(ISGraphDataSerie** pGraphAxis, int nCurve)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    HandOut<CSGraphDataSerie>(m_pNative->GetCurve(nCurve), pGraphAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::DeleteXAxis(int nAxis)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->DeleteXAxis(nAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::DeleteYAxis(int nAxis)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->DeleteYAxis(nAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::DeleteCurve(int nCurve)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->DeleteCurve(nCurve);
    return S_OK;
}

STDMETHODIMP CSGraph::GetXAxisCount(int* pnValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Count(m_pNative->m_XAxes, pnValue);
}

STDMETHODIMP CSGraph::GetYAxisCount(int* pnValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Count(m_pNative->m_YAxes, pnValue);
}

STDMETHODIMP CSGraph::GetCurveCount(int* pnValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Count(m_pNative->m_Curves, pnValue);
}

STDMETHODIMP CSGraph::SelectXAxis(int nAxis)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SelectXAxis(nAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::SelectYAxis(int nAxis)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SelectYAxis(nAxis);
    return S_OK;
}

STDMETHODIMP CSGraph::SelectCurve(int nCurve)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SelectCurve(nCurve);
    return S_OK;
}

STDMETHODIMP CSGraph::Autoscale(int nXAxis, int nYAxis, int nCurve)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Autoscale(nXAxis, nYAxis, nCurve);
    return S_OK;
}

STDMETHODIMP CSGraph::ResetAll()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->ResetAll();
    return S_OK;
}

STDMETHODIMP CSGraph::SetBackgroundBitmap(ISGraphBitmap* pBitmap, UINT)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (pBitmap != nullptr) {
        UINT* pHandle = nullptr;
        pBitmap->GetObjectHandle(&pHandle); // a graph has no background picture to give it to
    }
    return S_FALSE;
}

STDMETHODIMP CSGraph::InsertLabel(BSTR bstrText, RECT* pRect, ISGraphLabel** pGraphLabel)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    const CString strText(bstrText);
    CXGraphLabel* pLabel = pRect != nullptr ? m_pNative->InsertLabel(*pRect, strText)
                                            : m_pNative->InsertCenteredLabel(strText);
    HandOut<CSGraphLabel>(pLabel, pGraphLabel);
    return S_OK;
}

STDMETHODIMP CSGraph::InsertBitmap(RECT*, ISGraphBitmap*, ISGraphBitmap**)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return S_FALSE;
}

STDMETHODIMP CSGraph::SaveBitmap(BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrText == nullptr)
        return S_FALSE;
    m_pNative->SaveBitmap(CString(bstrText));
    return S_OK;
}

STDMETHODIMP CSGraph::Create(BSTR, RECT* rect, wireHWND hWnd, UINT nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative != nullptr || rect == nullptr)
        return S_FALSE;
    m_pNative = std::make_unique<CXGraph>().release();
    FreeGraphsWithModule();
    CWnd* pParent = CWnd::FromHandle(reinterpret_cast<HWND>(hWnd));
    // A graph without a window is a graph as well: the result says nothing of the window.
    m_pNative->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, *rect, pParent, nID, nullptr);
    return S_OK;
}

STDMETHODIMP CSGraph::Invalidate(long bErase)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Invalidate(bErase);
    return S_OK;
}

STDMETHODIMP CSGraph::PostMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative == nullptr || m_pNative->m_hWnd == nullptr)
        return S_FALSE;
    m_pNative->PostMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CSGraph::SendMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative == nullptr || m_pNative->m_hWnd == nullptr)
        return S_FALSE;
    m_pNative->SendMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CSGraph::GetHandle(wireHWND* phWnd)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (phWnd == nullptr)
        return S_FALSE;
    *phWnd = m_pNative != nullptr ? reinterpret_cast<wireHWND>(m_pNative->m_hWnd) : nullptr;
    return m_pNative != nullptr ? S_OK : S_FALSE;
}
