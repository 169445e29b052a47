#pragma once
// The automation object of an axis.

#include "automation/ISGraphAxisImpl.h"

class CSGraphAxis : public CComObjectRootEx<CComSingleThreadModel>,
                    public CComCoClass<CSGraphAxis, &CLSID_SGraphAxis>,
                    public ISGraphAxisImpl<ISGraphAxis, &IID_ISGraphAxis, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(120)

    BEGIN_COM_MAP(CSGraphAxis)
    COM_INTERFACE_ENTRY(ISGraphAxis)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};
