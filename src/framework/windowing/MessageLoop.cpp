// Queued messages before they are dispatched: in our modal loops, and in the host's loop
// through a hook, since the host doesn't know that our windows want to see them.

#include <utility>

#include "framework/windowing/App.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"

namespace
{

// The windows see a copy, so that what they do can't change the message in the host's hands.
bool IsTaken(MSG message) noexcept
{
    try {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        return AfxPreTranslateMessage(&message) != FALSE;
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
        // Nobody to report to: the caller is the system.
    }
    return false;
}

LRESULT CALLBACK QueueHook(int nCode, WPARAM wParam, LPARAM lParam) noexcept
{
    AFX_THREAD_STATE* const state = AfxFindThreadState();
    if (nCode == HC_ACTION && (wParam & PM_REMOVE) && state && !state->bPumping) {
        if (state->nScopeDepth == 0)
            state->FreeTemporaries(true); // the thread is back in its own loop
        MSG* const message = reinterpret_cast<MSG*>(lParam);
        if (state->windows.HasPermanent() && IsTaken(*message)) {
            message->message = WM_NULL;
            message->wParam = 0;
            message->lParam = 0;
        }
    }
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

// Marks that a loop of ours fetches, so that the hook leaves the message to it.
class CPumping
{
public:
    explicit CPumping(AFX_THREAD_STATE& state) noexcept
        : m_state(state), m_before(std::exchange(state.bPumping, true))
    {
    }
    CPumping(const CPumping&) = delete;
    CPumping& operator=(const CPumping&) = delete;
    ~CPumping() { m_state.bPumping = m_before; }

private:
    AFX_THREAD_STATE& m_state;
    bool m_before;
};

} // namespace

void AfxWatchQueue(AFX_THREAD_STATE& state) noexcept
{
    if (state.windows.HasPermanent() && !state.hMessageHook)
        state.hMessageHook =
            ::SetWindowsHookExW(WH_GETMESSAGE, &QueueHook, nullptr, ::GetCurrentThreadId());
}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL AfxPreTranslateMessage(MSG* pMsg, HWND hWndStop)
{
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* const window = CWnd::FromHandlePermanent(hWnd);
        if (window && window->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

BOOL AfxPumpMessage()
{
    MSG message;
    {
        const CPumping pumping(AfxGetThreadState());
        if (!::GetMessageW(&message, nullptr, 0, 0)) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return FALSE;
        }
    }
    if (!AfxPreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return TRUE;
}
