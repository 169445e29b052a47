#include "framework/windowing/Window.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/ThreadState.h"
#include "windowing/TestWindows.h"

namespace
{

// Notes every message and counts what its life brings.
class CRecorder : public CWnd
{
public:
    std::vector<UINT> m_messages;
    HWND m_hPreSubclass = nullptr;
    int m_nPostNcDestroy = 0;
    LRESULT m_nCreateResult = 0;
    bool m_bRefuse = false;

    void PreSubclassWindow() override { m_hPreSubclass = m_hWnd; }
    BOOL PreCreateWindow(CREATESTRUCTW& cs) override { return !m_bRefuse && CWnd::PreCreateWindow(cs); }
    void PostNcDestroy() override { ++m_nPostNcDestroy; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_messages.push_back(message);
        if (message == WM_CREATE && m_nCreateResult)
            return m_nCreateResult;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class CSelfDeleting : public CWnd
{
public:
    explicit CSelfDeleting(bool& gone) : m_gone(gone) {}
    void PostNcDestroy() override { delete this; }
    ~CSelfDeleting() override { m_gone = true; }

private:
    bool& m_gone;
};

const RECT Place = {10, 20, 110, 70};

} // namespace

TEST(Window, CreationAttachesBeforeTheFirstMessage)
{
    const CHostWindow host;
    CRecorder window;
    ASSERT_TRUE(window.Create(nullptr, L"name", WS_VISIBLE, Place, host, 77));
    EXPECT_EQ(window.m_hPreSubclass, window.m_hWnd);
    ASSERT_FALSE(window.m_messages.empty());
    const auto& seen = window.m_messages;
    const auto create = std::find(seen.begin(), seen.end(), static_cast<UINT>(WM_CREATE));
    const auto ncCreate = std::find(seen.begin(), seen.end(), static_cast<UINT>(WM_NCCREATE));
    EXPECT_LT(ncCreate, create);
    EXPECT_NE(create, seen.end());
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    EXPECT_EQ(CWnd::FromHandle(window.m_hWnd), &window);
}

TEST(Window, CreateMakesAChildWithTheGivenPlaceAndId)
{
    const CHostWindow host;
    CWnd window;
    ASSERT_TRUE(window.Create(nullptr, L"name", WS_VISIBLE, Place, host, 77));
    EXPECT_EQ(window.GetStyle() & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(window.GetDlgCtrlID(), 77);
    EXPECT_EQ(::GetParent(window), host.Handle());
    RECT rect;
    window.GetWindowRect(&rect);
    CWnd::FromHandle(host.Handle())->ScreenToClient(&rect);
    EXPECT_TRUE(::EqualRect(&rect, &Place));
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, L"name");
    EXPECT_FALSE(window.Create(nullptr, nullptr, 0, Place, host, 78)) << "a second window";
}

TEST(Window, DefaultClassRedrawsOnSizeAndHasDoubleClicksAnArrowAndNoBrush)
{
    const CHostWindow host;
    CWnd window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    EXPECT_EQ(::GetClassLongPtrW(window, GCL_STYLE),
              static_cast<ULONG_PTR>(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW));
    EXPECT_EQ(::GetClassLongPtrW(window, GCLP_HCURSOR),
              reinterpret_cast<ULONG_PTR>(::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512))));
    EXPECT_EQ(::GetClassLongPtrW(window, GCLP_HBRBACKGROUND), 0u);
}

TEST(Window, ClassesOfEqualLooksAreOne)
{
    const CString first = AfxRegisterWndClass(CS_DBLCLKS);
    const CString second = AfxRegisterWndClass(CS_DBLCLKS);
    const CString other = AfxRegisterWndClass(CS_DBLCLKS, nullptr, reinterpret_cast<HBRUSH>(16));
    EXPECT_TRUE(first == second);
    EXPECT_FALSE(first == other);
    WNDCLASSW looks;
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), other, &looks));
    EXPECT_EQ(looks.hbrBackground, reinterpret_cast<HBRUSH>(16));
    EXPECT_TRUE(AfxRegisterClass(&looks));
    looks.lpszClassName = L"";
    EXPECT_FALSE(AfxRegisterClass(&looks));
}

TEST(Window, ChildrenMadeDuringCreationAreNotTheObjects)
{
    class CParent : public CRecorder
    {
    public:
        HWND m_hInner = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CREATE)
                m_hInner = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, m_hWnd, nullptr,
                                             nullptr, nullptr);
            return CRecorder::WindowProc(message, wParam, lParam);
        }
    };
    const CHostWindow host;
    CParent window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    EXPECT_NE(window.m_hInner, nullptr);
    EXPECT_NE(window.m_hInner, window.m_hWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hInner), nullptr);
}

TEST(Window, RefusedCreationEndsInPostNcDestroyOnce)
{
    const CHostWindow host;
    CRecorder early;
    early.m_bRefuse = true;
    EXPECT_FALSE(early.Create(nullptr, nullptr, 0, Place, host, 1));
    EXPECT_EQ(early.m_nPostNcDestroy, 1);

    CRecorder inside;
    inside.m_nCreateResult = -1;
    EXPECT_FALSE(inside.Create(nullptr, nullptr, 0, Place, host, 1));
    EXPECT_EQ(inside.m_nPostNcDestroy, 1);
    EXPECT_EQ(inside.m_hWnd, nullptr);

    CRecorder unknown;
    EXPECT_FALSE(unknown.Create(L"no such class", nullptr, 0, Place, host, 1));
    EXPECT_EQ(unknown.m_nPostNcDestroy, 1);
    EXPECT_EQ(AfxGetThreadState().hCreateHook, nullptr);
}

TEST(Window, ChildWithoutAParentIsNotCreated)
{
    CRecorder window;
    EXPECT_FALSE(window.Create(nullptr, nullptr, 0, Place, nullptr, 1));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_nPostNcDestroy, 1);
}

TEST(Window, EndOfTheWindowDetachesTheObject)
{
    const CHostWindow host;
    CRecorder window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_nPostNcDestroy, 1);
    EXPECT_EQ(window.m_messages.back(), static_cast<UINT>(WM_NCDESTROY));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1)) << "the object can be used again";
}

TEST(Window, EndOfTheParentDetachesTheObject)
{
    CRecorder window;
    {
        const CHostWindow host;
        ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    }
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_nPostNcDestroy, 1);
}

TEST(Window, EndOfTheObjectDestroysTheWindow)
{
    const CHostWindow host;
    HWND handle = nullptr;
    {
        CWnd window;
        ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(Window, ObjectMayDeleteItselfWithItsWindow)
{
    const CHostWindow host;
    bool gone = false;
    auto* window = new CSelfDeleting(gone);
    ASSERT_TRUE(window->Create(nullptr, nullptr, 0, Place, host, 1));
    window->DestroyWindow();
    EXPECT_TRUE(gone);
    bool neverThere = false;
    EXPECT_FALSE((new CSelfDeleting(neverThere))->Create(L"no such class", nullptr, 0, Place, host, 1));
    EXPECT_TRUE(neverThere);
}

TEST(Window, SubclassedControlKeepsItsOwnBehaviour)
{
    const CHostWindow host;
    const HWND edit = ::CreateWindowExW(0, L"EDIT", L"text", WS_CHILD, 0, 0, 50, 20, host.Handle(),
                                        reinterpret_cast<HMENU>(5), nullptr, nullptr);
    const LONG_PTR original = ::GetWindowLongPtrW(edit, GWLP_WNDPROC);
    CRecorder window;
    EXPECT_FALSE(window.SubclassWindow(nullptr));
    ASSERT_TRUE(window.SubclassWindow(edit));
    EXPECT_EQ(window.m_hWnd, edit);
    EXPECT_EQ(window.m_hPreSubclass, edit);
    EXPECT_EQ(::SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0), 4);
    EXPECT_EQ(window.m_messages.back(), static_cast<UINT>(WM_GETTEXTLENGTH));
    EXPECT_EQ(window.Detach(), edit);
    EXPECT_EQ(::GetWindowLongPtrW(edit, GWLP_WNDPROC), original);
    const size_t seen = window.m_messages.size();
    EXPECT_EQ(::SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0), 4);
    EXPECT_EQ(window.m_messages.size(), seen);
}

TEST(Window, AttachedWindowSendsTheObjectNoMessages)
{
    const CHostWindow host;
    {
        CRecorder window;
        ASSERT_TRUE(window.Attach(host.Handle()));
        EXPECT_FALSE(window.Attach(host.Handle()));
        EXPECT_EQ(CWnd::FromHandle(host.Handle()), &window);
        window.SendMessage(WM_NULL);
        EXPECT_TRUE(window.m_messages.empty());
        EXPECT_EQ(window.Detach(), host.Handle());
    }
    EXPECT_TRUE(::IsWindow(host.Handle()));
    CRecorder window;
    ASSERT_TRUE(window.Attach(host.Handle()));
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(Window, TemporaryObjectIsOneForAHandleAndLeavesTheWindowAlone)
{
    const CHostWindow host;
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        CWnd* first = CWnd::FromHandle(host.Handle());
        EXPECT_EQ(CWnd::FromHandle(host.Handle()), first);
        EXPECT_EQ(CWnd::FromHandlePermanent(host.Handle()), nullptr);
        EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    }
    EXPECT_TRUE(::IsWindow(host.Handle()));
}

TEST(Window, AnotherThreadSeesNoPermanentObject)
{
    const CHostWindow host;
    CWnd window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    const HWND handle = window.m_hWnd;
    CWnd* seen = &window;
    std::thread([&] { seen = CWnd::FromHandlePermanent(handle); }).join();
    EXPECT_EQ(seen, nullptr);
}

TEST(Window, CallsWithoutAWindowDoNothing)
{
    CWnd window;
    window.Invalidate();
    window.InvalidateRect(nullptr, FALSE);
    EXPECT_FALSE(window.RedrawWindow());
    EXPECT_EQ(window.SetTimer(1, 1000), 0u);
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_EQ(window.Detach(), nullptr);
    EXPECT_EQ(window.SendMessage(WM_CLOSE), 0);
}

TEST(Window, StyleChangesTellWhetherSomethingChanged)
{
    const CHostWindow host;
    CWnd window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, WS_CAPTION, Place, host, 1));
    EXPECT_TRUE(window.ModifyStyle(WS_CAPTION, WS_CLIPCHILDREN, SWP_FRAMECHANGED));
    EXPECT_EQ(window.GetStyle() & (WS_CAPTION | WS_CLIPCHILDREN), static_cast<DWORD>(WS_CLIPCHILDREN));
    EXPECT_FALSE(window.ModifyStyle(WS_CAPTION, WS_CLIPCHILDREN));
}

TEST(Window, ParentOwnerIsTheNearestWindowThatIsNoChild)
{
    const CHostWindow host;
    CWnd outer;
    CWnd inner;
    ASSERT_TRUE(outer.Create(nullptr, nullptr, 0, Place, host, 1));
    ASSERT_TRUE(inner.Create(nullptr, nullptr, 0, Place, &outer, 1));
    EXPECT_EQ(inner.GetParentOwner()->m_hWnd, host.Handle());
}

TEST(Window, CreatedAndDestroyedWindowsLeaveNothingBehind)
{
    const CHostWindow host;
    for (int round = 0; round < 200; ++round) {
        CWnd window;
        ASSERT_TRUE(window.Create(nullptr, nullptr, WS_VISIBLE, Place, host, 1));
    }
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
    EXPECT_EQ(AfxGetThreadState().hMessageHook, nullptr);
    EXPECT_EQ(AfxGetThreadState().nScopeDepth, 0);
    EXPECT_EQ(::GetWindow(host.Handle(), GW_CHILD), nullptr);
}
