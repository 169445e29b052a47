#include "framework/windowing/WindowEntry.h"

#include <utility>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"

namespace
{

// The message under way, and whether a loop of ours fetches: both belong to one message.
class CMessageScope
{
public:
    CMessageScope(AFX_THREAD_STATE& state, const MSG& message) noexcept
        : m_state(state), m_before(std::exchange(state.current, message)),
          m_bPumping(std::exchange(state.bPumping, false))
    {
    }
    CMessageScope(const CMessageScope&) = delete;
    CMessageScope& operator=(const CMessageScope&) = delete;
    ~CMessageScope()
    {
        m_state.current = m_before;
        m_state.bPumping = m_bPumping;
    }

private:
    AFX_THREAD_STATE& m_state;
    MSG m_before;
    bool m_bPumping;
};

// What the system gets for a message whose handler failed.
LRESULT ResultOfFailure(HWND hWnd, UINT message) noexcept
{
    if (message == WM_CREATE)
        return -1; // the window is given up
    if (message == WM_PAINT)
        ::ValidateRect(hWnd, nullptr); // else the system would ask again at once, for ever
    return 0;
}

} // namespace

LRESULT AFX_WND_ENTRY::Deliver(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    AFX_THREAD_STATE& state = AfxGetThreadState();
    CWnd* const pWnd = state.windows.LookupPermanent(hWnd);
    if (!pWnd) // the object let go while another subclass kept our procedure
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    const CMessageScope scope(state, {hWnd, message, wParam, lParam, 0, {}});
    return pWnd->WindowProc(message, wParam, lParam); // pWnd may be gone after this
}

LRESULT CALLBACK AFX_WND_ENTRY::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    try {
        return Deliver(hWnd, message, wParam, lParam);
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
        // There is nobody to report to: the caller is the system.
    }
    return ResultOfFailure(hWnd, message);
}

bool AFX_WND_ENTRY::HasOurProcedure(HWND hWnd) noexcept
{
    return ::GetWindowLongPtrW(hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&Procedure);
}

HWND AFX_WND_ENTRY::Release(CWnd& wnd) noexcept
{
    const HWND hWnd = wnd.m_hWnd;
    if (!hWnd)
        return nullptr;
    if (wnd.m_pfnSuper && HasOurProcedure(hWnd))
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(wnd.m_pfnSuper));
    if (AFX_THREAD_STATE* const owner = AFX_THREAD_STATE::OwnerOf(wnd)) {
        owner->windows.RemovePermanent(hWnd);
        AfxOleUnlockApp();
        owner->UnwatchQueue();
    }
    wnd.m_hWnd = nullptr;
    wnd.m_pfnSuper = nullptr;
    return hWnd;
}

void AFX_WND_ENTRY::HookCreation(CWnd* pWnd)
{
    AFX_THREAD_STATE& state = AfxGetThreadState();
    if (!state.hCreateHook)
        state.hCreateHook = ::SetWindowsHookExW(WH_CBT, &CreationHook, nullptr, ::GetCurrentThreadId());
    if (!state.hCreateHook)
        AfxThrowMemoryException();
    state.pWndInit = pWnd;
}

bool AFX_WND_ENTRY::UnhookCreation() noexcept
{
    AFX_THREAD_STATE* const state = AfxFindThreadState();
    if (const HHOOK hook = std::exchange(state->hCreateHook, nullptr))
        ::UnhookWindowsHookEx(hook);
    return std::exchange(state->pWndInit, nullptr) == nullptr;
}

void AFX_WND_ENTRY::AdoptWindow(HWND hWnd, CWnd* pWnd)
{
    pWnd->Attach(hWnd);
    pWnd->PreSubclassWindow();
    pWnd->TakeMessages();
}

LRESULT CALLBACK AFX_WND_ENTRY::CreationHook(int nCode, WPARAM wParam, LPARAM lParam) noexcept
{
    AFX_THREAD_STATE* const state = AfxFindThreadState();
    if (nCode == HCBT_CREATEWND && state && state->pWndInit) {
        const HWND hWnd = reinterpret_cast<HWND>(wParam);
        // The system makes its input method window in front of a thread's first one.
        WCHAR className[16] = {};
        ::GetClassNameW(hWnd, className, 15);
        if (::lstrcmpiW(className, L"IME") != 0) {
            try {
                // The windows that the first messages make are not this object's.
                AdoptWindow(hWnd, std::exchange(state->pWndInit, nullptr));
            } catch (CException* e) {
                e->Delete();
                return 1; // no window without its object
            } catch (...) {
                return 1;
            }
        }
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}
