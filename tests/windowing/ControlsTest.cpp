// The platform's controls through their objects.

#include <gtest/gtest.h>

#include <string>

#include "framework/windowing/Controls.h"
#include "windowing/TestWindows.h"

namespace
{

const CRect Place(0, 0, 100, 100);

class CDrawnButton : public CButton
{
public:
    UINT m_nDrawn = 0;
    void DrawItem(DRAWITEMSTRUCT* lpDrawItemStruct) override { m_nDrawn = lpDrawItemStruct->CtlID; }
};

class CPanel : public CWnd
{
public:
    CPanel() { Create(nullptr, nullptr, WS_VISIBLE, Place, m_host, 1); }
    HWND Add(const wchar_t* className, DWORD style)
    {
        return ::CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 80, 80, m_hWnd,
                                 reinterpret_cast<HMENU>(5), nullptr, nullptr);
    }

private:
    CHostWindow m_host;
};

} // namespace

TEST(Controls, OwnerDrawnButtonDrawsItself)
{
    CPanel panel;
    CDrawnButton button;
    ASSERT_TRUE(button.Create(L"x", WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 30, 20), &panel, 5));
    button.m_nDrawn = 0;
    button.RedrawWindow();
    EXPECT_EQ(button.m_nDrawn, 5u);
}

TEST(Controls, ComboBoxKeepsRows)
{
    CPanel panel;
    CComboBox combo;
    ASSERT_TRUE(combo.SubclassWindow(panel.Add(L"COMBOBOX", CBS_DROPDOWNLIST)));
    EXPECT_EQ(combo.AddString(L"a"), 0);
    EXPECT_EQ(combo.AddString(L"b"), 1);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.SetCurSel(1), 1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.SetCurSel(7), CB_ERR);
    EXPECT_EQ(combo.DeleteString(0), 1);
    EXPECT_EQ(combo.GetCount(), 1);
    EXPECT_EQ(combo.DeleteString(4), CB_ERR);
}

TEST(Controls, SpinButtonHoldsItsRange)
{
    CPanel panel;
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.SubclassWindow(panel.Add(UPDOWN_CLASSW, 0)));
    spin.SetRange(1, 10);
    EXPECT_EQ(spin.SendMessage(UDM_GETRANGE), MAKELPARAM(10, 1));
    spin.SetPos(7);
    EXPECT_EQ(spin.SetPos(99), 7);
    EXPECT_EQ(LOWORD(spin.SendMessage(UDM_GETPOS)), 10);
    spin.SetRange32(0, 100000000);
    int lower = -1;
    int upper = -1;
    spin.SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 100000000);
}

TEST(Controls, TabsKeepTextAndParameter)
{
    CPanel panel;
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.SubclassWindow(panel.Add(WC_TABCONTROLW, 0)));
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 0, L"Chart", 0, 11), 0);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 1, L"Axis", 0, 22), 1);
    EXPECT_EQ(tabs.SetCurSel(1), 0);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    wchar_t text[20] = {};
    TCITEMW item{};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = text;
    item.cchTextMax = 20;
    tabs.SendMessage(TCM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(std::wstring(text), L"Axis");
    EXPECT_EQ(item.lParam, 22);
}

TEST(Controls, ToolTipFindsTheRectangleUnderThePointer)
{
    CPanel panel;
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&panel));
    EXPECT_TRUE(tips.AddTool(&panel, L"left", CRect(0, 0, 50, 100), 1));
    EXPECT_TRUE(tips.AddTool(&panel, L"right", CRect(50, 0, 100, 100), 2));
    EXPECT_EQ(tips.SendMessage(TTM_GETTOOLCOUNT), 2);

    const auto current = [&] {
        wchar_t text[80] = {};
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.lpszText = text;
        tips.SendMessage(TTM_GETCURRENTTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        return std::wstring(text);
    };
    CPoint point(70, 20);
    ::ClientToScreen(panel, &point);
    ::SetCursorPos(point.x, point.y);
    ::SetActiveWindow(::GetParent(panel));
    HostWindow::Pump();
    MSG move{panel, WM_MOUSEMOVE, 0, MAKELPARAM(70, 20), 0, {}};
    tips.SendMessage(TTM_SETDELAYTIME, TTDT_INITIAL, 0);
    tips.RelayEvent(&move);
    for (int wait = 0; wait < 300 && !tips.IsWindowVisible(); ++wait) {
        ::Sleep(10);
        HostWindow::Pump();
        tips.RelayEvent(&move);
    }
    EXPECT_EQ(current(), L"right");
}
