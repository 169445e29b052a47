#pragma once
// The application object of the module, and the thread part of it. A module has at most one,
// a static; it runs inside a host's process and on the host's threads.

#include "framework/windowing/CmdTarget.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/Strings.h"

class CWnd;

class CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    // TRUE lets the module start.
    virtual BOOL InitInstance();
    // The result is the module's exit code.
    virtual int ExitInstance();
    // The main window of the program, if it set one; in a server usually null.
    [[nodiscard]] virtual CWnd* GetMainWnd();

    CWnd* m_pMainWnd = nullptr; // not owned
};

class CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    // The name titles message boxes; by default that of the module's file, without extension.
    // The static module state takes this as its application.
    explicit CWinApp(LPCWSTR lpszAppName = nullptr);
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;
    ~CWinApp() override;

    BOOL InitInstance() override;
    int ExitInstance() override;
    virtual int DoMessageBox(LPCWSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    CString m_strAppName;
};

// The application of the current module state; null if there is none.
[[nodiscard]] CWinApp* AfxGetApp() noexcept;
[[nodiscard]] CWinThread* AfxGetThread() noexcept;
[[nodiscard]] CWnd* AfxGetMainWnd();

// A modal message box over the active popup of the calling thread. Without an icon in nType
// it shows the exclamation mark; its title is the application's name. The result is the
// button's id, 0 on failure.
int AfxMessageBox(LPCWSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

// The window that a modal box of this thread belongs to: the last active popup over the
// main or active window; null if the thread has none.
[[nodiscard]] HWND AfxGetSafeOwner(HWND hParent = nullptr);

// One step of a modal loop: fetches a message, lets the windows translate it first, and
// dispatches it. FALSE for WM_QUIT, which is posted again for the loops outside.
BOOL AfxPumpMessage();
// Offers a message to the permanent windows from its target up to hWndStop (null: up to the
// top); TRUE if one took it.
BOOL AfxPreTranslateMessage(MSG* pMsg, HWND hWndStop = nullptr);

// What the module's DllMain does: InitInstance at attach, ExitInstance at detach.
BOOL AfxDllMain(HINSTANCE hInstance, DWORD dwReason);
