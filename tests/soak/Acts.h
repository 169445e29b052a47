#pragma once
// What goes on for hours in a host: each act does one small part of it, and leaves as much as there was.

#include "net/Graph.h"
#include "net/Host.h"

#include <vector>

// A business chart whose animation never rests.
class TickingChart
{
public:
    TickingChart(const Server& server, const HostWindow& host, int nKind, const RECT& place);

    void Tick();
    [[nodiscard]] HWND Window() const;

private:
    void Start();

    Holder<IChart2d> m_chart;
    int m_nTicks = 0;
    int m_nAnimation = 0;
};

// A graph under the pointer of a restless person, while its data change in both ways.
class LiveGraph
{
public:
    LiveGraph(const Server& server, const HostWindow& host, const RECT& place);

    void MoveCursor(); // ten moves, and their frames
    void ZoomInAndOut();
    void Feed(); // one array rewritten in place, the other replaced
    [[nodiscard]] HWND Window() const { return m_graph.Window(); }

private:
    Graph m_graph;
    std::vector<TDataPoint> m_own, m_replacing[2];
    int m_nMoves = 0, m_nFeeds = 0;
};

class ChangingPie
{
public:
    ChangingPie(const Server& server, const HostWindow& host, const RECT& place);

    void Change();
    [[nodiscard]] HWND Window() const;

private:
    Holder<IPieChart3d> m_pie;
    int m_nChanges = 0;
};
