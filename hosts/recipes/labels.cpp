// Labels
//
// Texts on the graph, at a place in pixels. A person moves them, and a double click writes in them.

#include "recipe.h"

#include <cmath>

static void AddLabel(vantoplex::Graph& graph, const wchar_t* text, POINT place, COLORREF fill)
{
    RECT box = {place.x, place.y, place.x + 130, place.y + 24};
    vantoplex::Pointer<ISGraphLabel> label;
    graph->InsertLabel(vantoplex::Text(text).Get(), &box, label.Receive());
    label->SetColor(fill);
    label->SetBorder(TRUE);
    label->SetTransparent(FALSE);
    label->SetAlignment(VPX_ALIGN_CENTER);
}

RECIPE("labels")
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 100; ++i)
        points.push_back({i / 10.0, std::exp(-i / 40.0) * std::cos(i / 6.0)});

    vantoplex::Graph graph(window);
    graph.Plot(points, L"oscillation");
    graph.Fit();
    UpdateWindow(graph.Window()); // PixelOf asks the last frame
    const POINT top = graph.PixelOf(0, points[0]);
    const POINT end = graph.PixelOf(0, points[90]);
    AddLabel(graph, L"it starts here", {top.x + 20, top.y + 5}, RGB(255, 250, 205));
    AddLabel(graph, L"and calms down", {end.x - 110, end.y - 90}, RGB(220, 240, 255));
    graph.Repaint();
    recipes::Present(window);
}
