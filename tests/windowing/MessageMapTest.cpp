#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

#include <windows.h>

#include <commctrl.h>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"
#include "windowing/TestWindows.h"

namespace
{

const RECT Place = {0, 0, 100, 60};

// Writes down which handler was reached and with what.
class CBase : public CWnd
{
public:
    CString m_strLog;

protected:
    template <class... Args> void Note(LPCWSTR format, const Args&... args)
    {
        CString text;
        text.Format(format, args...);
        m_strLog += text;
    }
    afx_msg void OnCommand1() { m_strLog += L"base1 "; }
    afx_msg void OnCommand2() { m_strLog += L"base2 "; }
    afx_msg LRESULT OnQuestion(WPARAM wParam, LPARAM lParam)
    {
        m_strLog += L"question ";
        return static_cast<LRESULT>(wParam) + lParam;
    }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point)
    {
        Note(L"move %d %d %d ", nFlags, point.x, point.y);
        CWnd::OnMouseMove(nFlags, point);
    }
    DECLARE_MESSAGE_MAP()
};

class CDerived : public CBase
{
public:
    bool m_bThrow = false;
    int m_nCreate = 0;

protected:
    afx_msg void OnCommand1() { m_strLog += L"derived1 "; }
    afx_msg void OnClicked() { m_strLog += L"clicked "; }
    afx_msg void OnChanged() { m_strLog += L"changed "; }
    afx_msg void OnTab(NMHDR* pHeader, LRESULT* pResult)
    {
        Note(L"tab%d ", pHeader->idFrom);
        *pResult = 9;
    }
    afx_msg int OnCreate(CREATESTRUCTW* lpCreateStruct)
    {
        Note(L"create%d ", lpCreateStruct->cx);
        return m_nCreate ? m_nCreate : CWnd::OnCreate(lpCreateStruct);
    }
    afx_msg void OnSize(UINT nType, int cx, int cy) { Note(L"size%d %dx%d ", nType, cx, cy); }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC)
    {
        m_strLog += pDC ? L"erase " : L"erase-null ";
        return 5;
    }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
    {
        Note(L"cursor%d %d %x ", pWnd == this ? 1 : 0, nHitTest, message);
        return TRUE;
    }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
    {
        Note(L"wheel %d %d %d %d ", nFlags, zDelta, pt.x, pt.y);
        return TRUE;
    }
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        Note(L"key %d %d %d ", nChar, nRepCnt, nFlags);
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { Note(L"timer%d ", nIDEvent); }
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        Note(L"scroll %d %d %d ", nSBCode, nPos, pScrollBar ? 1 : 0);
    }
    afx_msg void OnKillFocus(CWnd* pNewWnd) { m_strLog += pNewWnd ? L"kill " : L"kill-null "; }
    afx_msg void OnPaint()
    {
        if (m_bThrow)
            throw std::bad_alloc();
        CWnd::OnPaint();
    }
    afx_msg LRESULT OnThrow(WPARAM, LPARAM)
    {
        AfxThrowResourceException();
        return 3;
    }
    DECLARE_MESSAGE_MAP()
};

constexpr UINT WM_QUESTION = WM_USER + 20;
constexpr UINT WM_THROW = WM_USER + 21;

BEGIN_MESSAGE_MAP(CBase, CWnd)
ON_COMMAND(40001, OnCommand1)
ON_COMMAND(40002, OnCommand2)
ON_MESSAGE(WM_QUESTION, OnQuestion)
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDerived, CBase)
ON_COMMAND(40001, OnCommand1)
ON_BN_CLICKED(10, OnClicked)
ON_EN_CHANGE(11, OnChanged)
ON_NOTIFY(TCN_SELCHANGE, 12, OnTab)
ON_MESSAGE(WM_THROW, OnThrow)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SETCURSOR()
ON_WM_MOUSEWHEEL()
ON_WM_KEYUP()
ON_WM_TIMER()
ON_WM_VSCROLL()
ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

class MessageMap : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.Create(nullptr, nullptr, 0, Place, m_host, 1));
        m_window.m_strLog = CString();
    }
    std::wstring Log()
    {
        const std::wstring log(m_window.m_strLog.GetString());
        m_window.m_strLog = CString();
        return log;
    }
    CHostWindow m_host;
    CDerived m_window;
};

} // namespace

TEST_F(MessageMap, HandlerOfTheDerivedClassComesFirst)
{
    m_window.SendMessage(WM_COMMAND, 40001);
    EXPECT_EQ(Log(), L"derived1 ");
    m_window.SendMessage(WM_COMMAND, 40002);
    EXPECT_EQ(Log(), L"base2 ");
}

TEST_F(MessageMap, HandledCommandAnswersOneAndAnUnknownOneZero)
{
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, 40001), 1);
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, 40006), 0);
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, 0), 0);
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, MAKELONG(40001, 1)), 1) << "an accelerator's command";
    Log();
}

TEST_F(MessageMap, MessageHandlerTakesBothParametersAndGivesItsResult)
{
    EXPECT_EQ(m_window.SendMessage(WM_QUESTION, 40, 2), 42);
    EXPECT_EQ(Log(), L"question ");
    EXPECT_EQ(m_window.SendMessage(WM_QUESTION + 50, 40, 2), 0);
    EXPECT_EQ(Log(), L"");
}

TEST_F(MessageMap, ControlsReachTheirHandlersByIdAndCode)
{
    const HWND control =
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, m_window, nullptr, nullptr, nullptr);
    const auto from = reinterpret_cast<LPARAM>(control);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(10, BN_CLICKED), from);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(11, EN_CHANGE), from);
    EXPECT_EQ(Log(), L"clicked changed ");
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(10, BN_SETFOCUS), from);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(11, EN_UPDATE), from);
    EXPECT_EQ(Log(), L"");
}

TEST_F(MessageMap, NotificationGivesItsHeaderAndTakesTheResult)
{
    NMHDR header{m_host.Handle(), 12, static_cast<UINT>(TCN_SELCHANGE)};
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, 12, reinterpret_cast<LPARAM>(&header)), 9);
    EXPECT_EQ(Log(), L"tab12 ");
    header.idFrom = 13;
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, 13, reinterpret_cast<LPARAM>(&header)), 0);
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, 12, 0), 0);
    EXPECT_EQ(Log(), L"");
}

TEST_F(MessageMap, ParametersArriveAsTheHandlersTypes)
{
    m_window.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-3, 7));
    EXPECT_EQ(Log(), L"move 1 -3 7 ");
    m_window.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)),
                         MAKELPARAM(-1, 600));
    EXPECT_EQ(Log(), L"wheel 8 -120 -1 600 ");
    m_window.SendMessage(WM_KEYUP, VK_DELETE, MAKELPARAM(2, 0x153));
    EXPECT_EQ(Log(), L"key 46 2 339 ");
    m_window.SendMessage(WM_TIMER, 50000);
    EXPECT_EQ(Log(), L"timer50000 ");
    m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 33));
    EXPECT_EQ(Log(), L"scroll 5 33 0 ");
    m_window.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_window.m_hWnd),
                         MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(Log(), L"cursor1 1 200 ");
    m_window.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(Log(), L"size0 300x200 ");
    m_window.SendMessage(WM_KILLFOCUS, 0);
    EXPECT_EQ(Log(), L"kill-null ");
    m_window.SendMessage(WM_KILLFOCUS, reinterpret_cast<WPARAM>(m_host.Handle()));
    EXPECT_EQ(Log(), L"kill ");
    const HDC screen = ::GetDC(nullptr);
    EXPECT_EQ(m_window.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(screen)), 5);
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(Log(), L"erase ");
}

TEST_F(MessageMap, CreationHandlerSeesItsParametersAndMayRefuse)
{
    CDerived other;
    other.m_nCreate = -1;
    EXPECT_FALSE(other.Create(nullptr, nullptr, 0, Place, m_host, 2));
    EXPECT_STREQ(other.m_strLog.Left(10), L"create100 ");
}

TEST_F(MessageMap, DefaultHandlingSeesTheMessageUnderWay)
{
    class CNested : public CWnd
    {
    public:
        int m_nDepth = 0;
        CString m_strSeen;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_SETTEXT)
                return CWnd::WindowProc(message, wParam, lParam);
            if (m_nDepth++ == 0)
                SendMessage(WM_SETTEXT, 0,
                            reinterpret_cast<LPARAM>(L"inner")); // another message in between
            return Default();
        }
    };
    CNested window;
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, m_host, 3));
    window.SetWindowText(L"outer");
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, L"outer");
}

TEST_F(MessageMap, ExceptionsOfHandlersEndAtTheWindow)
{
    EXPECT_EQ(m_window.SendMessage(WM_THROW), 0);
    EXPECT_EQ(AfxGetThreadState().nScopeDepth, 0);
    EXPECT_EQ(AfxGetThreadState().current.message, 0u);

    m_window.ShowWindow(SW_SHOW);
    m_window.m_bThrow = true;
    m_window.Invalidate();
    m_window.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(m_window, nullptr, FALSE))
        << "a failed paint is not asked for again for ever";
}

TEST(Window, ExceptionOfTheCreationHandlerGivesTheWindowUp)
{
    class CThrowing : public CWnd
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CREATE)
                throw std::runtime_error("no");
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    const CHostWindow host;
    CThrowing window;
    EXPECT_FALSE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(Window, HostMayDestroyTheWindowInsideOfANotification)
{
    class CNotifying : public CWnd
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_LBUTTONUP)
                return CWnd::WindowProc(message, wParam, lParam);
            ::SendMessageW(::GetParent(m_hWnd), WM_USER + 1, 0, 0);
            Invalidate();
            return Default();
        }
    };
    CNotifying window;
    CHostWindow host([](HWND hWnd, UINT message, WPARAM, LPARAM) {
        return message == WM_USER + 1 && ::DestroyWindow(hWnd);
    });
    ASSERT_TRUE(window.Create(nullptr, nullptr, 0, Place, host, 1));
    const HWND handle = window.m_hWnd;
    ::SendMessageW(handle, WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(Window, ObjectMayDeleteItselfInsideOfAHandler)
{
    class CClosing : public CWnd
    {
    public:
        void PostNcDestroy() override { delete this; }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_KEYDOWN)
                return CWnd::WindowProc(message, wParam, lParam);
            DestroyWindow();
            return 17;
        }
    };
    const CHostWindow host;
    auto* window = new CClosing;
    ASSERT_TRUE(window->Create(nullptr, nullptr, 0, Place, host, 1));
    EXPECT_EQ(window->SendMessage(WM_KEYDOWN, VK_ESCAPE), 17);
}
