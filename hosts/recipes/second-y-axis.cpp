// Second Y axis
//
// The number of axes there are makes the next one: {0, 1} is the first X axis with a second Y axis.
// An axis and its curve in one colour show who belongs to whom.

#include "recipe.h"

RECIPE("second-y-axis")
{
    const std::vector<TDataPoint> temperature = {{1, 2.8},  {2, 2.8},   {3, 5.0},  {4, 8.6},
                                                 {5, 13.6}, {6, 17.2},  {7, 18.9}, {8, 18.5},
                                                 {9, 14.7}, {10, 10.3}, {11, 6.0}, {12, 3.4}};
    const std::vector<TDataPoint> rain = {{1, 67}, {2, 52}, {3, 55}, {4, 43},  {5, 57},  {6, 77},
                                          {7, 78}, {8, 80}, {9, 68}, {10, 65}, {11, 67}, {12, 71}};
    const COLORREF red = RGB(192, 48, 32), blue = RGB(32, 80, 176);

    vantoplex::Graph graph(window);
    graph.Plot(temperature, L"temperature", {0, 0});
    graph.Plot(rain, L"rain", {0, 1});
    graph.Curve(0)->SetColor(red);
    graph.Curve(1)->SetColor(blue);
    graph.YAxis(0)->SetColor(red);
    graph.YAxis(0)->SetLabel(vantoplex::Text(L"degrees Celsius").Get());
    graph.YAxis(1)->SetColor(blue);
    graph.YAxis(1)->SetLabel(vantoplex::Text(L"mm a month").Get());
    graph.YAxis(1)->SetPlacement(apRight);
    graph.YAxis(1)->SetShowGrid(FALSE);
    graph.XAxis(0)->SetDisplayFmt(vantoplex::Text(L"%.0f").Get());
    graph.Fit();
    recipes::Present(window);
}
