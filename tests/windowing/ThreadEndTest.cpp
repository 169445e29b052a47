// Windows and objects that part because a thread ends, or because the object is destroyed on
// another thread.

#include <gtest/gtest.h>

#include <memory>
#include <thread>

#include "framework/windowing/ModuleState.h"
#include "framework/windowing/ThreadState.h"
#include "windowing/TestWindows.h"

namespace
{

constexpr UINT Question = WM_APP + 1;

class CAnsweringWnd : public CWnd
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == Question ? 77 : CWnd::WindowProc(message, wParam, lParam);
    }
};

HWND PopupWithoutObject()
{
    return ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr,
                             nullptr);
}

} // namespace

TEST(ThreadEnd, LeavesAnObjectWithoutAWindowAndGivesItsLockBack)
{
    CAnsweringWnd window;
    std::thread([&window] {
        const HWND parent = PopupWithoutObject();
        EXPECT_TRUE(window.CreateEx(0, nullptr, nullptr, WS_CHILD, 0, 0, 10, 10, parent, nullptr));
        EXPECT_EQ(window.SendMessage(Question), 77);
        EXPECT_EQ(AfxDllCanUnloadNow(), S_FALSE);
    }).join();
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
    const CHostWindow host; // the object is free for another window
    EXPECT_TRUE(window.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    EXPECT_EQ(window.SendMessage(Question), 77);
}

TEST(ObjectOfAnotherThread, LeavesTheMapOfItsWindowsThread)
{
    const CHostWindow host;
    auto window = std::make_unique<CAnsweringWnd>();
    ASSERT_TRUE(window->Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    const HWND handle = window->m_hWnd;
    std::thread([&window] { window.reset(); }).join();
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(::SendMessageW(handle, Question, 0, 0), 0) << "the window has its own procedure back";
    EXPECT_FALSE(AfxGetThreadState().windows.HasPermanent());
    EXPECT_EQ(AfxGetThreadState().hMessageHook, nullptr);
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
    EXPECT_TRUE(::DestroyWindow(handle));
}

TEST(ObjectOfAnotherThread, DetachesThereToo)
{
    const CHostWindow host;
    CAnsweringWnd window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, {0, 0, 10, 10}, host, 1));
    const HWND handle = window.m_hWnd;
    std::thread([&] { EXPECT_EQ(window.Detach(), handle); }).join();
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(AfxDllCanUnloadNow(), S_OK);
}
