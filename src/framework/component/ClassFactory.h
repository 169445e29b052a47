#pragma once
// Class objects, and what a class needs so that a host can make it.

#include "framework/component/Objects.h"

// The class object of every class: it remembers the class's creator.
class CComClassFactory : public IClassFactory, public CComObjectRootEx<CComGlobalsThreadModel>
{
public:
    BEGIN_COM_MAP(CComClassFactory)
    COM_INTERFACE_ENTRY(IClassFactory)
    END_COM_MAP()

    void SetVoid(void* pv);

    // E_POINTER without ppvObj; CLASS_E_NOAGGREGATION if an outer asks for anything but IUnknown.
    STDMETHOD(CreateInstance)(LPUNKNOWN pUnkOuter, REFIID riid, void** ppvObj) override;
    // Adds to and takes from the module's lock count.
    STDMETHOD(LockServer)(BOOL fLock) override;

    _ATL_CREATORFUNC* m_pfnCreateInstance = nullptr;
};

template <class T, const CLSID* pclsid = &CLSID_NULL> class CComCoClass
{
public:
    using _ClassFactoryCreatorClass = CComCreator<CComObjectCached<CComClassFactory>>;
    // Deferred, since T is not complete here.
    struct _CreatorClass {
        static HRESULT WINAPI CreateInstance(void* pv, REFIID riid, LPVOID* ppv)
        {
            return CComCreator2<CComCreator<CComObject<T>>,
                                CComCreator<CComAggObject<T>>>::CreateInstance(pv, riid, ppv);
        }
    };

    // A new object with one reference, asked for Q.
    template <class Q> static HRESULT CreateInstance(Q** pp)
    {
        return _CreatorClass::CreateInstance(nullptr, __uuidof(Q), reinterpret_cast<void**>(pp));
    }
    template <class Q> static HRESULT CreateInstance(IUnknown* punkOuter, Q** pp)
    {
        return _CreatorClass::CreateInstance(punkOuter, __uuidof(Q), reinterpret_cast<void**>(pp));
    }
};
