#include "viewer/GraphControl.h"

#include "viewer/AxisText.h"
#include "viewer/GraphCommands.h"
#include "viewer/StatusText.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Viewer
{

GraphControl::GraphControl(ISGraph& graph) : m_graph(graph), m_rounding(Rounding()) {}

bool GraphControl::Send(unsigned command)
{
    switch (command) {
    case VPX_COMMAND_LINEAR_TREND:
        return Analyse(Analysis::LinearTrend, 0);
    case VPX_COMMAND_CUBIC_TREND:
        return Analyse(Analysis::CubicTrend, 0);
    case VPX_COMMAND_MEASURE:
        m_mayHaveMeasures = true;
        break;
    case VPX_COMMAND_CURSOR:
        BindCursor();
        break;
    default:
        break;
    }
    const std::vector<LONG> rounding = Rounding();
    const bool done = m_graph.SendMessage(WM_COMMAND, command, 0) == S_OK;
    if (command == VPX_COMMAND_CURSOR) {
        // It takes the rounding from all axes, as panning does, though it moves none of them.
        SetRounding(rounding);
    } else if (command == VPX_COMMAND_RESET_ZOOM) {
        SetRounding(m_rounding);
        FitDateLabels();
    }
    return done;
}

template <class Action> void GraphControl::ForEachAxis(Action action) const
{
    int xCount = 0;
    int yCount = 0;
    Check(m_graph.GetXAxisCount(&xCount));
    Check(m_graph.GetYAxisCount(&yCount));
    ComPointer<ISGraphAxis> axis;
    for (int at = 0; at < xCount + yCount; ++at) {
        Check(at < xCount ? m_graph.GetXAxis(axis.Receive(), at)
                          : m_graph.GetYAxis(axis.Receive(), at - xCount));
        action(*axis.Get());
    }
}

std::vector<LONG> GraphControl::Rounding() const
{
    std::vector<LONG> rounding;
    ForEachAxis([&](ISGraphAxis& axis) {
        rounding.push_back(0);
        Check(axis.GetAutoScale(&rounding.back()));
    });
    return rounding;
}

void GraphControl::SetRounding(const std::vector<LONG>& rounding)
{
    std::size_t at = 0;
    ForEachAxis([&](ISGraphAxis& axis) {
        if (at < rounding.size())
            Check(axis.SetAutoScale(rounding[at++]));
    });
}

void GraphControl::FitDateLabels()
{
    wireHWND window = nullptr;
    int count = 0;
    Check(m_graph.GetHandle(&window));
    Check(m_graph.GetXAxisCount(&count));
    RECT client{};
    GetClientRect(FromWire(window), &client);
    for (int at = 0; at < count; ++at) {
        ComPointer<ISGraphAxis> axis;
        Check(m_graph.GetXAxis(axis.Receive(), at));
        LONG date = 0;
        double low = 0;
        double high = 0;
        Check(axis->GetDateTime(&date));
        Check(axis->GetValueForPos(0, &low));
        Check(axis->GetValueForPos(client.right, &high));
        if (date && low < high)
            Check(axis->SetDisplayFmt(Bstr(DateFormatFor(low, high)).Get()));
    }
}

ComPointer<ISGraphAxis> GraphControl::YAxis(int axis) const
{
    ComPointer<ISGraphAxis> found;
    Check(m_graph.GetYAxis(found.Receive(), axis));
    return found;
}

// Stored measures take their texts from the cursor's curve, so there has to be one.
void GraphControl::BindCursor()
{
    Check(m_graph.ForceSnap(m_mayHaveMeasures ? CurrentCurve() : -1));
}

bool GraphControl::Analyse(Analysis analysis, int parameter)
{
    const int curve = CurrentCurve();
    return curve >= 0 && AddAnalysis(m_graph, curve, analysis, parameter);
}

void GraphControl::DeleteMeasures()
{
    Check(m_graph.DeleteMeasures());
    m_mayHaveMeasures = Operation() == opMeasure;
    BindCursor();
    Check(m_graph.Invalidate(TRUE));
}

int GraphControl::Operation() const
{
    EOperation operation = opNone;
    Check(m_graph.GetOperation(&operation));
    return operation;
}

void GraphControl::SetOperation(int operation)
{
    if (const unsigned command = CommandOf(operation); command != 0)
        Send(command);
}

int GraphControl::ZoomDepth() const
{
    int depth = 0;
    Check(m_graph.GetZoomDepth(&depth));
    return depth;
}

int GraphControl::CurveCount() const
{
    int count = 0;
    Check(m_graph.GetCurveCount(&count));
    return count;
}

int GraphControl::CurrentCurve() const
{
    return std::min(m_curve, CurveCount() - 1);
}

void GraphControl::ChooseCurve(int curve)
{
    m_curve = std::clamp(curve, 0, std::max(CurveCount() - 1, 0));
    if (Operation() == opCursor)
        BindCursor();
}

bool GraphControl::ShowsLegend() const
{
    LONG shown = 0;
    Check(m_graph.GetShowLegend(&shown));
    return shown != 0;
}

void GraphControl::ToggleLegend()
{
    Check(m_graph.SetShowLegend(!ShowsLegend()));
    Check(m_graph.Invalidate(TRUE));
}

bool GraphControl::SnapsCursor() const
{
    LONG snaps = 0;
    Check(m_graph.GetSnapCursor(&snaps));
    return snaps != 0;
}

void GraphControl::ToggleSnap()
{
    Check(m_graph.SetSnapCursor(!SnapsCursor()));
}

ComPointer<ISGraphDataSerie> GraphControl::Curve(int curve) const
{
    ComPointer<ISGraphDataSerie> serie;
    Check(m_graph.GetCurve(serie.Receive(), curve));
    return serie;
}

std::u16string GraphControl::Reading() const
{
    const int curve = CurrentCurve();
    if (curve < 0)
        return {};
    TDataPoint point{};
    Check(m_graph.GetCursorAbsolute(curve, &point));
    const ComPointer<ISGraphDataSerie> serie = Curve(curve);
    int xAxis = 0;
    int yAxis = 0;
    Check(serie->GetXAxis(&xAxis));
    Check(serie->GetYAxis(&yAxis));
    LONG dateX = 0;
    LONG dateY = 0;
    ComPointer<ISGraphAxis> axis;
    Check(m_graph.GetXAxis(axis.Receive(), xAxis));
    Check(axis->GetDateTime(&dateX));
    Check(m_graph.GetYAxis(axis.Receive(), yAxis));
    Check(axis->GetDateTime(&dateY));
    const std::u16string name = NameOfCurve(m_graph, curve);
    return CursorText({name, point.fXVal, point.fYVal, dateX != 0, dateY != 0});
}

int GraphControl::PixelOnCurve(int curve, int x) const
{
    LONG oldX = 0;
    LONG oldY = 0;
    Check(m_graph.GetCursor(&oldX, &oldY));
    Check(m_graph.SetCursor(x, oldY));
    TDataPoint point{};
    const HRESULT result = m_graph.GetCursorAbsolute(curve, &point);
    Check(m_graph.SetCursor(oldX, oldY));
    Check(result);

    int yAxis = 0;
    Check(Curve(curve)->GetYAxis(&yAxis));
    const ComPointer<ISGraphAxis> axis = YAxis(yAxis);
    // A linear axis, for which the graph returns values of pixels alone.
    constexpr int distant = 10000;
    double atTop = 0;
    double atFar = 0;
    Check(axis->GetValueForPos(0, &atTop));
    Check(axis->GetValueForPos(distant, &atFar));
    const double pixel = (point.fYVal - atTop) / (atFar - atTop) * distant;
    return std::isfinite(pixel) ? static_cast<int>(std::clamp(std::round(pixel), -30000.0, 30000.0)) : 0;
}

bool GraphControl::Save(const std::u16string& path, unsigned sections) const
{
    return m_graph.Save(Bstr(path).Get(), sections) == S_OK;
}

bool GraphControl::Load(const std::u16string& path)
{
    // A file brings objects of its own; nothing is left that the cursor could be bound to.
    Check(m_graph.ForceSnap(-1));
    Check(m_graph.NoOp());
    Check(m_graph.DeleteMeasures());
    m_mayHaveMeasures = false;
    return m_graph.Load(Bstr(path).Get()) == S_OK;
}

void GraphControl::SetPageTexts(std::u16string_view header, std::u16string_view footer)
{
    Check(m_graph.SetPrintHeader(Bstr(header).Get()));
    Check(m_graph.SetPrintFooter(Bstr(footer).Get()));
}

} // namespace Viewer
