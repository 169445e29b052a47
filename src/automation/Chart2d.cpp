#include "automation/Chart2d.h"

namespace
{

// Gives the native object's answer to the host, unless it has no place for it.
template <class Value, class Question> HRESULT Tell(Value* pValue, Question question)
{
    if (pValue == nullptr)
        return S_FALSE;
    *pValue = static_cast<Value>(question());
    return S_OK;
}

} // namespace

STDMETHODIMP CChart2d::Create(RECT* rect, wireHWND hWnd, UINT nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative != nullptr || rect == nullptr)
        return S_FALSE;
    m_pNative = std::make_unique<CGraphObject>();
    CWnd* pParent = CWnd::FromHandle(reinterpret_cast<HWND>(hWnd));
    m_pNative->Create(nullptr, nullptr, 0, *rect, pParent, nID, nullptr);
    return S_OK;
}

STDMETHODIMP CChart2d::CreateGraph(int type)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->CreateGraph(type);
    m_pNative->ShowWindow(SW_SHOW);
    return S_OK;
}

STDMETHODIMP CChart2d::GetHandle(wireHWND* phWnd)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(phWnd, [this] { return reinterpret_cast<wireHWND>(m_pNative->m_hWnd); });
}

STDMETHODIMP CChart2d::Invalidate(long bErase)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Repaint(bErase);
    return S_OK;
}

STDMETHODIMP CChart2d::SetGraphPosition(int x, int y)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphPosition(CPoint(x, y));
    return S_OK;
}

STDMETHODIMP CChart2d::SetGraphSize(int width, int height)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphSize(CSize(width, height));
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphAnimation(long* pbAnimation)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pbAnimation, [this] { return m_pNative->GetGraphAnimation(); });
}

STDMETHODIMP CChart2d::SetGraphAnimation(long animation, int type)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphAnimation(animation, type);
    return S_OK;
}

STDMETHODIMP CChart2d::Add2DBarGraphSegment(BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Add2DBarGraphSegment(CString(bstrText));
    return S_OK;
}

STDMETHODIMP CChart2d::Delete2DBarGraphSegment(int index)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Delete2DBarGraphSegment(index);
    return S_OK;
}

STDMETHODIMP CChart2d::Add2DBarGraphSeries(BSTR bstrText, ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Add2DBarGraphSeries(CString(bstrText), color);
    return S_OK;
}

STDMETHODIMP CChart2d::Detele2DBarGraphSeries(int index)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Detele2DBarGraphSeries(index);
    return S_OK;
}

STDMETHODIMP CChart2d::Set2DBarGraphValue(int segment, int series, int value)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Set2DBarGraphValue(segment, series, value);
    return S_OK;
}

STDMETHODIMP CChart2d::Add2DLineGraphSegment(BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Add2DLineGraphSegment(CString(bstrText));
    return S_OK;
}

STDMETHODIMP CChart2d::Delete2DLineGraphSegment(int index)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Delete2DLineGraphSegment(index);
    return S_OK;
}

STDMETHODIMP CChart2d::Add2DLineGraphSeries(BSTR bstrText, ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Add2DLineGraphSeries(CString(bstrText), color);
    return S_OK;
}

STDMETHODIMP CChart2d::Delete2DLineGraphSeries(int index)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Delete2DLineGraphSeries(index);
    return S_OK;
}

STDMETHODIMP CChart2d::Set2DLineGraphValue(int segment, int series, int value)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Set2DLineGraphValue(segment, series, value);
    return S_OK;
}

STDMETHODIMP CChart2d::Add2DPieGraphSegment(double percent, ULONG color, BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrText != nullptr)
        m_pNative->Add2DPieGraphSegment(percent, color, CString(bstrText));
    return S_OK;
}

STDMETHODIMP CChart2d::Update2DPieGraphSegment(int index, int percent, ULONG color, BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Update2DPieGraphSegment(index, percent, color, CString(bstrText));
    return S_OK;
}

STDMETHODIMP CChart2d::Delete2DPieGraphSegment(int index)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Delete2DPieGraphSegment(index);
    return S_OK;
}

STDMETHODIMP CChart2d::Clear2DPieGraph()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->Clear2DPieGraph();
    return S_OK;
}

STDMETHODIMP CChart2d::ShowGraphLegend(long legend)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->ShowGraphLegend(legend);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphLegendTextColor(ULONG* color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(color, [this] { return m_pNative->GetGraphLegendTextColor(); });
}

STDMETHODIMP CChart2d::SetGraphLegendTextColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphLegendTextColor(color);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphLegendBackgroundColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pColor, [this] { return m_pNative->GetGraphLegendBackgroundColor(); });
}

STDMETHODIMP CChart2d::SetGraphLegendBackgroundColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphLegendBackgroundColor(color);
    return S_OK;
}

STDMETHODIMP CChart2d::SetGraphLabelsColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphLabelsColor(color);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphLabelsColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pColor, [this] { return m_pNative->GetGraphLabelsColor(); });
}

STDMETHODIMP CChart2d::GetGraphSubtitleColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pColor, [this] { return m_pNative->GetGraphSubtitleColor(); });
}

STDMETHODIMP CChart2d::SetGraphSubtitleColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphSubtitleColor(color);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphTitleColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pColor, [this] { return m_pNative->GetGraphTitleColor(); });
}

STDMETHODIMP CChart2d::SetGraphTitleColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphTitleColor(color);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphSubtitleShadow(long* bShadow)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(bShadow, [this] { return m_pNative->GetGraphSubtitleShadow(); });
}

STDMETHODIMP CChart2d::SetGraphSubtitleShadow(long bShadow)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphSubtitleShadow(bShadow);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphTitleShadow(long* pbShadow)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pbShadow, [this] { return m_pNative->GetGraphTitleShadow(); });
}

STDMETHODIMP CChart2d::SetGraphTitleShadow(long bShadow)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphTitleShadow(bShadow);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGradientFillType(int* nType)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(nType, [this] { return m_pNative->GetGradientFillType(); });
}

STDMETHODIMP CChart2d::SetGradientFillType(int nType)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGradientFillType(nType);
    return S_OK;
}

STDMETHODIMP CChart2d::SetGraphGradientColors(ULONG col1, ULONG col2)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphGradientColors(col1, col2);
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphFillType(int* nType)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(nType, [this] { return m_pNative->GetGraphFillType(); });
}

STDMETHODIMP CChart2d::SetGraphFillType(int nType)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphFillType(nType);
    return S_OK;
}

STDMETHODIMP CChart2d::SetGraphSubtitle(BSTR bstrsubtitle)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrsubtitle == nullptr)
        return S_FALSE;
    m_pNative->SetGraphSubtitle(CString(bstrsubtitle));
    return S_OK;
}

STDMETHODIMP CChart2d::SetGraphTitle(BSTR bstrtitle)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrtitle == nullptr)
        return S_FALSE;
    m_pNative->SetGraphTitle(CString(bstrtitle));
    return S_OK;
}

STDMETHODIMP CChart2d::GetGraphBackgroundColor(ULONG* pColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pColor, [this] { return m_pNative->GetGraphBackgroundColor(); });
}

STDMETHODIMP CChart2d::SetGraphBackgroundColor(ULONG color)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetGraphBackgroundColor(color);
    return S_OK;
}
