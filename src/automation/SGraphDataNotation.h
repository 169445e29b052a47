#pragma once
// An empty class: it holds no handle, and its interface has no methods of its own.

#include "automation/Interfaces.h"
#include "resources/ScriptIds.h"

class CSGraphDataNotation
    : public CComObjectRootEx<CComSingleThreadModel>,
      public CComCoClass<CSGraphDataNotation, &CLSID_SGraphDataNotation>,
      public IDispatchImpl<ISGraphDataNotation, &IID_ISGraphDataNotation, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHDATANOTATION)

    BEGIN_COM_MAP(CSGraphDataNotation)
    COM_INTERFACE_ENTRY(ISGraphDataNotation)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};
