// Logarithmic axis
//
// The data come first: a logarithmic axis needs a range above 0.

#include "recipe.h"

#include <cmath>

RECIPE("log-axis")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 100; ++i)
        points.push_back({i / 10.0, std::pow(10.0, i / 20.0)});

    vantoplex::Graph graph(window);
    graph.Plot(points, L"growth");
    graph.YAxis(0)->SetAxisType(atLog);
    graph.YAxis(0)->SetDisplayFmt(vantoplex::Text(L"%g").Get());
    graph.Fit();
    recipes::Present(window);
}
