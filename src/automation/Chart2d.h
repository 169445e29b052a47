#pragma once
// The automation object of the business chart. It forwards to one CGraphObject, which Create
// makes and which goes with it, window and all. Create comes first: every other method but a
// getter with a null pointer needs it. A data operation that the chart refuses opens a message
// box and returns S_OK all the same.

#include "automation/Interfaces.h"
#include "charts2d/GraphObject.h"
#include "resources/ScriptIds.h"

#include <memory>

class CChart2d : public CComObjectRootEx<CComSingleThreadModel>,
                 public CComCoClass<CChart2d, &CLSID_Chart2d>,
                 public IDispatchImpl<IChart2d, &IID_IChart2d, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_CHART2D)

    BEGIN_COM_MAP(CChart2d)
    COM_INTERFACE_ENTRY(IChart2d)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

    // Looks
    STDMETHOD(ShowGraphLegend)(long legend) override;
    STDMETHOD(GetGraphLegendTextColor)(ULONG* color) override;
    STDMETHOD(SetGraphLegendTextColor)(ULONG color) override;
    STDMETHOD(GetGraphLegendBackgroundColor)(ULONG* pColor) override;
    STDMETHOD(SetGraphLegendBackgroundColor)(ULONG color) override;
    STDMETHOD(SetGraphLabelsColor)(ULONG color) override;
    STDMETHOD(GetGraphLabelsColor)(ULONG* pColor) override;
    STDMETHOD(GetGraphSubtitleColor)(ULONG* pColor) override;
    STDMETHOD(SetGraphSubtitleColor)(ULONG color) override;
    STDMETHOD(GetGraphTitleColor)(ULONG* pColor) override;
    STDMETHOD(SetGraphTitleColor)(ULONG color) override;
    STDMETHOD(GetGraphSubtitleShadow)(long* bShadow) override;
    STDMETHOD(SetGraphSubtitleShadow)(long bShadow) override;
    STDMETHOD(GetGraphTitleShadow)(long* pbShadow) override;
    STDMETHOD(SetGraphTitleShadow)(long bShadow) override;
    STDMETHOD(GetGradientFillType)(int* nType) override;
    STDMETHOD(SetGradientFillType)(int nType) override;
    STDMETHOD(SetGraphGradientColors)(ULONG col1, ULONG col2) override;
    STDMETHOD(GetGraphFillType)(int* nType) override;
    STDMETHOD(SetGraphFillType)(int nType) override;
    STDMETHOD(SetGraphSubtitle)(BSTR bstrsubtitle) override;
    STDMETHOD(SetGraphTitle)(BSTR bstrtitle) override;
    STDMETHOD(GetGraphBackgroundColor)(ULONG* pColor) override;
    STDMETHOD(SetGraphBackgroundColor)(ULONG color) override;

    // Data
    STDMETHOD(Add2DBarGraphSegment)(BSTR bstrText) override;
    STDMETHOD(Delete2DBarGraphSegment)(int index) override;
    STDMETHOD(Add2DBarGraphSeries)(BSTR bstrText, ULONG color) override;
    STDMETHOD(Detele2DBarGraphSeries)(int index) override;
    STDMETHOD(Set2DBarGraphValue)(int segment, int series, int value) override;
    STDMETHOD(Add2DLineGraphSegment)(BSTR bstrText) override;
    STDMETHOD(Delete2DLineGraphSegment)(int index) override;
    STDMETHOD(Add2DLineGraphSeries)(BSTR bstrText, ULONG color) override;
    STDMETHOD(Delete2DLineGraphSeries)(int index) override;
    STDMETHOD(Set2DLineGraphValue)(int segment, int series, int value) override;
    STDMETHOD(Add2DPieGraphSegment)(double percent, ULONG color, BSTR bstrText) override;
    STDMETHOD(Update2DPieGraphSegment)(int index, int percent, ULONG color, BSTR bstrText) override;
    STDMETHOD(Delete2DPieGraphSegment)(int index) override;
    STDMETHOD(Clear2DPieGraph)() override;

    // Window and animation
    STDMETHOD(Create)(RECT* rect, wireHWND hWnd, UINT nID) override;
    STDMETHOD(CreateGraph)(int type) override;
    STDMETHOD(GetHandle)(wireHWND* phWnd) override;
    STDMETHOD(Invalidate)(long bErase) override;
    STDMETHOD(SetGraphPosition)(int x, int y) override;
    STDMETHOD(SetGraphSize)(int width, int height) override;
    STDMETHOD(GetGraphAnimation)(long* pbAnimation) override;
    STDMETHOD(SetGraphAnimation)(long animation, int type) override;

    std::unique_ptr<CGraphObject> m_pNative;
};
