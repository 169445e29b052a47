#pragma once
// The methods of an axis, on CXGraphAxis, for whichever interface exposes them.

#include "automation/ISGraphObjectImpl.h"
#include "automation/WrapperCalls.h"
#include "objects/XGraphAxis.h"

template <class T, const IID* piid, const GUID* plibid>
class ISGraphAxisImpl : public ISGraphObjectImpl<T, piid, plibid>
{
public:
    STDMETHOD(SetAxisType)(EAxisType type) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_AxisType, type);
    }
    STDMETHOD(GetAxisType)(EAxisType* pType) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_AxisType, pType);
    }

    STDMETHOD(SetShowMarker)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphAxis::m_bShowMarker, bValue);
    }
    STDMETHOD(GetShowMarker)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_bShowMarker, pbValue);
    }

    STDMETHOD(SetDateTime)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphAxis::m_bDateTime, bValue);
    }
    STDMETHOD(GetDateTime)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_bDateTime, pbValue);
    }

    STDMETHOD(SetShowGrid)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphAxis::m_bShowGrid, bValue);
    }
    STDMETHOD(GetShowGrid)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_bShowGrid, pbValue);
    }

    STDMETHOD(SetAutoScale)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphAxis::m_bAutoScale, bValue);
    }
    STDMETHOD(GetAutoScale)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_bAutoScale, pbValue);
    }

    STDMETHOD(SetArcSize)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_nArcSize, nValue);
    }
    STDMETHOD(GetArcSize)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_nArcSize, pnValue);
    }

    STDMETHOD(SetMarkerSize)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_nMarkerSize, nValue);
    }
    STDMETHOD(GetMarkerSize)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_nMarkerSize, pnValue);
    }

    STDMETHOD(SetTickSize)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_nTickSize, nValue);
    }
    STDMETHOD(GetTickSize)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_nTickSize, pnValue);
    }

    STDMETHOD(SetGridStyle)(UINT nValue) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_nGridStyle, nValue);
    }
    STDMETHOD(GetGridStyle)(UINT* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_nGridStyle, pnValue);
    }

    STDMETHOD(SetLabel)(BSTR bstrValue) override
    {
        return Wrapper::StoreText(*this, &CXGraphAxis::m_cLabel, bstrValue);
    }
    STDMETHOD(GetLabel)(BSTR* pbstrValue) override
    {
        return Wrapper::FetchTextUnasked(*this, &CXGraphAxis::m_cLabel, pbstrValue);
    }

    STDMETHOD(SetDisplayFmt)(BSTR bstrValue) override
    {
        return Wrapper::StoreText(*this, &CXGraphAxis::m_cDisplayFmt, bstrValue);
    }
    STDMETHOD(GetDisplayFmt)(BSTR* pbstrValue) override
    {
        return Wrapper::FetchText(*this, &CXGraphAxis::m_cDisplayFmt, pbstrValue);
    }

    STDMETHOD(SetGridColor)(ULONG color) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_crGridColor, color);
    }
    STDMETHOD(GetGridColor)(ULONG* pColor) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_crGridColor, pColor);
    }

    STDMETHOD(SetPlacement)(EAxisPlacement placement) override
    {
        return Wrapper::Store(*this, &CXGraphAxis::m_Placement, placement);
    }
    STDMETHOD(GetPlacement)(EAxisPlacement* pPlacement) override
    {
        return Wrapper::Fetch(*this, &CXGraphAxis::m_Placement, pPlacement);
    }

    STDMETHOD(GetAxisMarkerCount)(long* pValue) override
    {
        return Wrapper::AnswerOf(*this, pValue,
                                 [&](CXGraphAxis& axis) { return axis.GetAxisMarkerCount(); });
    }
    STDMETHOD(GetValueForPos)(int nPos, double* pValue) override
    {
        return Wrapper::AnswerOf(*this, pValue,
                                 [&](CXGraphAxis& axis) { return axis.GetValueForPos(nPos); });
    }
    STDMETHOD(SetAxisMarker)(int nMarker, double fValue, ULONG crColor, UINT nStyle) override
    {
        return Wrapper::ActOn(
            *this, [&](CXGraphAxis& axis) { axis.SetAxisMarker(nMarker, fValue, crColor, nStyle); });
    }
    STDMETHOD(SetMaskerLabel)(int nPos, BSTR bstrValue) override
    {
        return Wrapper::ActOnGiven(*this, bstrValue,
                                   [&](CXGraphAxis& axis) { axis.SetMaskerLabel(nPos, bstrValue); });
    }
    STDMETHOD(SetColorRange)
    (int nRange, double fMin, double fMax, ULONG crMinColor, ULONG crMaxColor, BSTR bstrLabel,
     UINT nStyle) override
    {
        return Wrapper::ActOnGiven(*this, bstrLabel, [&](CXGraphAxis& axis) {
            axis.SetColorRange(nRange, fMin, fMax, crMinColor, crMaxColor, bstrLabel, nStyle);
        });
    }
    STDMETHOD(DeleteColorRange)(int nRange) override
    {
        return Wrapper::ActOn(*this, [&](CXGraphAxis& axis) { axis.DeleteColorRange(nRange); });
    }
    STDMETHOD(DeleteAllColorRanges)() override
    {
        return Wrapper::ActOn(*this, [&](CXGraphAxis& axis) { axis.DeleteAllColorRanges(); });
    }

    // Null without a handle, or with one of another class.
    [[nodiscard]] CXGraphAxis* Native() const { return DYNAMIC_DOWNCAST(CXGraphAxis, this->m_pObject); }
};
