// Fill between two curves
//
// A band, of a forecast for example: the fill of the upper curve ends at the lower one.

#include "recipe.h"

#include <cmath>

RECIPE("fill-between")
{
    std::vector<TDataPoint> lower, upper, middle;
    for (int day = 0; day <= 60; ++day) {
        const double value = 50 + day * 0.4 + 5 * std::sin(day * 0.3);
        const double doubt = 2 + day * 0.25;
        lower.push_back({double(day), value - doubt});
        upper.push_back({double(day), value + doubt});
        middle.push_back({double(day), value});
    }

    vantoplex::Graph graph(window);
    graph.Plot(lower, L"at least");
    graph.Plot(upper, L"at most");
    graph.Plot(middle, L"expected");
    graph.Curve(1)->SetFillStyle(VPX_FILL_SOLID);
    graph.Curve(1)->SetFillColor(RGB(255, 224, 178));
    graph.Curve(1)->SetFillTransparent(FALSE);
    graph.Curve(1)->SetFillBeneath(TRUE, 0); // down to curve 0
    graph.Curve(0)->SetColor(RGB(230, 150, 60));
    graph.Curve(1)->SetColor(RGB(230, 150, 60));
    graph.Curve(2)->SetColor(RGB(160, 70, 0));
    graph.Curve(2)->SetLineSize(2);
    graph.Fit();
    recipes::Present(window);
}
