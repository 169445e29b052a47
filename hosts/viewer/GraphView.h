#pragma once
// A plan shown in an SGraph.

#include "viewer/ChartView.h"
#include "viewer/PlotPlan.h"

namespace Viewer
{

class GraphView : public ChartView
{
public:
    // Makes the graph window as a child of `parent`. The parent is still hidden: only then does
    // an axis that can't choose its step divide its range into tenths. Throws Error.
    GraphView(const ChartServer& server, HWND parent, const RECT& place);
    ~GraphView() override;

    // Into an empty graph.
    void Show(const PlotPlan& plan, const Options& options);
    // The same, keeping the settings of the graph itself as they are.
    void Refill(const PlotPlan& plan, const Options& options);

    [[nodiscard]] ISGraph& Graph() const noexcept { return *m_graph.Get(); }
    [[nodiscard]] HWND Window() const noexcept override { return m_window; }
    void MoveTo(const RECT& place) noexcept override;

private:
    void AddCurve(const Curve& curve, int index, bool points);
    void GiveRanges(const PlotPlan& plan);
    void SetAxis(ISGraphAxis& axis, const Axis& plan);

    ComPointer<ISGraph> m_graph;
    HWND m_window = nullptr;
};

} // namespace Viewer
