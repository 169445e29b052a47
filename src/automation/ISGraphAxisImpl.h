#pragma once
// The methods of an axis, on CXGraphAxis, for whichever interface exposes them.

#include "automation/ISGraphObjectImpl.h"
#include "automation/NativeFields.h"
#include "objects/XGraphAxis.h"

template <class T, const IID* piid, const GUID* plibid>
class ISGraphAxisImpl : public ISGraphObjectImpl<T, piid, plibid>
{
public:
    STDMETHOD(SetAxisType)(EAxisType type) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_AxisType, type);
    }
    STDMETHOD(GetAxisType)(EAxisType* pType) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_AxisType, pType);
    }

    STDMETHOD(SetShowMarker)(long bValue) override
    {
        return NativeFields::StoreFlag(Native(), &CXGraphAxis::m_bShowMarker, bValue);
    }
    STDMETHOD(GetShowMarker)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_bShowMarker, pbValue);
    }

    STDMETHOD(SetDateTime)(long bValue) override
    {
        return NativeFields::StoreFlag(Native(), &CXGraphAxis::m_bDateTime, bValue);
    }
    STDMETHOD(GetDateTime)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_bDateTime, pbValue);
    }

    STDMETHOD(SetShowGrid)(long bValue) override
    {
        return NativeFields::StoreFlag(Native(), &CXGraphAxis::m_bShowGrid, bValue);
    }
    STDMETHOD(GetShowGrid)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_bShowGrid, pbValue);
    }

    STDMETHOD(SetAutoScale)(long bValue) override
    {
        return NativeFields::StoreFlag(Native(), &CXGraphAxis::m_bAutoScale, bValue);
    }
    STDMETHOD(GetAutoScale)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_bAutoScale, pbValue);
    }

    STDMETHOD(SetArcSize)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_nArcSize, nValue);
    }
    STDMETHOD(GetArcSize)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_nArcSize, pnValue);
    }

    STDMETHOD(SetMarkerSize)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_nMarkerSize, nValue);
    }
    STDMETHOD(GetMarkerSize)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_nMarkerSize, pnValue);
    }

    STDMETHOD(SetTickSize)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_nTickSize, nValue);
    }
    STDMETHOD(GetTickSize)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_nTickSize, pnValue);
    }

    STDMETHOD(SetGridStyle)(UINT nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_nGridStyle, nValue);
    }
    STDMETHOD(GetGridStyle)(UINT* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_nGridStyle, pnValue);
    }

    STDMETHOD(SetLabel)(BSTR bstrValue) override
    {
        return NativeFields::StoreText(Native(), &CXGraphAxis::m_cLabel, bstrValue);
    }
    STDMETHOD(GetLabel)(BSTR* pbstrValue) override
    {
        return NativeFields::FetchText(Native(), &CXGraphAxis::m_cLabel, pbstrValue);
    }

    STDMETHOD(SetDisplayFmt)(BSTR bstrValue) override
    {
        return NativeFields::StoreText(Native(), &CXGraphAxis::m_cDisplayFmt, bstrValue);
    }
    STDMETHOD(GetDisplayFmt)(BSTR* pbstrValue) override
    {
        return NativeFields::FetchText(Native(), &CXGraphAxis::m_cDisplayFmt, pbstrValue);
    }

    STDMETHOD(SetGridColor)(ULONG color) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_crGridColor, color);
    }
    STDMETHOD(GetGridColor)(ULONG* pColor) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_crGridColor, pColor);
    }

    STDMETHOD(SetPlacement)(EAxisPlacement placement) override
    {
        return NativeFields::Store(Native(), &CXGraphAxis::m_Placement, placement);
    }
    STDMETHOD(GetPlacement)(EAxisPlacement* pPlacement) override
    {
        return NativeFields::Fetch(Native(), &CXGraphAxis::m_Placement, pPlacement);
    }

    STDMETHOD(GetAxisMarkerCount)(long* pValue) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        const CXGraphAxis* pAxis = Native();
        if (pAxis == nullptr)
            return S_OK;
        if (pValue == nullptr)
            return S_FALSE;
        *pValue = pAxis->GetAxisMarkerCount();
        return S_OK;
    }
    STDMETHOD(GetValueForPos)(int nPos, double* pValue) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CXGraphAxis* pAxis = Native();
        if (pAxis == nullptr)
            return S_OK;
        if (pValue == nullptr)
            return S_FALSE;
        *pValue = pAxis->GetValueForPos(nPos);
        return S_OK;
    }
    STDMETHOD(SetAxisMarker)(int nMarker, double fValue, ULONG crColor, UINT nStyle) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (CXGraphAxis* pAxis = Native())
            pAxis->SetAxisMarker(nMarker, fValue, crColor, nStyle);
        return S_OK;
    }
    STDMETHOD(SetMaskerLabel)(int nPos, BSTR bstrValue) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CXGraphAxis* pAxis = Native();
        if (pAxis == nullptr)
            return S_OK;
        if (bstrValue == nullptr)
            return S_FALSE;
        pAxis->SetMaskerLabel(nPos, bstrValue);
        return S_OK;
    }
    STDMETHOD(SetColorRange)
    (int nRange, double fMin, double fMax, ULONG crMinColor, ULONG crMaxColor, BSTR bstrLabel,
     UINT nStyle) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CXGraphAxis* pAxis = Native();
        if (pAxis == nullptr)
            return S_OK;
        if (bstrLabel == nullptr)
            return S_FALSE;
        pAxis->SetColorRange(nRange, fMin, fMax, crMinColor, crMaxColor, bstrLabel, nStyle);
        return S_OK;
    }
    STDMETHOD(DeleteColorRange)(int nRange) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (CXGraphAxis* pAxis = Native())
            pAxis->DeleteColorRange(nRange);
        return S_OK;
    }
    STDMETHOD(DeleteAllColorRanges)() override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (CXGraphAxis* pAxis = Native())
            pAxis->DeleteAllColorRanges();
        return S_OK;
    }

protected:
    // Null without a handle, or with one of another class.
    [[nodiscard]] CXGraphAxis* Native() const { return DYNAMIC_DOWNCAST(CXGraphAxis, this->m_pObject); }
};
