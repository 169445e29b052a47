// Save and load
//
// A graph file keeps settings: colours, legend, operation. Data come from the host again, so save
// PERSIST_PROPERTIES and plot anew after Load.

#include "recipe.h"

#include <cmath>

static void Plot(vantoplex::Graph& graph)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i <= 100; ++i)
        points.push_back({i / 10.0, std::sqrt(i / 10.0)});
    graph.Plot(points, L"root");
}

RECIPE("save-load")
{
    const vantoplex::Text file(recipes::Temporary(L"vantoplex-recipe.xgr"));
    {
        vantoplex::Graph saved(window);
        Plot(saved);
        saved->SetBackColor(RGB(225, 235, 245));
        saved->SetInnerColor(RGB(255, 255, 240));
        saved->SetLegendAlignment(left);
        saved->Save(file.Get(), PERSIST_PROPERTIES);
    }
    vantoplex::Graph graph(window);
    graph->Load(file.Get());
    Plot(graph);
    graph.Fit();
    DeleteFileW(file.Get());
    recipes::Present(window);
}
