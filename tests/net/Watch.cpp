#include "Watch.h"

#include "SavedBytes.h"

#include <cstddef>
#include <cstdint>

namespace
{
// XG_POINTCHANGED carries the address of its record, which lies below 2 GB.
const TPointChange& RecordAt(WPARAM wParam)
{
    return *reinterpret_cast<const TPointChange*>(wParam);
}

long IsSelected(ISGraphObject* pObject)
{
    long bSelected = -1;
    pObject->GetSelected(&bSelected);
    return bSelected;
}

void PrintAxis(Report& report, const std::string& name, ISGraphAxis* pAxis)
{
    long nMarkers = -1;
    pAxis->GetAxisMarkerCount(&nMarkers);
    report.State(name, "selected %ld, markers %ld", IsSelected(pAxis), nMarkers);
    const RECT rect = Graph::RectOf(pAxis);
    report.ExactState(name + " lies", "at %ld %ld %ld %ld", rect.left, rect.top, rect.right,
                      rect.bottom);
    report.ExactState(name + " shows", "%.17g to %.17g", ValueAt(pAxis, 0), ValueAt(pAxis, 1000));
}
} // namespace

void Watch::Begin(const std::string& name, bool bTexts, int nWidth, int nHeight)
{
    m_graphs.clear();
    m_host.reset();
    m_host = std::make_unique<HostWindow>(nWidth, nHeight);
    m_report.Section(name, bTexts);
}

Graph& Watch::Add(const RECT& place)
{
    m_graphs.push_back(std::make_unique<Graph>(m_server, *m_host, place));
    HostWindow::Settle();
    return *m_graphs.back();
}

void Watch::Look()
{
    LookAtPosted();
    for (const std::string& text : m_dialogs.TakeTexts())
        m_report.Line("box: %s", text.c_str());
    for (std::size_t i = 0; i < m_graphs.size(); ++i)
        LookAtGraph(*m_graphs[i], m_graphs.size() == 1 ? "graph" : i == 0 ? "left" : "right");
}

void Watch::LookAtPosted()
{
    constexpr UINT pointChanged = 1035;
    for (const MSG& message : m_host->TakePosted()) {
        if (message.message == pointChanged) {
            const TPointChange& change = RecordAt(message.wParam);
            m_report.Line("posted %u (point %d of curve %d, %s)", message.message, change.nIndex,
                          change.nCurve, NameOf(message.lParam).c_str());
            m_report.Exact("its value goes from %.17g to %.17g", change.fOldY, change.fNewY);
        } else {
            m_report.Line("posted %u (%llu, %s)", message.message, message.wParam,
                          NameOf(message.lParam).c_str());
        }
    }
}

std::string Watch::NameOf(LPARAM lParam) const
{
    for (std::size_t i = 0; i < m_graphs.size(); ++i) {
        if (lParam == m_graphs[i]->Half())
            return "graph " + std::to_string(i);
        if (lParam == static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(m_graphs[i]->Window())))
            return "window " + std::to_string(i);
    }
    return "something else";
}

void Watch::LookAtGraph(const Graph& graph, const std::string& name)
{
    EOperation operation = opReset;
    graph->GetOperation(&operation);
    int nDepth = -1;
    graph->GetZoomDepth(&nDepth);
    m_report.State(name, "operation %d, zooms %d, curves %d", operation, nDepth, graph.CurveCount());
    for (int i = 0; i < graph.CurveCount(); ++i) {
        const auto curve = graph.Curve(i);
        long nCount = -1;
        curve->GetCount(&nCount);
        m_report.State(name + ", curve " + std::to_string(i), "selected %ld, points %ld",
                       IsSelected(curve.Get()), nCount);
    }
    if (m_pass == Pass::values) {
        LookAtValues(graph, name);
        LookAtScreen(graph, name);
    } else {
        LookAtFile(graph, name);
        ::UpdateWindow(graph.Window());
    }
}

void Watch::LookAtValues(const Graph& graph, const std::string& name)
{
    long x = 0, y = 0;
    graph->GetCursor(&x, &y);
    m_report.ExactState(name + ", cursor", "%ld %ld", x, y);
    for (int i = 0; i < graph.XAxisCount(); ++i)
        PrintAxis(m_report, name + ", x" + std::to_string(i), graph.XAxis(i).Get());
    for (int i = 0; i < graph.YAxisCount(); ++i)
        PrintAxis(m_report, name + ", y" + std::to_string(i), graph.YAxis(i).Get());
    ::SendMessageW(graph.Window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(graph.Window()),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    m_report.State(name + ", pointer", "%s", PointerName());
}

void Watch::LookAtFile(const Graph& graph, const std::string& name)
{
    const SavedBytes saved(graph);
    m_report.ExactState(name + ", file", "%llu bytes, sum %016llx",
                        static_cast<unsigned long long>(saved.Count()),
                        static_cast<unsigned long long>(saved.Sum()));
}

void Watch::LookAtScreen(const Graph& graph, const std::string& name)
{
    const bool bDirty = ::GetUpdateRect(graph.Window(), nullptr, FALSE) != FALSE;
    if (bDirty)
        m_report.Line("%s waits for its paint", name.c_str());
    if (::GetWindow(graph.Window(), GW_CHILD) != nullptr)
        return; // an edit box, whose caret blinks
    PrintPicture(m_report, name + ", picture", graph.Window());
    if (!bDirty)
        return;
    ::UpdateWindow(graph.Window());
    PrintPicture(m_report, name + ", picture", graph.Window());
}
