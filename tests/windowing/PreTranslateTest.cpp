// Queued messages that our windows see before they are dispatched, whoever fetches them.

#include <gtest/gtest.h>

#include <vector>

#include "framework/windowing/App.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ThreadState.h"
#include "windowing/TestWindows.h"

namespace
{

const RECT Place = {0, 0, 100, 60};
constexpr UINT WM_WATCHED = WM_USER + 30;

class CWatcher : public CWnd
{
public:
    std::vector<HWND> m_offered;
    std::vector<WPARAM> m_delivered;
    bool m_bTake = false;
    bool m_bThrow = false;
    bool m_bDestroy = false;

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message != WM_WATCHED)
            return CWnd::PreTranslateMessage(pMsg);
        m_offered.push_back(pMsg->hwnd);
        if (m_bThrow)
            AfxThrowResourceException();
        if (m_bDestroy)
            DestroyWindow();
        pMsg->wParam = 77; // what a window does to its copy is its own affair
        return m_bTake;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_WATCHED)
            m_delivered.push_back(wParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class PreTranslate : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_outer.Create(nullptr, nullptr, WS_VISIBLE, Place, m_host, 1));
        ASSERT_TRUE(m_inner.Create(nullptr, nullptr, WS_VISIBLE, Place, &m_outer, 2));
        HostWindow::Pump();
    }
    CHostWindow m_host;
    CWatcher m_outer;
    CWatcher m_inner;
};

} // namespace

TEST_F(PreTranslate, HostLoopOffersMessagesFromTheTargetUpwards)
{
    m_inner.PostMessage(WM_WATCHED, 5);
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_offered, std::vector<HWND>{m_inner});
    EXPECT_EQ(m_outer.m_offered, std::vector<HWND>{m_inner});
    EXPECT_EQ(m_inner.m_delivered, std::vector<WPARAM>{5});
}

TEST_F(PreTranslate, TakenMessageIsNeitherOfferedFurtherNorDispatched)
{
    m_inner.m_bTake = true;
    m_inner.PostMessage(WM_WATCHED, 5);
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_offered.size(), 1u);
    EXPECT_TRUE(m_outer.m_offered.empty());
    EXPECT_TRUE(m_inner.m_delivered.empty());
}

TEST_F(PreTranslate, ParentMayTakeWhatTheChildLets)
{
    m_outer.m_bTake = true;
    m_inner.PostMessage(WM_WATCHED, 5);
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_offered.size(), 1u);
    EXPECT_TRUE(m_inner.m_delivered.empty());
}

TEST_F(PreTranslate, ForeignChildOfOursIsWatchedToo)
{
    const HWND edit =
        ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 5, 5, m_inner, nullptr, nullptr, nullptr);
    ::PostMessageW(edit, WM_WATCHED, 0, 0);
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_offered, std::vector<HWND>{edit});
}

TEST_F(PreTranslate, OtherWindowsOfTheHostAreNotOffered)
{
    ::PostMessageW(m_host.Handle(), WM_WATCHED, 0, 0);
    HostWindow::Pump();
    EXPECT_TRUE(m_outer.m_offered.empty());
}

TEST_F(PreTranslate, LookingWithoutRemovingOffersNothing)
{
    m_inner.PostMessage(WM_WATCHED, 5);
    MSG message;
    EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_WATCHED, WM_WATCHED, PM_NOREMOVE));
    EXPECT_TRUE(m_inner.m_offered.empty());
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_offered.size(), 1u);
}

TEST_F(PreTranslate, OwnLoopOffersEachMessageOnce)
{
    m_inner.PostMessage(WM_WATCHED, 5);
    while (m_inner.m_delivered.empty())
        ASSERT_TRUE(AfxPumpMessage());
    EXPECT_EQ(m_inner.m_offered.size(), 1u);
    m_inner.m_bTake = true;
    m_inner.PostMessage(WM_WATCHED, 6);
    while (m_inner.m_offered.size() == 1)
        ASSERT_TRUE(AfxPumpMessage());
    EXPECT_EQ(m_inner.m_delivered.size(), 1u);
}

TEST_F(PreTranslate, LoopInsideOfAMessageOffersOnceAsWell)
{
    class CLooping : public CWnd
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER + 31)
                HostWindow::Pump(); // as a message box does while a loop of ours waits for messages
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CLooping looping;
    ASSERT_TRUE(looping.Create(nullptr, nullptr, 0, Place, m_host, 3));
    m_inner.PostMessage(WM_WATCHED, 5);
    looping.SendMessage(WM_USER + 31);
    EXPECT_EQ(m_inner.m_offered.size(), 1u);
    EXPECT_EQ(m_inner.m_delivered.size(), 1u);
}

TEST_F(PreTranslate, SearchStopsAtTheGivenWindow)
{
    MSG message{m_inner, WM_WATCHED, 0, 0, 0, {}};
    EXPECT_FALSE(AfxPreTranslateMessage(&message, m_inner));
    EXPECT_EQ(m_inner.m_offered.size(), 1u);
    EXPECT_TRUE(m_outer.m_offered.empty());
}

TEST_F(PreTranslate, ExceptionEndsAtTheHostsLoopAndTheMessageGoesOn)
{
    m_inner.m_bThrow = true;
    m_inner.PostMessage(WM_WATCHED, 5);
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_delivered.size(), 1u);
}

TEST_F(PreTranslate, WindowMayGoAwayWhileItLooks)
{
    m_inner.m_bDestroy = true;
    m_inner.PostMessage(WM_WATCHED, 5);
    HostWindow::Pump();
    EXPECT_EQ(m_inner.m_hWnd, nullptr);
    EXPECT_TRUE(m_inner.m_delivered.empty());
    m_outer.m_bDestroy = true;
    m_outer.PostMessage(WM_WATCHED, 5);
    HostWindow::Pump();
    EXPECT_EQ(m_outer.m_hWnd, nullptr);
    EXPECT_EQ(AfxGetThreadState().hMessageHook, nullptr) << "nothing is left to watch for";
}

TEST(MessageLoop, QuitEndsTheLoopAndStaysForTheLoopsOutside)
{
    ::PostQuitMessage(3);
    EXPECT_FALSE(AfxPumpMessage());
    MSG message;
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
}
