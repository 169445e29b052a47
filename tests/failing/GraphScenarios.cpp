#include "GraphHand.h"

#include "net/Graph.h"

namespace
{
class Create : public Scenario
{
public:
    using Scenario::Scenario;
    void Act() override
    {
        m_graph = GraphHand();
        m_graph.Create(TheStage());
        Frame(m_graph.Window());
    }
    std::uint64_t Result() override { return PictureOf(m_graph.Window()); }

private:
    GraphHand m_graph;
};

class OnGraph : public Scenario
{
public:
    using Scenario::Scenario;
    void Prepare() override
    {
        m_graph.Create(TheStage());
        m_graph.Plot(TheStage());
    }
    std::uint64_t Result() override { return PictureOf(m_graph.Window()); }

protected:
    GraphHand m_graph;

private:
    Dialogs m_dialogs;
};

class Plot : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Prepare() override { m_graph.Create(TheStage()); }
    void Act() override { m_graph.Plot(TheStage()); }
};

class Paint : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Act() override { Frame(m_graph.Window()); }
};

class Print : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Act() override { m_graph.Send(Command::print); }
    // Of a further page: one page leaves the axes' ranges otherwise rounded for the next.
    std::uint64_t Result() override
    {
        m_graph.Send(Command::print);
        return TheStage().ThePrinter().Sum() ^ OnGraph::Result();
    }
};

class Zoom : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Act() override
    {
        const RECT inner = m_graph.Inner();
        m_graph.Send(Command::zoom);
        m_graph.Drag({inner.left + 60, inner.top + 60}, {inner.left + 200, inner.top + 180});
        m_graph.Send(Command::zoomBack);
        m_graph.Drag({inner.left + 50, inner.top + 50}, {inner.left + 220, inner.top + 190});
        m_graph.Send(Command::pan);
        m_graph.Drag({inner.left + 60, inner.top + 60}, {inner.left + 90, inner.top + 80});
        m_graph.Send(Command::resetZoom);
        m_graph.Send(Command::noOp);
    }
};

class CursorAndMeasure : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Act() override
    {
        const RECT inner = m_graph.Inner();
        m_graph.Get()->SetCursorFlags(XGC_HORIZ | XGC_VERT | XGC_LEGEND);
        m_graph.Send(Command::cursor);
        for (int x = inner.left + 10; x < inner.right; x += 60)
            m_graph.Mouse(WM_MOUSEMOVE, {x, (inner.top + inner.bottom) / 2});
        Frame(m_graph.Window());
        m_graph.Send(Command::noOp);
        m_graph.Send(Command::measure);
        m_graph.Drag({inner.left + 60, inner.top + 60}, {inner.left + 200, inner.top + 180});
        Stage::Try([&] { m_graph.Get()->DeleteMeasures(); });
        m_graph.Send(Command::noOp);
    }
};

class Edits : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Act() override
    {
        m_graph.Send(Command::noOp);
        // A label is typed into, by a double click and one elsewhere.
        const POINT inLabel = {200, 80}, elsewhere = {590, 390};
        m_graph.Mouse(WM_LBUTTONDBLCLK, inLabel, MK_LBUTTON);
        m_graph.Mouse(WM_LBUTTONUP, inLabel);
        m_graph.Mouse(WM_LBUTTONDOWN, elsewhere, MK_LBUTTON);
        m_graph.Mouse(WM_LBUTTONUP, elsewhere);
        m_graph.Mouse(WM_MOUSEMOVE, inLabel);
        m_graph.Send(Command::insertLabel);
        m_graph.Mouse(WM_KEYDOWN, inLabel, VK_DELETE);
        Frame(m_graph.Window());
    }
    // Each time a label more may be there.
    std::uint64_t Result() override
    {
        m_graph.Plot(TheStage());
        return OnGraph::Result();
    }
};

// The sheet from all its sides, and the dialogs of its pages; a hook closes each.
class Sheets : public OnGraph
{
public:
    using OnGraph::OnGraph;
    void Act() override
    {
        m_graph.Send(Command::properties);
        const RECT inner = m_graph.Inner();
        const POINT places[] = {{(inner.left + inner.right) / 2, inner.bottom + 10}, // the X axis
                                {inner.left - 12, (inner.top + inner.bottom) / 2},   // a Y axis
                                {200, 80},                                           // the label
                                {inner.left + 5, inner.top + 5}};
        for (const POINT at : places) {
            m_graph.Mouse(WM_MOUSEMOVE, at);
            m_graph.Mouse(WM_LBUTTONDOWN, at, MK_LBUTTON);
            m_graph.Mouse(WM_LBUTTONUP, at);
            m_graph.Mouse(WM_LBUTTONDBLCLK, at, MK_LBUTTON);
            m_graph.Mouse(WM_LBUTTONUP, at);
        }
        m_graph.Send(Command::noOp);
    }
    std::uint64_t Result() override
    {
        m_graph.Plot(TheStage());
        return OnGraph::Result();
    }
};
} // namespace

void Scenarios::AddGraphs(std::vector<TScenario>& scenarios)
{
    scenarios.insert(scenarios.end(), {{"graph-create", &MakeScenario<Create>},
                                       {"graph-plot", &MakeScenario<Plot>},
                                       {"graph-paint", &MakeScenario<Paint>},
                                       {"graph-print", &MakeScenario<Print>},
                                       {"graph-zoom", &MakeScenario<Zoom>},
                                       {"graph-cursor", &MakeScenario<CursorAndMeasure>},
                                       {"graph-edit", &MakeScenario<Edits>},
                                       {"graph-sheets", &MakeScenario<Sheets>},
                                       {"graph-end", &MakeScenario<Ending<Paint>>}});
}
