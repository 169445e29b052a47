#include "framework/windowing/App.h"

#include <gtest/gtest.h>

#include "framework/windowing/Window.h"
#include "windowing/TestWindows.h"

namespace
{

class CTestApp : public CWinApp
{
public:
    using CWinApp::CWinApp;
    BOOL m_bStart = TRUE;
    int m_nStarts = 0;
    int m_nEnds = 0;
    AFX_MODULE_STATE* m_pSeenState = nullptr;

    BOOL InitInstance() override
    {
        ++m_nStarts;
        m_pSeenState = AfxGetModuleState();
        return m_bStart && CWinApp::InitInstance();
    }
    int ExitInstance() override
    {
        ++m_nEnds;
        return CWinApp::ExitInstance();
    }
};

// What a message box of this thread looks like. A timer answers it, so it needs no person.
struct TBox {
    CString title;
    CString text;
    HWND hOwner = nullptr;
    bool hasIcon = false;
    int buttons = 0;
};

TBox g_box;

void CALLBACK Answer(HWND, UINT, UINT_PTR id, DWORD)
{
    const HWND box = ::FindWindowW(L"#32770", nullptr);
    if (!box || ::GetWindowThreadProcessId(box, nullptr) != ::GetCurrentThreadId())
        return;
    ::KillTimer(nullptr, id);
    const auto textOf = [](HWND hWnd) {
        CString text;
        ::GetWindowTextW(hWnd, text.GetBuffer(200), 200);
        text.ReleaseBuffer();
        return text;
    };
    g_box = {};
    g_box.title = textOf(box);
    g_box.hOwner = ::GetWindow(box, GW_OWNER);
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        WCHAR name[20] = {};
        ::GetClassNameW(child, name, 19);
        const bool isStatic = ::lstrcmpiW(name, L"Static") == 0;
        const bool isIcon = isStatic && ::SendMessageW(child, STM_GETICON, 0, 0) != 0;
        g_box.hasIcon |= isIcon;
        if (isStatic && !isIcon)
            g_box.text = textOf(child);
        if (::lstrcmpiW(name, L"Button") == 0 && ::IsWindowVisible(child))
            ++g_box.buttons;
    }
    ::PostMessageW(box, WM_COMMAND, ::GetDlgItem(box, IDYES) ? IDYES : IDOK, 0);
}

template <class Call> int Answered(Call call)
{
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 10, &Answer);
    const int result = call();
    ::KillTimer(nullptr, timer);
    return result;
}

} // namespace

TEST(App, StaticStateKnowsTheApplicationWhileItLives)
{
    CWinApp* const before = AfxGetApp();
    {
        CTestApp app(L"Charts");
        EXPECT_EQ(AfxGetApp(), &app);
        EXPECT_EQ(AfxGetThread(), &app);
        EXPECT_STREQ(app.m_strAppName, L"Charts");
        EXPECT_EQ(AfxGetMainWnd(), nullptr);
        CWnd main;
        app.m_pMainWnd = &main;
        EXPECT_EQ(AfxGetMainWnd(), &main);
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
    AfxGetStaticModuleState()->m_pCurrentWinApp = before;
}

TEST(App, NameIsThatOfTheModulesFileByDefault)
{
    const CTestApp app;
    WCHAR path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const CString file(path);
    EXPECT_GE(file.Find(L"\\" + app.m_strAppName + L".exe"), 0);
}

TEST(App, LoadAndUnloadRunTheApplication)
{
    CTestApp app;
    EXPECT_TRUE(AfxDllMain(nullptr, DLL_PROCESS_ATTACH));
    EXPECT_EQ(app.m_nStarts, 1);
    EXPECT_EQ(app.m_pSeenState, AfxGetStaticModuleState());
    EXPECT_TRUE(AfxDllMain(nullptr, DLL_THREAD_ATTACH));
    EXPECT_TRUE(AfxDllMain(nullptr, DLL_THREAD_DETACH));
    EXPECT_EQ(app.m_nStarts + app.m_nEnds, 1);
    EXPECT_TRUE(AfxDllMain(nullptr, DLL_PROCESS_DETACH));
    EXPECT_EQ(app.m_nEnds, 1);
}

TEST(App, ApplicationThatDoesNotStartRefusesTheLoad)
{
    CTestApp app;
    app.m_bStart = FALSE;
    EXPECT_FALSE(AfxDllMain(nullptr, DLL_PROCESS_ATTACH));
    EXPECT_EQ(app.m_nEnds, 1);
}

TEST(App, MessageBoxStandsOverTheActiveWindowUnderTheApplicationsName)
{
    const CTestApp app(L"Charts");
    const CHostWindow host;
    ::SetActiveWindow(host.Handle());
    EXPECT_EQ(Answered([] { return AfxMessageBox(L"The index is out of bounds..."); }), IDOK);
    EXPECT_STREQ(g_box.title, L"Charts");
    EXPECT_STREQ(g_box.text, L"The index is out of bounds...");
    EXPECT_EQ(g_box.hOwner, host.Handle());
    EXPECT_TRUE(g_box.hasIcon);
    EXPECT_EQ(g_box.buttons, 1);
    EXPECT_TRUE(::IsWindowEnabled(host.Handle()));
}

TEST(App, MessageBoxTakesButtonsAndWorksWithoutAnApplication)
{
    EXPECT_EQ(Answered([] { return AfxMessageBox(L"Go on?", MB_YESNO); }), IDYES);
    EXPECT_EQ(g_box.buttons, 2);
    EXPECT_FALSE(g_box.title.IsEmpty());
}

TEST(App, MissingPromptShowsNoMessageBox)
{
    EXPECT_EQ(AfxMessageBox(65000u), -1);
}

TEST(App, OwnerOfABoxIsTheLastPopupOverTheTopWindow)
{
    const CHostWindow host;
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, nullptr, WS_VISIBLE, {0, 0, 10, 10}, host, 1));
    EXPECT_EQ(AfxGetSafeOwner(child), host.Handle());
    const HWND popup = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                         host.Handle(), nullptr, nullptr, nullptr);
    ::SetActiveWindow(popup);
    EXPECT_EQ(AfxGetSafeOwner(child), popup);
    ::DestroyWindow(popup);
}
