#include "viewer/GraphView.h"

#include "viewer/Palette.h"

#include <array>
#include <vector>

namespace Viewer
{
namespace
{

std::vector<TDataPoint> ToServerPoints(const std::vector<Point>& points)
{
    std::vector<TDataPoint> result;
    result.reserve(points.size());
    for (const Point& point : points)
        result.push_back({point.x, point.y});
    return result;
}

} // namespace

GraphView::GraphView(const ChartServer& server, HWND parent, const RECT& place)
    : m_graph(server.MakeGraph())
{
    RECT rectangle = place;
    Check(m_graph->Create(Bstr(u"").Get(), &rectangle, ToWire(parent), ChartId));
    m_window = HandleOf(*m_graph.Get());
}

// A graph's window doesn't go with its object.
GraphView::~GraphView()
{
    if (IsWindow(m_window))
        DestroyWindow(m_window);
}

void GraphView::Show(const PlotPlan& plan, const Options& options)
{
    Check(m_graph->SetInnerColor(RGB(0xFC, 0xFC, 0xFC)));
    Check(m_graph->SetShowLegend(options.legend));
    Refill(plan, options);
}

void GraphView::Refill(const PlotPlan& plan, const Options& options)
{
    for (std::size_t at = 0; at < plan.curves.size(); ++at)
        AddCurve(plan.curves[at], static_cast<int>(at), options.points);
    GiveRanges(plan);

    ComPointer<ISGraphAxis> axis;
    Check(m_graph->GetXAxis(axis.Receive(), 0));
    SetAxis(*axis.Get(), plan.x);
    Check(axis->SetShowMarker(0));
    for (std::size_t at = 0; at < plan.y.size(); ++at) {
        Check(m_graph->GetYAxis(axis.Receive(), static_cast<int>(at)));
        SetAxis(*axis.Get(), plan.y[at]);
        Check(axis->SetPlacement(at == 0 ? apLeft : apRight));
        // One grid is enough; keys and colours show which curve goes with which axis.
        Check(axis->SetShowGrid(at == 0));
        Check(axis->SetShowMarker(plan.y.size() > 1));
        if (plan.y.size() == 2 && plan.curves.size() == 2)
            Check(axis->SetColor(ColorOf(at)));
    }
    Check(m_graph->Invalidate(TRUE));
}

void GraphView::AddCurve(const Curve& curve, int index, bool points)
{
    std::vector<TDataPoint> data = ToServerPoints(curve.points);
    ComPointer<ISGraphDataSerie> serie;
    // The graph makes a copy of its own.
    Check(m_graph->SetData(serie.Receive(), data.data(), static_cast<long>(data.size()), index, 0,
                           curve.yAxis, TRUE));
    Check(serie->SetLabel(Bstr(curve.label).Get()));
    Check(serie->SetColor(ColorOf(static_cast<std::size_t>(index))));
    // A line needs two points to be seen, and a single one some size.
    if (data.size() == 1) {
        constexpr int radius = 4;
        Check(serie->SetLineSize(radius));
    }
    Check(serie->SetType(points || data.size() == 1 ? gtScatter : gtLine));
}

// An axis takes its range from data alone. A curve that spans the wanted range widens it; the
// range stays when the curve goes.
void GraphView::GiveRanges(const PlotPlan& plan)
{
    const Point first = plan.curves.front().points.front();
    for (std::size_t at = 0; at < plan.y.size(); ++at) {
        const Axis& y = plan.y[at];
        if (plan.x.autoScale && y.autoScale)
            continue;
        std::array<TDataPoint, 2> corners = {{{plan.x.low, y.low}, {plan.x.high, y.high}}};
        if (plan.x.autoScale)
            corners[0].fXVal = corners[1].fXVal = first.x;
        const int helper = static_cast<int>(plan.curves.size());
        Check(m_graph->SetData(nullptr, corners.data(), 2, helper, 0, static_cast<int>(at), TRUE));
        Check(m_graph->DeleteCurve(helper));
    }
}

void GraphView::SetAxis(ISGraphAxis& axis, const Axis& plan)
{
    Check(axis.SetLabel(Bstr(plan.title).Get()));
    Check(axis.SetDateTime(plan.date));
    Check(axis.SetDisplayFmt(Bstr(plan.format).Get()));
    Check(axis.SetAutoScale(plan.autoScale));
}

void GraphView::MoveTo(const RECT& place) noexcept
{
    MoveWindow(m_window, place.left, place.top, place.right - place.left, place.bottom - place.top,
               TRUE);
}

} // namespace Viewer
