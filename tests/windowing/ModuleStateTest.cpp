#include "framework/windowing/ModuleState.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "framework/windowing/App.h"
#include "framework/windowing/ThreadState.h"
#include "windowing/TempFile.h"
#include "windowing/TestWindows.h"

TEST(ModuleState, StaticStateKnowsThisModule)
{
    AFX_MODULE_STATE* state = AfxGetStaticModuleState();
    EXPECT_EQ(state->m_hCurrentInstanceHandle, ::GetModuleHandleW(nullptr));
    EXPECT_EQ(state->m_hCurrentResourceHandle, state->m_hCurrentInstanceHandle);
    EXPECT_EQ(AfxGetModuleState(), state);
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandleW(nullptr));
}

TEST(ModuleState, ScopeMakesAStateCurrentAndPutsTheFormerBack)
{
    AFX_MODULE_STATE other;
    other.m_hCurrentResourceHandle = ::GetModuleHandleW(L"user32.dll");
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(AfxGetModuleState(), &other);
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(L"user32.dll"));
        {
            AFX_MANAGE_STATE(AfxGetStaticModuleState());
            EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
        }
        EXPECT_EQ(AfxGetModuleState(), &other);
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
}

TEST(ModuleState, ExceptionThatPassesPutsTheFormerBack)
{
    AFX_MODULE_STATE host;
    AfxSetModuleState(&host);
    const auto work = [] {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        throw std::runtime_error("passes");
    };
    EXPECT_THROW(work(), std::runtime_error);
    EXPECT_EQ(AfxGetModuleState(), &host);
    EXPECT_EQ(AfxSetModuleState(nullptr), &host);
}

TEST(ModuleState, EachThreadHasItsOwnCurrentState)
{
    AFX_MODULE_STATE other;
    AFX_MANAGE_STATE(&other);
    std::thread([] { EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState()); }).join();
    EXPECT_EQ(AfxGetModuleState(), &other);
}

TEST(ModuleState, ModuleWithoutAManifestHasNoContext)
{
    AFX_MODULE_STATE state;
    EXPECT_EQ(state.GetActivationContext(), INVALID_HANDLE_VALUE);
    EXPECT_EQ(state.GetActivationContext(), INVALID_HANDLE_VALUE);
}

namespace
{

// A library with a manifest as its resource 2: a copy of one of the system's, given one.
class CManifestLibrary
{
public:
    CManifestLibrary()
    {
        WCHAR source[MAX_PATH];
        ::GetSystemDirectoryW(source, MAX_PATH);
        ::lstrcatW(source, L"\\version.dll");
        ::CopyFileW(source, m_file.Path(), FALSE);
        const std::string_view manifest =
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
            "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">"
            "<assemblyIdentity version=\"1.0.0.0\" type=\"win32\" name=\"Test\"/></assembly>";
        const HANDLE update = ::BeginUpdateResourceW(m_file.Path(), FALSE);
        ::UpdateResourceW(update, MAKEINTRESOURCEW(24), MAKEINTRESOURCEW(2), 0,
                          const_cast<char*>(manifest.data()), static_cast<DWORD>(manifest.size()));
        ::EndUpdateResourceW(update, FALSE);
        m_hModule = ::LoadLibraryExW(m_file.Path(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
    }
    CManifestLibrary(const CManifestLibrary&) = delete;
    CManifestLibrary& operator=(const CManifestLibrary&) = delete;
    ~CManifestLibrary() { ::FreeLibrary(m_hModule); }
    [[nodiscard]] HMODULE Handle() const { return m_hModule; }

private:
    CTempFile m_file;
    HMODULE m_hModule = nullptr;
};

HANDLE CurrentContext()
{
    HANDLE context = nullptr;
    ::GetCurrentActCtx(&context);
    if (context)
        ::ReleaseActCtx(context); // only compared
    return context;
}

} // namespace

TEST(ModuleState, ContextOfTheManifestIsActiveInsideTheScopeOnly)
{
    const CManifestLibrary library;
    ASSERT_NE(library.Handle(), nullptr);
    AFX_MODULE_STATE state;
    state.m_hCurrentInstanceHandle = library.Handle();
    const HANDLE own = state.GetActivationContext();
    ASSERT_NE(own, INVALID_HANDLE_VALUE);
    const HANDLE before = CurrentContext();
    ASSERT_NE(own, before);
    try {
        AFX_MANAGE_STATE(&state);
        EXPECT_EQ(CurrentContext(), own);
        throw 1;
    } catch (int) {
        EXPECT_EQ(CurrentContext(), before);
    }
    {
        AFX_MANAGE_STATE(&state);
        AFX_MANAGE_STATE(AfxGetStaticModuleState()); // has no manifest: the context stays
        EXPECT_EQ(CurrentContext(), own);
    }
    EXPECT_EQ(CurrentContext(), before);
}

TEST(ModuleState, LocksAndWindowsHoldTheModule)
{
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
    AfxOleLockApp();
    EXPECT_EQ(AfxDllCanUnloadNow(), S_FALSE);
    AfxOleUnlockApp();
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);

    const CHostWindow host;
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    EXPECT_EQ(AfxDllCanUnloadNow(), S_FALSE);
    ::DestroyWindow(child);
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
}

TEST(TemporaryWindows, EndWithTheOutermostScope)
{
    const CHostWindow host;
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CWnd* first = CWnd::FromHandle(host.Handle());
        {
            AFX_MANAGE_STATE(AfxGetStaticModuleState());
            EXPECT_EQ(CWnd::FromHandle(host.Handle()), first);
        }
        EXPECT_EQ(first->m_hWnd, host.Handle());
        first->m_hWnd = nullptr; // a mark: an object that is made anew has its window
        EXPECT_EQ(CWnd::FromHandle(host.Handle())->m_hWnd, nullptr);
    }
    EXPECT_EQ(CWnd::FromHandle(host.Handle())->m_hWnd, host.Handle());
    EXPECT_TRUE(::IsWindow(host.Handle()));
}

TEST(TemporaryWindows, ThoseOutsideOfAnyScopeStayUntilTheNextMessageIsFetched)
{
    const CHostWindow host;
    CWnd child; // while there is one, the thread's queue is watched
    ASSERT_TRUE(child.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    CWnd* parent = CWnd::FromHandle(host.Handle());
    child.SendMessage(WM_NULL);
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
    }
    EXPECT_EQ(parent->m_hWnd, host.Handle());
    parent->m_hWnd = nullptr; // a mark: an object that is made anew has its window
    EXPECT_EQ(CWnd::FromHandle(host.Handle())->m_hWnd, nullptr);
    ::PostMessageW(host.Handle(), WM_NULL, 0, 0);
    HostWindow::Pump();
    EXPECT_EQ(CWnd::FromHandle(host.Handle())->m_hWnd, host.Handle());
}

TEST(ThreadState, ReadingItKeepsTheLastError)
{
    ::SetLastError(1234);
    (void)AfxGetModuleState();
    EXPECT_EQ(::GetLastError(), 1234u);
}

TEST(ThreadState, EndsWithItsThread)
{
    const CHostWindow host;
    const HWND handle = host.Handle();
    std::thread([handle] {
        EXPECT_EQ(AfxFindThreadState(), nullptr);
        (void)CWnd::FromHandle(handle);
        EXPECT_NE(AfxFindThreadState(), nullptr);
    }).join();
    EXPECT_TRUE(::IsWindow(handle));
}

TEST(ThreadState, WindowsThatOutliveTheModuleAreLeftWithoutItsProcedure)
{
    const CHostWindow host;
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    const HWND handle = child.m_hWnd;
    AfxGetThreadState().windows.ReleaseWindows();
    EXPECT_EQ(::GetWindowLongPtrW(handle, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(&::DefWindowProcW));
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
    EXPECT_TRUE(::DestroyWindow(handle));
}
