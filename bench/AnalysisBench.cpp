#include "AnalysisBench.h"

#include "Scene.h"
#include "Stopwatch.h"

#include <cstdio>
#include <memory>

namespace
{

constexpr int Count = 1'000'000;

void Print(const char* pszCase, double time)
{
    std::printf("%-34s %10.3f\n", pszCase, time);
    std::fflush(stdout);
}

} // namespace

void BenchAnalysis(int nRuns)
{
    std::printf("%-34s %10s\n", "analysis of 1000000 points", "ms");
    std::vector<TDataPoint> points = NoisyWaves(Count);
    Scene scene;
    CXGraph& graph = *scene.m_graph;
    graph.SetData(points.data(), Count, 0, 0, 0, true);

    CXGraphDataSerie& curve = graph.m_Curves[0];
    const auto time = [&](const char* pszCase, auto analyse) {
        Print(pszCase, Stopwatch::Median(nRuns, [&] { std::unique_ptr<TDataPoint[]>{analyse()}; }));
    };
    time("simple average, span 100", [&] { return curve.GetSimpleMovingAverage(100); });
    time("linear average, span 100", [&] { return curve.GetLinearMovingAverage(100); });
    time("sine weighted average, span 100", [&] { return curve.GetSineWeightedMovingAverage(100); });
    time("exponential average", [&] { return curve.GetExponentialMovingAverage(100); });
    time("linear trend", [&] { return curve.GetLinearTrend(0); });
    time("polynomial of degree 5", [&] { return curve.GetPolynomialTrend(6, 0); });
}
