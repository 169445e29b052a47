// Data, axes, curves, operations and the window.

#include "automation/SGraph.h"

#include "automation/ChildWrappers.h"
#include "automation/SGraphLabel.h"
#include "automation/WrapperCalls.h"

#include <memory>
#include <new>

namespace
{

// A wrapper of a native object, with one reference that the caller owns. Nobody asked for one
// with a null pointer.
template <class Wrapper, class Interface> void HandOut(CXGraphObject* pNative, Interface** ppWrapper)
{
    if (!ppWrapper)
        return;
    if (SUCCEEDED(Wrapper::CreateInstance(ppWrapper)))
        (*ppWrapper)->SetObjectHandle(reinterpret_cast<UINT*>(pNative));
}

void __stdcall FreeGraphs(DWORD_PTR)
{
    CXGraph::FreeAll();
}

// A graph that has been made lives to the end of the module, which then has to free it.
void FreeGraphsWithModule()
{
    static const bool isArranged = [] {
        if (FAILED(_pModule->AddTermFunc(&FreeGraphs, 0)))
            throw std::bad_alloc(); // the next graph tries again
        return true;
    }();
    static_cast<void>(isArranged);
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
    return Wrapper::Act([&] {
        CXGraphDataSerie* pCurve =
            m_pNative->SetData(pValues, nCount, nCurve, nXAxis, nYAxis, bAutoDelete != 0);
        HandOut<CSGraphDataSerie>(pCurve, pSerie);
    });
}

STDMETHODIMP CSGraph::GetXAxis(ISGraphAxis** pGraphAxis, int nAxis)
{
    return Wrapper::Act([&] { HandOut<CSGraphAxis>(m_pNative->GetXAxis(nAxis), pGraphAxis); });
}

STDMETHODIMP CSGraph::GetYAxis(ISGraphAxis** pGraphAxis, int nAxis)
{
    return Wrapper::Act([&] { HandOut<CSGraphAxis>(m_pNative->GetYAxis(nAxis), pGraphAxis); });
}

STDMETHODIMP CSGraph::GetCurve(ISGraphDataSerie** pGraphAxis, int nCurve)
{
    return Wrapper::Act([&] { HandOut<CSGraphDataSerie>(m_pNative->GetCurve(nCurve), pGraphAxis); });
}

STDMETHODIMP CSGraph::DeleteXAxis(int nAxis)
{
    return Wrapper::Act([&] { m_pNative->DeleteXAxis(nAxis); });
}

STDMETHODIMP CSGraph::DeleteYAxis(int nAxis)
{
    return Wrapper::Act([&] { m_pNative->DeleteYAxis(nAxis); });
}

STDMETHODIMP CSGraph::DeleteCurve(int nCurve)
{
    return Wrapper::Act([&] { m_pNative->DeleteCurve(nCurve); });
}

STDMETHODIMP CSGraph::GetXAxisCount(int* pnValue)
{
    return Wrapper::Answer(pnValue, [&] { return m_pNative->m_XAxes.size(); });
}

STDMETHODIMP CSGraph::GetYAxisCount(int* pnValue)
{
    return Wrapper::Answer(pnValue, [&] { return m_pNative->m_YAxes.size(); });
}

STDMETHODIMP CSGraph::GetCurveCount(int* pnValue)
{
    return Wrapper::Answer(pnValue, [&] { return m_pNative->m_Curves.size(); });
}

STDMETHODIMP CSGraph::SelectXAxis(int nAxis)
{
    return Wrapper::Act([&] { m_pNative->SelectXAxis(nAxis); });
}

STDMETHODIMP CSGraph::SelectYAxis(int nAxis)
{
    return Wrapper::Act([&] { m_pNative->SelectYAxis(nAxis); });
}

STDMETHODIMP CSGraph::SelectCurve(int nCurve)
{
    return Wrapper::Act([&] { m_pNative->SelectCurve(nCurve); });
}

STDMETHODIMP CSGraph::Autoscale(int nXAxis, int nYAxis, int nCurve)
{
    return Wrapper::Act([&] { m_pNative->Autoscale(nXAxis, nYAxis, nCurve); });
}

STDMETHODIMP CSGraph::ResetAll()
{
    return Wrapper::Act([&] { m_pNative->ResetAll(); });
}

STDMETHODIMP CSGraph::SetBackgroundBitmap(ISGraphBitmap* pBitmap, UINT)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (pBitmap) {
        UINT* pHandle = nullptr;
        pBitmap->GetObjectHandle(&pHandle); // a graph has no background picture to set
    }
    return S_FALSE;
}

STDMETHODIMP CSGraph::InsertLabel(BSTR bstrText, RECT* pRect, ISGraphLabel** pGraphLabel)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    const CString strText(bstrText);
    CXGraphLabel* pLabel =
        pRect ? m_pNative->InsertLabel(*pRect, strText) : m_pNative->InsertCenteredLabel(strText);
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
    return Wrapper::ActGiven(bstrText, [&] { m_pNative->SaveBitmap(CString(bstrText)); });
}

STDMETHODIMP CSGraph::Create(BSTR, RECT* rect, wireHWND hWnd, UINT nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative || !rect)
        return S_FALSE;
    FreeGraphsWithModule();
    m_pNative = std::make_unique<CXGraph>().release();
    CWnd* pParent = CWnd::FromHandle(reinterpret_cast<HWND>(hWnd));
    // A graph without a window is a graph as well: the result says nothing of the window.
    m_pNative->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, *rect, pParent, nID, nullptr);
    return S_OK;
}

STDMETHODIMP CSGraph::Invalidate(long bErase)
{
    return Wrapper::Act([&] { m_pNative->Invalidate(bErase); });
}

STDMETHODIMP CSGraph::PostMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!m_pNative || !m_pNative->m_hWnd)
        return S_FALSE;
    m_pNative->PostMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CSGraph::SendMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!m_pNative || !m_pNative->m_hWnd)
        return S_FALSE;
    m_pNative->SendMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CSGraph::GetHandle(wireHWND* phWnd)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!phWnd)
        return S_FALSE;
    *phWnd = m_pNative ? reinterpret_cast<wireHWND>(m_pNative->m_hWnd) : nullptr;
    return m_pNative ? S_OK : S_FALSE;
}
