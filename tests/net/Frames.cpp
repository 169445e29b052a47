#include "Frames.h"

#include "RandomGraph.h"

namespace
{
constexpr int MostFrames = 5;

void RunGraph(const Server& server, const HostWindow& host, Report& report, const Frames::TPlan& plan,
              int nGraph)
{
    Random random(plan.seed, static_cast<std::uint64_t>(nGraph));
    RandomGraph graph(server, host, random, plan.bBare);
    report.Step("graph " + std::to_string(nGraph));
    for (int nFrame = 0; nFrame < MostFrames; ++nFrame) {
        graph.Change();
        report.Line("frame %d %016llx, values %016llx", nFrame,
                    static_cast<unsigned long long>(graph.PictureSum()),
                    static_cast<unsigned long long>(graph.ValueSum()));
        if (!plan.pictures.empty())
            graph.WritePicture(plan.pictures + L"\\" + std::to_wstring(nGraph) + L"-" +
                               std::to_wstring(nFrame) + L".bmp");
        if (random.OneIn(12))
            graph.Print(report, server.Module());
    }
    (void)host.TakePosted();
}
} // namespace

void Frames::Run(const Server& server, Report& report, const TPlan& plan)
{
    const HostWindow host(800, 600);
    report.Section("frames", false);
    for (int nGraph = plan.nFirst; nGraph < plan.nFirst + plan.nGraphs; ++nGraph)
        RunGraph(server, host, report, plan, nGraph);
}
