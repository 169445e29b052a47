#include "framework/component/Objects.h"

HRESULT CComObjectRootBase::InternalQueryInterface(void* pThis,
                                                   std::span<const _ATL_INTMAP_ENTRY> entries,
                                                   REFIID iid, void** ppvObject)
{
    if (!ppvObject)
        return E_POINTER;
    *ppvObject = nullptr;
    for (const _ATL_INTMAP_ENTRY& entry : entries) {
        if (InlineIsEqualGUID(iid, *entry.piid) || InlineIsEqualGUID(iid, IID_IUnknown)) {
            IUnknown* found = entry.pfnCast(pThis);
            found->AddRef();
            *ppvObject = found;
            return S_OK;
        }
    }
    return E_NOINTERFACE;
}
