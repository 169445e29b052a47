#include "automation/Chart2d.h"

#include "automation/WrapperCalls.h"

STDMETHODIMP CChart2d::Create(RECT* rect, wireHWND hWnd, UINT nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative || !rect)
        return S_FALSE;
    m_pNative = std::make_unique<CGraphObject>();
    CWnd* pParent = CWnd::FromHandle(reinterpret_cast<HWND>(hWnd));
    m_pNative->Create(nullptr, nullptr, 0, *rect, pParent, nID, nullptr);
    return S_OK;
}

STDMETHODIMP CChart2d::CreateGraph(int type)
{
    return Wrapper::Act([&] {
        m_pNative->CreateGraph(type);
        m_pNative->ShowWindow(SW_SHOW);
    });
}

STDMETHODIMP CChart2d::GetHandle(wireHWND* phWnd)
{
    return Wrapper::Answer(phWnd, [&] { return reinterpret_cast<wireHWND>(m_pNative->m_hWnd); });
}

STDMETHODIMP CChart2d::Invalidate(long bErase)
{
    return Wrapper::Act([&] { m_pNative->Repaint(bErase); });
}

STDMETHODIMP CChart2d::SetGraphPosition(int x, int y)
{
    return Wrapper::Act([&] { m_pNative->SetGraphPosition(CPoint(x, y)); });
}

STDMETHODIMP CChart2d::SetGraphSize(int width, int height)
{
    return Wrapper::Act([&] { m_pNative->SetGraphSize(CSize(width, height)); });
}

STDMETHODIMP CChart2d::GetGraphAnimation(long* pbAnimation)
{
    return Wrapper::Answer(pbAnimation, [&] { return m_pNative->GetGraphAnimation(); });
}

STDMETHODIMP CChart2d::SetGraphAnimation(long animation, int type)
{
    return Wrapper::Act([&] { m_pNative->SetGraphAnimation(animation, type); });
}

STDMETHODIMP CChart2d::Add2DBarGraphSegment(BSTR bstrText)
{
    return Wrapper::Act([&] { m_pNative->Add2DBarGraphSegment(CString(bstrText)); });
}

STDMETHODIMP CChart2d::Delete2DBarGraphSegment(int index)
{
    return Wrapper::Act([&] { m_pNative->Delete2DBarGraphSegment(index); });
}

STDMETHODIMP CChart2d::Add2DBarGraphSeries(BSTR bstrText, ULONG color)
{
    return Wrapper::Act([&] { m_pNative->Add2DBarGraphSeries(CString(bstrText), color); });
}

STDMETHODIMP CChart2d::Detele2DBarGraphSeries(int index)
{
    return Wrapper::Act([&] { m_pNative->Detele2DBarGraphSeries(index); });
}

STDMETHODIMP CChart2d::Set2DBarGraphValue(int segment, int series, int value)
{
    return Wrapper::Act([&] { m_pNative->Set2DBarGraphValue(segment, series, value); });
}

STDMETHODIMP CChart2d::Add2DLineGraphSegment(BSTR bstrText)
{
    return Wrapper::Act([&] { m_pNative->Add2DLineGraphSegment(CString(bstrText)); });
}

STDMETHODIMP CChart2d::Delete2DLineGraphSegment(int index)
{
    return Wrapper::Act([&] { m_pNative->Delete2DLineGraphSegment(index); });
}

STDMETHODIMP CChart2d::Add2DLineGraphSeries(BSTR bstrText, ULONG color)
{
    return Wrapper::Act([&] { m_pNative->Add2DLineGraphSeries(CString(bstrText), color); });
}

STDMETHODIMP CChart2d::Delete2DLineGraphSeries(int index)
{
    return Wrapper::Act([&] { m_pNative->Delete2DLineGraphSeries(index); });
}

STDMETHODIMP CChart2d::Set2DLineGraphValue(int segment, int series, int value)
{
    return Wrapper::Act([&] { m_pNative->Set2DLineGraphValue(segment, series, value); });
}

STDMETHODIMP CChart2d::Add2DPieGraphSegment(double percent, ULONG color, BSTR bstrText)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrText)
        m_pNative->Add2DPieGraphSegment(percent, color, CString(bstrText));
    return S_OK;
}

STDMETHODIMP CChart2d::Update2DPieGraphSegment(int index, int percent, ULONG color, BSTR bstrText)
{
    return Wrapper::Act(
        [&] { m_pNative->Update2DPieGraphSegment(index, percent, color, CString(bstrText)); });
}

STDMETHODIMP CChart2d::Delete2DPieGraphSegment(int index)
{
    return Wrapper::Act([&] { m_pNative->Delete2DPieGraphSegment(index); });
}

STDMETHODIMP CChart2d::Clear2DPieGraph()
{
    return Wrapper::Act([&] { m_pNative->Clear2DPieGraph(); });
}

STDMETHODIMP CChart2d::ShowGraphLegend(long legend)
{
    return Wrapper::Act([&] { m_pNative->ShowGraphLegend(legend); });
}

STDMETHODIMP CChart2d::GetGraphLegendTextColor(ULONG* color)
{
    return Wrapper::Answer(color, [&] { return m_pNative->GetGraphLegendTextColor(); });
}

STDMETHODIMP CChart2d::SetGraphLegendTextColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->SetGraphLegendTextColor(color); });
}

STDMETHODIMP CChart2d::GetGraphLegendBackgroundColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->GetGraphLegendBackgroundColor(); });
}

STDMETHODIMP CChart2d::SetGraphLegendBackgroundColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->SetGraphLegendBackgroundColor(color); });
}

STDMETHODIMP CChart2d::SetGraphLabelsColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->SetGraphLabelsColor(color); });
}

STDMETHODIMP CChart2d::GetGraphLabelsColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->GetGraphLabelsColor(); });
}

STDMETHODIMP CChart2d::GetGraphSubtitleColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->GetGraphSubtitleColor(); });
}

STDMETHODIMP CChart2d::SetGraphSubtitleColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->SetGraphSubtitleColor(color); });
}

STDMETHODIMP CChart2d::GetGraphTitleColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->GetGraphTitleColor(); });
}

STDMETHODIMP CChart2d::SetGraphTitleColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->SetGraphTitleColor(color); });
}

STDMETHODIMP CChart2d::GetGraphSubtitleShadow(long* bShadow)
{
    return Wrapper::Answer(bShadow, [&] { return m_pNative->GetGraphSubtitleShadow(); });
}

STDMETHODIMP CChart2d::SetGraphSubtitleShadow(long bShadow)
{
    return Wrapper::Act([&] { m_pNative->SetGraphSubtitleShadow(bShadow); });
}

STDMETHODIMP CChart2d::GetGraphTitleShadow(long* pbShadow)
{
    return Wrapper::Answer(pbShadow, [&] { return m_pNative->GetGraphTitleShadow(); });
}

STDMETHODIMP CChart2d::SetGraphTitleShadow(long bShadow)
{
    return Wrapper::Act([&] { m_pNative->SetGraphTitleShadow(bShadow); });
}

STDMETHODIMP CChart2d::GetGradientFillType(int* nType)
{
    return Wrapper::Answer(nType, [&] { return m_pNative->GetGradientFillType(); });
}

STDMETHODIMP CChart2d::SetGradientFillType(int nType)
{
    return Wrapper::Act([&] { m_pNative->SetGradientFillType(nType); });
}

STDMETHODIMP CChart2d::SetGraphGradientColors(ULONG col1, ULONG col2)
{
    return Wrapper::Act([&] { m_pNative->SetGraphGradientColors(col1, col2); });
}

STDMETHODIMP CChart2d::GetGraphFillType(int* nType)
{
    return Wrapper::Answer(nType, [&] { return m_pNative->GetGraphFillType(); });
}

STDMETHODIMP CChart2d::SetGraphFillType(int nType)
{
    return Wrapper::Act([&] { m_pNative->SetGraphFillType(nType); });
}

STDMETHODIMP CChart2d::SetGraphSubtitle(BSTR bstrsubtitle)
{
    return Wrapper::ActGiven(bstrsubtitle, [&] { m_pNative->SetGraphSubtitle(CString(bstrsubtitle)); });
}

STDMETHODIMP CChart2d::SetGraphTitle(BSTR bstrtitle)
{
    return Wrapper::ActGiven(bstrtitle, [&] { m_pNative->SetGraphTitle(CString(bstrtitle)); });
}

STDMETHODIMP CChart2d::GetGraphBackgroundColor(ULONG* pColor)
{
    return Wrapper::Answer(pColor, [&] { return m_pNative->GetGraphBackgroundColor(); });
}

STDMETHODIMP CChart2d::SetGraphBackgroundColor(ULONG color)
{
    return Wrapper::Act([&] { m_pNative->SetGraphBackgroundColor(color); });
}
