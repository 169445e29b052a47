// The way of a message through a window object.

#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

namespace AfxSig
{

CWnd* WindowOf(WPARAM wParam)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(wParam));
}

CScrollBar* ScrollBarOf(LPARAM lParam)
{
    // A temporary object is no CScrollBar; handlers pass the pointer on or compare it.
    return reinterpret_cast<CScrollBar*>(CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam)));
}

CDC* DCOf(WPARAM wParam)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(wParam));
}

} // namespace AfxSig

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        *pResult = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY)
        return lParam && OnNotify(wParam, lParam, pResult);

    const AFX_MSGMAP_ENTRY* const entry = FindEntry(message, 0, 0);
    if (!entry)
        return FALSE;
    AFX_MSG_ARGS args;
    args.wParam = wParam;
    args.lParam = lParam;
    args.pResult = pResult;
    return entry->pfn(this, args);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_hWnd)
        return 0; // a handler has destroyed the window
    return m_pfnSuper ? ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam)
                      : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& current = AfxGetThreadState().current;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND control = reinterpret_cast<HWND>(lParam);
    const UINT id = LOWORD(wParam);
    if (control) {
        LRESULT result = 0;
        if (ReflectMessage(control, WM_COMMAND, wParam, lParam, &result))
            return TRUE;
    }
    if (id == 0)
        return FALSE;
    return OnCmdMsg(id, control ? HIWORD(wParam) : CN_COMMAND, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    NMHDR* const header = reinterpret_cast<NMHDR*>(lParam);
    const auto id = static_cast<UINT>(header->idFrom);
    if (ReflectMessage(header->hwndFrom, WM_NOTIFY, wParam, lParam, pResult))
        return TRUE;
    AFX_MSG_ARGS args;
    args.wParam = wParam;
    args.lParam = lParam;
    args.pNotify = header;
    args.pResult = pResult;
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &args);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra);
}

BOOL CWnd::ReflectMessage(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child && child->OnChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    AFX_MSG_ARGS args;
    args.wParam = wParam;
    args.lParam = lParam;
    args.pResult = pResult;
    UINT code = 0;
    if (message == WM_COMMAND) {
        code = HIWORD(wParam);
    } else if (message == WM_NOTIFY) {
        args.pNotify = reinterpret_cast<NMHDR*>(lParam);
        code = LOWORD(args.pNotify->code);
    }
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(WM_REFLECT_BASE + message, code, 0);
    return entry && entry->pfn(this, args);
}

void CWnd::OnNcDestroy()
{
    Default();
    Detach();
    PostNcDestroy(); // the object may delete itself here
}

void CWnd::OnDrawItem(int, DRAWITEMSTRUCT* lpDrawItemStruct)
{
    const MSG current = AfxGetThreadState().current;
    LRESULT result = 0;
    if (lpDrawItemStruct->CtlType == ODT_MENU ||
        !ReflectMessage(lpDrawItemStruct->hwndItem, current.message, current.wParam, current.lParam,
                        &result))
        Default();
}

void CWnd::OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* lpMeasureItemStruct)
{
    const MSG current = AfxGetThreadState().current;
    LRESULT result = 0;
    if (lpMeasureItemStruct->CtlType == ODT_MENU ||
        !ReflectMessage(::GetDlgItem(m_hWnd, nIDCtl), current.message, current.wParam, current.lParam,
                        &result))
        Default();
}

int CWnd::OnCreate(CREATESTRUCTW*)
{
    return static_cast<int>(Default());
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

void CWnd::OnPaint()
{
    Default();
}

BOOL CWnd::OnEraseBkgnd(CDC*)
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnTimer(UINT_PTR)
{
    Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar*)
{
    Default();
}

void CWnd::OnKillFocus(CWnd*)
{
    Default();
}

void CWnd::OnActivateApp(BOOL, DWORD)
{
    Default();
}

BOOL CWnd::OnQueryNewPalette()
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnPaletteChanged(CWnd*)
{
    Default();
}
