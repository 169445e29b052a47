#pragma once
// What belongs to this module as against its host: where resources are found, the
// application object, the activation context, and the count that holds the module in
// memory. Every entry from outside switches to it:
//
//     AFX_MANAGE_STATE(AfxGetStaticModuleState());
//
// The former state and activation context come back on every way out of the block.
//
// Temporary wrappers of handles (CWnd::FromHandle and its kin) live until the outermost such
// block, or the outermost message of a window of ours, ends on their thread. One made outside
// of both lives until the thread fetches its next message.

#include <atomic>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <windows.h>

class CWinApp;
struct AFX_THREAD_STATE;

struct AFX_MODULE_STATE {
    AFX_MODULE_STATE() noexcept;
    AFX_MODULE_STATE(const AFX_MODULE_STATE&) = delete;
    AFX_MODULE_STATE& operator=(const AFX_MODULE_STATE&) = delete;
    ~AFX_MODULE_STATE();

    // The context made from the module's own manifest (resource 2); INVALID_HANDLE_VALUE if
    // the module has none. Made at first use, owned by the state.
    [[nodiscard]] HANDLE GetActivationContext() noexcept;
    // A window class that goes when the module does.
    void AddClassName(LPCWSTR name);

    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    CWinApp* m_pCurrentWinApp = nullptr;
    std::atomic<LONG> m_nObjectCount{0}; // of what keeps the module in memory

private:
    INIT_ONCE m_contextOnce = INIT_ONCE_STATIC_INIT;
    HANDLE m_hActCtx = INVALID_HANDLE_VALUE;
    std::mutex m_classLock;
    std::vector<std::wstring> m_classNames;
};

// The state of the module that this code is linked into.
[[nodiscard]] AFX_MODULE_STATE* AfxGetStaticModuleState() noexcept;
// The state that is current on this thread; the static one if none was set.
[[nodiscard]] AFX_MODULE_STATE* AfxGetModuleState() noexcept;
// Makes a state current (null: none) and returns the one set before, or null.
AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState);

[[nodiscard]] inline HINSTANCE AfxGetInstanceHandle() noexcept
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}
[[nodiscard]] inline HINSTANCE AfxGetResourceHandle() noexcept
{
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

// Whatever must not outlive the module's code counts here.
void AfxOleLockApp() noexcept;
void AfxOleUnlockApp() noexcept;
// S_OK if no window and no lock of the framework needs the module any more, else S_FALSE.
[[nodiscard]] HRESULT AfxDllCanUnloadNow() noexcept;

// One nesting of calls or messages on this thread; at the end of the outermost one the
// temporary wrappers made inside are freed.
class AFX_TEMP_SCOPE
{
public:
    AFX_TEMP_SCOPE();
    AFX_TEMP_SCOPE(const AFX_TEMP_SCOPE&) = delete;
    AFX_TEMP_SCOPE& operator=(const AFX_TEMP_SCOPE&) = delete;
    ~AFX_TEMP_SCOPE();
    void SetModuleState(AFX_MODULE_STATE* pState) noexcept;

private:
    AFX_THREAD_STATE* m_pThread;
};

class AFX_MAINTAIN_STATE2
{
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState);
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;
    ~AFX_MAINTAIN_STATE2();

private:
    AFX_TEMP_SCOPE m_scope;
    AFX_MODULE_STATE* m_pPrevModuleState;
    ULONG_PTR m_ulActCtxCookie = 0;
    bool m_bValidActCtxCookie = false;
};

#define AFX_STATE_NAME2(line) ctlState##line
#define AFX_STATE_NAME(line) AFX_STATE_NAME2(line)
#define AFX_MANAGE_STATE(pModuleState) const AFX_MAINTAIN_STATE2 AFX_STATE_NAME(__LINE__)(pModuleState)
