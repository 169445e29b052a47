#include "Acts.h"

#include "net/Data.h"

namespace
{
constexpr int Points = 2000;
constexpr int FramesOfAnAnimation = 400;

void Show(HWND hWnd)
{
    ::InvalidateRect(hWnd, nullptr, FALSE);
    ::UpdateWindow(hWnd);
}
} // namespace

TickingChart::TickingChart(const Server& server, const HostWindow& host, int nKind, const RECT& place)
    : m_chart(server.Make<Chart2d, IChart2d>())
{
    RECT rect = place;
    m_chart->Create(&rect, host.Wire(), 8);
    m_chart->CreateGraph(nKind);
    m_chart->SetGraphTitle(Text(L"ticking"));
    for (int nPart = 1; nPart <= 4; ++nPart) {
        if (nKind == 1)
            m_chart->Add2DPieGraphSegment(20, 0x4040C0u << nPart, Text(L"segment"));
        else if (nKind == 0)
            m_chart->Add2DBarGraphSegment(Text(L"segment"));
        else
            m_chart->Add2DLineGraphSegment(Text(L"segment"));
    }
    for (int nSeries = 1; nKind != 1 && nSeries <= 2; ++nSeries) {
        nKind == 0 ? m_chart->Add2DBarGraphSeries(Text(L"series"), 0x4040C0u << nSeries)
                   : m_chart->Add2DLineGraphSeries(Text(L"series"), 0x4040C0u << nSeries);
        for (int nPart = 1; nPart <= 4; ++nPart)
            nKind == 0 ? m_chart->Set2DBarGraphValue(nPart, nSeries, 20 * nPart)
                       : m_chart->Set2DLineGraphValue(nPart, nSeries, 20 * nPart);
    }
    Start();
}

HWND TickingChart::Window() const
{
    wireHWND hWnd = nullptr;
    m_chart->GetHandle(&hWnd);
    return reinterpret_cast<HWND>(hWnd);
}

// The timer itself is stopped: its messages are sent as fast as they are handled.
void TickingChart::Start()
{
    constexpr UINT_PTR timer = 50000;
    constexpr int types[] = {1, 2, 20, 21, 22, 23};
    m_chart->SetGraphAnimation(1, types[m_nAnimation++ % 6]);
    ::KillTimer(Window(), timer);
}

void TickingChart::Tick()
{
    if (++m_nTicks % FramesOfAnAnimation == 0)
        Start();
    ::SendMessageW(Window(), WM_TIMER, 50000, 0);
    ::UpdateWindow(Window());
}

LiveGraph::LiveGraph(const Server& server, const HostWindow& host, const RECT& place)
    : m_graph(server, host, place),
      m_own(Data::Wave(Scale::linear, Points, 1)), m_replacing{Data::Wave(Scale::linear, Points, 2),
                                                               Data::Wave(Scale::linear, Points, 3)}
{
    m_graph.Plot(m_own, 0);
    m_graph.Plot(m_own, 1);
    Feed();
    m_graph->SetCursorFlags(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
}

void LiveGraph::MoveCursor()
{
    if (m_nMoves == 0)
        m_graph.Send(Command::cursor);
    for (int i = 0; i < 10; ++i, ++m_nMoves)
        m_graph.Hover({60 + m_nMoves * 7 % 300, 30 + m_nMoves * 3 % 150});
    ::UpdateWindow(Window());
}

void LiveGraph::ZoomInAndOut()
{
    m_graph.Send(Command::zoom);
    m_graph.Press({120, 60});
    m_graph.DragTo({180, 90});
    ::UpdateWindow(Window());
    m_graph.DragTo({240, 140});
    m_graph.Release({240, 140});
    ::UpdateWindow(Window());
    m_graph.Send(Command::zoomBack);
    ::UpdateWindow(Window());
    m_graph.Send(Command::cursor);
}

void LiveGraph::Feed()
{
    for (TDataPoint& point : m_own)
        point.fYVal = 100 - point.fYVal;
    m_graph->SetData(nullptr, m_own.data(), Points, 0, 0, 0, 0);
    ++m_nFeeds;
    m_graph->SetData(nullptr, m_replacing[m_nFeeds % 2].data(), Points - m_nFeeds % 100, 1, 0, 0, 0);
    Show(Window());
}

ChangingPie::ChangingPie(const Server& server, const HostWindow& host, const RECT& place)
    : m_pie(server.Make<PieChart3d, IPieChart3d>())
{
    RECT rect = place;
    m_pie->Create(Text(L"pie"), &rect, host.Wire(), 9);
    for (const wchar_t* pszName : {L"a", L"b", L"c", L"d", L"e"})
        m_pie->InsertItem(Text(pszName), Text(pszName), 20, 0x40A0C0);
}

HWND ChangingPie::Window() const
{
    wireHWND hWnd = nullptr;
    m_pie->GetHandle(&hWnd);
    return reinterpret_cast<HWND>(hWnd);
}

void ChangingPie::Change()
{
    ++m_nChanges;
    VARIANT* pItem = nullptr;
    m_pie->GetPieChartItem(Text(L"b"), &pItem);
    m_pie->UpdateItemValue(pItem, 10 + m_nChanges % 50);
    m_pie->UpdateItemLabel(pItem, Text(m_nChanges % 2 == 0 ? L"even" : L"an odd and longer label"));
    m_pie->InsertItem(Text(L"guest"), Text(L"guest"), 5, 0x2020C0);
    m_pie->SetStartAngle(static_cast<float>(m_nChanges % 360));
    ::UpdateWindow(Window());
    m_pie->RemoveItem(Text(L"guest"));
    ::UpdateWindow(Window());
}
