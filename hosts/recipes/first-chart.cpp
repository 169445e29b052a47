// First chart
//
// Three calls: a graph in your window, a curve, and the size.

#include "recipe.h"

#include <cmath>

RECIPE("first-chart")
{
    std::vector<TDataPoint> points;
    for (int degree = 0; degree <= 360; ++degree)
        points.push_back({double(degree), std::sin(degree * 3.14159265 / 180)});

    vantoplex::Graph graph(window);
    graph.Plot(points, L"sine");
    graph.Fit();
    recipes::Present(window);
}
