#pragma once
// The automation object of a picture.

#include "automation/ISGraphBitmapImpl.h"

class CSGraphBitmap : public CComObjectRootEx<CComSingleThreadModel>,
                      public CComCoClass<CSGraphBitmap, &CLSID_SGraphBitmap>,
                      public ISGraphBitmapImpl<ISGraphBitmap, &IID_ISGraphBitmap, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(125)

    BEGIN_COM_MAP(CSGraphBitmap)
    COM_INTERFACE_ENTRY(ISGraphBitmap)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};
