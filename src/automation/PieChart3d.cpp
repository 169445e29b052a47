#include "automation/PieChart3d.h"

#include "automation/Strings.h"
#include "automation/WrapperCalls.h"
#include "pie3d/PieColors.h"

#include <atomic>

namespace
{

SPieElement* ElementOf(VARIANT* pItem) noexcept
{
    return reinterpret_cast<SPieElement*>(pItem);
}

VARIANT* ItemOf(SPieElement* pElement) noexcept
{
    return reinterpret_cast<VARIANT*>(pElement);
}

} // namespace

STDMETHODIMP CPieChart3d::Create(BSTR bstrCaption, RECT* rect, wireHWND hWnd, UINT nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative || !rect)
        return S_FALSE;
    m_pNative = std::make_unique<CPieChartWnd>();
    CWnd* pParent = CWnd::FromHandle(reinterpret_cast<HWND>(hWnd));
    m_pNative->Create(bstrCaption, *rect, pParent, nID);
    return S_OK;
}

STDMETHODIMP CPieChart3d::PostMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!m_pNative || !m_pNative->m_hWnd)
        return S_FALSE;
    m_pNative->PostMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SendMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!m_pNative || !m_pNative->m_hWnd)
        return S_FALSE;
    m_pNative->SendMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CPieChart3d::GetHandle(wireHWND* phWnd)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!phWnd)
        return S_FALSE;
    // Before Create the answer is null and the read faults all the same. Volatile and fence keep
    // the compiler from concluding otherwise, and from leaving the first store out.
    CPieChartWnd* volatile pNative = m_pNative.get();
    if (!pNative)
        *phWnd = nullptr;
    std::atomic_signal_fence(std::memory_order_seq_cst);
    *phWnd = reinterpret_cast<wireHWND>(pNative->m_hWnd); // NOLINT(clang-analyzer-core.NullDereference)
    return S_OK;
}

STDMETHODIMP CPieChart3d::Invalidate(long bErase)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative->m_hWnd) // a null handle would mean every window of the screen
        m_pNative->Invalidate(bErase);
    return S_OK;
}

STDMETHODIMP CPieChart3d::InsertItem(BSTR bstrElement, BSTR bstrLabel, double dValue, ULONG crColor)
{
    return Wrapper::Act([&] {
        m_pNative->InsertItem(CString(bstrElement), CString(bstrLabel), dValue,
                              PieColors::FromColorRef(crColor));
    });
}

STDMETHODIMP CPieChart3d::RemoveItem(BSTR bstrElement)
{
    return Wrapper::Act([&] { m_pNative->RemoveItem(CString(bstrElement)); });
}

STDMETHODIMP CPieChart3d::RemoveItemByIndex(int iElementID)
{
    return Wrapper::Act([&] { m_pNative->RemoveItemByIndex(iElementID); });
}

STDMETHODIMP CPieChart3d::RemoveAllItem()
{
    return Wrapper::Act([&] { m_pNative->RemoveAllItem(); });
}

STDMETHODIMP CPieChart3d::UpdateItemLabel(VARIANT* pItem, BSTR bstrLabel)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrLabel)
        m_pNative->UpdateItemLabel(ElementOf(pItem), CString(bstrLabel));
    return S_OK;
}

STDMETHODIMP CPieChart3d::UpdateItemValue(VARIANT* pItem, double dVal)
{
    return Wrapper::Act([&] { m_pNative->UpdateItemValue(ElementOf(pItem), dVal); });
}

STDMETHODIMP CPieChart3d::UpdateItemColor(VARIANT* pItem, ULONG crItem)
{
    return Wrapper::Act(
        [&] { m_pNative->UpdateItemColor(ElementOf(pItem), PieColors::FromColorRef(crItem)); });
}

STDMETHODIMP CPieChart3d::SetPieElementGradientLight(VARIANT* pItem, float flGradientVal)
{
    return Wrapper::Act([&] { m_pNative->SetPieElementGradientLight(ElementOf(pItem), flGradientVal); });
}

STDMETHODIMP CPieChart3d::SetPieElementGradientDark(VARIANT* pItem, float flGradientVal)
{
    return Wrapper::Act([&] { m_pNative->SetPieElementGradientDark(ElementOf(pItem), flGradientVal); });
}

STDMETHODIMP CPieChart3d::SetPieElementGradientDarkAll(float flGradientVal)
{
    return Wrapper::Act([&] { m_pNative->SetPieElementGradientDarkAll(flGradientVal); });
}

STDMETHODIMP CPieChart3d::SetPieElementGradientLightAll(float flGradientVal)
{
    return Wrapper::Act([&] { m_pNative->SetPieElementGradientLightAll(flGradientVal); });
}

STDMETHODIMP CPieChart3d::sortPiechartElements(long bClockWise)
{
    return Wrapper::Act([&] { m_pNative->sortPiechartElements(bClockWise); });
}

STDMETHODIMP CPieChart3d::SortToOrginalOrder()
{
    return Wrapper::Act([&] { m_pNative->SortToOrginalOrder(); });
}

STDMETHODIMP CPieChart3d::GetSelectedElement(VARIANT** pItem)
{
    return Wrapper::Answer(pItem, [&] { return ItemOf(m_pNative->GetSelectedElement()); });
}

STDMETHODIMP CPieChart3d::GetPieChartItem(BSTR bstrElement, VARIANT** pItem)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!bstrElement)
        return S_FALSE;
    return Wrapper::Answer(pItem,
                           [&] { return ItemOf(m_pNative->GetPieChartItem(CString(bstrElement))); });
}

STDMETHODIMP CPieChart3d::GetElementID(BSTR bstrElement, int* nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!bstrElement)
        return S_FALSE;
    return Wrapper::Answer(nID, [&] { return m_pNative->GetElementID(CString(bstrElement)); });
}

STDMETHODIMP CPieChart3d::GetElementGrLight(VARIANT* pItem, float* flGrLight)
{
    return Wrapper::Answer(flGrLight, [&] { return m_pNative->GetElementGrLight(ElementOf(pItem)); });
}

STDMETHODIMP CPieChart3d::GetElementGrDark(VARIANT* pItem, float* flGrDark)
{
    return Wrapper::Answer(flGrDark, [&] { return m_pNative->GetElementGrDark(ElementOf(pItem)); });
}

STDMETHODIMP CPieChart3d::GetElementName(VARIANT* pItem, BSTR* pbstrName)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    const CString strName = m_pNative->GetElementName(ElementOf(pItem));
    if (!pbstrName)
        return S_FALSE;
    DeliverString(strName, pbstrName);
    return S_OK;
}
