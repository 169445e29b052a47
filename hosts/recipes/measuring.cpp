// Measuring
//
// The left button drags from a curve's point to another; each distance stays until DeleteMeasures.

#include "recipe.h"

#include <cmath>

RECIPE("measuring")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 300; ++i)
        points.push_back({i / 10.0, 10 * std::sin(i / 25.0)});

    vantoplex::Graph graph(window);
    graph.Plot(points, L"wave");
    graph.Fit();
    UpdateWindow(graph.Window());
    graph.Send(VPX_COMMAND_MEASURE);
    recipes::Drag(graph.Window(), graph.PixelOf(0, points[39]), graph.PixelOf(0, points[118]));
    recipes::Present(window);
}
