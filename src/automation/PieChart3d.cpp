#include "automation/PieChart3d.h"

#include "automation/Strings.h"
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

// Gives the native window's answer to the host, unless it has no place for it.
template <class Value, class Question> HRESULT Tell(Value* pValue, Question question)
{
    if (pValue == nullptr)
        return S_FALSE;
    *pValue = question();
    return S_OK;
}

} // namespace

STDMETHODIMP CPieChart3d::Create(BSTR bstrCaption, RECT* rect, wireHWND hWnd, UINT nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative != nullptr || rect == nullptr)
        return S_FALSE;
    m_pNative = std::make_unique<CPieChartWnd>();
    CWnd* pParent = CWnd::FromHandle(reinterpret_cast<HWND>(hWnd));
    m_pNative->Create(bstrCaption, *rect, pParent, nID);
    return S_OK;
}

STDMETHODIMP CPieChart3d::PostMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative == nullptr || m_pNative->m_hWnd == nullptr)
        return S_FALSE;
    m_pNative->PostMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SendMessage(UINT message, UINT_PTR wParam, LONG_PTR lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative == nullptr || m_pNative->m_hWnd == nullptr)
        return S_FALSE;
    m_pNative->SendMessage(message, wParam, lParam);
    return S_OK;
}

STDMETHODIMP CPieChart3d::GetHandle(wireHWND* phWnd)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (phWnd == nullptr)
        return S_FALSE;
    // Before Create the answer is null and the read faults all the same. Volatile and fence keep
    // the compiler from concluding otherwise, and from leaving the first store out.
    CPieChartWnd* volatile pNative = m_pNative.get();
    if (pNative == nullptr)
        *phWnd = nullptr;
    std::atomic_signal_fence(std::memory_order_seq_cst);
    *phWnd = reinterpret_cast<wireHWND>(pNative->m_hWnd);
    return S_OK;
}

STDMETHODIMP CPieChart3d::Invalidate(long bErase)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (m_pNative->m_hWnd != nullptr) // a null handle would stand for every window of the screen
        m_pNative->Invalidate(bErase);
    return S_OK;
}

STDMETHODIMP CPieChart3d::InsertItem(BSTR bstrElement, BSTR bstrLabel, double dValue, ULONG crColor)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->InsertItem(CString(bstrElement), CString(bstrLabel), dValue,
                          PieColors::FromColorRef(crColor));
    return S_OK;
}

STDMETHODIMP CPieChart3d::RemoveItem(BSTR bstrElement)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->RemoveItem(CString(bstrElement));
    return S_OK;
}

STDMETHODIMP CPieChart3d::RemoveItemByIndex(int iElementID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->RemoveItemByIndex(iElementID);
    return S_OK;
}

STDMETHODIMP CPieChart3d::RemoveAllItem()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->RemoveAllItem();
    return S_OK;
}

STDMETHODIMP CPieChart3d::UpdateItemLabel(VARIANT* pItem, BSTR bstrLabel)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrLabel != nullptr)
        m_pNative->UpdateItemLabel(ElementOf(pItem), CString(bstrLabel));
    return S_OK;
}

STDMETHODIMP CPieChart3d::UpdateItemValue(VARIANT* pItem, double dVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->UpdateItemValue(ElementOf(pItem), dVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::UpdateItemColor(VARIANT* pItem, ULONG crItem)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->UpdateItemColor(ElementOf(pItem), PieColors::FromColorRef(crItem));
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetPieElementGradientLight(VARIANT* pItem, float flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetPieElementGradientLight(ElementOf(pItem), flGradientVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetPieElementGradientDark(VARIANT* pItem, float flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetPieElementGradientDark(ElementOf(pItem), flGradientVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetPieElementGradientDarkAll(float flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetPieElementGradientDarkAll(flGradientVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SetPieElementGradientLightAll(float flGradientVal)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SetPieElementGradientLightAll(flGradientVal);
    return S_OK;
}

STDMETHODIMP CPieChart3d::sortPiechartElements(long bClockWise)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->sortPiechartElements(bClockWise);
    return S_OK;
}

STDMETHODIMP CPieChart3d::SortToOrginalOrder()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    m_pNative->SortToOrginalOrder();
    return S_OK;
}

STDMETHODIMP CPieChart3d::GetSelectedElement(VARIANT** pItem)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(pItem, [&] { return ItemOf(m_pNative->GetSelectedElement()); });
}

STDMETHODIMP CPieChart3d::GetPieChartItem(BSTR bstrElement, VARIANT** pItem)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrElement == nullptr)
        return S_FALSE;
    return Tell(pItem, [&] { return ItemOf(m_pNative->GetPieChartItem(CString(bstrElement))); });
}

STDMETHODIMP CPieChart3d::GetElementID(BSTR bstrElement, int* nID)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (bstrElement == nullptr)
        return S_FALSE;
    return Tell(nID, [&] { return m_pNative->GetElementID(CString(bstrElement)); });
}

STDMETHODIMP CPieChart3d::GetElementGrLight(VARIANT* pItem, float* flGrLight)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(flGrLight, [&] { return m_pNative->GetElementGrLight(ElementOf(pItem)); });
}

STDMETHODIMP CPieChart3d::GetElementGrDark(VARIANT* pItem, float* flGrDark)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return Tell(flGrDark, [&] { return m_pNative->GetElementGrDark(ElementOf(pItem)); });
}

STDMETHODIMP CPieChart3d::GetElementName(VARIANT* pItem, BSTR* pbstrName)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    const CString strName = m_pNative->GetElementName(ElementOf(pItem));
    if (pbstrName == nullptr)
        return S_FALSE;
    DeliverString(strName, pbstrName);
    return S_OK;
}
