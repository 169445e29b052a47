// Colour ranges
//
// Bands behind the curves, solid or hatched, each with a label. A solid band has one colour: with two
// it isn't drawn.

#include "recipe.h"

#include <cmath>

RECIPE("colour-ranges")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 120; ++i)
        points.push_back({double(i), 70 + 20 * std::sin(i * 0.12) + 8 * std::sin(i * 0.5)});

    vantoplex::Graph graph(window);
    graph.WidenY(0, 0, 120);
    graph.Plot(points, L"pressure");
    const auto axis = graph.YAxis(0);
    axis->SetColorRange(0, 0, 40, RGB(220, 235, 255), RGB(220, 235, 255), vantoplex::Text(L"low").Get(),
                        VPX_FILL_SOLID);
    axis->SetColorRange(1, 40, 90, RGB(220, 245, 220), RGB(220, 245, 220),
                        vantoplex::Text(L"good").Get(), VPX_FILL_SOLID);
    axis->SetColorRange(2, 90, 120, RGB(235, 120, 100), RGB(235, 120, 100),
                        vantoplex::Text(L"danger").Get(), VPX_FILL_BACKWARD_DIAGONAL);
    graph.Fit();
    recipes::Present(window);
}
