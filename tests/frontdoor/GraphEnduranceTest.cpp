// What graphs leave behind, seen from outside.

#include "FrontDoorGraph.h"
#include "support/GdiCount.h"
#include "support/PrivateServer.h"

namespace
{

int CountChildren(HWND hWnd)
{
    int nCount = 0;
    ::EnumChildWindows(
        hWnd,
        [](HWND, LPARAM lParam) -> BOOL {
            ++*reinterpret_cast<int*>(lParam);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

// Creates a graph, plots, and destroys its window under it.
void Cycle(Server& server)
{
    HostWindow host;
    const auto graph = server.Make<SGraph, ISGraph>();
    RECT rect = {0, 0, 200, 150};
    graph->Create(nullptr, &rect, WireHandle(host.m_hWnd), 1);
    std::vector<TDataPoint> points{{0, 0}, {1, 3}, {2, 1}};
    graph->SetData(nullptr, points.data(), 3, 0, 0, 0, 1);
    HostWindow::Pump();
    EXPECT_EQ(CountChildren(host.m_hWnd), 1);
}

} // namespace

TEST(GraphModuleEnd, EachCycleKeepsOneGraphUntilTheModuleEnds)
{
    // A graph holds the font of its cursor's label and two for each of its axes: what is left
    // of a destroyed graph can be counted.
    constexpr int fontsOfAGraph = 1 + 2 * 2;
    Cycle(Server::Shared());
    const int nFonts = GdiCount::OfType(OBJ_FONT);
    const int nObjects = GdiCount::All();
    {
        const PrivateServer server;
        Cycle(*server);
        const int nFirst = GdiCount::OfType(OBJ_FONT);
        const int nOthers = GdiCount::All() - nFirst;
        for (int i = 0; i < 100; ++i)
            Cycle(*server);
        EXPECT_EQ(GdiCount::OfType(OBJ_FONT), nFirst + 100 * fontsOfAGraph);
        EXPECT_EQ(GdiCount::All() - GdiCount::OfType(OBJ_FONT), nOthers);
        EXPECT_EQ(server->CanUnloadNow(), S_OK);
    }
    EXPECT_EQ(GdiCount::OfType(OBJ_FONT), nFonts);
    EXPECT_EQ(GdiCount::All(), nObjects);
}

TEST(GraphModuleEnd, AModuleWithALivingWindowEndsCleanly)
{
    HostWindow host;
    HWND hWnd = nullptr;
    {
        const PrivateServer server;
        auto graph = server->Make<SGraph, ISGraph>();
        RECT rect = {0, 0, 200, 150};
        graph->Create(nullptr, &rect, WireHandle(host.m_hWnd), 1);
        wireHWND wire = nullptr;
        graph->GetHandle(&wire);
        hWnd = reinterpret_cast<HWND>(wire);
        graph.Release();
        EXPECT_TRUE(::IsWindow(hWnd));
    }
    // Its code is gone, and so must be the window.
    EXPECT_FALSE(::IsWindow(hWnd));
    HostWindow::Pump();
}

using GraphFrontDoorEndurance = FrontDoorGraph;

TEST_F(GraphFrontDoorEndurance, AThousandWrappersLeaveNothing)
{
    AddLine(0);
    Shoot();
    const int nObjects = GdiCount::All();
    for (int i = 0; i < 1000; ++i) {
        XAxis()->SetTickSize(i % 9);
        YAxis();
        Holder<ISGraphDataSerie> curve;
        graph->GetCurve(curve.Out(), 0);
        Text label;
        curve->GetLabel(label.Out());
    }
    EXPECT_EQ(GdiCount::All(), nObjects);
}

TEST_F(GraphFrontDoorEndurance, AHundredReplacedCurvesAndRepaintsLeaveNothing)
{
    AddLine(0);
    Shoot();
    const int nObjects = GdiCount::All();
    for (int i = 0; i < 100; ++i) {
        AddLine(0);
        Shoot();
    }
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_EQ(CurveCount(), 1);
}
