// Bars that grow
//
// All bars grow together: after 60 of 100 steps, each 50 milliseconds.

#include "recipe.h"

RECIPE("bars-grow")
{
    vantoplex::BusinessChart chart(window, VPX_CHART_BAR);
    chart.SetTitles(L"Harvest", L"tonnes");
    for (const wchar_t* year : {L"2021", L"2022", L"2023", L"2024"})
        chart.AddSegment(year);
    chart.AddSeries(L"wheat", RGB(226, 178, 60));
    chart.AddSeries(L"rye", RGB(150, 110, 60));
    chart.AddSeries(L"oats", RGB(110, 150, 80));
    const int values[3][4] = {{80, 65, 72, 76}, {40, 45, 38, 50}, {20, 28, 30, 26}};
    for (int series = 1; series <= 3; ++series) {
        for (int segment = 1; segment <= 4; ++segment)
            chart.SetValue(segment, series, values[series - 1][segment - 1]);
    }
    chart.Animate(VPX_ANIMATION_BARS_GROW);
    chart.Fit();
    recipes::Tick(chart.Window(), 60);
    recipes::Present(window);
}
