// Fill beneath a curve
//
// Down to the plot's bottom edge, solid or hatched.

#include "recipe.h"

#include <cmath>

RECIPE("fill-beneath")
{
    std::vector<TDataPoint> high, low;
    for (int hour = 0; hour <= 48; ++hour) {
        high.push_back({double(hour), 60 + 25 * std::sin(hour * 0.26)});
        low.push_back({double(hour), 25 + 10 * std::sin(hour * 0.26 + 1)});
    }

    vantoplex::Graph graph(window);
    graph.WidenY(0, 0, 100);
    graph.Plot(high, L"load");
    graph.Plot(low, L"base load");
    const auto fill = [&](int curve, VpxFill style, COLORREF color) {
        graph.Curve(curve)->SetFillStyle(style);
        graph.Curve(curve)->SetFillColor(color);
        graph.Curve(curve)->SetFillTransparent(FALSE);
        graph.Curve(curve)->SetFillBeneath(TRUE, VPX_FILL_TO_BOTTOM);
    };
    fill(0, VPX_FILL_SOLID, RGB(200, 220, 245));
    fill(1, VPX_FILL_BACKWARD_DIAGONAL, RGB(90, 130, 190));
    graph.Fit();
    recipes::Present(window);
}
