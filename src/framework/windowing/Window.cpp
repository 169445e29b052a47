#include "framework/windowing/Window.h"

#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/WindowEntry.h"

namespace
{

bool IsPermanent(const CWnd& wnd) noexcept
{
    const CWindowOwnership lock;
    return AFX_THREAD_STATE::OwnerOf(wnd) != nullptr;
}

} // namespace

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd()
{
    // Temporary objects and the constants above refer to windows that are not theirs.
    if (m_hWnd && IsPermanent(*this)) {
        CWnd::DestroyWindow();
        Detach();
    }
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    AFX_THREAD_STATE& state = AfxGetThreadState();
    return state.windows.FromHandle(hWnd, state.nScopeDepth > 0);
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) noexcept
{
    const AFX_THREAD_STATE* const state = AfxFindThreadState();
    return state && hWnd ? state->windows.LookupPermanent(hWnd) : nullptr;
}

BOOL CWnd::Attach(HWND hWndNew)
{
    if (!hWndNew || m_hWnd)
        return FALSE;
    AFX_THREAD_STATE& state = AfxGetThreadState();
    {
        const CWindowOwnership lock;
        state.windows.SetPermanent(hWndNew, this);
        m_hWnd = hWndNew;
    }
    AfxOleLockApp(); // the window's procedure lies in this module
    AfxWatchQueue(state);
    return TRUE;
}

HWND CWnd::Detach() noexcept
{
    const CWindowOwnership lock;
    return AFX_WND_ENTRY::Release(*this);
}

void CWnd::TakeMessages()
{
    if (AFX_WND_ENTRY::HasOurProcedure(m_hWnd))
        return;
    const auto ours = reinterpret_cast<LONG_PTR>(&AFX_WND_ENTRY::Procedure);
    m_pfnSuper = reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, ours));
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    TakeMessages();
    return TRUE;
}

BOOL CWnd::Create(LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, void* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, void* lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    Wrap::Subtract(rect.right, rect.left), Wrap::Subtract(rect.bottom, rect.top),
                    pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, void* lpParam)
{
    if (m_hWnd)
        return FALSE; // an object has one window
    CREATESTRUCTW cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }

    AFX_WND_ENTRY::HookCreation(this);
    const HWND hWnd =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                          cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    // If the window came into being and went again, the object may have gone with it.
    if (!AFX_WND_ENTRY::UnhookCreation())
        PostNcDestroy();
    return hWnd != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                           ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512))); // IDC_ARROW
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

void CWnd::PostNcDestroy() {}

BOOL CWnd::DestroyWindow()
{
    const HWND hWnd = m_hWnd;
    if (!hWnd)
        return FALSE;
    const BOOL destroyed = ::DestroyWindow(hWnd);
    // WM_NCDESTROY has detached, and perhaps deleted, an object that gets its window's messages.
    // One that got none is still in the map.
    if (destroyed && FromHandlePermanent(hWnd) == this)
        Detach();
    return destroyed;
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    const DWORD before = GetStyle();
    const DWORD after = (before & ~dwRemove) | dwAdd;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtrW(m_hWnd, GWL_STYLE, static_cast<LONG_PTR>(after));
    if (nFlags)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

void CWnd::ScreenToClient(RECT* lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

CWnd* CWnd::GetParentOwner() const
{
    HWND owner = m_hWnd;
    while (::GetWindowLongPtrW(owner, GWL_STYLE) & WS_CHILD) {
        const HWND parent = ::GetParent(owner);
        if (!parent)
            break;
        owner = parent;
    }
    return FromHandle(owner);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int length = ::GetWindowTextLengthW(m_hWnd);
    const int copied = ::GetWindowTextW(m_hWnd, rString.GetBuffer(length + 1), length + 1);
    rString.ReleaseBuffer(copied);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    const HGDIOBJ handle = pFont ? pFont->GetSafeHandle() : nullptr;
    ::SendMessageW(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(handle), bRedraw);
}
