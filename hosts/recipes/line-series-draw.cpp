// Lines that are drawn in turn
//
// One line after the other.

#include "recipe.h"

RECIPE("line-series-draw")
{
    vantoplex::BusinessChart chart(window, VPX_CHART_LINE);
    chart.SetTitles(L"Visitors", L"a month");
    const int months = 6;
    for (const wchar_t* month : {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun"})
        chart.AddSegment(month);
    chart.AddSeries(L"museum", RGB(180, 60, 40));
    chart.AddSeries(L"zoo", RGB(40, 130, 70));
    const int values[2][months] = {{90, 70, 85, 60, 75, 50}, {20, 30, 45, 65, 80, 88}};
    for (int series = 1; series <= 2; ++series) {
        for (int segment = 1; segment <= months; ++segment)
            chart.SetValue(segment, series, values[series - 1][segment - 1]);
    }
    chart.Animate(VPX_ANIMATION_LINE_SERIES_DRAW);
    chart.Fit();
    recipes::Tick(chart.Window(), 70);
    recipes::Present(window);
}
