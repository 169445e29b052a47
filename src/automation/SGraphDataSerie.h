#pragma once
// The automation object of a curve.

#include "automation/ISGraphDataSerieImpl.h"

class CSGraphDataSerie
    : public CComObjectRootEx<CComSingleThreadModel>,
      public CComCoClass<CSGraphDataSerie, &CLSID_SGraphDataSerie>,
      public ISGraphDataSerieImpl<ISGraphDataSerieTable, &IID_ISGraphDataSerie, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(123)

    BEGIN_COM_MAP(CSGraphDataSerie)
    COM_INTERFACE_ENTRY(ISGraphDataSerie)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};
