// Ring buffer
//
// A sweep as on an oscilloscope: the newest value overwrites the oldest at a fixed x. The array
// belongs to the host, the x values never change.

#include "recipe.h"

#include <cmath>

RECIPE("ring-buffer")
{
    std::vector<TDataPoint> points(200);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = {double(i), 0};
    std::size_t next = 0;
    double phase = 0;

    vantoplex::Graph graph(window);
    graph.WidenX(0, 0, 200);
    graph.WidenY(0, -1.5, 1.5);
    graph.PlotInPlace(points, L"signal");
    const COLORREF green = RGB(0, 160, 64);
    graph.Curve(0)->SetColor(green);
    graph.XAxis(0)->SetAxisMarker(0, 0, RGB(200, 0, 0), VPX_PEN_SOLID);

    const auto sample = [&] {
        points[next].fYVal = std::sin(phase) + 0.3 * std::sin(phase * 7);
        next = (next + 1) % points.size();
        phase += 0.08;
        graph.XAxis(0)->SetAxisMarker(0, double(next), RGB(200, 0, 0), VPX_PEN_SOLID);
        graph.Repaint();
    };
    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_TIMER)
            sample();
    });
    if (!recipes::Unattended())
        SetTimer(window, 1, 20, nullptr);
    for (int i = 0; i < 330; ++i)
        sample();
    graph.Fit();
    recipes::Present(window);
}
