#include "GrowthBench.h"

#include "Goals.h"
#include "Stopwatch.h"

#include "charts2d/GraphObject.h"
#include "pie3d/PieChartWnd.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace
{
// Twice what n log n gives for a tenfold n: anything quadratic is far beyond, and noise below.
double MostFor(int nCount)
{
    return 2 * 10 * std::log(nCount) / std::log(nCount / 10);
}

class CHost
{
public:
    CHost()
        : m_hWnd(::CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr,
                                   nullptr, nullptr, nullptr))
    {
    }
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;
    ~CHost() { ::DestroyWindow(m_hWnd); }

    HWND m_hWnd;
};

CString Name(int i)
{
    CString name;
    name.Format(L"name %d", i);
    return name;
}

double TimePie(int nCount, bool bPaint)
{
    const CHost host;
    CPieChartWnd pie;
    pie.Create(L"", CRect(0, 0, 800, 600), CWnd::FromHandle(host.m_hWnd), 1);
    const double start = Stopwatch::Milliseconds();
    for (int i = 0; i < nCount; ++i)
        pie.InsertItem(Name(i), Name(i), 1 + i % 7, 0xFF000000u | static_cast<unsigned>(i) * 7654321u);
    const double filled = Stopwatch::Milliseconds();
    pie.UpdateWindow();
    const double painted = Stopwatch::Milliseconds();
    pie.DestroyWindow();
    return bPaint ? painted - filled : filled - start;
}

// The segments of one series, or the series of one segment.
double TimeChart(int nKind, int nCount, bool bSeries, bool bPaint)
{
    const CHost host;
    CGraphObject chart;
    const RECT rect = {0, 0, 640, 400};
    chart.Create(nullptr, nullptr, 0, rect, CWnd::FromHandle(host.m_hWnd), 1);
    chart.CreateGraph(nKind);
    const bool bLines = nKind == 2;
    const int nSegments = bSeries ? 1 : nCount, nSeries = bSeries ? nCount : 1;
    const double start = Stopwatch::Milliseconds();
    for (int i = 0; i < nSegments; ++i)
        bLines ? chart.Add2DLineGraphSegment(Name(i)) : chart.Add2DBarGraphSegment(Name(i));
    for (int i = 0; i < nSeries; ++i)
        bLines ? chart.Add2DLineGraphSeries(Name(i), 0x808080)
               : chart.Add2DBarGraphSeries(Name(i), 0x808080);
    for (int i = 0; i < nCount; ++i) {
        const int nSegment = bSeries ? 1 : i + 1, nOne = bSeries ? i + 1 : 1;
        bLines ? chart.Set2DLineGraphValue(nSegment, nOne, i % 90)
               : chart.Set2DBarGraphValue(nSegment, nOne, i % 90);
    }
    const double filled = Stopwatch::Milliseconds();
    chart.Repaint(TRUE);
    chart.UpdateWindow();
    const double painted = Stopwatch::Milliseconds();
    return bPaint ? painted - filled : filled - start;
}

void Grow(const std::string& name, int nMost, const std::function<double(int)>& time)
{
    std::printf("%-44s", name.c_str());
    double last = 0, ratio = 0;
    for (int nCount = 100; nCount <= nMost; nCount *= 10) {
        const double now = time(nCount);
        ratio = last > 0 ? now / last : 0;
        last = now;
        std::printf(" %10.2f", now);
        std::fflush(stdout);
    }
    std::printf("\n");
    Goals::Expect(name + ", the last tenfold", ratio, MostFor(nMost));
}
} // namespace

void BenchGrowth(int nMost)
{
    std::printf("%-44s %10s %10s %10s\n", "growth, ms", "100", "1000", "10000");
    Grow("3D pie, insertion", nMost, [](int n) { return TimePie(n, false); });
    Grow("3D pie, first paint", nMost, [](int n) { return TimePie(n, true); });
    Grow("bars, groups entered", nMost, [](int n) { return TimeChart(0, n, false, false); });
    Grow("bars, groups painted", nMost, [](int n) { return TimeChart(0, n, false, true); });
    Grow("bars, series entered", nMost, [](int n) { return TimeChart(0, n, true, false); });
    Grow("bars, series painted", nMost, [](int n) { return TimeChart(0, n, true, true); });
    Grow("lines, groups entered", nMost, [](int n) { return TimeChart(2, n, false, false); });
    Grow("lines, groups painted", nMost, [](int n) { return TimeChart(2, n, false, true); });
    Grow("lines, series entered", nMost, [](int n) { return TimeChart(2, n, true, false); });
    Grow("lines, series painted", nMost, [](int n) { return TimeChart(2, n, true, true); });
}
