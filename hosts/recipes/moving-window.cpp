// Moving window
//
// The last ten seconds of live data: ShowX gives the X axis an exact range and keeps its settings.

#include "recipe.h"

#include <cmath>

RECIPE("moving-window")
{
    std::vector<TDataPoint> points;
    vantoplex::Graph graph(window);
    graph.WidenX(0, 0, 10);
    graph.WidenY(0, -2, 2);
    points.push_back({0, 0});
    graph.PlotKeepingRanges(points, L"load");
    graph.XAxis(0)->SetLabel(vantoplex::Text(L"seconds").Get());

    const auto measure = [&] {
        const double time = double(points.size()) / 20;
        points.push_back({time, std::sin(time * 2) + 0.5 * std::sin(time * 5)});
        graph.Replace(0, points);
        graph.ShowX(time - 10, time);
    };
    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_TIMER)
            measure();
    });
    if (!recipes::Unattended())
        SetTimer(window, 1, 50, nullptr);
    for (int i = 0; i < 500; ++i)
        measure();
    graph.Fit();
    recipes::Present(window);
}
