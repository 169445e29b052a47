#pragma once
// The methods of a curve, on CXGraphDataSerie, for the interface that exposes them.

#include "automation/ISGraphObjectImpl.h"
#include "automation/NativeFields.h"
#include "objects/XGraphDataSerie.h"

// Makes a graph's automation object that is attached to no graph; null if that fails.
[[nodiscard]] IDispatch* NewUnattachedGraph();

template <class T, const IID* piid, const GUID* plibid>
class ISGraphDataSerieImpl : public ISGraphObjectImpl<T, piid, plibid>
{
public:
    // Stands in place of the object's own: a new automation object, apart from the graph that
    // the curve belongs to.
    STDMETHOD(GetGraph)(IDispatch** pRef) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        const CXGraphDataSerie* pCurve = Native();
        if (pCurve == nullptr || pCurve->m_pGraph == nullptr || pRef == nullptr)
            return S_OK;
        *pRef = NewUnattachedGraph();
        return *pRef != nullptr ? S_OK : S_FALSE;
    }

    // Each hands out a new array: GetCount + nPoints points of a trend, GetCount points of a
    // moving average. The caller owns it and frees it with CoTaskMemFree. *pRef is null where
    // there is none: no point at all, or a polynomial that can't be fitted.
    STDMETHOD(GetLinearTrend)(TDataPoint** pRef, long nPoints) override
    {
        return HandOut(pRef, [=](CXGraphDataSerie& curve) { return curve.GetLinearTrend(nPoints); });
    }
    STDMETHOD(GetCubicTrend)(TDataPoint** pRef, long nPoints) override
    {
        return HandOut(pRef, [=](CXGraphDataSerie& curve) { return curve.GetCubicTrend(nPoints); });
    }
    STDMETHOD(GetPolynomialTrend)(TDataPoint** pRef, int nDegree, int nPoints) override
    {
        return HandOut(
            pRef, [=](CXGraphDataSerie& curve) { return curve.GetPolynomialTrend(nDegree, nPoints); });
    }
    STDMETHOD(GetSimpleMovingAverage)(TDataPoint** pRef, int span) override
    {
        return HandOut(pRef,
                       [=](CXGraphDataSerie& curve) { return curve.GetSimpleMovingAverage(span); });
    }
    STDMETHOD(GetExponentialMovingAverage)(TDataPoint** pRef, int span) override
    {
        return HandOut(pRef,
                       [=](CXGraphDataSerie& curve) { return curve.GetExponentialMovingAverage(span); });
    }
    STDMETHOD(GetLinearMovingAverage)(TDataPoint** pRef, int span) override
    {
        return HandOut(pRef,
                       [=](CXGraphDataSerie& curve) { return curve.GetLinearMovingAverage(span); });
    }
    STDMETHOD(GetTriangularMovingAverage)(TDataPoint** pRef, int span) override
    {
        return HandOut(pRef,
                       [=](CXGraphDataSerie& curve) { return curve.GetTriangularMovingAverage(span); });
    }
    // A cubic trend, whatever its name says: GetCount + span points.
    STDMETHOD(GetSineWeightedMovingAverage)(TDataPoint** pRef, int span) override
    {
        return HandOut(pRef, [=](CXGraphDataSerie& curve) { return curve.GetCubicTrend(span); });
    }

    STDMETHOD(SetLineSize)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nLineSize, nValue);
    }
    STDMETHOD(SetFillStyle)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nFillStyle, nValue);
    }
    STDMETHOD(SetMarkerType)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nMarkerType, nValue);
    }
    STDMETHOD(SetMarker)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nMarker, nValue);
    }
    STDMETHOD(SetMarkerSize)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nMarkerSize, nValue);
    }
    STDMETHOD(SetShowMarker)(long bValue) override
    {
        return NativeFields::StoreFlag(Native(), &CXGraphDataSerie::m_bShowMarker, bValue);
    }
    STDMETHOD(SetFillColor)(ULONG color) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_crFillColor, color);
    }
    // Cut to 16 bits.
    STDMETHOD(SetFillCurve)(int nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nFillCurve, nValue);
    }
    STDMETHOD(SetFillBeneath)(long bValue, int nValue) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (CXGraphDataSerie* pCurve = Native())
            pCurve->SetFillBeneath(bValue != 0, nValue);
        return S_OK;
    }
    STDMETHOD(SetFillTransparent)(long bValue) override
    {
        return NativeFields::StoreFlag(Native(), &CXGraphDataSerie::m_bFillTransparent, bValue);
    }
    STDMETHOD(SetLabel)(BSTR bstrValue) override
    {
        return NativeFields::StoreText(Native(), &CXGraphDataSerie::m_cLabel, bstrValue);
    }
    STDMETHOD(SetType)(EGraphType type) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nType, type);
    }

    STDMETHOD(GetCount)(long* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nCount, pnValue);
    }
    STDMETHOD(GetIndex)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nIndex, pnValue);
    }
    STDMETHOD(GetXAxis)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nXAxis, pnValue);
    }
    STDMETHOD(GetYAxis)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nYAxis, pnValue);
    }
    STDMETHOD(GetLineSize)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nLineSize, pnValue);
    }
    STDMETHOD(GetFillStyle)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nFillStyle, pnValue);
    }
    STDMETHOD(GetMarkerType)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nMarkerType, pnValue);
    }
    STDMETHOD(GetMarker)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nMarker, pnValue);
    }
    STDMETHOD(GetMarkerSize)(int* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nMarkerSize, pnValue);
    }
    STDMETHOD(GetLineStyle)(UINT* pnValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nLineStyle, pnValue);
    }
    STDMETHOD(GetShowMarker)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_bShowMarker, pbValue);
    }
    STDMETHOD(GetFillBeneath)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_bFillBeneath, pbValue);
    }
    // Widened from 16 bits with its sign.
    STDMETHOD(GetFillCurve)(int* pnValue) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        const CXGraphDataSerie* pCurve = Native();
        if (pCurve == nullptr)
            return S_OK;
        if (pnValue == nullptr)
            return S_FALSE;
        *pnValue = static_cast<short>(pCurve->m_nFillCurve);
        return S_OK;
    }
    STDMETHOD(GetFillTransparent)(long* pbValue) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_bFillTransparent, pbValue);
    }
    STDMETHOD(GetLabel)(BSTR* pbstrValue) override
    {
        return NativeFields::FetchText(Native(), &CXGraphDataSerie::m_cLabel, pbstrValue);
    }
    STDMETHOD(GetType)(EGraphType* pType) override
    {
        return NativeFields::Fetch(Native(), &CXGraphDataSerie::m_nType, pType);
    }
    STDMETHOD(SetLineStyle)(UINT nValue) override
    {
        return NativeFields::Store(Native(), &CXGraphDataSerie::m_nLineStyle, nValue);
    }

private:
    template <class Make> HRESULT HandOut(TDataPoint** pRef, Make make)
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CXGraphDataSerie* pCurve = Native();
        if (pCurve == nullptr)
            return S_OK;
        if (pRef == nullptr)
            return S_FALSE;
        *pRef = make(*pCurve);
        return S_OK;
    }

protected:
    // Null without a handle, or with one of another class.
    [[nodiscard]] CXGraphDataSerie* Native() const
    {
        return DYNAMIC_DOWNCAST(CXGraphDataSerie, this->m_pObject);
    }
};
