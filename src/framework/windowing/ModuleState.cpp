#include "framework/windowing/ModuleState.h"

#include "framework/windowing/ThreadState.h"

extern "C" IMAGE_DOS_HEADER __ImageBase; // the linker's name for where this module begins

AFX_MODULE_STATE::AFX_MODULE_STATE() noexcept
    : m_hCurrentInstanceHandle(reinterpret_cast<HINSTANCE>(&__ImageBase)),
      m_hCurrentResourceHandle(m_hCurrentInstanceHandle)
{
}

AFX_MODULE_STATE::~AFX_MODULE_STATE()
{
    for (const std::wstring& name : m_classNames)
        ::UnregisterClassW(name.c_str(), m_hCurrentInstanceHandle);
    if (m_hActCtx != INVALID_HANDLE_VALUE)
        ::ReleaseActCtx(m_hActCtx);
}

HANDLE AFX_MODULE_STATE::GetActivationContext() noexcept
{
    BOOL pending = FALSE;
    if (!::InitOnceBeginInitialize(&m_contextOnce, 0, &pending, nullptr) || !pending)
        return m_hActCtx;
    const LPCWSTR manifest = MAKEINTRESOURCEW(2); // where a library keeps its manifest
    if (::FindResourceW(m_hCurrentInstanceHandle, manifest, MAKEINTRESOURCEW(24))) { // RT_MANIFEST
        WCHAR path[MAX_PATH] = {};
        ::GetModuleFileNameW(m_hCurrentInstanceHandle, path, MAX_PATH - 1);
        ACTCTXW context{};
        context.cbSize = sizeof context;
        context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        context.lpSource = path;
        context.lpResourceName = manifest;
        context.hModule = m_hCurrentInstanceHandle;
        m_hActCtx = ::CreateActCtxW(&context);
    }
    ::InitOnceComplete(&m_contextOnce, 0, nullptr);
    return m_hActCtx;
}

void AFX_MODULE_STATE::AddClassName(LPCWSTR name)
{
    const std::lock_guard lock(m_classLock);
    m_classNames.emplace_back(name);
}

AFX_MODULE_STATE* AfxGetStaticModuleState() noexcept
{
    static AFX_MODULE_STATE state;
    return &state;
}

AFX_MODULE_STATE* AfxGetModuleState() noexcept
{
    const AFX_THREAD_STATE* const thread = AfxFindThreadState();
    return thread && thread->pModuleState ? thread->pModuleState : AfxGetStaticModuleState();
}

AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState)
{
    return std::exchange(AfxGetThreadState().pModuleState, pNewState);
}

void AfxOleLockApp() noexcept
{
    ++AfxGetStaticModuleState()->m_nObjectCount;
}

void AfxOleUnlockApp() noexcept
{
    --AfxGetStaticModuleState()->m_nObjectCount;
}

HRESULT AfxDllCanUnloadNow() noexcept
{
    return AfxGetStaticModuleState()->m_nObjectCount == 0 ? S_OK : S_FALSE;
}

AFX_TEMP_SCOPE::AFX_TEMP_SCOPE() : m_pThread(&AfxGetThreadState())
{
    ++m_pThread->nScopeDepth;
}

AFX_TEMP_SCOPE::~AFX_TEMP_SCOPE()
{
    if (--m_pThread->nScopeDepth == 0)
        m_pThread->FreeTemporaries(false);
}

void AFX_TEMP_SCOPE::SetModuleState(AFX_MODULE_STATE* pState) noexcept
{
    m_pThread->pModuleState = pState;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState)
    : m_pPrevModuleState(AfxSetModuleState(pModuleState))
{
    const HANDLE context = pModuleState->GetActivationContext();
    if (context != INVALID_HANDLE_VALUE)
        m_bValidActCtxCookie = ::ActivateActCtx(context, &m_ulActCtxCookie) != FALSE;
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2()
{
    // An exception that passes may have left contexts above ours; the early flag takes them along.
    if (m_bValidActCtxCookie)
        ::DeactivateActCtx(DEACTIVATE_ACTCTX_FLAG_FORCE_EARLY_DEACTIVATION, m_ulActCtxCookie);
    m_scope.SetModuleState(m_pPrevModuleState);
}
