// What lies above what in a frame, and what is drawn before what.

#include "FrameRecording.h"
#include "NativeGraph.h"

#include <algorithm>
#include <string>
#include <vector>

namespace
{

constexpr COLORREF Fill = 0x30C010;

// Two level curves, at 2 and at 8, in a plot from 0 to 10.
class FrameOrder : public GraphTest
{
protected:
    FrameOrder()
    {
        graph.m_bShowLegend = false;
        for (const double fLevel : {2.0, 8.0}) {
            TDataPoint points[] = {{0, fLevel}, {5, fLevel}, {10, fLevel}};
            graph.SetData(points, 3, static_cast<int>(graph.m_Curves.size()), 0, 0, true);
        }
        graph.GetYAxis(0)->SetRange(0, 10);
        graph.Pan(); // no rounding of the ranges
        graph.NoOp();
        Paint();
    }
    CPoint At(double x, double y)
    {
        return {graph.m_XAxes[0].GetPointForValue({x, y}).x,
                graph.m_YAxes[0].GetPointForValue({x, y}).y};
    }
    // A filled box over most of the plot.
    CXGraphLabel* Cover()
    {
        CRect rect = graph.m_rcInner;
        rect.DeflateRect(10, 5);
        CXGraphLabel* label = graph.InsertLabel(rect, L"");
        label->m_crFillColor = Fill;
        return label;
    }
    void ExpectCovered(const Picture& picture, const CXGraphLabel& label)
    {
        CRect rect = label.m_rcObject;
        rect.DeflateRect(1, 1);
        EXPECT_EQ(picture.Count(rect, Fill), rect.Width() * rect.Height());
    }
};

} // namespace

TEST_F(FrameOrder, YAxesAreDrawnBeforeXAxesAndEachKindInTheOrderOfItsList)
{
    TDataPoint points[] = {{0, 1}, {10, 9}};
    graph.SetData(points, 2, 2, 1, 1, true);
    const std::wstring titles[] = {L"first y", L"second y", L"first x", L"second x"};
    graph.m_YAxes[0].m_cLabel = titles[0].c_str();
    graph.m_YAxes[1].m_cLabel = titles[1].c_str();
    graph.m_XAxes[0].m_cLabel = titles[2].c_str();
    graph.m_XAxes[1].m_cLabel = titles[3].c_str();
    std::vector<std::wstring> drawn;
    for (const auto& text : FrameRecording(graph).Texts()) {
        if (std::find(std::begin(titles), std::end(titles), text.text) != std::end(titles))
            drawn.push_back(text.text);
    }
    EXPECT_EQ(drawn, std::vector<std::wstring>(std::begin(titles), std::end(titles)));
}

TEST_F(FrameOrder, MarkersLieAboveTheLinesOfAllCurves)
{
    static TDataPoint level[] = {{0, 2}, {2.5, 2}, {5, 2}, {7.5, 2}, {10, 2}}; // each has a marker
    graph.SetData(level, 5, 0, 0, 0, false);
    CXGraphDataSerie& first = graph.m_Curves[0];
    first.m_bShowMarker = true;
    first.m_nMarkerType = 1; // a square
    first.m_nMarkerSize = 20;
    first.m_crColor = 0x0000FF;
    TDataPoint upright[] = {{4.95, 0}, {5.2, 10}}; // through the first curve's middle point
    graph.SetData(upright, 2, 2, 0, 0, true)->m_nLineSize = 5;
    graph.m_Curves[2].m_crColor = 0x00FF00;
    const Picture picture = Shoot();
    const CPoint middle = At(5, 2);
    EXPECT_EQ(picture.At(middle.x, middle.y - 5), 0x0000FFu);
    const CPoint above = At(5.05, 4); // on the other line
    EXPECT_EQ(picture.At(above.x, above.y), 0x00FF00u);
}

TEST_F(FrameOrder, MeasuresLieAboveCurvesAndBelowObjects)
{
    graph.m_Curves[0].m_nLineSize = 5;
    graph.m_nCursorCurve = 1;
    graph.m_MeasureTool.m_nMeasureCurve2 = 0;
    graph.m_Measures.push_back({1, 0, 0, 1});
    const CPoint end = At(5, 2);
    EXPECT_EQ(Shoot().At(end.x, end.y - 3), 0x0000FFu) << "the arrow at the end";
    ExpectCovered(Shoot(), *Cover());
}

TEST_F(FrameOrder, TheBandTheLiveMeasureAndTheCursorLieBelowObjects)
{
    const CXGraphLabel* cover = Cover();
    graph.m_nCursorFlags = XGC_HORIZ | XGC_VERT;
    graph.m_ptLButtonDown = CPoint(graph.m_rcInner.left + 40, graph.m_rcInner.top + 40);
    graph.m_ptCurrent = CPoint(graph.m_rcInner.right - 40, graph.m_rcInner.bottom - 40);
    graph.m_bLButtonDown = true;
    for (const EOperation operation : {opZoom, opMeasure, opCursor}) {
        graph.m_opOperation = operation;
        ExpectCovered(Shoot(), *cover);
    }
}

TEST_F(FrameOrder, TheCursorsBoxIsTheLowestObject)
{
    const CXGraphLabel* cover = Cover();
    graph.m_CursorLabel.m_rcObject = CRect(graph.m_rcInner.left + 40, graph.m_rcInner.top + 40,
                                           graph.m_rcInner.left + 90, graph.m_rcInner.top + 90);
    graph.m_CursorLabel.m_bVisible = true;
    graph.m_CursorLabel.m_crFillColor = 0xFF00FF;
    ExpectCovered(Shoot(), *cover);
    graph.Cursor(); // draws its box twice, both below
    ExpectCovered(Shoot(), *cover);
}

TEST_F(FrameOrder, TheValueOfADraggedPointLiesOnTop)
{
    const CXGraphLabel* cover = Cover();
    graph.m_PointDrag.m_bPointDragged = true;
    graph.m_PointDrag.m_fEditValue = 88888.88;
    graph.m_ptCurrent = graph.m_rcInner.CenterPoint();
    const Picture picture = Shoot();
    const CRect place(graph.m_ptCurrent.x + 10, graph.m_ptCurrent.y, graph.m_ptCurrent.x + 60,
                      graph.m_ptCurrent.y + 13);
    EXPECT_LT(picture.Count(place, Fill), place.Width() * place.Height() - 30);
    EXPECT_TRUE(cover->m_bVisible);
}
