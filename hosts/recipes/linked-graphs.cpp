// Two linked graphs
//
// XG_ZOOMCHANGE says that a person zoomed. The other graph then shows the same stretch of X: its
// bounds are read back from the pixels of the first one's axis.

#include "recipe.h"

#include <cmath>

static std::vector<TDataPoint> Wave(double factor)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 500; ++i)
        points.push_back({i / 10.0, std::sin(i / 10.0 * factor)});
    return points;
}

RECIPE("linked-graphs")
{
    const RECT top = {0, 0, 640, 200}, bottom = {0, 200, 640, 400};
    vantoplex::Graph first(window, &top, 1), second(window, &bottom, 2);
    first.Plot(Wave(1), L"first");
    second.Plot(Wave(3), L"second");
    first.XAxis(0)->SetAutoScale(FALSE);
    UpdateWindow(window);
    first.Send(VPX_COMMAND_ZOOM);

    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message != XG_ZOOMCHANGE)
            return;
        UpdateWindow(first.Window());
        RECT strip{};
        first.XAxis(0)->GetRect(&strip);
        double from = 0, to = 0;
        first.XAxis(0)->GetValueForPos(strip.left, &from);
        first.XAxis(0)->GetValueForPos(strip.right, &to);
        second.ShowX(from, to);
    });
    UpdateWindow(first.Window());
    recipes::Drag(first.Window(), first.PixelOf(0, {15, 0.9}), first.PixelOf(0, {30, -0.9}));
    recipes::Present(window);
}
