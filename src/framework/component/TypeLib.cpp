#include "framework/component/TypeLib.h"

#include "framework/component/ComPtr.h"
#include "framework/component/Module.h"

#include <new>

HRESULT AtlLoadTypeLib(HINSTANCE module, ITypeLib** ppTypeLib)
try {
    *ppTypeLib = nullptr;
    const std::wstring path = AtlGetModulePath(module);
    if (path.empty())
        return HRESULT_FROM_WIN32(::GetLastError());
    return ::LoadTypeLibEx(path.c_str(), REGKIND_NONE, ppTypeLib);
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}

HRESULT AtlRegisterTypeLib(HINSTANCE module)
try {
    CComPtr<ITypeLib> library;
    const HRESULT result = AtlLoadTypeLib(module, &library);
    if (FAILED(result))
        return result;
    std::wstring path = AtlGetModulePath(module);
    std::wstring folder = path.substr(0, path.find_last_of(L'\\') + 1);
    return ::RegisterTypeLib(library, path.data(), folder.data());
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}

HRESULT AtlUnRegisterTypeLib(HINSTANCE module)
{
    CComPtr<ITypeLib> library;
    HRESULT result = AtlLoadTypeLib(module, &library);
    if (FAILED(result))
        return result;
    TLIBATTR* attributes = nullptr;
    result = library->GetLibAttr(&attributes);
    if (FAILED(result))
        return result;
    const TLIBATTR copy = *attributes;
    library->ReleaseTLibAttr(attributes);

    BSTR registered = nullptr;
    if (FAILED(::QueryPathOfRegTypeLib(copy.guid, copy.wMajorVerNum, copy.wMinorVerNum, copy.lcid,
                                       &registered)))
        return S_OK;
    ::SysFreeString(registered);
    return ::UnRegisterTypeLib(copy.guid, copy.wMajorVerNum, copy.wMinorVerNum, copy.lcid, copy.syskind);
}
