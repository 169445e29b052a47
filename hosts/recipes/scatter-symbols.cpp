// Scatter with symbols
//
// Scattered points are dots of the line's size; markers on them are one of eight symbols,
// thinned out where they would lie on each other.

#include "recipe.h"

#include <random>

RECIPE("scatter-symbols")
{
    std::mt19937 random(7);
    const auto cloud = [&](double x, double y) {
        std::vector<TDataPoint> points;
        for (int i = 0; i < 40; ++i)
            points.push_back({x + double(random() % 1000) / 500, y + double(random() % 1000) / 500});
        return points;
    };
    const struct {
        const wchar_t* name;
        double x, y;
        VpxSymbol symbol;
        COLORREF color;
    } groups[] = {{L"first", 1, 1, VPX_SYMBOL_CIRCLE, RGB(30, 90, 200)},
                  {L"second", 3, 2.5, VPX_SYMBOL_TRIANGLE_UP, RGB(200, 60, 30)},
                  {L"third", 2, 4, VPX_SYMBOL_DIAMOND, RGB(20, 140, 60)}};

    vantoplex::Graph graph(window);
    for (const auto& group : groups) {
        const auto curve = graph.Curve(graph.Plot(cloud(group.x, group.y), group.name));
        curve->SetType(gtScatter);
        curve->SetColor(group.color);
        curve->SetLineSize(2);
        curve->SetMarkerType(VPX_MARKER_SYMBOL);
        curve->SetMarker(group.symbol);
        curve->SetMarkerSize(7);
        curve->SetShowMarker(TRUE);
    }
    graph.Fit();
    recipes::Present(window);
}
