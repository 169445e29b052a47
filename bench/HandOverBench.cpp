#include "HandOverBench.h"

#include "BenchFile.h"
#include "Goals.h"
#include "Scene.h"
#include "Stopwatch.h"

#include "framework/windowing/Archive.h"
#include "framework/windowing/File.h"

#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace
{
using Stopwatch::TTimes;

void Print(const std::string& name, int nCount, const TTimes& times)
{
    std::printf("%-36s %9d %8.3f %8.3f\n", name.c_str(), nCount, times.low, times.median);
    std::fflush(stdout);
}

struct TFreed {
    void operator()(void* p) const { ::CoTaskMemFree(p); }
};
using CFresh = std::unique_ptr<void, TFreed>;

void TimeSetData(int nCount, int nRuns)
{
    std::vector<TDataPoint> points = NoisyWaves(nCount);
    const std::size_t nBytes = points.size() * sizeof(TDataPoint);
    std::vector<TDataPoint> warm(points.size());
    Scene scene;
    const auto add = [&](bool bOwned) {
        scene.m_graph->m_Curves.clear();
        scene.m_graph->SetData(points.data(), nCount, 0, 0, 0, bOwned);
    };
    const auto times =
        Stopwatch::InTurns(nRuns, {[&] { add(true); }, [&] { add(false); },
                                   [&] {
                                       const CFresh fresh(::CoTaskMemAlloc(nBytes));
                                       std::memcpy(fresh.get(), points.data(), nBytes);
                                   },
                                   [&] { std::memcpy(warm.data(), points.data(), nBytes); }});
    Print("SetData, copied", nCount, times[0]);
    Print("SetData, caller's", nCount, times[1]);
    Print("floor: copy into fresh memory", nCount, times[2]);
    Print("floor: copy into warm memory", nCount, times[3]);
    if (nCount == 1'000'000)
        Goals::Expect("SetData of 1e6 to a copy into fresh memory", times[0].median / times[2].median,
                      1.3);
}

// A graph's own files do not bring their curves back, so one is put together.
void WriteGraphFile(const BenchFile& file, CXGraphDataSerie& curve)
{
    CFile target(file.m_path, CFile::modeCreate | CFile::modeWrite);
    CArchive ar(&target, CArchive::store);
    const int curves = 1, none = 0;
    ar << static_cast<DWORD>(PERSIST_DATA) << curves;
    curve.Serialize(ar);
    ar << none << none;
}

void TimeFiles(int nCount, int nRuns)
{
    const BenchFile file;
    Scene scene;
    std::vector<TDataPoint> points = NoisyWaves(nCount);
    CXGraph& graph = *scene.m_graph;
    graph.SetData(points.data(), nCount, 0, 0, 0, true);
    const TTimes save = Stopwatch::Measure(nRuns, [&] { graph.Save(file.m_path, PERSIST_DATA); });
    const std::string bytes = file.Read();
    Print("save", nCount, save);
    Print("floor: plain write", nCount, Stopwatch::Measure(nRuns, [&] { file.Write(bytes); }));
    WriteGraphFile(file, graph.m_Curves[0]);
    const std::size_t nBytes = points.size() * sizeof(TDataPoint);
    const auto times =
        Stopwatch::InTurns(nRuns, {[&] { graph.Load(file.m_path); },
                                   [&] {
                                       CFile source(file.m_path, CFile::modeRead);
                                       const CFresh fresh(::CoTaskMemAlloc(nBytes));
                                       source.Read(fresh.get(), static_cast<UINT>(nBytes));
                                   }});
    if (graph.m_Curves.size() != 1 || graph.m_Curves[0].m_nCount != nCount)
        std::printf("(the file did not load)\n");
    graph.ResetAll(); // the file's curve has no axes
    Print("load", nCount, times[0]);
    Print("floor: plain read", nCount, times[1]);
    if (nCount == 1'000'000)
        Goals::Expect("load of 1e6 to a plain read", times[0].median / times[1].median, 1.3);
}

double WorkingSet()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.WorkingSetSize);
}

void MeasureMemory(int nCount)
{
    std::vector<TDataPoint> points = NoisyWaves(nCount);
    Scene scene;
    scene.m_graph->SetData(points.data(), 1000, 0, 0, 0, true);
    scene.Repaint();
    scene.m_graph->m_Curves.clear();
    const double before = WorkingSet();
    scene.m_graph->SetData(points.data(), nCount, 0, 0, 0, true);
    scene.Repaint();
    const double taken = WorkingSet() - before, copy = static_cast<double>(nCount) * sizeof(TDataPoint);
    std::printf("%-36s %9d %8.1f MB, the points alone %.1f MB\n", "memory of an owned curve, painted",
                nCount, taken / 1e6, copy / 1e6);
    if (nCount == 10'000'000)
        Goals::Expect("memory of 1e7 points to the points alone", taken / copy, 1.01);
}
} // namespace

void BenchHandOver(int nMost, int nRuns)
{
    std::printf("%-36s %9s %8s %8s\n", "data's way in, ms", "points", "p10", "median");
    for (int nCount = 1000; nCount <= nMost; nCount *= 10) {
        TimeSetData(nCount, nRuns);
        TimeFiles(nCount, nRuns);
    }
    MeasureMemory(nMost);
}
