#include "framework/component/Dispatch.h"

#include "framework/component/TypeLib.h"

namespace
{

// The description of the interface that the library keeps for piid.
HRESULT DescriptionIn(ITypeLib* library, REFGUID piid, ITypeInfo** info)
{
    return library->GetTypeInfoOfGuid(piid, info);
}

// A dual interface is described twice, as a dispatch interface and as one with a method
// table. Calls want the second.
HRESULT WithMethodTable(ITypeInfo* info, ITypeInfo** table)
{
    TYPEATTR* attributes = nullptr;
    HRESULT result = info->GetTypeAttr(&attributes);
    if (FAILED(result))
        return result;
    const bool twofold =
        attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0;
    info->ReleaseTypeAttr(attributes);
    if (twofold) {
        HREFTYPE partner = 0;
        result = info->GetRefTypeOfImplType(static_cast<UINT>(-1), &partner);
        return FAILED(result) ? result : info->GetRefTypeInfo(partner, table);
    }
    info->AddRef();
    *table = info;
    return S_OK;
}

} // namespace

HRESULT CComTypeInfoHolder::Load(LCID lcid)
{
    CComPtr<ITypeLib> library;
    CComPtr<ITypeInfo> info;
    HRESULT result = ::LoadRegTypeLib(*m_plibid, m_wMajor, m_wMinor, lcid, &library);
    if (SUCCEEDED(result))
        result = DescriptionIn(library, *m_pguid, &info);
    if (FAILED(result)) {
        library.Release();
        result = AtlLoadTypeLib(_pModule->m_hInstTypeLib, &library);
        if (SUCCEEDED(result))
            result = DescriptionIn(library, *m_pguid, &info);
    }
    CComPtr<ITypeInfo> table;
    if (SUCCEEDED(result))
        result = WithMethodTable(info, &table);
    if (SUCCEEDED(result))
        result = _pModule->AddTermFunc(&Cleanup, reinterpret_cast<DWORD_PTR>(this));
    if (SUCCEEDED(result)) {
        // Other threads look at m_pInfo without the lock: it comes last.
        m_pCall = table.Detach();
        ::InterlockedExchangePointer(reinterpret_cast<void* volatile*>(&m_pInfo), info.Detach());
    }
    return result;
}

HRESULT CComTypeInfoHolder::GetTI(LCID lcid)
{
    if (m_pInfo)
        return S_OK;
    const CComCritSecLock lock(_pModule->m_csTypeInfoHolder);
    if (FAILED(lock.Result()))
        return lock.Result();
    return m_pInfo ? S_OK : Load(lcid);
}

HRESULT CComTypeInfoHolder::GetTI(LCID lcid, ITypeInfo** ppInfo)
{
    *ppInfo = nullptr;
    const HRESULT result = GetTI(lcid);
    if (SUCCEEDED(result)) {
        m_pInfo->AddRef();
        *ppInfo = m_pInfo;
    }
    return result;
}

HRESULT CComTypeInfoHolder::GetTypeInfo(UINT itinfo, LCID lcid, ITypeInfo** pptinfo)
{
    if (!pptinfo)
        return E_POINTER;
    *pptinfo = nullptr;
    return itinfo != 0 ? DISP_E_BADINDEX : GetTI(lcid, pptinfo);
}

HRESULT CComTypeInfoHolder::GetIDsOfNames(REFIID, LPOLESTR* rgszNames, UINT cNames, LCID lcid,
                                          DISPID* rgdispid)
{
    const HRESULT result = GetTI(lcid);
    return FAILED(result) ? result : m_pInfo->GetIDsOfNames(rgszNames, cNames, rgdispid);
}

HRESULT CComTypeInfoHolder::Invoke(IDispatch* p, DISPID dispidMember, REFIID, LCID lcid, WORD wFlags,
                                   DISPPARAMS* pdispparams, VARIANT* pvarResult, EXCEPINFO* pexcepinfo,
                                   UINT* puArgErr)
{
    const HRESULT result = GetTI(lcid);
    return FAILED(result)
               ? result
               : m_pCall->Invoke(p, dispidMember, wFlags, pdispparams, pvarResult, pexcepinfo, puArgErr);
}

void __stdcall CComTypeInfoHolder::Cleanup(DWORD_PTR dw)
{
    auto* holder = reinterpret_cast<CComTypeInfoHolder*>(dw);
    for (ITypeInfo** info : {&holder->m_pInfo, &holder->m_pCall}) {
        if (*info) {
            (*info)->Release();
            *info = nullptr;
        }
    }
}
