// Axis markers
//
// Lines across the plot at a value. A person drags them with the left button and removes them with
// the right one; GetAxisMarkerCount says how many there are.

#include "recipe.h"

#include <cmath>

RECIPE("axis-markers")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 100; ++i)
        points.push_back({i / 10.0, 5 + 3 * std::sin(i / 8.0)});

    vantoplex::Graph graph(window);
    graph.WidenY(0, 0, 10);
    graph.Plot(points, L"level");
    graph.YAxis(0)->SetAxisMarker(0, 7.5, RGB(200, 0, 0), VPX_PEN_SOLID);
    graph.YAxis(0)->SetMaskerLabel(0, vantoplex::Text(L"alarm").Get());
    graph.YAxis(0)->SetAxisMarker(1, 2.5, RGB(0, 0, 200), VPX_PEN_DASH);
    graph.YAxis(0)->SetMaskerLabel(1, vantoplex::Text(L"empty").Get());
    graph.XAxis(0)->SetAxisMarker(0, 4, RGB(0, 128, 0), VPX_PEN_DOT);
    graph.XAxis(0)->SetMaskerLabel(0, vantoplex::Text(L"valve opened").Get());
    graph.Fit();
    recipes::Present(window);
}
