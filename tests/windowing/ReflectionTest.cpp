// Notifications that a control sees before its parent does.

#include <gtest/gtest.h>

#include "framework/windowing/Window.h"
#include "windowing/TestWindows.h"

namespace
{

const RECT Place = {0, 0, 100, 60};

class CClickable : public CWnd
{
public:
    int m_nClicks = 0;
    int m_nFocus = 0;
    int m_nDrawn = 0;
    BOOL m_bHandled = TRUE;

protected:
    afx_msg BOOL OnClicked()
    {
        ++m_nClicks;
        return m_bHandled;
    }
    afx_msg BOOL OnFocus()
    {
        ++m_nFocus;
        return TRUE;
    }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    {
        if (message != WM_DRAWITEM && message != WM_MEASUREITEM)
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);
        ++m_nDrawn;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CClickable, CWnd)
ON_CONTROL_REFLECT_EX(BN_CLICKED, OnClicked)
ON_CONTROL_REFLECT_EX(BN_SETFOCUS, OnFocus)
END_MESSAGE_MAP()

class CPanel : public CWnd
{
public:
    int m_nClicks = 0;
    int m_nFocus = 0;

protected:
    afx_msg void OnClicked() { ++m_nClicks; }
    afx_msg void OnFocus() { ++m_nFocus; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPanel, CWnd)
ON_BN_CLICKED(5, OnClicked)
ON_CONTROL(BN_SETFOCUS, 5, OnFocus)
END_MESSAGE_MAP()

class Reflection : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_panel.Create(nullptr, nullptr, WS_VISIBLE, Place, m_host, 1));
        ASSERT_TRUE(
            m_button.Create(L"BUTTON", L"x", WS_VISIBLE | BS_OWNERDRAW | BS_NOTIFY, Place, &m_panel, 5));
    }
    CHostWindow m_host;
    CPanel m_panel;
    CClickable m_button;
};

} // namespace

TEST_F(Reflection, ControlHandlesItsOwnClick)
{
    m_button.SendMessage(BM_CLICK);
    EXPECT_EQ(m_button.m_nClicks, 1);
    EXPECT_EQ(m_panel.m_nClicks, 0);
}

TEST_F(Reflection, ParentGetsWhatTheControlDeclines)
{
    m_button.m_bHandled = FALSE;
    m_button.SendMessage(BM_CLICK);
    EXPECT_EQ(m_button.m_nClicks, 1);
    EXPECT_EQ(m_panel.m_nClicks, 1);
}

TEST_F(Reflection, PlainFormKeepsTheNotificationFromTheParent)
{
    m_panel.SendMessage(WM_COMMAND, MAKEWPARAM(5, BN_SETFOCUS),
                        reinterpret_cast<LPARAM>(m_button.m_hWnd));
    EXPECT_EQ(m_button.m_nFocus, 1);
    EXPECT_EQ(m_panel.m_nFocus, 0);
}

TEST_F(Reflection, ControlThatIsNotOursLeavesItToTheParent)
{
    const HWND plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 5, 5, m_panel,
                                         reinterpret_cast<HMENU>(5), nullptr, nullptr);
    ::SendMessageW(plain, BM_CLICK, 0, 0);
    EXPECT_EQ(m_panel.m_nClicks, 1);
}

TEST_F(Reflection, OwnerDrawnControlDrawsItself)
{
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = 5;
    draw.hwndItem = m_button;
    m_panel.SendMessage(WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(m_button.m_nDrawn, 1);
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_BUTTON;
    measure.CtlID = 5;
    m_panel.SendMessage(WM_MEASUREITEM, 5, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(m_button.m_nDrawn, 2);
    draw.CtlType = ODT_MENU;
    m_panel.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(m_button.m_nDrawn, 2);
}
