#include "framework/component/ClassFactory.h"

void CComClassFactory::SetVoid(void* pv)
{
    m_pfnCreateInstance = reinterpret_cast<_ATL_CREATORFUNC*>(pv);
}

HRESULT STDMETHODCALLTYPE CComClassFactory::CreateInstance(LPUNKNOWN pUnkOuter, REFIID riid,
                                                           void** ppvObj)
{
    if (!ppvObj)
        return E_POINTER;
    *ppvObj = nullptr;
    if (pUnkOuter && !InlineIsEqualGUID(riid, IID_IUnknown))
        return CLASS_E_NOAGGREGATION;
    return m_pfnCreateInstance(pUnkOuter, riid, ppvObj);
}

HRESULT STDMETHODCALLTYPE CComClassFactory::LockServer(BOOL fLock)
{
    if (fLock)
        _pModule->Lock();
    else
        _pModule->Unlock();
    return S_OK;
}
