// Resizing and docking
//
// A list on the left, the chart in the rest: place both in your answer to WM_SIZE.

#include "recipe.h"

#include <cmath>

RECIPE("resizing")
{
    const HWND list = CreateWindowExW(WS_EX_CLIENTEDGE, L"LISTBOX", L"", WS_CHILD | WS_VISIBLE, 0, 0, 0,
                                      0, window, nullptr, nullptr, nullptr);
    vantoplex::Graph graph(window);
    for (int harmonic = 1; harmonic <= 3; ++harmonic) {
        std::vector<TDataPoint> points;
        for (int i = 0; i <= 200; ++i)
            points.push_back({i / 10.0, std::sin(i / 10.0 * harmonic) / harmonic});
        const std::wstring name = L"harmonic " + std::to_wstring(harmonic);
        graph.Plot(points, name);
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }

    const auto arrange = [&] {
        RECT area{};
        GetClientRect(window, &area);
        MoveWindow(list, 0, 0, 140, area.bottom, TRUE);
        graph.Move({140, 0, area.right, area.bottom});
        graph.Repaint();
    };
    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_SIZE)
            arrange();
    });
    arrange();
    recipes::Present(window);
}
