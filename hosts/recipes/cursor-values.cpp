// Cursor with values read back
//
// The graph posts XG_CURSORMOVED at each move; GetCursorAbsolute answers with the place in the
// units of a curve. Cursor mode is entered by its command.

#include "recipe.h"

#include <cmath>

RECIPE("cursor-values")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 200; ++i)
        points.push_back({i / 10.0, std::sin(i / 15.0) * i / 20});

    const RECT place = {0, 0, 640, 360};
    vantoplex::Graph graph(window, &place);
    const HWND values = CreateWindowExW(0, L"STATIC", L"Move over the graph.", WS_CHILD | WS_VISIBLE, 10,
                                        370, 620, 24, window, nullptr, nullptr, nullptr);
    graph.Plot(points, L"signal");
    graph->SetCursorFlags(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
    UpdateWindow(graph.Window());
    graph.Send(VPX_COMMAND_CURSOR);

    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message != XG_CURSORMOVED)
            return;
        TDataPoint point{};
        graph->GetCursorAbsolute(0, &point);
        wchar_t text[100] = L"";
        swprintf(text, 100, L"x = %.2f   y = %.2f", point.fXVal, point.fYVal);
        SetWindowTextW(values, text);
    });
    UpdateWindow(graph.Window());
    recipes::Move(graph.Window(), graph.PixelOf(0, points[120]));
    recipes::Present(window);
}
