// Any message of the platform's own numbers may come to a chart from anybody, without what usually
// comes with it.

#include "Chart2dHost.h"
#include "FrontDoorGraph.h"
#include "PieChart3dHost.h"

#include <algorithm>
#include <iterator>

namespace
{
// They end the window or carry a pointer that the platform itself follows; menus and drags wait for
// a user.
bool IsLeftOut(UINT message)
{
    static constexpr UINT leftOut[] = {WM_CREATE,
                                       WM_DESTROY,
                                       WM_CLOSE,
                                       WM_NCCREATE,
                                       WM_NCDESTROY,
                                       WM_NCCALCSIZE,
                                       WM_GETMINMAXINFO,
                                       WM_DRAWITEM,
                                       WM_MEASUREITEM,
                                       WM_DELETEITEM,
                                       WM_COMPAREITEM,
                                       WM_COPYDATA,
                                       WM_NOTIFY,
                                       WM_HELP,
                                       WM_STYLECHANGING,
                                       WM_STYLECHANGED,
                                       WM_WINDOWPOSCHANGED,
                                       WM_WINDOWPOSCHANGING,
                                       WM_CONTEXTMENU,
                                       WM_SYSCOMMAND,
                                       WM_SIZING,
                                       WM_MOVING,
                                       WM_MDICREATE,
                                       WM_GETTEXT,
                                       WM_SETTEXT};
    return std::find(std::begin(leftOut), std::end(leftOut), message) != std::end(leftOut) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

void SendAll(HWND hWnd)
{
    for (const WPARAM wParam : {WPARAM{0}, WPARAM{1}}) {
        for (UINT message = 0; message < WM_USER; ++message) {
            if (!IsLeftOut(message))
                ::SendMessageW(hWnd, message, wParam, 0);
        }
    }
    ::ReleaseCapture();
    ::ShowWindow(hWnd, SW_SHOW);
    ::EnableWindow(hWnd, TRUE);
    ::SendMessageW(hWnd, WM_SETREDRAW, TRUE, 0);
}
} // namespace

using GraphAnyMessage = FrontDoorGraph;
using Chart2dAnyMessage = Chart2dTest;
using PieChart3dAnyMessage = PieChart3dTest;

TEST_F(GraphAnyMessage, LeavesAGraphThatPaints)
{
    const auto curve = AddLine(0);
    const Picture before = Shoot();
    SendAll(Handle());
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}

TEST_F(Chart2dAnyMessage, LeavesAChartThatPaints)
{
    Create(Bar);
    FillBars({{1, 2}, {3, 4}});
    SendAll(Handle());
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_GT(Picture(Handle()).Count(Red), 0);
}

TEST_F(PieChart3dAnyMessage, LeavesAPieThatPaints)
{
    Create();
    Fill({1, 2, 3});
    SendAll(Handle()); // of which some scroll the list
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_GT(Picture(Handle()).Count(Red), 0);
}
