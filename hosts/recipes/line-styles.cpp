// Line styles
//
// A style other than solid needs a line of one pixel.

#include "recipe.h"

#include <cmath>

RECIPE("line-styles")
{
    const struct {
        const wchar_t* name;
        VpxPen style;
        int width;
    } lines[] = {{L"solid", VPX_PEN_SOLID, 1},
                 {L"wide", VPX_PEN_SOLID, 3},
                 {L"dash", VPX_PEN_DASH, 1},
                 {L"dot", VPX_PEN_DOT, 1},
                 {L"dash dot", VPX_PEN_DASH_DOT, 1}};

    vantoplex::Graph graph(window);
    double phase = 0;
    for (const auto& line : lines) {
        std::vector<TDataPoint> points;
        for (int i = 0; i <= 60; ++i)
            points.push_back({i / 10.0, std::sin(i / 10.0 + phase)});
        const auto curve = graph.Curve(graph.Plot(points, line.name));
        curve->SetLineStyle(line.style);
        curve->SetLineSize(line.width);
        phase += 0.6;
    }
    graph.Fit();
    recipes::Present(window);
}
