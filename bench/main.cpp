// vantoplex-bench [--most N] [--runs N] [--only PART] [--check]
//
// Times the product and, in the same process and in turns with it, plain loops and calls that do
// no more than has to be done. docs/performance.md explains the rows.
//
//   --most N      the largest number of points, 10000000 by default
//   --runs N      times each case is run, 21 by default
//   --only PART   frames, data, cursor, analysis, chart2d, pie, growth, dialogs or start
//   --check       ends with code 1 if a ratio that is to be kept was missed

#include "AnalysisBench.h"
#include "Chart2dBench.h"
#include "CursorBench.h"
#include "DialogBench.h"
#include "FrameBench.h"
#include "Goals.h"
#include "GrowthBench.h"
#include "HandOverBench.h"
#include "PieBench.h"
#include "StartBench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

struct TOptions {
    int nMost = 10'000'000;
    int nRuns = 21;
    std::string only;
    bool bCheck = false;
};

TOptions ReadOptions(int argc, char** argv)
{
    TOptions options;
    for (int i = 1; i < argc; ++i) {
        const bool bMore = i + 1 < argc;
        if (std::strcmp(argv[i], "--check") == 0)
            options.bCheck = true;
        else if (std::strcmp(argv[i], "--most") == 0 && bMore)
            options.nMost = std::min(std::atoi(argv[++i]), 10'000'000);
        else if (std::strcmp(argv[i], "--runs") == 0 && bMore)
            options.nRuns = std::max(std::atoi(argv[++i]), 1);
        else if (std::strcmp(argv[i], "--only") == 0 && bMore)
            options.only = argv[++i];
    }
    return options;
}

void Run(const TOptions& options)
{
    const auto wants = [&](const char* pszPart) {
        return options.only.empty() || options.only == pszPart;
    };
    constexpr int pieces = 10'000;
    if (wants("frames"))
        BenchFrames(options.nMost, options.nRuns);
    if (wants("data"))
        BenchHandOver(options.nMost, options.nRuns);
    if (wants("cursor"))
        BenchCursor(options.nRuns);
    if (wants("analysis"))
        BenchAnalysis(options.nRuns);
    if (wants("chart2d"))
        BenchChart2d(options.nRuns);
    if (wants("pie"))
        BenchPie(options.nRuns);
    if (wants("growth"))
        BenchGrowth(std::min(pieces, options.nMost));
    if (wants("dialogs"))
        BenchDialogs(options.nRuns);
    if (wants("start"))
        BenchStart(options.nRuns);
}

void PrintWhatWineAdds()
{
    std::puts(
        "Only under Wine: how far busy frames are from idle ones, the rows of texts, fonts, pies and");
    std::puts("dialogs, the plain read into fresh memory, and a process's start (docs/performance.md).");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--empty-window") == 0)
        return ShowEmptyWindow();
    if (argc == 2 && std::strcmp(argv[1], "--first-chart") == 0)
        return ShowFirstChart();
    const TOptions options = ReadOptions(argc, argv);
    Run(options);
    PrintWhatWineAdds();
    const int nMissed = Goals::Print();
    return options.bCheck && nMissed > 0 ? 1 : 0;
}
