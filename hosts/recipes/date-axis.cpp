// Date axis
//
// Values along the axis are days since 1899-12-30, as in a DATE; the display format is that of
// strftime. Set both.

#include "recipe.h"

#include <cmath>

static double DayOf(WORD year, WORD month, WORD day)
{
    SYSTEMTIME time{};
    time.wYear = year;
    time.wMonth = month;
    time.wDay = day;
    double date = 0;
    SystemTimeToVariantTime(&time, &date);
    return date;
}

RECIPE("date-axis")
{
    std::vector<TDataPoint> points;
    for (int week = 0; week < 104; ++week)
        points.push_back(
            {DayOf(2023, 1, 1) + week * 7, 10 - 9 * std::cos(week * 6.2832 / 52) + week % 3});

    vantoplex::Graph graph(window);
    graph.Plot(points, L"temperature");
    graph.XAxis(0)->SetDateTime(TRUE);
    graph.XAxis(0)->SetDisplayFmt(vantoplex::Text(L"%Y-%m-%d").Get());
    graph.Fit();
    recipes::Present(window);
}
