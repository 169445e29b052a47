#pragma once
// The methods of a curve, on CXGraphDataSerie, for the interface that exposes them.

#include "automation/ISGraphObjectImpl.h"
#include "automation/WrapperCalls.h"
#include "objects/XGraphDataSerie.h"

// Makes a graph's automation object that is attached to no graph; null if that fails.
[[nodiscard]] IDispatch* NewUnattachedGraph();

template <class T, const IID* piid, const GUID* plibid>
class ISGraphDataSerieImpl : public ISGraphObjectImpl<T, piid, plibid>
{
public:
    // Takes the place of the object's own: a new automation object, apart from the graph that
    // the curve belongs to.
    STDMETHOD(GetGraph)(IDispatch** pRef) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        const CXGraphDataSerie* pCurve = Native();
        if (!pCurve || !pCurve->m_pGraph || !pRef)
            return S_OK;
        *pRef = NewUnattachedGraph();
        return *pRef ? S_OK : S_FALSE;
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
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nLineSize, nValue);
    }
    STDMETHOD(SetFillStyle)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nFillStyle, nValue);
    }
    STDMETHOD(SetMarkerType)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nMarkerType, nValue);
    }
    STDMETHOD(SetMarker)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nMarker, nValue);
    }
    STDMETHOD(SetMarkerSize)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nMarkerSize, nValue);
    }
    STDMETHOD(SetShowMarker)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphDataSerie::m_bShowMarker, bValue);
    }
    STDMETHOD(SetFillColor)(ULONG color) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_crFillColor, color);
    }
    // Cut to 16 bits.
    STDMETHOD(SetFillCurve)(int nValue) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nFillCurve, nValue);
    }
    STDMETHOD(SetFillBeneath)(long bValue, int nValue) override
    {
        return Wrapper::ActOn(
            *this, [&](CXGraphDataSerie& curve) { curve.SetFillBeneath(bValue != 0, nValue); });
    }
    STDMETHOD(SetFillTransparent)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphDataSerie::m_bFillTransparent, bValue);
    }
    STDMETHOD(SetLabel)(BSTR bstrValue) override
    {
        return Wrapper::StoreText(*this, &CXGraphDataSerie::m_cLabel, bstrValue);
    }
    STDMETHOD(SetType)(EGraphType type) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nType, type);
    }

    STDMETHOD(GetCount)(long* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nCount, pnValue);
    }
    STDMETHOD(GetIndex)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nIndex, pnValue);
    }
    STDMETHOD(GetXAxis)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nXAxis, pnValue);
    }
    STDMETHOD(GetYAxis)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nYAxis, pnValue);
    }
    STDMETHOD(GetLineSize)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nLineSize, pnValue);
    }
    STDMETHOD(GetFillStyle)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nFillStyle, pnValue);
    }
    STDMETHOD(GetMarkerType)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nMarkerType, pnValue);
    }
    STDMETHOD(GetMarker)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nMarker, pnValue);
    }
    STDMETHOD(GetMarkerSize)(int* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nMarkerSize, pnValue);
    }
    STDMETHOD(GetLineStyle)(UINT* pnValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nLineStyle, pnValue);
    }
    STDMETHOD(GetShowMarker)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_bShowMarker, pbValue);
    }
    STDMETHOD(GetFillBeneath)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_bFillBeneath, pbValue);
    }
    // Widened from 16 bits with its sign.
    STDMETHOD(GetFillCurve)(int* pnValue) override
    {
        return Wrapper::AnswerOf(*this, pnValue, [&](CXGraphDataSerie& curve) {
            return static_cast<short>(curve.m_nFillCurve);
        });
    }
    STDMETHOD(GetFillTransparent)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_bFillTransparent, pbValue);
    }
    STDMETHOD(GetLabel)(BSTR* pbstrValue) override
    {
        return Wrapper::FetchTextUnasked(*this, &CXGraphDataSerie::m_cLabel, pbstrValue);
    }
    STDMETHOD(GetType)(EGraphType* pType) override
    {
        return Wrapper::Fetch(*this, &CXGraphDataSerie::m_nType, pType);
    }
    STDMETHOD(SetLineStyle)(UINT nValue) override
    {
        return Wrapper::Store(*this, &CXGraphDataSerie::m_nLineStyle, nValue);
    }

    // Null without a handle, or with one of another class.
    [[nodiscard]] CXGraphDataSerie* Native() const
    {
        return DYNAMIC_DOWNCAST(CXGraphDataSerie, this->m_pObject);
    }

private:
    template <class Make> HRESULT HandOut(TDataPoint** pRef, Make make)
    {
        return Wrapper::AnswerOf(*this, pRef, make);
    }
};
