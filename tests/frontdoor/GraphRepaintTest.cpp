// Which calls of a host repaint the graph, and which wait for its Invalidate.

#include "InteractionHost.h"

#include <functional>
#include <utility>
#include <vector>

namespace
{

using Calls = std::vector<std::pair<const char*, std::function<void()>>>;

class GraphRepaint : public FrontDoorInteraction
{
protected:
    void ExpectEach(const Calls& calls, bool bRepaints)
    {
        for (const auto& [name, call] : calls) {
            Clean();
            call();
            EXPECT_EQ(IsDirty(), bRepaints) << name;
        }
    }

    std::vector<TDataPoint> points = Line();
    Text text{L"text"};
};

} // namespace

TEST_F(GraphRepaint, DataSelectionsAndOperationsRepaint)
{
    TDataPoint point = {5, 5};
    ExpectEach({{"SetData, new", [&] { AddLine(1); }},
                {"SetData, replaced", [&] { graph->SetData(nullptr, points.data(), 11, 1, 0, 0, 0); }},
                {"SelectXAxis", [&] { graph->SelectXAxis(0); }},
                {"SelectYAxis", [&] { graph->SelectYAxis(0); }},
                {"SelectCurve", [&] { graph->SelectCurve(0); }},
                {"InsertDataNotation", [&] { graph->InsertDataNotation(0, 1); }},
                {"Edit", [&] { graph->Edit(); }},
                {"Zoom", [&] { graph->Zoom(); }},
                {"ResetZoom", [&] { graph->ResetZoom(); }},
                {"Pan", [&] { graph->Pan(); }},
                {"Measure", [&] { graph->Measure(); }},
                {"NoOp", [&] { graph->NoOp(); }},
                {"SetCursorAbsolute", [&] { graph->SetCursorAbsolute(0, &point, 0); }},
                {"SetAxisMarker", [&] { XAxis()->SetAxisMarker(0, 5, 0, 0); }},
                {"SetColorRange", [&] { XAxis()->SetColorRange(0, 1, 2, 3, 4, text, 6); }},
                {"insert label", [&] { Send(Command::insertLabel); }},
                {"cursor", [&] { Send(Command::cursor); }},
                {"zoom back", [&] { Send(Command::zoomBack); }},
                {"Invalidate", [&] { graph->Invalidate(0); }}},
               true);
}

TEST_F(GraphRepaint, CallsThatDoNothingRepaintNothing)
{
    ExpectEach({{"SetData, null", [&] { graph->SetData(nullptr, nullptr, 11, 1, 0, 0, 0); }},
                {"SetData, none", [&] { graph->SetData(nullptr, points.data(), 0, 1, 0, 0, 0); }},
                {"SelectXAxis", [&] { graph->SelectXAxis(1); }},
                {"SelectYAxis", [&] { graph->SelectYAxis(-1); }},
                {"SelectCurve", [&] { graph->SelectCurve(1); }},
                {"DeleteCurve", [&] { graph->DeleteCurve(1); }},
                {"Cursor", [&] { graph->Cursor(); }},
                {"pass on", [&] { Send(Command::passOn); }}},
               false);
}

TEST_F(GraphRepaint, RemovalsAndLabelsWaitForTheHost)
{
    AddLine(1);
    AddLine(2, 1, 1);
    ExpectEach({{"InsertLabel", [&] { graph->InsertLabel(text, nullptr, nullptr); }},
                {"Autoscale", [&] { graph->Autoscale(0, 0, 0); }},
                {"DeleteMeasures", [&] { graph->DeleteMeasures(); }},
                {"DeleteCurve", [&] { graph->DeleteCurve(2); }},
                {"DeleteYAxis", [&] { graph->DeleteYAxis(1); }},
                {"DeleteXAxis", [&] { graph->DeleteXAxis(0); }},
                {"ResetAll", [&] { graph->ResetAll(); }}},
               false);
}

TEST_F(GraphRepaint, SettingsOfTheGraphWaitForTheHost)
{
    ExpectEach({{"SetGraphMargins", [&] { graph->SetGraphMargins(9, 9, 9, 9); }},
                {"SetBackColor", [&] { graph->SetBackColor(1); }},
                {"SetGraphColor", [&] { graph->SetGraphColor(1); }},
                {"SetInnerColor", [&] { graph->SetInnerColor(1); }},
                {"SetDoubleBuffer", [&] { graph->SetDoubleBuffer(0); }},
                {"SetShowLegend", [&] { graph->SetShowLegend(1); }},
                {"SetInteraction", [&] { graph->SetInteraction(0); }},
                {"SetSnapCursor", [&] { graph->SetSnapCursor(0); }},
                {"SetLegendAlignment", [&] { graph->SetLegendAlignment(left); }},
                {"SetSnapRange", [&] { graph->SetSnapRange(3); }},
                {"SetPrintHeader", [&] { graph->SetPrintHeader(text); }},
                {"SetPrintFooter", [&] { graph->SetPrintFooter(text); }},
                {"SetCursor", [&] { graph->SetCursor(3, 4); }},
                {"SetCursorFlags", [&] { graph->SetCursorFlags(15); }},
                {"ForceSnap", [&] { graph->ForceSnap(0); }},
                {"SetBackgroundBitmap", [&] { graph->SetBackgroundBitmap(nullptr, 0); }}},
               false);
}

TEST_F(GraphRepaint, SettingsOfAnAxisWaitForTheHost)
{
    const auto axis = XAxis();
    axis->SetAxisMarker(0, 5, 0, 0);
    axis->SetColorRange(0, 1, 2, 3, 4, text, 6);
    axis->SetColorRange(1, 1, 2, 3, 4, text, 6);
    ExpectEach({{"SetVisible", [&] { axis->SetVisible(0); }},
                {"SetSelected", [&] { axis->SetSelected(1); }},
                {"SetColor", [&] { axis->SetColor(1); }},
                {"SetAxisType", [&] { axis->SetAxisType(atLog); }},
                {"SetShowMarker", [&] { axis->SetShowMarker(1); }},
                {"SetDateTime", [&] { axis->SetDateTime(1); }},
                {"SetShowGrid", [&] { axis->SetShowGrid(0); }},
                {"SetAutoScale", [&] { axis->SetAutoScale(1); }},
                {"SetArcSize", [&] { axis->SetArcSize(3); }},
                {"SetMarkerSize", [&] { axis->SetMarkerSize(3); }},
                {"SetTickSize", [&] { axis->SetTickSize(3); }},
                {"SetGridStyle", [&] { axis->SetGridStyle(1); }},
                {"SetLabel", [&] { axis->SetLabel(text); }},
                {"SetDisplayFmt", [&] { axis->SetDisplayFmt(text); }},
                {"SetGridColor", [&] { axis->SetGridColor(1); }},
                {"SetPlacement", [&] { axis->SetPlacement(apRight); }},
                {"SetMaskerLabel", [&] { axis->SetMaskerLabel(0, text); }},
                {"DeleteColorRange", [&] { axis->DeleteColorRange(0); }},
                {"DeleteAllColorRanges", [&] { axis->DeleteAllColorRanges(); }}},
               false);
}

TEST_F(GraphRepaint, SettingsOfACurveWaitForTheHost)
{
    const auto curve = Curve(0);
    ExpectEach({{"SetVisible", [&] { curve->SetVisible(0); }},
                {"SetSelected", [&] { curve->SetSelected(1); }},
                {"SetColor", [&] { curve->SetColor(1); }},
                {"SetLineSize", [&] { curve->SetLineSize(3); }},
                {"SetFillStyle", [&] { curve->SetFillStyle(3); }},
                {"SetMarkerType", [&] { curve->SetMarkerType(1); }},
                {"SetMarker", [&] { curve->SetMarker(3); }},
                {"SetMarkerSize", [&] { curve->SetMarkerSize(3); }},
                {"SetShowMarker", [&] { curve->SetShowMarker(1); }},
                {"SetFillColor", [&] { curve->SetFillColor(3); }},
                {"SetFillCurve", [&] { curve->SetFillCurve(0); }},
                {"SetFillBeneath", [&] { curve->SetFillBeneath(1, 0); }},
                {"SetFillTransparent", [&] { curve->SetFillTransparent(0); }},
                {"SetLabel", [&] { curve->SetLabel(text); }},
                {"SetType", [&] { curve->SetType(gtScatter); }},
                {"SetLineStyle", [&] { curve->SetLineStyle(1); }}},
               false);
}

TEST_F(GraphRepaint, SettingsOfALabelWaitForTheHost)
{
    const auto label = AddLabel({50, 50, 90, 90});
    LOGFONTW font = {};
    font.lfHeight = 20;
    ExpectEach({{"SetVisible", [&] { label->SetVisible(0); }},
                {"SetSelected", [&] { label->SetSelected(1); }},
                {"SetFont", [&] { label->SetFont(reinterpret_cast<UINT*>(&font)); }},
                {"SetText", [&] { label->SetText(text); }},
                {"SetColor", [&] { label->SetColor(1); }},
                {"SetTextColor", [&] { label->SetTextColor(1); }},
                {"SetBorder", [&] { label->SetBorder(0); }},
                {"SetTransparent", [&] { label->SetTransparent(1); }},
                {"SetAlignment", [&] { label->SetAlignment(1); }},
                {"SetCurve", [&] { label->SetCurve(2); }}},
               false);
}
