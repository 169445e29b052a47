#pragma once
// Late binding of a dual interface, through the type library.

#include "framework/component/ComPtr.h"
#include "framework/component/Objects.h"

#include <oaidl.h>

// The type information of one dual interface, loaded at the first use from the library that is
// registered under its LIBID and version, or else from the module's own resource, so that a
// host can do without registration. Held until the module's end.
class CComTypeInfoHolder
{
public:
    const GUID* m_pguid;
    const GUID* m_plibid;
    WORD m_wMajor;
    WORD m_wMinor;
    ITypeInfo* m_pInfo; // what a host is shown
    ITypeInfo* m_pCall; // what calls go through: the interface with its method table

    HRESULT GetTI(LCID lcid);
    HRESULT GetTI(LCID lcid, ITypeInfo** ppInfo);

    HRESULT GetTypeInfo(UINT itinfo, LCID lcid, ITypeInfo** pptinfo);
    HRESULT GetIDsOfNames(REFIID riid, LPOLESTR* rgszNames, UINT cNames, LCID lcid, DISPID* rgdispid);
    HRESULT Invoke(IDispatch* p, DISPID dispidMember, REFIID riid, LCID lcid, WORD wFlags,
                   DISPPARAMS* pdispparams, VARIANT* pvarResult, EXCEPINFO* pexcepinfo, UINT* puArgErr);

private:
    static void __stdcall Cleanup(DWORD_PTR dw);
    HRESULT Load(LCID lcid);
};

// The four methods of IDispatch for the dual interface T. T is the interface or derives from it.
template <class T, const IID* piid, const GUID* plibid, WORD wMajor = 1, WORD wMinor = 0>
class IDispatchImpl : public T
{
public:
    STDMETHOD(GetTypeInfoCount)(UINT* pctinfo) override
    {
        if (!pctinfo)
            return E_POINTER;
        *pctinfo = 1;
        return S_OK;
    }
    STDMETHOD(GetTypeInfo)(UINT itinfo, LCID lcid, ITypeInfo** pptinfo) override
    {
        return _tih.GetTypeInfo(itinfo, lcid, pptinfo);
    }
    STDMETHOD(GetIDsOfNames)
    (REFIID riid, LPOLESTR* rgszNames, UINT cNames, LCID lcid, DISPID* rgdispid) override
    {
        return _tih.GetIDsOfNames(riid, rgszNames, cNames, lcid, rgdispid);
    }
    STDMETHOD(Invoke)
    (DISPID dispidMember, REFIID riid, LCID lcid, WORD wFlags, DISPPARAMS* pdispparams,
     VARIANT* pvarResult, EXCEPINFO* pexcepinfo, UINT* puArgErr) override
    {
        return _tih.Invoke(this, dispidMember, riid, lcid, wFlags, pdispparams, pvarResult, pexcepinfo,
                           puArgErr);
    }

protected:
    inline static CComTypeInfoHolder _tih{piid, plibid, wMajor, wMinor, nullptr, nullptr};
};

// Implementation detail of CRefusingTail: one more entry of the method table per level.
template <class T, int Entries> class CRefusingEntries : public CRefusingEntries<T, Entries - 1>
{
public:
    virtual HRESULT STDMETHODCALLTYPE Refuse(std::integral_constant<int, Entries>*) { return E_NOTIMPL; }
};

template <class T> class CRefusingEntries<T, 0> : public T
{
};

// The interface T with Entries more methods behind its last, each of which refuses with
// E_NOTIMPL. Where an interface declares a method of its base again, the type library counts
// an entry for it that the method table does not have: a late-bound call of the last methods
// lands that many entries behind the end of T. Here it lands on a refusal.
template <class T, int Entries> class CRefusingTail : public CRefusingEntries<T, Entries>
{
};
