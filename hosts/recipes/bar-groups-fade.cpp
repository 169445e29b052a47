// Groups of bars that fade in
//
// The groups fade in one after the other, here on a gradient.

#include "recipe.h"

RECIPE("bar-groups-fade")
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
    chart->SetGraphGradientColors(RGB(255, 255, 255), RGB(205, 220, 235));
    chart->SetGradientFillType(VPX_GRADIENT_VERTICAL);
    chart->SetGraphFillType(VPX_BACKGROUND_GRADIENT);
    chart.Animate(VPX_ANIMATION_BAR_GROUPS_FADE);
    chart.Fit();
    recipes::Tick(chart.Window(), 90);
    recipes::Present(window);
}
