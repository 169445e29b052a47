#include "viewer/Session.h"

#include "viewer/BusinessView.h"
#include "viewer/GraphView.h"
#include "viewer/PieView.h"
#include "viewer/PlainText.h"
#include "viewer/PlotPlan.h"
#include "viewer/RecentFiles.h"
#include "viewer/StatusText.h"

#include <utility>

namespace Viewer
{
namespace
{

std::u16string_view NameOfKind(ChartKind kind)
{
    switch (kind) {
    case ChartKind::Bar:
        return u"bar chart";
    case ChartKind::Line:
        return u"line chart";
    case ChartKind::Pie:
        return u"pie chart";
    case ChartKind::Pie3d:
        return u"3D pie";
    default:
        return u"graph";
    }
}

} // namespace

Session::Session(const ChartServer& server, MainWindow& window, Document document, bool scripted)
    : m_server(server), m_window(window), m_document(std::move(document)), m_scripted(scripted)
{
    m_window.SetEvents(this);
}

Session::~Session()
{
    m_window.SetEvents(nullptr);
}

// The frame is invisible for the system then: a graph divides an axis into tenths only if it is
// made before it is seen.
void Session::StopPainting()
{
    SendMessageW(m_window.Window(), WM_SETREDRAW, FALSE, 0);
}

void Session::ResumePainting()
{
    SendMessageW(m_window.Window(), WM_SETREDRAW, TRUE, 0);
    RedrawWindow(m_window.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

std::u16string Session::ShowChart()
{
    const bool visible = IsWindowVisible(m_window.Window()) != FALSE;
    if (visible)
        StopPainting();
    std::u16string description;
    try {
        description = m_document.options.chart == ChartKind::Graph ? MakeGraph() : MakeCategories();
    } catch (...) {
        if (visible)
            ResumePainting();
        throw;
    }
    if (visible) {
        ResumePainting();
        SetFocus(m_window.View()->Window());
    }
    ShowState();
    return description;
}

std::u16string Session::MakeGraph()
{
    const PlotPlan plan = MakePlan(m_document.table, m_document.options);
    auto view = std::make_unique<GraphView>(m_server, m_window.Window(), m_window.ChartPlace());
    view->Show(plan, m_document.options);
    m_business = nullptr;
    m_pie = nullptr;
    m_control.emplace(view->Graph());
    m_control->SetPageTexts(m_document.options.title, u"Vantoplex Viewer");
    m_window.SetView(std::move(view));
    return Describe(plan, m_document.name);
}

std::u16string Session::MakeCategories()
{
    const Options& options = m_document.options;
    const CategoryPlan plan = MakeCategoryPlan(m_document.table, options);
    const RECT place = m_window.ChartPlace();
    std::unique_ptr<ChartView> view;
    BusinessView* business = nullptr;
    PieView* pie = nullptr;
    if (options.chart == ChartKind::Pie3d) {
        auto made = std::make_unique<PieView>(m_server, m_window.Window(), place, plan, options);
        pie = made.get();
        view = std::move(made);
    } else {
        auto made = std::make_unique<BusinessView>(m_server, m_window.Window(), place, plan, options);
        business = made.get();
        view = std::move(made);
    }
    m_control.reset();
    m_business = business;
    m_pie = pie;
    m_window.SetView(std::move(view));
    if (!options.animation.empty())
        Animate(options.animation);
    return Describe(plan, m_document.name);
}

HWND Session::ChartWindow() const noexcept
{
    const ChartView* view = m_window.View();
    return view ? view->Window() : nullptr;
}

std::u16string Session::State() const
{
    std::u16string text(NameOfKind(m_document.options.chart));
    if (m_control) {
        text += u": " + std::u16string(OperationName(m_control->Operation())) + u", zoom depth " +
                ToText(static_cast<std::size_t>(m_control->ZoomDepth())) + u", " +
                ToText(static_cast<std::size_t>(m_control->CurveCount())) + u" curves";
    }
    return text;
}

bool Session::SaveGraph(const std::u16string& path, unsigned sections) const
{
    return m_control && m_control->Save(path, sections);
}

bool Session::LoadGraph(const std::u16string& path)
{
    if (!m_control)
        return false;
    auto& view = static_cast<GraphView&>(*m_window.View());
    const bool read = m_control->Load(path);
    if (!read || m_control->CurveCount() > 0) {
        // What a broken file leaves is no graph to work with; one with curves of its own is.
        if (!read)
            ShowChart();
        ShowState();
        return read;
    }
    view.Refill(MakePlan(m_document.table, m_document.options), m_document.options);
    ShowState();
    return true;
}

MenuState Session::StateOfMenu() const
{
    MenuState state;
    const Options& options = m_document.options;
    state.kind = options.chart;
    state.animation = options.animation;
    state.style = options.style;
    state.order = options.order;
    state.span = m_span;
    state.follows = m_followed.has_value();
    state.recent = m_scripted ? std::vector<std::u16string>() : RecentFiles::List();
    state.legend = options.legend;
    if (m_control) {
        state.operation = m_control->Operation();
        state.legend = m_control->ShowsLegend();
        state.snap = m_control->SnapsCursor();
        state.curve = m_control->CurrentCurve();
        auto& graph = static_cast<const GraphView&>(*m_window.View()).Graph();
        for (int curve = 0; curve < m_control->CurveCount(); ++curve)
            state.curves.push_back(NameOfCurve(graph, curve));
    }
    return state;
}

void Session::ShowState()
{
    using Part = MainWindow::StatusPart;
    const bool graph = m_control.has_value();
    const int operation = graph ? m_control->Operation() : 0;
    m_window.ShowTools(graph, operation);
    const std::size_t depth = graph ? static_cast<std::size_t>(m_control->ZoomDepth()) : 0;
    m_window.SetStatus(Part::Zoom, !graph      ? std::u16string()
                                   : m_isReset ? u"whole"
                                               : u"zoom " + ToText(depth));
    m_window.SetStatus(Part::Operation,
                       graph ? OperationName(operation) : NameOfKind(m_document.options.chart));
    m_window.SetTitle(m_document.name + u" - Vantoplex Viewer");
}

} // namespace Viewer
