#include "GraphActor.h"

#include <algorithm>
#include <cwchar>

namespace
{
constexpr int MostCurves = 6, mostAxes = 3;
} // namespace

std::unique_ptr<Actor> Actors::MakeGraph(const Server& server, wireHWND parent, const RECT& place)
{
    return std::make_unique<GraphActor>(server, parent, place);
}

GraphActor::GraphActor(const Server& server, wireHWND parent, const RECT& place)
    : m_server(server), m_graph(server.Make<SGraph, ISGraph>())
{
    RECT rect = place;
    m_graph->Create(nullptr, &rect, parent, 7);
    m_hWnd = Window();
}

HWND GraphActor::Window() const
{
    wireHWND wire = nullptr;
    m_graph->GetHandle(&wire);
    return reinterpret_cast<HWND>(wire);
}

void GraphActor::Act(Random& random, Log& log)
{
    static const Step steps[] = {
        &GraphActor::Plot,        &GraphActor::Plot,        &GraphActor::Replace,
        &GraphActor::Structure,   &GraphActor::Select,      &GraphActor::Settings,
        &GraphActor::SetAxis,     &GraphActor::AxisTexts,   &GraphActor::AxisBands,
        &GraphActor::SetCurve,    &GraphActor::SetCurve,    &GraphActor::Analyse,
        &GraphActor::AddLabel,    &GraphActor::AddNote,     &GraphActor::Operate,
        &GraphActor::Operate,     &GraphActor::Mouse,       &GraphActor::Mouse,
        &GraphActor::Mouse,       &GraphActor::Drag,        &GraphActor::Drag,
        &GraphActor::Drag,        &GraphActor::Keys,        &GraphActor::Cursor,
        &GraphActor::File,        &GraphActor::PrintOrSave, &GraphActor::Paint,
        &GraphActor::Paint,       &GraphActor::Size,        &GraphActor::MoreSettings,
        &GraphActor::SendCommand, &GraphActor::AskGraph,    &GraphActor::AskAxis,
        &GraphActor::AskCurve};
    const Step step = random.Of(steps);
    (this->*step)(random, log);
}

int GraphActor::Count(HRESULT (STDMETHODCALLTYPE ISGraph::*pfn)(int*)) const
{
    int nCount = 0;
    (m_graph.Get()->*pfn)(&nCount);
    return nCount;
}

int GraphActor::Curves() const
{
    return Count(&ISGraph::GetCurveCount);
}

std::vector<TDataPoint> GraphActor::Points(Random& random) const
{
    const int sizes[] = {1, 2, 5, 40, 700, 5000};
    std::vector<TDataPoint> points(static_cast<std::size_t>(random.Of(sizes)));
    const bool bOdd = random.OneIn(4), bAscending = !random.OneIn(4);
    double x = random.Real(-10, 10);
    for (TDataPoint& point : points) {
        x += bAscending ? random.Part() : random.Real(-1, 1);
        point = {bOdd ? Extremes::Value(random) : x,
                 bOdd ? Extremes::Value(random) : random.Real(-50, 50)};
    }
    return points;
}

void GraphActor::Plot(Random& random, Log& log)
{
    const int nCurve = Curves();
    const int nX = random.Int(0, std::min(Count(&ISGraph::GetXAxisCount), mostAxes - 1));
    const int nY = random.Int(0, std::min(Count(&ISGraph::GetYAxisCount), mostAxes - 1));
    if (nCurve >= MostCurves)
        return;
    s_lent.push_back(Points(random));
    const int bOwned = random.Int(0, 1);
    log.Say("SetData of %llu points, curve %d, axes %d %d, owned %d",
            static_cast<unsigned long long>(s_lent.back().size()), nCurve, nX, nY, bOwned);
    m_graph->SetData(nullptr, s_lent.back().data(), static_cast<long>(s_lent.back().size()), nCurve, nX,
                     nY, bOwned);
}

// Replaced data is the host's, whatever is passed: an array that is handed over is made by the
// module's allocator.
void GraphActor::Replace(Random& random, Log& log)
{
    if (Curves() == 0)
        return;
    const int nCurve = random.Int(0, Curves() - 1);
    s_lent.push_back(Points(random));
    log.Say("SetData replaces curve %d by %llu points", nCurve,
            static_cast<unsigned long long>(s_lent.back().size()));
    m_graph->SetData(nullptr, s_lent.back().data(), static_cast<long>(s_lent.back().size()), nCurve, 0,
                     0, 0);
}

void GraphActor::Forget()
{
    m_graph->NoOp();
    m_graph->DeleteMeasures();
    m_graph->ForceSnap(-1);
    m_bHadCursor = true;
    for (int i = 0; i < Curves(); ++i) {
        Holder<ISGraphDataSerie> curve;
        m_graph->GetCurve(curve.Out(), i);
        curve->SetFillBeneath(0, 0xFFFF);
    }
}

bool GraphActor::IsUsedXAxis(int nAxis) const
{
    for (int i = 0; i < Curves(); ++i) {
        Holder<ISGraphDataSerie> curve;
        int nUsed = 0;
        m_graph->GetCurve(curve.Out(), i);
        curve->GetXAxis(&nUsed);
        if (nUsed == nAxis)
            return true;
    }
    return false;
}

void GraphActor::Structure(Random& random, Log& log)
{
    const int nX = Count(&ISGraph::GetXAxisCount);
    const bool bLastIsUsed = IsUsedXAxis(nX - 1);
    switch (random.Int(0, 3)) {
    case 0:
        log.Say("ResetAll");
        Forget();
        m_graph->ResetAll();
        break;
    case 1:
        if (bLastIsUsed)
            return;
        log.Say("DeleteXAxis %d", nX - 1);
        m_graph->DeleteXAxis(nX - 1);
        break;
    case 2:
        log.Say("indices past the end");
        m_graph->DeleteXAxis(nX);
        m_graph->DeleteCurve(Curves());
        m_graph->DeleteYAxis(-1);
        break;
    default:
        if (Curves() == 0)
            return;
        log.Say("ResetAll and DeleteCurve of a new one");
        Forget();
        m_graph->ResetAll();
        Plot(random, log);
        m_graph->DeleteCurve(0);
        break;
    }
}

void GraphActor::Select(Random& random, Log& log)
{
    const int n = Extremes::Number(random, 0, 3);
    log.Say("Select %d", n);
    m_graph->SelectXAxis(n);
    m_graph->SelectYAxis(n);
    m_graph->SelectCurve(n);
}

void GraphActor::Settings(Random& random, Log& log)
{
    log.Say("settings");
    m_graph->SetDoubleBuffer(random.Int(0, 1));
    m_graph->SetShowLegend(random.Int(0, 1));
    m_graph->SetInteraction(random.OneIn(6) ? 0 : 1);
    m_graph->SetSnapCursor(random.Int(0, 1));
    m_graph->SetSnapRange(Extremes::Number(random, 0, 40));
    m_graph->SetLegendAlignment(static_cast<EAlignment>(Extremes::Number(random, 0, 3)));
    m_graph->SetCursorFlags(static_cast<unsigned>(Extremes::Number(random, 0, 15)));
}

void GraphActor::MoreSettings(Random& random, Log& log)
{
    log.Say("more settings");
    m_graph->SetBackColor(random.Color());
    m_graph->SetInnerColor(random.Color());
    m_graph->SetPrintHeader(Text(Extremes::String(random)));
    m_graph->SetPrintFooter(Text(Extremes::String(random)));
    if (random.OneIn(3))
        m_graph->SetGraphMargins(Extremes::Number(random, 0, 50), Extremes::Number(random, 0, 50),
                                 Extremes::Number(random, 0, 50), Extremes::Number(random, 0, 50));
    if (random.OneIn(3))
        m_graph->SetGraphMargins(5, 5, 5, 5);
}

Holder<ISGraphAxis> GraphActor::AnyAxis(Random& random, bool& bY) const
{
    Holder<ISGraphAxis> axis;
    const int nX = Count(&ISGraph::GetXAxisCount), nY = Count(&ISGraph::GetYAxisCount);
    bY = random.OneIn(2);
    if (bY && nY > 0)
        m_graph->GetYAxis(axis.Out(), random.Int(0, nY - 1));
    else if (!bY && nX > 0)
        m_graph->GetXAxis(axis.Out(), random.Int(0, nX - 1));
    return axis;
}

void GraphActor::SetAxis(Random& random, Log& log)
{
    bool bY = false;
    const auto axis = AnyAxis(random, bY);
    if (!axis)
        return;
    const int nArc = Extremes::Number(random, 0, 15), nTick = Extremes::Number(random, 0, 15),
              nMarker = Extremes::Number(random, 0, 20);
    log.Say("axis settings: arc %d, tick %d, marker %d", nArc, nTick, nMarker);
    axis->SetAxisType(static_cast<EAxisType>(Extremes::Number(random, 0, 1)));
    axis->SetDateTime(random.OneIn(3) ? 1 : 0);
    axis->SetAutoScale(random.Int(0, 1));
    axis->SetShowGrid(random.Int(0, 1));
    axis->SetShowMarker(random.Int(0, 1));
    axis->SetVisible(random.OneIn(5) ? 0 : 1);
    axis->SetGridStyle(static_cast<unsigned>(Extremes::Number(random, 0, 5)));
    axis->SetArcSize(nArc);
    axis->SetTickSize(nTick);
    axis->SetMarkerSize(nMarker);
    axis->SetPlacement(static_cast<EAxisPlacement>(Extremes::Number(random, 0, 2)));
}

void GraphActor::AxisTexts(Random& random, Log& log)
{
    bool bY = false;
    const auto axis = AnyAxis(random, bY);
    if (!axis)
        return;
    log.Say("axis texts");
    axis->SetLabel(Text(Extremes::String(random)));
    axis->SetDisplayFmt(Text(Extremes::String(random)));
    double value = 0;
    axis->GetValueForPos(Extremes::Number(random, 0, 500), &value);
}

// All Y axes get a marker together.
void GraphActor::AxisBands(Random& random, Log& log)
{
    bool bY = false;
    const auto axis = AnyAxis(random, bY);
    if (!axis)
        return;
    log.Say("bands and markers, y %d", bY);
    axis->SetColorRange(0, Extremes::Value(random), Extremes::Value(random), random.Color(),
                        random.Color(), Text(Extremes::String(random)),
                        static_cast<unsigned>(Extremes::Number(random, 0, 6)));
    axis->DeleteColorRange(Extremes::Number(random, 0, 2) | 1);
    for (int i = 0; bY && i < Count(&ISGraph::GetYAxisCount); ++i) {
        Holder<ISGraphAxis> one;
        m_graph->GetYAxis(one.Out(), i);
        one->SetAxisMarker(0, Extremes::Value(random), random.Color(), 0);
    }
    if (!bY)
        axis->SetAxisMarker(0, Extremes::Value(random), random.Color(), 0);
    axis->SetMaskerLabel(0, Text(Extremes::String(random)));
}

void GraphActor::SetCurve(Random& random, Log& log)
{
    if (Curves() == 0)
        return;
    const int nCurve = random.Int(0, Curves() - 1);
    log.Say("settings of curve %d", nCurve);
    Holder<ISGraphDataSerie> curve;
    m_graph->GetCurve(curve.Out(), nCurve);
    curve->SetType(static_cast<EGraphType>(Extremes::Number(random, 0, 1)));
    curve->SetLineSize(Extremes::Number(random, 0, 8));
    curve->SetLineStyle(static_cast<unsigned>(Extremes::Number(random, 0, 5)));
    curve->SetMarker(random.Int(0, 7));
    curve->SetMarkerType(Extremes::Number(random, 0, 2));
    curve->SetMarkerSize(Extremes::Number(random, 1, 15));
    curve->SetShowMarker(random.Int(0, 1));
    curve->SetVisible(random.OneIn(5) ? 0 : 1);
    curve->SetFillBeneath(random.Int(0, 1), random.OneIn(2) ? 0xFFFF : random.Int(0, Curves() - 1));
    curve->SetFillStyle(Extremes::Number(random, 0, 6));
    curve->SetFillTransparent(random.Int(0, 1));
    curve->SetLabel(Text(Extremes::String(random)));
}

void GraphActor::Analyse(Random& random, Log& log)
{
    if (Curves() == 0)
        return;
    Holder<ISGraphDataSerie> curve;
    m_graph->GetCurve(curve.Out(), random.Int(0, Curves() - 1));
    const int nSpan = random.Int(1, 20);
    log.Say("trends and averages of span %d", nSpan);
    const auto free = [](TDataPoint*& pPoints) { ::CoTaskMemFree(std::exchange(pPoints, nullptr)); };
    TDataPoint* pPoints = nullptr;
    curve->GetLinearTrend(&pPoints, nSpan);
    free(pPoints);
    curve->GetCubicTrend(&pPoints, nSpan);
    free(pPoints);
    curve->GetPolynomialTrend(&pPoints, random.Int(1, 25), nSpan);
    free(pPoints);
    curve->GetSimpleMovingAverage(&pPoints, nSpan);
    free(pPoints);
    curve->GetExponentialMovingAverage(&pPoints, nSpan);
    free(pPoints);
    curve->GetTriangularMovingAverage(&pPoints, nSpan);
    free(pPoints);
    curve->GetLinearMovingAverage(&pPoints, nSpan);
    free(pPoints);
    curve->GetSineWeightedMovingAverage(&pPoints, nSpan);
    free(pPoints);
}

void GraphActor::AddLabel(Random& random, Log& log)
{
    log.Say("a label");
    RECT rect = {Extremes::Number(random, 0, 300), Extremes::Number(random, 0, 200),
                 Extremes::Number(random, 50, 400), Extremes::Number(random, 50, 300)};
    Holder<ISGraphLabel> label;
    m_graph->InsertLabel(Text(Extremes::String(random)), random.OneIn(4) ? nullptr : &rect, label.Out());
    label->SetAlignment(static_cast<unsigned>(Extremes::Number(random, 0, 2)));
    label->SetBorder(random.Int(0, 1));
    label->SetTransparent(random.Int(0, 1));
    LOGFONTW font = {};
    font.lfHeight = Extremes::Number(random, -40, 40) % 300;
    wcscpy(font.lfFaceName, L"Arial");
    SetLabel(label.Get(), random);
    label->SetFont(reinterpret_cast<unsigned int*>(&font));
}

void GraphActor::AddNote(Random& random, Log& log)
{
    if (Curves() == 0)
        return;
    const int nCurve = random.Int(0, Curves() - 1);
    Holder<ISGraphDataSerie> curve;
    m_graph->GetCurve(curve.Out(), nCurve);
    long nCount = 0;
    curve->GetCount(&nCount);
    log.Say("a note on curve %d", nCurve);
    m_graph->InsertDataNotation(nCurve, random.Int(0, static_cast<int>(nCount) - 1));
}
