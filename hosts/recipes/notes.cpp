// Notes at points
//
// A note is bound to a point of a curve and shows its values. Both indices are counted from 0.

#include "recipe.h"

#include <algorithm>

RECIPE("notes")
{
    const std::vector<TDataPoint> points = {{1, 12}, {2, 19}, {3, 15}, {4, 31},
                                            {5, 24}, {6, 27}, {7, 18}};
    const auto byValue = [](const TDataPoint& a, const TDataPoint& b) { return a.fYVal < b.fYVal; };
    const auto highest = std::max_element(points.begin(), points.end(), byValue);

    vantoplex::Graph graph(window);
    graph.WidenY(0, 0, 40);
    graph.WidenX(0, 0, 8);
    graph.Plot(points, L"visitors");
    graph->InsertDataNotation(0, int(highest - points.begin()));
    graph.Fit();
    recipes::Present(window);
}
