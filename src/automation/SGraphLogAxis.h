#pragma once
// The automation object of a logarithmic axis. The graph never makes one: a host makes it and
// sets the handle, so it may wrap a plain axis as well. Its own three methods look at
// the class of what is there: on a plain axis they act as the plain axis does, on any other
// class they do nothing.

#include "automation/ISGraphAxisImpl.h"
#include "objects/XGraphLogAxis.h"
#include "resources/ScriptIds.h"

class CSGraphLogAxis
    : public CComObjectRootEx<CComSingleThreadModel>,
      public CComCoClass<CSGraphLogAxis, &CLSID_SGraphLogAxis>,
      public ISGraphAxisImpl<ISGraphLogAxisTable, &IID_ISGraphLogAxis, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHLOGAXIS)

    BEGIN_COM_MAP(CSGraphLogAxis)
    COM_INTERFACE_ENTRY(ISGraphLogAxis)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

    STDMETHOD(SetRange)(double fMin, double fMax) override;
    STDMETHOD(GetValueForPos)(int nPos, double* pValue) override;
    STDMETHOD(SetAxisType)(EAxisType type) override;

private:
    using Base = ISGraphAxisImpl<ISGraphLogAxisTable, &IID_ISGraphLogAxis, &LIBID_VANTOPLEXLib>;

    [[nodiscard]] CXGraphLogAxis* NativeLog() const
    {
        return DYNAMIC_DOWNCAST(CXGraphLogAxis, m_pObject);
    }
};
