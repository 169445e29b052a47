// Fixed range
//
// A curve widens its axes to hold it. To fix a range, make the axes first and plot without touching
// them: what lies outside is cut off at the plot's edge.
// Bounds that lie on whole steps stay exactly as they are.

#include "recipe.h"

#include <cmath>

RECIPE("fixed-range")
{
    std::vector<TDataPoint> points;
    for (int i = 1; i <= 400; ++i)
        points.push_back({i / 20.0, std::tan(i / 20.0)});

    vantoplex::Graph graph(window);
    graph.WidenX(0, 0, 20);
    graph.WidenY(0, -5, 5);
    graph.PlotKeepingRanges(points, L"tangent");
    graph.Fit();
    recipes::Present(window);
}
