#include "FrameBench.h"

#include "FloorWindow.h"
#include "Floors.h"
#include "Goals.h"
#include "Scene.h"
#include "Stopwatch.h"

#include "net/Screen.h"

#include <cstdio>
#include <string>

namespace
{
using Stopwatch::TTimes;

// A frame back to back with the last, and after a wait for messages.
struct TFrame {
    TTimes busy;
    TTimes idle;
};

volatile std::uint32_t g_sink;

void PrintRow(const std::string& name, int nPoints, const TFrame& frame)
{
    std::printf("%-36s %9d %8.3f %8.3f %8.3f %8.3f\n", name.c_str(), nPoints, frame.busy.low,
                frame.busy.median, frame.idle.low, frame.idle.median);
    std::fflush(stdout);
}

// The product's frame and its floor, in turns.
std::pair<TFrame, TFrame> TimeBeside(Scene& scene, int nRuns)
{
    scene.Repaint();
    const FrameRecording recording(*scene.m_graph);
    scene.Repaint(); // the recording's own frame has left its fonts' measures
    Scene other;
    const FloorWindow floor(other.m_hHost, recording);
    const auto product = [&] { scene.Repaint(); };
    const auto plain = [&] { floor.Repaint(); };
    product();
    plain();
    if (Screen(scene.m_graph->m_hWnd).Sum() != Screen(floor.Handle()).Sum())
        std::printf("(the floor's picture is not the product's)\n");
    const auto busy = Stopwatch::InTurns(nRuns, {product, plain});
    const auto idle = Stopwatch::InTurns(nRuns, {product, plain}, &Stopwatch::WaitForMessages);
    return {{busy[0], idle[0]}, {busy[1], idle[1]}};
}

TFrame TimeFrame(Scene& scene, int nRuns)
{
    const auto product = [&] { scene.Repaint(); };
    return {Stopwatch::Measure(nRuns, product),
            Stopwatch::Measure(nRuns, product, &Stopwatch::WaitForMessages)};
}

TTimes TimeLoops(const std::vector<TDataPoint>& points, int nRuns)
{
    const int nCount = static_cast<int>(points.size());
    const TTimes map = Stopwatch::Measure(nRuns, [&] { g_sink = Floors::MapAll(points); });
    const TTimes search = Stopwatch::Measure(nRuns, [&] { g_sink = Floors::FindColumns(points); });
    std::printf("%-36s %9d %8.3f %8.3f\n", "floor: every point mapped", nCount, map.low, map.median);
    std::printf("%-36s %9d %8.3f %8.3f\n", "floor: 800 columns searched", nCount, search.low,
                search.median);
    return map;
}

void TimeCount(int nCount, int nRuns)
{
    constexpr int most = 100'000; // where the picture and not the data decides
    std::vector<TDataPoint> points = NoisyWaves(nCount);
    const TTimes map = TimeLoops(points, nRuns);
    for (const bool bOwned : {true, false}) {
        Scene scene;
        scene.m_graph->SetData(points.data(), nCount, 0, 0, 0, bOwned);
        const auto [product, floor] = TimeBeside(scene, nRuns);
        PrintRow(bOwned ? "line, owned" : "line, caller's", nCount, product);
        if (!bOwned && nCount == 10'000'000)
            Goals::Expect("frame of 1e7 caller's points to the mapping loop",
                          product.idle.median / map.median, 1.0);
        if (!bOwned)
            continue;
        PrintRow("floor: same picture, fewest calls", nCount, floor);
        if (nCount > most)
            continue;
        const std::string name = "frame of " + std::to_string(nCount) + " to the fewest calls, ";
        Goals::Expect(name + "busy", product.busy.median / floor.busy.median, 1.5);
        Goals::Expect(name + "idle", product.idle.median / floor.idle.median, 1.5);
    }
}

void SetOwned(Scene& scene, int nCount, int nCurves = 1)
{
    std::vector<TDataPoint> points = NoisyWaves(nCount);
    for (int i = 0; i < nCurves; ++i)
        scene.m_graph->SetData(points.data(), nCount, i, 0, 0, true);
}

// In turns, so that both meet the machine in the same moments.
double TimeRatio(Scene& scene, Scene& toOther, int nRuns)
{
    const auto times = Stopwatch::InTurns(
        3 * nRuns, {[&] { scene.Repaint(); }, [&] { toOther.Repaint(); }}, &Stopwatch::WaitForMessages);
    return times[0].median / times[1].median;
}

void TimeRatios(int nMost, int nRuns)
{
    constexpr int count = 10'000, large = 10'000'000;
    Scene one;
    SetOwned(one, count);
    {
        Scene many;
        SetOwned(many, count, 100);
        Goals::Expect("100 curves of 1e4 to one", TimeRatio(many, one, nRuns), 3.0);
    }
    if (nMost < large)
        return;
    Scene whole;
    SetOwned(whole, large);
    Goals::Expect("frame of 1e7 owned points to one of 1e4", TimeRatio(whole, one, nRuns), 1.1);
}

void TimeOthers(int nRuns)
{
    constexpr int curves = 100, count = 10'000;
    Scene scene;
    SetOwned(scene, count, curves);
    const auto [many, floor] = TimeBeside(scene, nRuns);
    PrintRow("100 lines of 10000, owned", curves * count, many);
    PrintRow("floor: same picture, fewest calls", curves * count, floor);
    Goals::Expect("100 curves of 1e4 to the fewest calls", many.idle.median / floor.idle.median, 1.5);
    Scene dots;
    SetOwned(dots, 100'000);
    dots.m_graph->m_Curves[0].m_nType = gtScatter;
    PrintRow("scatter, owned", 100'000, TimeFrame(dots, nRuns));
    dots.m_graph->m_Curves[0].m_nType = gtLine;
    dots.m_graph->GetXAxis(0)->SetCurrentRange(45'000, 55'000, 0.0);
    PrintRow("line, owned, its middle tenth", 100'000, TimeFrame(dots, nRuns));
}
} // namespace

void BenchFrames(int nMost, int nRuns)
{
    std::printf("%-36s %9s %8s %8s %8s %8s\n", "frame of 800 x 600, ms", "points", "busy p10", "median",
                "idle p10", "median");
    for (int nCount = 1000; nCount <= nMost; nCount *= 10)
        TimeCount(nCount, nRuns);
    TimeOthers(nRuns);
    TimeRatios(nMost, nRuns);
}
