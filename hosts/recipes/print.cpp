// Print
//
// VPX_COMMAND_PRINT asks for a printer and prints the graph on one page, with a header and a footer.
// Here Ctrl+P, or F8 or a menu of yours, sends it.

#include "recipe.h"

#include <cmath>

RECIPE("print")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 100; ++i)
        points.push_back({i / 10.0, i % 20 / 2.0});

    const RECT place = {0, 40, 640, 400};
    vantoplex::Graph graph(window, &place);
    graph.Plot(points, L"saw");
    graph->SetPrintHeader(vantoplex::Text(L"Monthly report").Get());
    graph->SetPrintFooter(vantoplex::Text(L"page 1").Get());
    CreateWindowExW(0, L"BUTTON", L"Print...", WS_CHILD | WS_VISIBLE, 8, 8, 90, 26, window,
                    reinterpret_cast<HMENU>(INT_PTR(VPX_COMMAND_PRINT)), nullptr, nullptr);
    recipes::OnMessage(window, [&](UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_COMMAND && LOWORD(wParam) == VPX_COMMAND_PRINT)
            graph.Send(VPX_COMMAND_PRINT);
    });
    recipes::Present(window);
}
