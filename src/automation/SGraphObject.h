#pragma once
// The wrapper of any piece of a graph, with what all of them share.

#include "automation/ISGraphObjectImpl.h"
#include "resources/ScriptIds.h"

class CSGraphObject : public CComObjectRootEx<CComSingleThreadModel>,
                      public CComCoClass<CSGraphObject, &CLSID_SGraphObject>,
                      public ISGraphObjectImpl<ISGraphObject, &IID_ISGraphObject, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHOBJECT)

    BEGIN_COM_MAP(CSGraphObject)
    COM_INTERFACE_ENTRY(ISGraphObject)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};
