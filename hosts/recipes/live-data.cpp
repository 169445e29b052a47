// Live data in the host's own array
//
// The curve reads your array wherever it paints. Change the array and repaint; nothing is copied.
// Points that don't exist yet repeat the last one.

#include "recipe.h"

#include <algorithm>
#include <cmath>

RECIPE("live-data")
{
    std::vector<TDataPoint> points(500, TDataPoint{0, 0}); // outlives the curve
    std::size_t count = 0;

    vantoplex::Graph graph(window);
    graph.WidenX(0, 0, 50);
    graph.WidenY(0, -1, 1);
    graph.PlotInPlace(points, L"measured");

    const auto measure = [&] {
        const double time = double(count) / 10;
        const TDataPoint newest = {time, std::sin(time) * std::exp(-time / 30)};
        std::fill(points.begin() + std::ptrdiff_t(count), points.end(), newest);
        count = (count + 1) % points.size();
        graph.Repaint();
    };
    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_TIMER)
            measure();
    });
    if (!recipes::Unattended())
        SetTimer(window, 1, 50, nullptr);
    for (int i = 0; i < 300; ++i)
        measure();
    graph.Fit();
    recipes::Present(window);
}
