#include "GraphHand.h"

#include "net/Data.h"

void GraphHand::Create(Stage& stage)
{
    Stage::Try([&] { m_graph = stage.TheServer().Make<SGraph, ISGraph>(); });
    RECT rect = {10, 10, 610, 410};
    if (m_graph)
        Stage::Try([&] { m_graph->Create(nullptr, &rect, stage.Parent(), 7); });
}

HWND GraphHand::Window() const
{
    wireHWND hWnd = nullptr;
    if (m_graph)
        m_graph->GetHandle(&hWnd);
    return reinterpret_cast<HWND>(hWnd);
}

int GraphHand::Count(HRESULT (STDMETHODCALLTYPE ISGraph::*pfn)(int*)) const
{
    int nCount = 0;
    (m_graph.Get()->*pfn)(&nCount);
    return nCount;
}

Holder<ISGraphAxis> GraphHand::XAxis(int nAxis) const
{
    Holder<ISGraphAxis> axis;
    if (nAxis < Count(&ISGraph::GetXAxisCount))
        Stage::Try([&] { m_graph->GetXAxis(axis.Out(), nAxis); });
    return axis;
}

Holder<ISGraphAxis> GraphHand::YAxis(int nAxis) const
{
    Holder<ISGraphAxis> axis;
    if (nAxis < Count(&ISGraph::GetYAxisCount))
        Stage::Try([&] { m_graph->GetYAxis(axis.Out(), nAxis); });
    return axis;
}

Holder<ISGraphDataSerie> GraphHand::Curve(int nCurve) const
{
    Holder<ISGraphDataSerie> curve;
    if (nCurve < Count(&ISGraph::GetCurveCount))
        Stage::Try([&] { m_graph->GetCurve(curve.Out(), nCurve); });
    return curve;
}

RECT GraphHand::Inner() const
{
    const auto x = XAxis(0);
    const auto y = YAxis(0);
    RECT across = {}, down = {};
    if (x && y) {
        x->GetRect(&across);
        y->GetRect(&down);
    }
    return {across.left, down.top, across.right, down.bottom};
}

void GraphHand::Send(WPARAM nCommand) const
{
    Stage::Try([&] { ::SendMessageW(Window(), WM_COMMAND, nCommand, 0); });
}

void GraphHand::Mouse(UINT message, POINT at, WPARAM nKeys) const
{
    ::SendMessageW(Window(), message, nKeys, MAKELPARAM(at.x, at.y));
}

void GraphHand::Drag(POINT from, POINT to) const
{
    Mouse(WM_MOUSEMOVE, from);
    Mouse(WM_LBUTTONDOWN, from, MK_LBUTTON);
    Mouse(WM_MOUSEMOVE, {(from.x + to.x) / 2, (from.y + to.y) / 2}, MK_LBUTTON);
    ::UpdateWindow(Window());
    Mouse(WM_MOUSEMOVE, to, MK_LBUTTON);
    Mouse(WM_LBUTTONUP, to);
    ::UpdateWindow(Window());
}

void GraphHand::PlotCurve(int nCurve, int nXAxis, int nYAxis)
{
    // A number that leaves a gap would end the process.
    if (Count(&ISGraph::GetCurveCount) < nCurve || Count(&ISGraph::GetXAxisCount) < nXAxis ||
        Count(&ISGraph::GetYAxisCount) < nYAxis)
        return;
    // A curve that is there takes the array as it is, and none that the host wants back.
    static std::vector<TDataPoint> arrays[4];
    auto& points = arrays[nCurve] = Data::Wave(Scale::linear, 40, nCurve + 1);
    const long bOwn = nCurve < Count(&ISGraph::GetCurveCount) ? 0 : 1;
    Holder<ISGraphDataSerie> curve;
    Stage::Try([&] {
        m_graph->SetData(curve.Out(), points.data(), static_cast<long>(points.size()), nCurve, nXAxis,
                         nYAxis, bOwn);
    });
}

void GraphHand::SetAxes()
{
    if (const auto axis = XAxis(0)) {
        Stage::Try([&] { axis->SetLabel(Text(L"length in metres, which is long")); });
        Stage::Try([&] { axis->SetAxisMarker(0, 5, 0xFF0000, PS_DASH); });
        long nMarkers = 0;
        axis->GetAxisMarkerCount(&nMarkers);
        if (nMarkers > 0)
            Stage::Try([&] { axis->SetMaskerLabel(0, Text(L"a marker with a long text")); });
        Stage::Try(
            [&] { axis->SetColorRange(0, 2, 4, 0xFFE0C0, 0xC0E0FF, Text(L"a range with a text"), 6); });
    }
    if (const auto axis = YAxis(0)) {
        Stage::Try([&] { axis->SetDisplayFmt(Text(L"about %.3f newton")); });
        Stage::Try([&] { axis->SetAxisMarker(0, 50, 0x00FF00, PS_SOLID); });
        axis->SetShowGrid(1);
    }
    if (const auto axis = YAxis(1))
        Stage::Try([&] { axis->SetAxisType(atLog); });
    if (const auto axis = XAxis(1)) {
        axis->SetDateTime(1);
        Stage::Try([&] { axis->SetDisplayFmt(Text(L"%d.%m.%Y")); });
    }
}

void GraphHand::SetCurves()
{
    if (const auto curve = Curve(0)) {
        Stage::Try([&] { curve->SetLabel(Text(L"a curve with a long name")); });
        curve->SetShowMarker(1);
        curve->SetMarker(4);
        curve->SetMarkerSize(9);
        curve->SetLineSize(2);
        for (const auto pfn : {&ISGraphDataSerie::GetLinearTrend, &ISGraphDataSerie::GetCubicTrend}) {
            TDataPoint* pPoints = nullptr;
            Stage::Try([&] { (curve.Get()->*pfn)(&pPoints, 3); });
            Platform::Forget(pPoints);
            ::CoTaskMemFree(pPoints);
        }
        for (const auto pfn : {&ISGraphDataSerie::GetSimpleMovingAverage,
                               &ISGraphDataSerie::GetSineWeightedMovingAverage}) {
            TDataPoint* pPoints = nullptr;
            Stage::Try([&] { (curve.Get()->*pfn)(&pPoints, 5); });
            Platform::Forget(pPoints);
            ::CoTaskMemFree(pPoints);
        }
        BSTR label = nullptr;
        Stage::Try([&] { curve->GetLabel(&label); });
        Platform::Forget(label);
        ::SysFreeString(label);
    }
    if (const auto curve = Curve(1)) {
        curve->SetFillBeneath(1, -1);
        curve->SetFillColor(0xC0FFC0);
        curve->SetFillTransparent(1);
    }
    if (const auto curve = Curve(2))
        curve->SetType(gtScatter);
}

void GraphHand::AddObjects(Stage& stage)
{
    RECT rect = {150, 60, 260, 110};
    Holder<ISGraphLabel> label;
    Stage::Try([&] { m_graph->InsertLabel(Text(L"a label with a long text"), &rect, label.Out()); });
    if (label) {
        label->SetBorder(1);
        label->SetTransparent(0);
        LOGFONTW font = {};
        font.lfHeight = -13;
        ::lstrcpyW(font.lfFaceName, L"Arial");
        Stage::Try([&] { label->SetFont(reinterpret_cast<unsigned int*>(&font)); });
    }
    if (Count(&ISGraph::GetCurveCount) > 0)
        Stage::Try([&] { m_graph->InsertDataNotation(0, 8); });
    Holder<ISGraphBitmap> bitmap, inserted;
    Stage::Try([&] { bitmap = stage.TheServer().Make<SGraphBitmap, ISGraphBitmap>(); });
    RECT place = {300, 200, 340, 240};
    if (bitmap)
        Stage::Try([&] { m_graph->InsertBitmap(&place, bitmap.Get(), inserted.Out()); });
}

void GraphHand::Plot(Stage& stage)
{
    if (!Window())
        return;
    Stage::Try([&] { m_graph->ResetAll(); });
    PlotCurve(0, 0, 0);
    PlotCurve(1, 0, 1);
    PlotCurve(2, 1, 0);
    PlotCurve(3, 1, 1);
    PlotCurve(0, 0, 0); // replaced
    SetAxes();
    SetCurves();
    AddObjects(stage);
    m_graph->SetShowLegend(1);
    Stage::Try([&] { m_graph->SetPrintHeader(Text(L"a header of some length")); });
    Stage::Try([&] { m_graph->SetPrintFooter(Text(L"a footer of some length")); });
    if (Count(&ISGraph::GetCurveCount) > 0)
        Stage::Try([&] { m_graph->Autoscale(0, 0, 0); });
    Frame(Window());
}
