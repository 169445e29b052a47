// Moving averages
//
// The methods of the curve give a new array of as many points, which CoTaskMemFree frees.

#include "recipe.h"

#include <random>

using Average = HRESULT (STDMETHODCALLTYPE ISGraphDataSerie::*)(TDataPoint**, int);

static void AddAverage(vantoplex::Graph& graph, Average average, const wchar_t* name, COLORREF color)
{
    const auto curve = graph.Curve(0);
    long count = 0;
    curve->GetCount(&count);
    TDataPoint* points = nullptr;
    (curve.Get()->*average)(&points, 20);
    const int added = graph.Plot({points, std::size_t(count)}, name);
    CoTaskMemFree(points);
    graph.Curve(added)->SetColor(color);
    graph.Curve(added)->SetLineSize(2);
}

RECIPE("averages")
{
    std::mt19937 random(3);
    std::vector<TDataPoint> points;
    double price = 100;
    for (int day = 0; day < 250; ++day) {
        price += double(random() % 1000) / 250 - 2;
        points.push_back({double(day), price});
    }

    vantoplex::Graph graph(window);
    graph.Plot(points, L"price");
    graph.Curve(0)->SetColor(RGB(170, 170, 170));
    AddAverage(graph, &ISGraphDataSerie::GetSimpleMovingAverage, L"simple", RGB(200, 40, 40));
    AddAverage(graph, &ISGraphDataSerie::GetExponentialMovingAverage, L"exponential", RGB(30, 80, 200));
    graph.Fit();
    recipes::Present(window);
}
