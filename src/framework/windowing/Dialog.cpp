#include "framework/windowing/Dialog.h"

#include <algorithm>
#include <utility>

#include <commctrl.h>

#include "framework/windowing/App.h"
#include "framework/windowing/DialogTemplate.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModalOwner.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/WindowEntry.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
ON_WM_NCDESTROY()
ON_COMMAND(IDOK, OnOK)
ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

namespace
{

// The owner can take the activation only before the dialog goes: the system gives it to
// another program's window otherwise.
class CDialogEnd
{
public:
    CDialogEnd(CDialog& dialog, HWND owner) : m_dialog(dialog), m_owner(owner), m_disabled(owner) {}
    CDialogEnd(const CDialogEnd&) = delete;
    CDialogEnd& operator=(const CDialogEnd&) = delete;
    ~CDialogEnd()
    {
        m_disabled.Enable();
        const HWND window = m_dialog.m_hWnd;
        if (window && ::GetActiveWindow() == window && ::IsWindow(m_owner))
            ::SetActiveWindow(m_owner);
        m_dialog.DestroyWindow();
    }

private:
    CDialog& m_dialog;
    HWND m_owner;
    CModalOwner m_disabled;
};

// The classes of the common controls exist for those who ask, once for each version of them.
void RegisterControls() noexcept
{
    INITCOMMONCONTROLSEX controls{};
    controls.dwSize = sizeof controls;
    controls.dwICC = ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_STANDARD_CLASSES;
    ::InitCommonControlsEx(&controls);
}

bool IsInput(UINT message) noexcept
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

// UpdateData is under way: ends on every way out.
class CExchanging
{
public:
    explicit CExchanging(bool& flag) noexcept : m_flag(flag), m_before(std::exchange(flag, true)) {}
    CExchanging(const CExchanging&) = delete;
    CExchanging& operator=(const CExchanging&) = delete;
    ~CExchanging() { m_flag = m_before; }

private:
    bool& m_flag;
    bool m_before;
};

// Handlers do the work: what they leave, the platform does.
INT_PTR CALLBACK DialogProcedure(HWND, UINT, WPARAM, LPARAM) noexcept
{
    return FALSE;
}

} // namespace

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDTemplate(nIDTemplate), m_pParentWnd(pParentWnd)
{
}

bool CDialog::CreateIndirect(UINT nIDTemplate, HWND hWndParent)
{
    const DLGTEMPLATE* const dialog = DialogTemplate::Find(nIDTemplate);
    if (!dialog || m_hWnd)
        return false;
    m_nIDTemplate = nIDTemplate;
    m_bUnplaced = DialogTemplate::HasNoPlace(dialog);
    RegisterControls();
    AFX_WND_ENTRY::HookCreation(this);
    const HWND window =
        ::CreateDialogIndirectParamW(AfxGetInstanceHandle(), dialog, hWndParent, &DialogProcedure, 0);
    return AFX_WND_ENTRY::UnhookCreation() && window && m_hWnd == window;
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return CreateIndirect(nIDTemplate, pParentWnd ? pParentWnd->m_hWnd : nullptr);
}

INT_PTR CDialog::DoModal()
{
    if (m_hWnd)
        return -1; // it runs already
    const HWND owner = AfxGetSafeOwner(m_pParentWnd ? m_pParentWnd->m_hWnd : nullptr);
    const CDialogEnd end(*this, owner);
    m_nModalResult = IDABORT;
    m_bRunning = true;
    if (!CreateIndirect(m_nIDTemplate, owner) && m_bRunning) {
        m_bRunning = false;
        return -1;
    }
    RunModalLoop();
    m_bRunning = false;
    return m_nModalResult;
}

void CDialog::RunModalLoop()
{
    if (m_bRunning && !(GetStyle() & WS_VISIBLE)) {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    }
    bool idle = true;
    while (m_bRunning) {
        MSG next;
        if (idle && !::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            idle = false;
            NotifyIdle();
            continue;
        }
        if (!AfxPumpMessage())
            return;
        idle = true;
    }
}

void CDialog::NotifyIdle() const
{
    // A message sent from another thread comes in by the look at the queue as well.
    const HWND owner = m_hWnd ? ::GetWindow(m_hWnd, GW_OWNER) : nullptr;
    if (owner && !(GetStyle() & DS_NOIDLEMSG))
        ::SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
}

void CDialog::EndDialog(int nResult)
{
    if (!m_bRunning)
        return;
    m_bRunning = false;
    m_nModalResult = nResult;
    // The loop may wait for a message.
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

void CDialog::OnNcDestroy()
{
    EndDialog(IDABORT);
    CWnd::OnNcDestroy();
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    RECT before;
    GetWindowRect(&before);
    BOOL focus = FALSE;
    try {
        focus = OnInitDialog();
    } catch (...) {
        EndDialog(-1);
        throw;
    }
    RECT after;
    if (m_bUnplaced && m_hWnd && !IsWindowVisible() && ::GetWindowRect(m_hWnd, &after) &&
        ::EqualRect(&before, &after))
        CenterOnOwner();
    return focus;
}

void CDialog::CenterOnOwner() const
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    ::GetMonitorInfoW(::MonitorFromWindow(owner ? owner : m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& area = monitor.rcWork;
    RECT around = area;
    if (owner && ::IsWindowVisible(owner) && !::IsIconic(owner))
        ::GetWindowRect(owner, &around);
    CRect place;
    GetWindowRect(&place);
    // Inside of the work area; where it doesn't fit, the corner with the title wins.
    const auto fit = [](LONG lower, LONG upper, LONG size, LONG low, LONG high) {
        const LONG start = lower + (upper - lower - size) / 2;
        return std::max(low, std::min(start, high - size));
    };
    ::SetWindowPos(m_hWnd, nullptr, fit(around.left, around.right, place.Width(), area.left, area.right),
                   fit(around.top, around.bottom, place.Height(), area.top, area.bottom), 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CDialog::OnInitDialog()
{
    if (!DialogTemplate::FillLists(m_nIDTemplate, m_hWnd) || !UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

BOOL CDialog::UpdateData(BOOL bSaveAndValidate)
{
    const CExchanging silence(m_bExchanging);
    try {
        CDataExchange exchange(this, bSaveAndValidate);
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CException* e) {
        e->Delete();
    }
    return FALSE;
}

void CDialog::DoDataExchange(CDataExchange*) {}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return m_bExchanging || CWnd::OnCommand(wParam, lParam);
}

BOOL CDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return m_bExchanging || CWnd::OnNotify(wParam, lParam, pResult);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    return m_hWnd && IsInput(pMsg->message) && ::IsDialogMessageW(m_hWnd, pMsg);
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}
