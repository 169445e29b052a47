// vantoplex-bench [--most N] [--runs N]
//
// Times whole frames of a visible graph and, in the same process, the plain loops that they
// are measured against. One line a case, medians in milliseconds:
//
//   map     ratio to mapping every point one after another
//   search  ratio to finding 800 column starts by binary search
//   copy    ratio to copying the array

#include "AnalysisBench.h"
#include "Chart2dBench.h"
#include "CursorBench.h"
#include "DialogBench.h"
#include "Floors.h"
#include "PieBench.h"
#include "Scene.h"
#include "Stopwatch.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

struct Options {
    int nMost = 10'000'000;
    int nRuns = 21;
};

struct FloorTimes {
    double map;
    double search;
    double copy;
};

volatile std::uint32_t g_sink;

FloorTimes TimeFloors(const std::vector<TDataPoint>& points, int nRuns)
{
    std::vector<TDataPoint> target(points.size());
    return {Stopwatch::Median(nRuns, [&] { g_sink = Floors::MapAll(points); }),
            Stopwatch::Median(nRuns, [&] { g_sink = Floors::FindColumns(points); }),
            Stopwatch::Median(nRuns, [&] { g_sink = Floors::Copy(points, target); })};
}

void Print(const char* pszCase, int nPoints, double time, const FloorTimes& floors)
{
    std::printf("%-34s %9d %10.3f %8.2f %8.2f %8.2f\n", pszCase, nPoints, time, time / floors.map,
                time / floors.search, time / floors.copy);
    std::fflush(stdout);
}

void TimeOneCurve(std::vector<TDataPoint>& points, bool bOwned, const FloorTimes& floors, int nRuns)
{
    const int nCount = static_cast<int>(points.size());
    Scene scene;
    scene.m_graph->SetData(points.data(), nCount, 0, 0, 0, bOwned);
    Print(bOwned ? "line, owned, whole" : "line, caller's, whole", nCount,
          Stopwatch::Median(nRuns, [&] { scene.Repaint(); }), floors);
    scene.m_graph->GetXAxis(0)->SetCurrentRange(0.45 * nCount, 0.55 * nCount, 0.0);
    Print(bOwned ? "line, owned, middle tenth" : "line, caller's, middle tenth", nCount,
          Stopwatch::Median(nRuns, [&] { scene.Repaint(); }), floors);
}

void TimeLines(const Options& options)
{
    for (int nCount = 1000; nCount <= options.nMost; nCount *= 10) {
        std::vector<TDataPoint> points = NoisyWaves(nCount);
        const FloorTimes floors = TimeFloors(points, options.nRuns);
        std::printf("%-34s %9d %10.3f %10.3f %10.3f\n", "floors: map, search, copy", nCount, floors.map,
                    floors.search, floors.copy);
        TimeOneCurve(points, true, floors, options.nRuns);
        TimeOneCurve(points, false, floors, options.nRuns);
    }
}

void TimeManyCurves(const Options& options)
{
    constexpr int kCurves = 100;
    constexpr int kCount = 10'000;
    std::vector<TDataPoint> points = NoisyWaves(kCount);
    FloorTimes floors = TimeFloors(points, options.nRuns);
    floors = {floors.map * kCurves, floors.search * kCurves, floors.copy * kCurves};
    Scene scene;
    for (int i = 0; i < kCurves; ++i)
        scene.m_graph->SetData(points.data(), kCount, i, 0, 0, true);
    Print("100 lines, owned", kCurves * kCount,
          Stopwatch::Median(options.nRuns, [&] { scene.Repaint(); }), floors);
}

void TimeScatter(const Options& options)
{
    constexpr int kCount = 100'000;
    std::vector<TDataPoint> points = NoisyWaves(kCount);
    const FloorTimes floors = TimeFloors(points, options.nRuns);
    Scene scene;
    scene.m_graph->SetData(points.data(), kCount, 0, 0, 0, true)->m_nType = gtScatter;
    Print("scatter, owned", kCount, Stopwatch::Median(options.nRuns, [&] { scene.Repaint(); }), floors);
}

void TimeSetData(const Options& options)
{
    constexpr int kCount = 1'000'000;
    std::vector<TDataPoint> points = NoisyWaves(kCount);
    const FloorTimes floors = TimeFloors(points, options.nRuns);
    Scene scene;
    auto add = [&](bool bOwned) {
        scene.m_graph->m_Curves.clear();
        scene.m_graph->SetData(points.data(), kCount, 0, 0, 0, bOwned);
    };
    Print("SetData, copied", kCount, Stopwatch::Median(options.nRuns, [&] { add(true); }), floors);
    Print("SetData, caller's", kCount, Stopwatch::Median(options.nRuns, [&] { add(false); }), floors);
}

Options ReadOptions(int argc, char** argv)
{
    Options options;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--most") == 0)
            options.nMost = std::min(std::atoi(argv[i + 1]), 10'000'000);
        else if (std::strcmp(argv[i], "--runs") == 0)
            options.nRuns = std::max(std::atoi(argv[i + 1]), 1);
    }
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    const Options options = ReadOptions(argc, argv);
    std::printf("%-34s %9s %10s %8s %8s %8s\n", "case", "points", "ms", "map", "search", "copy");
    TimeLines(options);
    TimeManyCurves(options);
    TimeScatter(options);
    TimeSetData(options);
    BenchCursor(options.nRuns);
    BenchAnalysis(options.nRuns);
    BenchChart2d(options.nRuns);
    BenchPie(options.nRuns);
    BenchDialogs(options.nRuns);
    return 0;
}
