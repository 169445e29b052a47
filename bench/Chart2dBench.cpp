#include "Chart2dBench.h"

#include "Stopwatch.h"

#include "charts2d/GraphObject.h"

#include <cstdio>

namespace
{

constexpr double Period = 50.0; // milliseconds from tick to tick
constexpr int Segments = 20;
constexpr int Series = 5;

struct TCase {
    const char* pszName;
    int kind;
    int type; // of animation; 0 for the still frame
};

constexpr TCase Cases[] = {
    {"bars, still", 0, 0},        {"bars, all grow", 0, 20},        {"bars, groups grow", 0, 21},
    {"bars, series grow", 0, 22}, {"bars, groups fade", 0, 25},     {"bars, series fade", 0, 26},
    {"lines, still", 2, 0},       {"lines, drawn together", 2, 30}, {"lines, drawn in turn", 2, 31},
    {"flat pie, still", 1, 0},    {"flat pie, sweep", 1, 10},       {"flat pie, fade", 1, 11},
};

void Fill(CGraphObject& chart)
{
    for (int segment = 0; segment < Segments; ++segment) {
        chart.Add2DBarGraphSegment(L"name");
        chart.Add2DLineGraphSegment(L"name");
        chart.Add2DPieGraphSegment(100.0 / Segments, RGB(10 * segment, 100, 200), L"name");
    }
    for (int series = 1; series <= Series; ++series) {
        chart.Add2DBarGraphSeries(L"name", RGB(50 * series, 100, 50));
        chart.Add2DLineGraphSeries(L"name", RGB(50 * series, 100, 50));
        for (int segment = 1; segment <= Segments; ++segment) {
            chart.Set2DBarGraphValue(segment, series, 40 + (segment * 7 + series * 13) % 50);
            chart.Set2DLineGraphValue(segment, series, 40 + (segment * 7 + series * 13) % 50);
        }
    }
}

double TimeCase(HWND hHost, const TCase& which, bool bGradient, int nRuns)
{
    CGraphObject chart;
    const RECT rect = {0, 0, 640, 400};
    chart.Create(nullptr, nullptr, 0, rect, CWnd::FromHandle(hHost), 1);
    chart.CreateGraph(which.kind);
    Fill(chart);
    if (bGradient)
        chart.SetGraphFillType(CGraphObject::gradientFill);
    if (which.type != 0)
        chart.SetGraphAnimation(TRUE, which.type);
    chart.Repaint(TRUE);
    chart.UpdateWindow();
    return Stopwatch::Median(nRuns, [&] {
        chart.SendMessage(WM_TIMER, 0);
        chart.UpdateWindow();
        ::GdiFlush();
    });
}

// Data entry, one tick and one paint of a chart that is far too large to be read.
void TimeTable(HWND hHost, const char* pszCase, int nSegments, int nSeries, int nRuns)
{
    CGraphObject chart;
    const RECT rect = {0, 0, 640, 400};
    chart.Create(nullptr, nullptr, 0, rect, CWnd::FromHandle(hHost), 1);
    chart.CreateGraph(0);
    const double start = Stopwatch::Milliseconds();
    for (int segment = 0; segment < nSegments; ++segment)
        chart.Add2DBarGraphSegment(L"name");
    for (int series = 0; series < nSeries; ++series)
        chart.Add2DBarGraphSeries(L"name", RGB(series % 256, 100, 50));
    for (int series = 1; series <= nSeries; ++series) {
        for (int segment = 1; segment <= nSegments; ++segment)
            chart.Set2DBarGraphValue(segment, series, segment % 50);
    }
    const double entered = Stopwatch::Milliseconds() - start;
    chart.SetGraphAnimation(TRUE, 22);
    const double tick = Stopwatch::Median(nRuns, [&] { chart.SendMessage(WM_TIMER, 0); });
    const double paint = Stopwatch::Median(nRuns, [&] {
        chart.Repaint(FALSE);
        chart.UpdateWindow();
        ::GdiFlush();
    });
    std::printf("%-34s %10.3f %10.3f %10.3f\n", pszCase, entered, tick, paint);
    std::fflush(stdout);
}

} // namespace

void BenchChart2d(int nRuns)
{
    const HWND hHost = ::CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 640, 400,
                                         nullptr, nullptr, nullptr, nullptr);
    std::printf("%-34s %10s %8s %10s %8s\n", "business chart, 20 x 5", "solid, ms", "of 50 ms",
                "gradient", "of 50 ms");
    for (const TCase& which : Cases) {
        const double solid = TimeCase(hHost, which, false, nRuns);
        const double gradient = TimeCase(hHost, which, true, nRuns);
        std::printf("%-34s %10.3f %7.1f%% %10.3f %7.1f%%\n", which.pszName, solid,
                    100.0 * solid / Period, gradient, 100.0 * gradient / Period);
        std::fflush(stdout);
    }
    std::printf("%-34s %10s %10s %10s\n", "bars, many", "entry, ms", "tick, ms", "paint, ms");
    TimeTable(hHost, "1,000 groups of one", 1000, 1, nRuns);
    TimeTable(hHost, "10,000 groups of one", 10000, 1, nRuns);
    TimeTable(hHost, "one group of 1,000", 1, 1000, nRuns);
    TimeTable(hHost, "one group of 10,000", 1, 10000, nRuns);
    ::DestroyWindow(hHost);
}
