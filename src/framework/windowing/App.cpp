#include "framework/windowing/App.h"

#include "framework/windowing/Window.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace
{

// The file name of the module, without folder and extension.
CString ModuleName()
{
    WCHAR path[MAX_PATH] = {};
    ::GetModuleFileNameW(AfxGetStaticModuleState()->m_hCurrentInstanceHandle, path, MAX_PATH - 1);
    const CString name(path);
    const CString file = name.Mid(name.ReverseFind(L'\\') + 1);
    const int point = file.ReverseFind(L'.');
    return point > 0 ? file.Left(point) : file;
}

int ShowMessageBox(LPCWSTR text, LPCWSTR title, UINT type)
{
    const UINT buttons = type & MB_TYPEMASK;
    if (!(type & MB_ICONMASK) && buttons != MB_ABORTRETRYIGNORE && buttons != MB_RETRYCANCEL)
        type |= MB_ICONEXCLAMATION;
    const HWND owner = AfxGetSafeOwner();
    if (!owner)
        type |= MB_TASKMODAL; // no call may come in through the thread's other windows
    return ::MessageBoxW(owner, text, title, type);
}

} // namespace

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return 0;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

CWinApp::CWinApp(LPCWSTR lpszAppName) : m_strAppName(lpszAppName ? CString(lpszAppName) : ModuleName())
{
    AfxGetStaticModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* const state = AfxGetStaticModuleState();
    if (state->m_pCurrentWinApp == this)
        state->m_pCurrentWinApp = nullptr;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::ExitInstance()
{
    return 0;
}

int CWinApp::DoMessageBox(LPCWSTR lpszPrompt, UINT nType, UINT)
{
    return ShowMessageBox(lpszPrompt, m_strAppName, nType);
}

CWinApp* AfxGetApp() noexcept
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWinThread* AfxGetThread() noexcept
{
    return AfxGetApp();
}

CWnd* AfxGetMainWnd()
{
    CWinThread* const thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

HWND AfxGetSafeOwner(HWND hParent)
{
    const CWnd* const main = AfxGetMainWnd();
    HWND owner = hParent ? hParent : main ? main->m_hWnd : nullptr;
    if (!owner)
        owner = ::GetActiveWindow();
    while (owner && (::GetWindowLongPtrW(owner, GWL_STYLE) & WS_CHILD))
        owner = ::GetParent(owner);
    return owner ? ::GetLastActivePopup(owner) : nullptr;
}

int AfxMessageBox(LPCWSTR lpszText, UINT nType, UINT nIDHelp)
{
    if (CWinApp* const app = AfxGetApp())
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    return ShowMessageBox(lpszText, ModuleName(), nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    if (!text.LoadString(nIDPrompt))
        return -1;
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

BOOL AfxDllMain(HINSTANCE, DWORD dwReason)
{
    CWinApp* const app = AfxGetStaticModuleState()->m_pCurrentWinApp;
    if (!app || (dwReason != DLL_PROCESS_ATTACH && dwReason != DLL_PROCESS_DETACH))
        return TRUE;
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (dwReason == DLL_PROCESS_DETACH) {
        app->ExitInstance();
        return TRUE;
    }
    if (app->InitInstance())
        return TRUE;
    app->ExitInstance();
    return FALSE;
}
