#pragma once
// The automation object of the XY graph. It forwards to one CXGraph, which Create makes and
// which outlives it: the window belongs to the host's window, the object to the module.
// Everything but Create, PostMessage, SendMessage, GetHandle and the methods with an empty
// body needs Create first.

#include "automation/Interfaces.h"
#include "graph/XGraph.h"
#include "resources/ScriptIds.h"

class CSGraph : public CComObjectRootEx<CComSingleThreadModel>,
                public CComCoClass<CSGraph, &CLSID_SGraph>,
                public IDispatchImpl<ISGraph, &IID_ISGraph, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPH)

    BEGIN_COM_MAP(CSGraph)
    COM_INTERFACE_ENTRY(ISGraph)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

    // Window, data, axes, curves, labels and pictures (SGraph.cpp)
    STDMETHOD(SetData)
    (ISGraphDataSerie** pSerie, TDataPoint* pValues, long nCount, int nCurve, int nXAxis, int nYAxis,
     long bAutoDelete) override;
    STDMETHOD(GetXAxis)(ISGraphAxis** pGraphAxis, int nAxis) override;
    STDMETHOD(GetYAxis)(ISGraphAxis** pGraphAxis, int nAxis) override;
    STDMETHOD(GetCurve)(ISGraphDataSerie** pGraphAxis, int nCurve) override;
    STDMETHOD(DeleteXAxis)(int nAxis) override;
    STDMETHOD(DeleteYAxis)(int nAxis) override;
    STDMETHOD(DeleteCurve)(int nCurve) override;
    STDMETHOD(GetXAxisCount)(int* pnValue) override;
    STDMETHOD(GetYAxisCount)(int* pnValue) override;
    STDMETHOD(GetCurveCount)(int* pnValue) override;
    STDMETHOD(SelectXAxis)(int nAxis) override;
    STDMETHOD(SelectYAxis)(int nAxis) override;
    STDMETHOD(SelectCurve)(int nCurve) override;
    STDMETHOD(Autoscale)(int nXAxis, int nYAxis, int nCurve) override;
    STDMETHOD(ResetAll)() override;
    STDMETHOD(SetBackgroundBitmap)(ISGraphBitmap* pBitmap, UINT nFlags) override;
    STDMETHOD(InsertLabel)(BSTR bstrText, RECT* pRect, ISGraphLabel** pGraphLabel) override;
    STDMETHOD(InsertBitmap)(RECT* pRect, ISGraphBitmap* pBitmapin, ISGraphBitmap** pBitmapout) override;
    STDMETHOD(SaveBitmap)(BSTR bstrText) override;
    STDMETHOD(Create)(BSTR bstrCaption, RECT* rect, wireHWND hWnd, UINT nID) override;
    STDMETHOD(Invalidate)(long bErase) override;
    STDMETHOD(PostMessage)(UINT message, UINT_PTR wParam, LONG_PTR lParam) override;
    STDMETHOD(SendMessage)(UINT message, UINT_PTR wParam, LONG_PTR lParam) override;
    STDMETHOD(GetHandle)(wireHWND* phWnd) override;

    // Operations, trends, notations, the cursor in values, files (SGraphOperations.cpp)
    STDMETHOD(InsertDataNotation)(int nCurve, int nIndex) override;
    STDMETHOD(AddLinearTrend)(ISGraphDataSerie* pSerie) override;
    STDMETHOD(AddCubicTrend)(ISGraphDataSerie* pSerie) override;
    STDMETHOD(Edit)() override;
    STDMETHOD(Zoom)() override;
    STDMETHOD(ResetZoom)() override;
    STDMETHOD(Pan)() override;
    STDMETHOD(NoOp)() override;
    STDMETHOD(Measure)() override;
    STDMETHOD(Cursor)() override;
    STDMETHOD(GetZoomDepth)(int* pnValue) override;
    STDMETHOD(GetCursorAbsolute)(int nCurve, TDataPoint* pPoint) override;
    STDMETHOD(SetCursorAbsolute)(int nCurve, TDataPoint* pPoint, long bForceVisible) override;
    STDMETHOD(Save)(BSTR bstrFile, UINT nFlags) override;
    STDMETHOD(Load)(BSTR bstrFile) override;

    // Settings (SGraphSettings.cpp)
    STDMETHOD(SetGraphMargins)(int nLeft, int nTop, int nRight, int nBottom) override;
    STDMETHOD(SetBackColor)(ULONG color) override;
    STDMETHOD(SetGraphColor)(ULONG color) override;
    STDMETHOD(SetInnerColor)(ULONG color) override;
    STDMETHOD(SetDoubleBuffer)(long bValue) override;
    STDMETHOD(SetShowLegend)(long bValue) override;
    STDMETHOD(SetInteraction)(long bValue) override;
    STDMETHOD(SetSnapCursor)(long bValue) override;
    STDMETHOD(SetLegendAlignment)(EAlignment align) override;
    STDMETHOD(SetSnapRange)(int nValue) override;
    STDMETHOD(SetPrintHeader)(BSTR bstrText) override;
    STDMETHOD(SetPrintFooter)(BSTR bstrText) override;
    STDMETHOD(SetCursor)(long x, long y) override;
    STDMETHOD(SetCursorFlags)(UINT nFlags) override;
    STDMETHOD(DeleteMeasures)() override;
    STDMETHOD(ForceSnap)(int nCurve) override;
    STDMETHOD(GetBackColor)(ULONG* pColor) override;
    STDMETHOD(GetGraphColor)(ULONG* pColor) override;
    STDMETHOD(GetInnerColor)(ULONG* pColor) override;
    STDMETHOD(GetDoubleBuffer)(long* pbValue) override;
    STDMETHOD(GetShowLegend)(long* pbValue) override;
    STDMETHOD(GetInteraction)(long* pbValue) override;
    STDMETHOD(GetSnapCursor)(long* pbValue) override;
    STDMETHOD(GetLegendAlignment)(EAlignment* pAalign) override;
    STDMETHOD(GetSnapRange)(int* pnValue) override;
    STDMETHOD(GetCursor)(long* px, long* py) override;
    STDMETHOD(GetOperation)(EOperation* peop) override;

    // These only bring enumerations into the type library.
    STDMETHOD(GetXGraphMsgInfo)(XGRAPH_MSG nMsg, BSTR bstrCaption) override;
    STDMETHOD(GetXGraphPersistInfo)(XGRAPH_PERSIST nMsg, BSTR bstrCaption) override;
    STDMETHOD(GetXGraphXgcInfo)(XGRAPH_XGC nMsg, BSTR bstrCaption) override;

    HRESULT Run(void (CXGraph::*operation)());
    HRESULT AddTrend(ISGraphDataSerie* pSerie, void (CXGraph::*add)(CXGraphDataSerie*));

    CXGraph* m_pNative = nullptr; // not owned: the module frees it at its end
};
