#include "viewer/GraphAnalysis.h"

#include "viewer/ChartView.h"
#include "viewer/Palette.h"
#include "viewer/PlainText.h"

#include <memory>

namespace Viewer
{
namespace
{

// The arrays that a curve hands out belong to the host.
struct TaskMemory {
    void operator()(TDataPoint* points) const noexcept { CoTaskMemFree(points); }
};
using Points = std::unique_ptr<TDataPoint, TaskMemory>;

Points WorkOut(ISGraphDataSerie& curve, Analysis analysis, int parameter)
{
    TDataPoint* points = nullptr;
    switch (analysis) {
    case Analysis::LinearTrend:
        Check(curve.GetLinearTrend(&points, 0));
        break;
    case Analysis::CubicTrend:
        Check(curve.GetCubicTrend(&points, 0));
        break;
    case Analysis::PolynomialTrend: // known by the number of its terms
        Check(curve.GetPolynomialTrend(&points, parameter + 1, 0));
        break;
    case Analysis::SimpleAverage:
        Check(curve.GetSimpleMovingAverage(&points, parameter));
        break;
    case Analysis::ExponentialAverage:
        Check(curve.GetExponentialMovingAverage(&points, parameter));
        break;
    case Analysis::LinearAverage:
        Check(curve.GetLinearMovingAverage(&points, parameter));
        break;
    case Analysis::TriangularAverage:
        Check(curve.GetTriangularMovingAverage(&points, parameter));
        break;
    }
    return Points(points);
}

} // namespace

bool AddAnalysis(ISGraph& graph, int curve, Analysis analysis, int parameter)
{
    ComPointer<ISGraphDataSerie> source;
    Check(graph.GetCurve(source.Receive(), curve));
    LONG count = 0;
    int xAxis = 0;
    int yAxis = 0;
    Check(source->GetCount(&count));
    Check(source->GetXAxis(&xAxis));
    Check(source->GetYAxis(&yAxis));
    const Points points = WorkOut(*source.Get(), analysis, parameter);
    if (!points || count == 0)
        return false;
    const std::u16string name = NameOfAnalysis(NameOfCurve(graph, curve), analysis, parameter);
    int curves = 0;
    Check(graph.GetCurveCount(&curves));
    ComPointer<ISGraphDataSerie> added;
    // With its own copy: this array goes when we return. The other curve's wrapper is stale then.
    Check(graph.SetData(added.Receive(), points.get(), count, curves, xAxis, yAxis, TRUE));
    Check(added->SetLabel(Bstr(name).Get()));
    Check(added->SetColor(ColorOf(static_cast<std::size_t>(curves))));
    Check(added->SetLineSize(2));
    Check(graph.Invalidate(TRUE));
    return true;
}

std::u16string NameOfAnalysis(std::u16string_view curve, Analysis analysis, int parameter)
{
    const std::u16string number = ToText(static_cast<std::size_t>(parameter));
    std::u16string name(curve);
    switch (analysis) {
    case Analysis::LinearTrend:
        return name + u" linear trend";
    case Analysis::CubicTrend:
        return name + u" cubic trend";
    case Analysis::PolynomialTrend:
        return name + u" trend of degree " + number;
    case Analysis::SimpleAverage:
        return name + u" average of " + number;
    case Analysis::ExponentialAverage:
        return name + u" exp. average of " + number;
    case Analysis::LinearAverage:
        return name + u" lin. average of " + number;
    case Analysis::TriangularAverage:
        return name + u" tri. average of " + number;
    }
    return name;
}

std::u16string NameOfCurve(ISGraph& graph, int curve)
{
    ComPointer<ISGraphDataSerie> serie;
    Check(graph.GetCurve(serie.Receive(), curve));
    BSTR label = nullptr;
    if (serie->GetLabel(&label) != S_OK || !label)
        return {};
    std::u16string text = FromWide({label, SysStringLen(label)});
    SysFreeString(label);
    return text;
}

} // namespace Viewer
