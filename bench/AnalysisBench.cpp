#include "AnalysisBench.h"

#include "Scene.h"
#include "Stopwatch.h"

#include "framework/windowing/Archive.h"
#include "framework/windowing/File.h"

#include <cstdio>
#include <memory>
#include <string>

namespace
{

constexpr int kCount = 1'000'000;

// A file for temporary use.
class BenchFile
{
public:
    BenchFile()
    {
        wchar_t folder[MAX_PATH];
        wchar_t path[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"vpb", 0, path);
        m_path = path;
    }
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;
    ~BenchFile() { ::DeleteFileW(m_path); }

    void Write(const std::string& bytes) const
    {
        CFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    }
    [[nodiscard]] std::string Read() const
    {
        CFile file(m_path, CFile::modeRead);
        std::string bytes(static_cast<std::size_t>(file.GetLength()), '\0');
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }

    CString m_path;
};

void Print(const char* pszCase, double time, double floor = 0)
{
    if (floor > 0)
        std::printf("%-34s %10.3f %10.3f %8.2f\n", pszCase, time, floor, time / floor);
    else
        std::printf("%-34s %10.3f\n", pszCase, time);
    std::fflush(stdout);
}

void TimeFiles(CXGraph& graph, int nRuns)
{
    const BenchFile file;
    const double save = Stopwatch::Median(nRuns, [&] { graph.Save(file.m_path, PERSIST_DATA); });
    const std::string bytes = file.Read();
    Print("save", save, Stopwatch::Median(nRuns, [&] { file.Write(bytes); }));

    // A curve alone reads back as it was written.
    CFile curve(file.m_path, CFile::modeCreate | CFile::modeReadWrite);
    {
        CArchive ar(&curve, CArchive::store);
        graph.m_Curves[0].Serialize(ar);
    }
    const double load = Stopwatch::Median(nRuns, [&] {
        curve.Seek(0, CFile::begin);
        CArchive ar(&curve, CArchive::load);
        CXGraphDataSerie loaded;
        loaded.Serialize(ar);
    });
    curve.Close();
    Print("load of the curve", load, Stopwatch::Median(nRuns, [&] { (void)file.Read(); }));
}

} // namespace

void BenchAnalysis(int nRuns)
{
    std::printf("%-34s %10s %10s %8s\n", "file and analysis, 1000000 points", "ms", "plain", "ratio");
    std::vector<TDataPoint> points = NoisyWaves(kCount);
    Scene scene;
    CXGraph& graph = *scene.m_graph;
    graph.SetData(points.data(), kCount, 0, 0, 0, true);
    TimeFiles(graph, nRuns);

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
