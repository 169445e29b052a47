#pragma once
// The root of the child wrappers: a handle and nothing more.

#include "automation/ISObjectImpl.h"
#include "resources/ScriptIds.h"

class CSObject : public CComObjectRootEx<CComSingleThreadModel>,
                 public CComCoClass<CSObject, &CLSID_SObject>,
                 public ISObjectImpl<ISObject, &IID_ISObject, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SOBJECT)

    BEGIN_COM_MAP(CSObject)
    COM_INTERFACE_ENTRY(ISObject)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};
