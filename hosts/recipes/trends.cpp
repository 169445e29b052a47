// Trends
//
// AddTrend fetches the trend's points and plots them as a curve: linear, or a polynomial that may
// go on past the data.

#include "recipe.h"

#include <random>

RECIPE("trends")
{
    std::mt19937 random(11);
    std::vector<TDataPoint> points;
    for (int year = 2000; year <= 2024; ++year)
        points.push_back(
            {double(year), 20 + (year - 2000) * (year - 2000) * 0.06 + double(random() % 100) / 12});

    vantoplex::Graph graph(window);
    graph.Plot(points, L"sales");
    const int straight = graph.AddTrend(0, vantoplex::Trend::Linear, 0, 5);
    const int parabola = graph.AddTrend(0, vantoplex::Trend::Polynomial, 3, 5);
    graph.Curve(straight)->SetLabel(vantoplex::Text(L"linear").Get());
    graph.Curve(straight)->SetLineStyle(VPX_PEN_DASH);
    graph.Curve(parabola)->SetLabel(vantoplex::Text(L"parabola").Get());
    graph.Curve(parabola)->SetLineSize(2);
    graph.XAxis(0)->SetDisplayFmt(vantoplex::Text(L"%.0f").Get());
    graph.Fit();
    recipes::Present(window);
}
