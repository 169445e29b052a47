#pragma once
// The property sheet of a graph of the DLL, opened as a user does, and the hands to drive it:
// numbers of pages and controls are typed out, as a host's robot would have them.

#include "dialogs/ModalDriver.h"
#include "frontdoor/InteractionHost.h"
#include "support/MessageBoxes.h"

#include <commctrl.h>

#include <functional>
#include <string>
#include <vector>

namespace Id
{
enum {
    ok = 1,
    cancel = 2,
    apply = 5002,
    tabs = 6073,
    // the graph
    backColor = 6047,
    graphColor = 6048,
    innerColor = 6049,
    showLegend = 6050,
    legendAlignment = 6051,
    doubleBuffer = 6052,
    xAxes = 6055,
    curves = 6057,
    yAxes = 6070,
    snapSpin = 6074,
    snapRange = 6075,
    snapCursor = 6076,
    // an axis
    scaleFont = 6001,
    titleFont = 6002,
    color = 6007,
    visible = 6009,
    label = 6010,
    max = 6013,
    showGrid = 6014,
    dateTime = 6015,
    decimals = 6016,
    decimalsSpin = 6017,
    arcSize = 6018,
    arcSpin = 6019,
    tickSize = 6020,
    tickSpin = 6021,
    markerSize = 6022,
    markerSpin = 6023,
    step = 6024,
    minDate = 6025,
    minTime = 6026,
    maxDate = 6029,
    maxTime = 6030,
    gridColor = 6033,
    autoScale = 6039,
    min = 6040,
    dateFormat = 6046,
    showKeys = 6058,
    gridStyle = 6072,
    placement = 6077,
    timeStep = 6081,
    timeUnit = 6083,
    // a curve
    lineSize = 6035
};
} // namespace Id

class SheetHost : public FrontDoorInteraction
{
protected:
    enum Tab { Chart, Axis, Curve_ };
    using Step = ModalDriver::Step;

    void SetUp() override
    {
        FrontDoorInteraction::SetUp();
        graph->SetShowLegend(1);
        Frame();
    }

    // Where a double click opens what.
    POINT OnNothing() { return {At(0, 2).x + 30, At(0, 9).y}; }
    POINT OnYAxis(int nAxis = 0) { return Middle(RectOf(YAxis(nAxis).Get())); }
    POINT OnXAxis(int nAxis = 0) { return Middle(RectOf(XAxis(nAxis).Get())); }
    POINT OnCurve() { return At(5, 5); }

    // Double-clicks there and drives the sheet.
    void Open(POINT at, std::vector<Step> steps)
    {
        ModalDriver::Run([&] { BareDoubleClick(at); }, std::move(steps));
    }
    void BareDoubleClick(POINT at)
    {
        Click(at);
        Mouse(WM_LBUTTONDBLCLK, at, MK_LBUTTON);
        Release(at);
    }

    static HWND Sheet()
    {
        for (const HWND hWnd : ModalDriver::Dialogs()) {
            if (::GetDlgItem(hWnd, Id::tabs) != nullptr)
                return hWnd;
        }
        return nullptr;
    }
    static HWND Tabs() { return ::GetDlgItem(Sheet(), Id::tabs); }
    // A page is known by a control that no other one has.
    static HWND Page(Tab tab)
    {
        static constexpr int own[] = {Id::backColor, Id::min, Id::lineSize};
        for (HWND hWnd = ::GetWindow(Tabs(), GW_CHILD); hWnd != nullptr;
             hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
            if (::GetDlgItem(hWnd, own[tab]) != nullptr)
                return hWnd;
        }
        return nullptr;
    }
    static int CurrentTab() { return static_cast<int>(::SendMessageW(Tabs(), TCM_GETCURSEL, 0, 0)); }
    // A click of the mouse on the tab.
    static void ClickTab(Tab tab)
    {
        RECT rect = {};
        ::SendMessageW(Tabs(), TCM_GETITEMRECT, tab, reinterpret_cast<LPARAM>(&rect));
        const LPARAM at = MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        ::SendMessageW(Tabs(), WM_LBUTTONDOWN, MK_LBUTTON, at);
        ::SendMessageW(Tabs(), WM_LBUTTONUP, 0, at);
    }
    // The page that is seen, and its controls.
    static HWND Shown()
    {
        for (const Tab tab : {Chart, Axis, Curve_}) {
            if (::IsWindowVisible(Page(tab)))
                return Page(tab);
        }
        return nullptr;
    }
    static HWND Item(int id) { return ::GetDlgItem(Shown(), id); }
    static bool Enabled(int id) { return ::IsWindowEnabled(Item(id)) != FALSE; }
    static void Press(int id) { ::SendMessageW(Item(id), BM_CLICK, 0, 0); }
    using FrontDoorInteraction::Press;
    static bool Checked(int id) { return ::SendMessageW(Item(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    static std::wstring TextOf(HWND hWnd)
    {
        WCHAR text[300] = {};
        ::GetWindowTextW(hWnd, text, 300);
        return text;
    }
    static std::wstring Shows(int id) { return TextOf(Item(id)); }
    // Replaces the text at once, as a paste does: one change is told.
    static void Enter(int id, const wchar_t* text)
    {
        ::SendMessageW(Item(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    static int Row(int id) { return static_cast<int>(::SendMessageW(Item(id), CB_GETCURSEL, 0, 0)); }
    static int Rows(int id) { return static_cast<int>(::SendMessageW(Item(id), CB_GETCOUNT, 0, 0)); }
    static std::wstring RowText(int id, int row)
    {
        WCHAR text[300] = {};
        ::SendMessageW(Item(id), CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text));
        return text;
    }
    // By the arrow keys, as far as the row lies from the chosen one.
    static void Choose(int id, int row)
    {
        const HWND list = Item(id);
        ::SetFocus(list);
        for (int tries = 0; Row(id) != row && tries < 50; ++tries)
            ::SendMessageW(list, WM_KEYDOWN, Row(id) < row ? VK_DOWN : VK_UP, 0);
        EXPECT_EQ(Row(id), row);
    }
    // For messages.
    static std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
    static void PostKey(HWND hWnd, WPARAM key)
    {
        ::PostMessageW(hWnd, WM_KEYDOWN, key, 1);
        ::PostMessageW(hWnd, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }
    static void CloseBox() { ::PostMessageW(Sheet(), WM_SYSCOMMAND, SC_CLOSE, 0); }
};
