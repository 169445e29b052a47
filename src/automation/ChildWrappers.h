#pragma once
// The child wrappers that add nothing to what their interface's template has.

#include "automation/ISGraphAxisImpl.h"
#include "automation/ISGraphBitmapImpl.h"
#include "automation/ISGraphDataSerieImpl.h"
#include "automation/ISGraphObjectImpl.h"
#include "automation/ISObjectImpl.h"
#include "resources/ScriptIds.h"

// The root of the child wrappers: a handle and nothing more.
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

// The wrapper of any piece of a graph, with what all of them share.
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

// The automation object of an axis.
class CSGraphAxis : public CComObjectRootEx<CComSingleThreadModel>,
                    public CComCoClass<CSGraphAxis, &CLSID_SGraphAxis>,
                    public ISGraphAxisImpl<ISGraphAxis, &IID_ISGraphAxis, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHAXIS)

    BEGIN_COM_MAP(CSGraphAxis)
    COM_INTERFACE_ENTRY(ISGraphAxis)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};

// The automation object of a curve.
class CSGraphDataSerie
    : public CComObjectRootEx<CComSingleThreadModel>,
      public CComCoClass<CSGraphDataSerie, &CLSID_SGraphDataSerie>,
      public ISGraphDataSerieImpl<ISGraphDataSerieTable, &IID_ISGraphDataSerie, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHDATASERIE)

    BEGIN_COM_MAP(CSGraphDataSerie)
    COM_INTERFACE_ENTRY(ISGraphDataSerie)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};

// The automation object of a picture.
class CSGraphBitmap : public CComObjectRootEx<CComSingleThreadModel>,
                      public CComCoClass<CSGraphBitmap, &CLSID_SGraphBitmap>,
                      public ISGraphBitmapImpl<ISGraphBitmap, &IID_ISGraphBitmap, &LIBID_VANTOPLEXLib>
{
public:
    DECLARE_REGISTRY_RESOURCEID(IDR_SGRAPHBITMAP)

    BEGIN_COM_MAP(CSGraphBitmap)
    COM_INTERFACE_ENTRY(ISGraphBitmap)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()
};

// An empty class: it holds no handle, and its interface has no methods of its own.
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
