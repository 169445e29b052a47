#pragma once
// The automation object of the 3D pie. It forwards to one CPieChartWnd, which Create makes
// and which goes with it, window and all. Create comes first: of the other methods only
// PostMessage and SendMessage do without a native window.
//
// What the interface types as VARIANT* is no variant: an item is the address of an element,
// good until the element is removed, and a font a pointer to a LOGFONTW. Colours are
// COLORREF and become opaque ARGB, except that of the parent window. A refusal of the native
// window is S_OK here; a host learns of it by asking for the item.

#include "automation/Interfaces.h"
#include "pie3d/PieChartWnd.h"
#include "resources/ScriptIds.h"

#include <memory>

class CPieChart3d : public CComObjectRootEx<CComSingleThreadModel>,
                    public CComCoClass<CPieChart3d, &CLSID_PieChart3d>,
                    public IDispatchImpl<IPieChart3d, &IID_IPieChart3d, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_PIECHART3D)

    BEGIN_COM_MAP(CPieChart3d)
    COM_INTERFACE_ENTRY(IPieChart3d)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

    // Window
    STDMETHOD(Create)(BSTR bstrCaption, RECT* rect, wireHWND hWnd, UINT nID) override;
    STDMETHOD(PostMessage)(UINT message, UINT_PTR wParam, LONG_PTR lParam) override;
    STDMETHOD(SendMessage)(UINT message, UINT_PTR wParam, LONG_PTR lParam) override;
    STDMETHOD(GetHandle)(wireHWND* phWnd) override;
    STDMETHOD(Invalidate)(long bErase) override;

    // Elements
    STDMETHOD(InsertItem)(BSTR bstrElement, BSTR bstrLabel, double dValue, ULONG crColor) override;
    STDMETHOD(RemoveItem)(BSTR bstrElement) override;
    STDMETHOD(RemoveItemByIndex)(int iElementID) override;
    STDMETHOD(RemoveAllItem)() override;
    STDMETHOD(UpdateItemLabel)(VARIANT* pItem, BSTR bstrLabel) override;
    STDMETHOD(UpdateItemValue)(VARIANT* pItem, double dVal) override;
    STDMETHOD(UpdateItemColor)(VARIANT* pItem, ULONG crItem) override;
    STDMETHOD(SetPieElementGradientLight)(VARIANT* pItem, float flGradientVal) override;
    STDMETHOD(SetPieElementGradientDark)(VARIANT* pItem, float flGradientVal) override;
    STDMETHOD(SetPieElementGradientDarkAll)(float flGradientVal) override;
    STDMETHOD(SetPieElementGradientLightAll)(float flGradientVal) override;
    STDMETHOD(sortPiechartElements)(long bClockWise) override;
    STDMETHOD(SortToOrginalOrder)() override;
    STDMETHOD(GetSelectedElement)(VARIANT** pItem) override;
    STDMETHOD(GetPieChartItem)(BSTR bstrElement, VARIANT** pItem) override;
    STDMETHOD(GetElementID)(BSTR bstrElement, int* nID) override;
    STDMETHOD(GetElementGrLight)(VARIANT* pItem, float* flGrLight) override;
    STDMETHOD(GetElementGrDark)(VARIANT* pItem, float* flGrDark) override;
    STDMETHOD(GetElementName)(VARIANT* pItem, BSTR* pbstrName) override;

    // Looks
    STDMETHOD(SetLabelFont)(VARIANT* lf) override;
    STDMETHOD(SetLabelFontName)(BSTR bstrName) override;
    STDMETHOD(SetTitleFont)(VARIANT* lf) override;
    STDMETHOD(SetTitleFontName)(BSTR bstrName) override;
    STDMETHOD(SetLabelBoxColor)(ULONG crItem) override;
    STDMETHOD(SetBackgrndColor)(ULONG crItem) override;
    STDMETHOD(SetLabelColor)(ULONG crLbColor) override;
    STDMETHOD(SetParentWindowColor)(ULONG crParent) override;
    STDMETHOD(SetBackGroundGradientLight)(float flGradientVal) override;
    STDMETHOD(SetBackGroundGradientDark)(float flGradientVal) override;
    STDMETHOD(GetBackGroungGrLight)(float* flGradientVal) override;
    STDMETHOD(GetBackgroundGrDark)(float* flGradientVal) override;
    STDMETHOD(SetPieChartTitle)(BSTR bstrTittle) override;
    // 1 is the doughnut, 2 the flat style, everything else the three-dimensional one.
    STDMETHOD(SetPieChartStyle)(int nChartStyle) override;
    STDMETHOD(SetStartAngle)(float flAngle) override;
    STDMETHOD(SetInclineAngle)(float flAngle) override;
    STDMETHOD(SetDepth)(float fDepth) override;

    std::unique_ptr<CPieChartWnd> m_pNative;
};
