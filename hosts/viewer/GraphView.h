#pragma once
// A plan shown in an SGraph.

#include "viewer/ChartServer.h"
#include "viewer/PlotPlan.h"

#include <windows.h>

namespace Viewer
{

class GraphView
{
public:
    // Makes the graph window as a child of `parent`. The parent is still hidden: only then does
    // an axis that can't choose its step divide its range into tenths. Throws Error.
    GraphView(const ChartServer& server, HWND parent, const RECT& place);

    // To be called once.
    void Show(const PlotPlan& plan, const Options& options);

    void MoveTo(const RECT& place) noexcept;
    [[nodiscard]] HWND Window() const noexcept { return m_window; }

private:
    void AddCurve(const Curve& curve, int index, bool points);
    void GiveRanges(const PlotPlan& plan);
    void SetAxis(ISGraphAxis& axis, const Axis& plan);

    ComPointer<ISGraph> m_graph;
    HWND m_window = nullptr;
};

} // namespace Viewer
