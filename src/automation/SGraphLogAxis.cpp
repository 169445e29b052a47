#include "automation/SGraphLogAxis.h"

STDMETHODIMP CSGraphLogAxis::SetRange(double fMin, double fMax)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (CXGraphLogAxis* pLogAxis = NativeLog())
        pLogAxis->SetRange(fMin, fMax);
    else if (CXGraphAxis* pAxis = Native())
        pAxis->SetRange(fMin, fMax);
    return S_OK;
}

STDMETHODIMP CSGraphLogAxis::GetValueForPos(int nPos, double* pValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CXGraphLogAxis* pLogAxis = NativeLog();
    if (!pLogAxis)
        return Base::GetValueForPos(nPos, pValue);
    if (!pValue)
        return S_FALSE;
    *pValue = pLogAxis->GetValueForPos(nPos);
    return S_OK;
}

STDMETHODIMP CSGraphLogAxis::SetAxisType(EAxisType type)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CXGraphLogAxis* pLogAxis = NativeLog();
    if (!pLogAxis)
        return Base::SetAxisType(type);
    pLogAxis->m_LogType = type;
    return S_OK;
}
