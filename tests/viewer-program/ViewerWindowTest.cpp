#include "viewer-program/ViewerRun.h"

#include <vantoplex.h>

#include <gtest/gtest.h>

#include <commctrl.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>

// The viewer's window, worked from another process as a person would.

using ViewerRun::Process;
using ViewerRun::TemporaryFile;

namespace
{

constexpr std::string_view Weather = "date,temp,wind\n"
                                     "2012-01-01,12.8,4.7\n"
                                     "2012-01-02,10.6,\n"
                                     "2012-01-03,11.7,2.3\n"
                                     "2012-01-04,12.2,4.7\n";

struct Search {
    DWORD process;
    HWND found;
};

HWND FindChart(HWND frame)
{
    HWND found = nullptr;
    EnumChildWindows(
        frame,
        [](HWND window, LPARAM parameter) -> BOOL {
            wchar_t name[32] = L"";
            GetClassNameW(window, name, 32);
            if (std::wstring_view(name) == L"msctls_statusbar32" ||
                std::wstring_view(name) == L"ToolbarWindow32")
                return TRUE;
            *reinterpret_cast<HWND*>(parameter) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND FindFrame(DWORD process)
{
    Search search = {process, nullptr};
    EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& sought = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            wchar_t name[32] = L"";
            GetClassNameW(window, name, 32);
            if (owner == sought.process && IsWindowVisible(window) &&
                std::wstring(name) == L"VantoplexViewer") {
                sought.found = window;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// A time limit for a window that never comes, not a measure of speed.
HWND WaitForFrame(DWORD process)
{
    HWND frame = nullptr;
    for (int turn = 0; turn < 600 && !frame; ++turn) {
        frame = FindFrame(process);
        if (!frame)
            Sleep(100);
    }
    return frame;
}

TEST(ViewerWindow, TheGraphFillsTheWindowAndResizesWithIt)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    const HWND graph = GetDlgItem(frame, 100);
    ASSERT_NE(nullptr, graph);

    for (const SIZE size : {SIZE{700, 500}, SIZE{400, 300}, SIZE{1000, 700}}) {
        SetWindowPos(frame, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        RECT client{};
        GetClientRect(frame, &client);
        RECT place{};
        GetWindowRect(graph, &place);
        MapWindowPoints(nullptr, frame, reinterpret_cast<POINT*>(&place), 2);
        RECT status{};
        GetWindowRect(FindWindowExW(frame, nullptr, L"msctls_statusbar32", nullptr), &status);
        RECT buttons{};
        GetWindowRect(FindWindowExW(frame, nullptr, L"ToolbarWindow32", nullptr), &buttons);
        EXPECT_EQ(0, place.left);
        EXPECT_EQ(buttons.bottom - buttons.top, place.top);
        EXPECT_EQ(client.right, place.right);
        EXPECT_EQ(client.bottom - (status.bottom - status.top), place.bottom);
    }
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

std::wstring StatusOf(HWND frame)
{
    std::array<wchar_t, 200> text{};
    SendMessageW(FindWindowExW(frame, nullptr, L"msctls_statusbar32", nullptr), WM_GETTEXT, text.size(),
                 reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

TEST(ViewerWindow, MenuCommandsReachTheGraphAndTheStatusBarTells)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);

    const struct {
        unsigned command;
        const wchar_t* hint;
    } modes[] = {{VPX_COMMAND_ZOOM, L"Zoom:"},        {VPX_COMMAND_PAN, L"Pan:"},
                 {VPX_COMMAND_CURSOR, L"Cursor:"},    {VPX_COMMAND_MEASURE, L"Measure:"},
                 {VPX_COMMAND_EDIT, L"Edit points:"}, {VPX_COMMAND_SELECT, L"Select:"}};
    for (const auto& mode : modes) {
        SendMessageW(frame, WM_COMMAND, mode.command, 0);
        EXPECT_EQ(0u, StatusOf(frame).find(mode.hint)) << mode.command;
    }
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, TheStatusBarSaysThatAResetViewIsWhole)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    const HWND status = FindWindowExW(frame, nullptr, L"msctls_statusbar32", nullptr);
    const auto zoomLength = [&] { return LOWORD(SendMessageW(status, SB_GETTEXTLENGTHW, 1, 0)); };

    EXPECT_EQ(std::wstring(L"zoom 0").size(), zoomLength());
    SendMessageW(frame, WM_COMMAND, VPX_COMMAND_RESET_ZOOM, 0);
    EXPECT_EQ(std::wstring(L"whole").size(), zoomLength());
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, AViewThatTheWheelHasMovedIsNotCalledWhole)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    const HWND status = FindWindowExW(frame, nullptr, L"msctls_statusbar32", nullptr);
    const auto zoomLength = [&] { return LOWORD(SendMessageW(status, SB_GETTEXTLENGTHW, 1, 0)); };
    const HWND chart = FindChart(frame);
    ASSERT_NE(nullptr, chart);

    SendMessageW(frame, WM_COMMAND, VPX_COMMAND_RESET_ZOOM, 0);
    PostMessageW(chart, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    for (int i = 0; i < 100 && zoomLength() == std::wstring(L"whole").size(); ++i)
        Sleep(20);

    EXPECT_EQ(std::wstring(L"zoom 0").size(), zoomLength());
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, TheButtonOfTheModeIsPressedAndOtherChartsHaveNone)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    const HWND buttons = FindWindowExW(frame, nullptr, L"ToolbarWindow32", nullptr);
    const auto isPressed = [&](WPARAM command) {
        return SendMessageW(buttons, TB_ISBUTTONCHECKED, command, 0) != 0;
    };
    const auto isEnabled = [&](WPARAM command) {
        return SendMessageW(buttons, TB_ISBUTTONENABLED, command, 0) != 0;
    };

    EXPECT_TRUE(isPressed(VPX_COMMAND_SELECT));
    for (const VpxCommand mode : {VPX_COMMAND_ZOOM, VPX_COMMAND_PAN, VPX_COMMAND_CURSOR,
                                  VPX_COMMAND_MEASURE, VPX_COMMAND_EDIT}) {
        SendMessageW(frame, WM_COMMAND, mode, 0);
        EXPECT_TRUE(isPressed(mode)) << mode;
        EXPECT_FALSE(isPressed(VPX_COMMAND_SELECT)) << mode;
        EXPECT_TRUE(isEnabled(mode)) << mode;
    }
    SendMessageW(frame, WM_COMMAND, 1062, 0); // the bar chart
    EXPECT_FALSE(isPressed(VPX_COMMAND_EDIT));
    EXPECT_FALSE(isEnabled(VPX_COMMAND_ZOOM));
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, AFileThatGrowsIsFollowed)
{
    const TemporaryFile data(L"growing.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    constexpr unsigned follow = 1006;
    SendMessageW(frame, WM_COMMAND, follow, 0);
    SendMessageW(frame, WM_COMMAND, VPX_COMMAND_CURSOR, 0);

    std::FILE* file = _wfopen(data.Path().c_str(), L"ab");
    ASSERT_NE(nullptr, file);
    std::fputs("2012-01-05,9.9,1\n", file);
    std::fclose(file);
    bool shown = false;
    for (int turn = 0; turn < 100 && !shown; ++turn) {
        Sleep(100);
        shown = StatusOf(frame).find(L"5 rows") != std::wstring::npos;
    }
    EXPECT_TRUE(shown) << std::string(StatusOf(frame).begin(), StatusOf(frame).end());
    // The operation outlives the new chart.
    const HWND buttons = FindWindowExW(frame, nullptr, L"ToolbarWindow32", nullptr);
    EXPECT_NE(0, SendMessageW(buttons, TB_ISBUTTONCHECKED, VPX_COMMAND_CURSOR, 0));
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, AFileThatWasOpenedIsAmongTheRecentOnes)
{
    const TemporaryFile data(L"first.csv", Weather);
    const TemporaryFile other(L"second.csv", "x,y\n1,2\n2,3\n");
    {
        Process viewer(L"\"" + data.Path() + L"\"");
        const HWND frame = WaitForFrame(viewer.Id());
        ASSERT_NE(nullptr, frame);
        PostMessageW(frame, WM_CLOSE, 0, 0);
        EXPECT_EQ(0u, viewer.ExitCode());
    }
    Process viewer(L"\"" + other.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    constexpr unsigned secondRecent = 1202;
    SendMessageW(frame, WM_COMMAND, secondRecent, 0);
    EXPECT_NE(std::wstring::npos, StatusOf(frame).find(L"4 rows"));
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, TheKeysAreShownInABoxOfTwoColumns)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    constexpr unsigned keys = 1301;
    PostMessageW(frame, WM_COMMAND, keys, 0);
    HWND box = nullptr;
    for (int turn = 0; turn < 600 && !box; ++turn) {
        Sleep(100);
        box = FindWindowW(L"#32770", L"Keys and mouse");
    }
    ASSERT_NE(nullptr, box);
    const HWND list = FindWindowExW(box, nullptr, L"SysListView32", nullptr);
    EXPECT_GT(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 20);
    EXPECT_EQ(2, SendMessageW(reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0)),
                              HDM_GETITEMCOUNT, 0, 0));
    PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, TheStatusBarTellsTheRowsThatWereLeftOut)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);

    EXPECT_NE(std::wstring::npos, StatusOf(frame).find(L"4 rows; wind: 3 points, 1 row skipped"))
        << StatusOf(frame).size();
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

// A popup menu has a window of this class.
HWND WaitForMenu()
{
    HWND menu = nullptr;
    for (int turn = 0; turn < 600; ++turn) {
        menu = FindWindowW(L"#32768", nullptr);
        if (menu && IsWindowVisible(menu))
            break;
        Sleep(100);
    }
    return menu;
}

TEST(ViewerWindow, ARightClickOnTheGraphOpensItsMenu)
{
    const TemporaryFile data(L"weather.csv", Weather);
    Process viewer(L"\"" + data.Path() + L"\"");
    const HWND frame = WaitForFrame(viewer.Id());
    ASSERT_NE(nullptr, frame);
    const HWND graph = GetDlgItem(frame, 100);

    const LPARAM place = MAKELPARAM(200, 200);
    PostMessageW(graph, WM_MOUSEMOVE, 0, place);
    PostMessageW(graph, WM_RBUTTONDOWN, MK_RBUTTON, place);
    PostMessageW(graph, WM_RBUTTONUP, 0, place);
    const HWND menu = WaitForMenu();
    EXPECT_NE(nullptr, menu);
    // Down to "Zoom", the second item.
    for (const WPARAM key : {WPARAM{VK_DOWN}, WPARAM{VK_DOWN}, WPARAM{VK_RETURN}})
        PostMessageW(frame, WM_KEYDOWN, key, 1);
    for (int turn = 0; turn < 600 && StatusOf(frame).find(L"Zoom:") != 0; ++turn)
        Sleep(100);
    EXPECT_EQ(0u, StatusOf(frame).find(L"Zoom:"));
    PostMessageW(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, viewer.ExitCode());
}

TEST(ViewerWindow, SwitchesThroughAllKindsOfChartAndBack)
{
    const TemporaryFile data(L"power.csv", "k,a,b\nx,3,1\ny,4,2\n");
    Process bars(L"\"" + data.Path() + L"\" --chart bar");
    const HWND chart = WaitForFrame(bars.Id());
    ASSERT_NE(nullptr, chart);
    HWND before = GetDlgItem(chart, 100);
    for (const unsigned kind : {1063u, 1064u, 1065u, 1061u, 1062u}) {
        SendMessageW(chart, WM_COMMAND, kind, 0);
        const HWND now = GetDlgItem(chart, 100);
        EXPECT_TRUE(IsWindowVisible(now)) << kind;
        EXPECT_NE(before, now) << kind;
        before = now;
    }
    PostMessageW(chart, WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, bars.ExitCode());
}

} // namespace
