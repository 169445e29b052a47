#pragma once
// The automation object of a label. Colours of its own methods are the label's fill and text;
// SetCurve writes the alignment, as SetAlignment does, and nothing here reaches the curve.

#include "automation/ISGraphObjectImpl.h"
#include "objects/XGraphLabel.h"
#include "resources/ScriptIds.h"

class CSGraphLabel : public CComObjectRootEx<CComSingleThreadModel>,
                     public CComCoClass<CSGraphLabel, &CLSID_SGraphLabel>,
                     public ISGraphObjectImpl<ISGraphLabelTable, &IID_ISGraphLabel, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHLABEL)

    BEGIN_COM_MAP(CSGraphLabel)
    COM_INTERFACE_ENTRY(ISGraphLabel)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

    // pLogFontw points to a LOGFONTW in this process.
    STDMETHOD(SetFont)(UINT* pLogFontw) override;
    STDMETHOD(SetText)(BSTR pText) override;
    STDMETHOD(GetText)(BSTR* pText) override;
    STDMETHOD(SetColor)(ULONG color) override;
    STDMETHOD(GetColor)(ULONG* pColor) override;
    STDMETHOD(SetTextColor)(ULONG color) override;
    STDMETHOD(GetTextColor)(ULONG* pColor) override;
    STDMETHOD(SetBorder)(long bValue) override;
    STDMETHOD(GetBorder)(long* bpValue) override;
    STDMETHOD(SetTransparent)(long bValue) override;
    STDMETHOD(GetTransparent)(long* bpValue) override;
    STDMETHOD(SetAlignment)(UINT value) override;
    STDMETHOD(GetAlignment)(UINT* pValue) override;
    STDMETHOD(SetCurve)(int value) override;
    STDMETHOD(GetCurve)(int* pValue) override;

    // Null without a handle, or with one of another class.
    [[nodiscard]] CXGraphLabel* Native() const { return DYNAMIC_DOWNCAST(CXGraphLabel, m_pObject); }
};
