#include "framework/component/Module.h"

#include "framework/component/Registrar.h"
#include "framework/component/TypeLib.h"

#include <new>

CComModule* _pModule = nullptr;
bool CComModule::m_bInitFailed = false;

CComModule::CComModule() noexcept
{
    if (FAILED(m_csObjMap.Init()) || FAILED(m_csTypeInfoHolder.Init()) ||
        FAILED(m_csStaticDataInit.Init()))
        m_bInitFailed = true;
    else
        cbSize = sizeof(CComModule);
    _pModule = this;
}

CComModule::~CComModule()
{
    Term();
    if (_pModule == this)
        _pModule = nullptr;
}

HRESULT CComModule::Init(_ATL_OBJMAP_ENTRY* p, HINSTANCE h, const GUID* plibid)
{
    if (cbSize == 0)
        return E_FAIL;
    m_pObjMap = p;
    m_hInst = m_hInstResource = m_hInstTypeLib = h;
    m_plibid = plibid;
    for (_ATL_OBJMAP_ENTRY* entry = m_pObjMap; entry && entry->pclsid; ++entry)
        entry->pfnObjectMain(true);
    return S_OK;
}

void CComModule::Term()
{
    if (cbSize == 0)
        return;
    for (_ATL_OBJMAP_ENTRY* entry = m_pObjMap; entry && entry->pclsid; ++entry) {
        if (entry->pCF) {
            entry->pCF->Release();
            entry->pCF = nullptr;
        }
        entry->pfnObjectMain(false);
    }
    while (!m_termFuncs.empty()) {
        const TTermFunc last = m_termFuncs.back();
        m_termFuncs.pop_back();
        last.pFunc(last.dw);
    }
    m_csObjMap.Term();
    m_csTypeInfoHolder.Term();
    m_csStaticDataInit.Term();
    cbSize = 0;
}

HRESULT CComModule::AddTermFunc(_ATL_TERMFUNC* pFunc, DWORD_PTR dw)
{
    const CComCritSecLock lock(m_csStaticDataInit);
    if (FAILED(lock.Result()))
        return lock.Result();
    try {
        m_termFuncs.push_back({pFunc, dw});
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    return S_OK;
}

HRESULT CComModule::GetClassObject(REFCLSID rclsid, REFIID riid, LPVOID* ppv)
{
    if (!ppv)
        return E_POINTER;
    *ppv = nullptr;
    if (cbSize == 0)
        return E_FAIL;
    for (_ATL_OBJMAP_ENTRY* entry = m_pObjMap; entry && entry->pclsid; ++entry) {
        if (!entry->pfnGetClassObject || !InlineIsEqualGUID(rclsid, *entry->pclsid))
            continue;
        const HRESULT made = MakeClassObject(*entry);
        return FAILED(made) ? made : entry->pCF->QueryInterface(riid, ppv);
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT CComModule::MakeClassObject(_ATL_OBJMAP_ENTRY& entry)
{
    if (entry.pCF)
        return S_OK;
    const CComCritSecLock lock(m_csObjMap);
    if (FAILED(lock.Result()))
        return lock.Result();
    if (entry.pCF)
        return S_OK;
    void* made = nullptr;
    const HRESULT result =
        entry.pfnGetClassObject(reinterpret_cast<void*>(entry.pfnCreateInstance), IID_IUnknown, &made);
    if (SUCCEEDED(result))
        entry.pCF = static_cast<IUnknown*>(made);
    return result;
}

HRESULT CComModule::UpdateClasses(BOOL bRegister, const CLSID* pCLSID)
{
    if (cbSize == 0)
        return E_FAIL;
    for (_ATL_OBJMAP_ENTRY* entry = m_pObjMap; entry && entry->pclsid; ++entry) {
        if (pCLSID && !InlineIsEqualGUID(*pCLSID, *entry->pclsid))
            continue;
        const HRESULT result = entry->pfnUpdateRegistry(bRegister);
        if (FAILED(result))
            return result;
    }
    return S_OK;
}

HRESULT CComModule::RegisterServer(BOOL bRegTypeLib, const CLSID* pCLSID)
{
    const HRESULT result = UpdateClasses(TRUE, pCLSID);
    return SUCCEEDED(result) && bRegTypeLib ? AtlRegisterTypeLib(m_hInstTypeLib) : result;
}

HRESULT CComModule::UnregisterServer(BOOL bUnRegTypeLib, const CLSID* pCLSID)
{
    const HRESULT result = UpdateClasses(FALSE, pCLSID);
    return SUCCEEDED(result) && bUnRegTypeLib ? AtlUnRegisterTypeLib(m_hInstTypeLib) : result;
}

HRESULT CComModule::UpdateRegistryFromResource(UINT nResID, BOOL bRegister)
try {
    const std::wstring path = AtlGetModulePath(m_hInst);
    if (path.empty())
        return HRESULT_FROM_WIN32(::GetLastError());
    // The path lands between the quotes of a script's text. A program's path is quoted
    // once more, since it becomes a command line.
    const std::wstring raw = CRegObject::EscapeSingleQuotes(path);
    const bool program = m_hInst == ::GetModuleHandleW(nullptr);

    CRegObject registrar;
    registrar.AddReplacement(L"Module", program ? L"\"" + raw + L"\"" : raw);
    registrar.AddReplacement(L"Module_Raw", raw);
    return bRegister ? registrar.ResourceRegister(m_hInstResource, nResID, L"REGISTRY")
                     : registrar.ResourceUnregister(m_hInstResource, nResID, L"REGISTRY");
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}

std::wstring AtlGetModulePath(HINSTANCE module)
{
    std::wstring path(MAX_PATH, L'\0');
    constexpr size_t longest = 0x8000; // the platform's own bound on paths
    while (true) {
        const DWORD length = ::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        if (path.size() >= longest)
            return {};
        path.resize(path.size() * 2);
    }
}
