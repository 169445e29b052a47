// Curves and axes through the graph's interface.

#include "FrontDoorGraph.h"

#include <limits>

using GraphFrontDoorData = FrontDoorGraph;

namespace
{
constexpr int InvalidParameter = static_cast<int>(0xC0000417);
}

TEST_F(GraphFrontDoorData, ACurveIsPlottedInItsColour)
{
    auto curve = AddLine(0);
    ASSERT_TRUE(curve);
    EXPECT_EQ(curve->SetColor(0x0000FE), S_OK);
    XAxis()->SetShowMarker(0);
    YAxis()->SetShowMarker(0);
    graph->SetShowLegend(0);
    EXPECT_GT(Shoot().Count(0x0000FE), 100);
}

TEST_F(GraphFrontDoorData, NoPointsGiveAWrapperWithoutAHandle)
{
    auto points = Line();
    Holder<ISGraphDataSerie> curve;
    EXPECT_EQ(graph->SetData(curve.Out(), points.data(), 0, 0, 0, 0, 1), S_OK);
    ASSERT_TRUE(curve);
    LONG nCount = -77;
    EXPECT_EQ(curve->GetCount(&nCount), S_OK);
    EXPECT_EQ(nCount, -77);
    EXPECT_EQ(curve->GetCount(nullptr), S_OK);
    EXPECT_EQ(graph->SetData(curve.Out(), nullptr, 3, 0, 0, 0, 1), S_OK);
    EXPECT_TRUE(curve);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(GraphFrontDoorData, TheWrapperIsNotAskedForWithANullPointer)
{
    auto points = Line();
    EXPECT_EQ(graph->SetData(nullptr, points.data(), 11, 0, 0, 0, 1), S_OK);
    EXPECT_EQ(CurveCount(), 1);
    EXPECT_EQ(graph->GetXAxis(nullptr, 0), S_OK);
    EXPECT_EQ(graph->GetYAxis(nullptr, 0), S_OK);
    EXPECT_EQ(graph->GetCurve(nullptr, 0), S_OK);
}

TEST_F(GraphFrontDoorData, CountsFollowTheLists)
{
    AddLine(0, 0, 0);
    AddLine(1, 1, 0);
    AddLine(2, 1, 1);
    int nX = 0;
    int nY = 0;
    EXPECT_EQ(graph->GetXAxisCount(&nX), S_OK);
    EXPECT_EQ(graph->GetYAxisCount(&nY), S_OK);
    EXPECT_EQ(nX, 2);
    EXPECT_EQ(nY, 2);
    EXPECT_EQ(CurveCount(), 3);
    EXPECT_EQ(graph->DeleteCurve(1), S_OK);
    EXPECT_EQ(CurveCount(), 2);
    EXPECT_EQ(graph->DeleteXAxis(0), S_OK);
    EXPECT_EQ(graph->DeleteYAxis(0), S_OK); // takes the last X axis
    graph->GetXAxisCount(&nX);
    graph->GetYAxisCount(&nY);
    EXPECT_EQ(nX, 0);
    EXPECT_EQ(nY, 2);
    EXPECT_EQ(graph->DeleteCurve(99), S_OK);
    EXPECT_EQ(graph->DeleteXAxis(-1), S_OK);
    EXPECT_EQ(graph->ResetAll(), S_OK);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(GraphFrontDoorData, EachRequestMakesANewWrapperOfTheSameObject)
{
    AddLine(0);
    auto first = XAxis();
    auto second = XAxis();
    EXPECT_NE(first.Get(), second.Get());
    EXPECT_EQ(first->SetTickSize(17), S_OK);
    int nSize = 0;
    EXPECT_EQ(second->GetTickSize(&nSize), S_OK);
    EXPECT_EQ(nSize, 17);
}

TEST_F(GraphFrontDoorData, SelectionIsSeenThroughTheWrappers)
{
    AddLine(0);
    auto second = AddLine(1);
    EXPECT_EQ(graph->SelectCurve(1), S_OK);
    LONG bSelected = -1;
    EXPECT_EQ(second->GetSelected(&bSelected), S_OK);
    EXPECT_EQ(bSelected, 1);
    EXPECT_EQ(graph->SelectCurve(5), S_OK);
    second->GetSelected(&bSelected);
    EXPECT_EQ(bSelected, 1);
    EXPECT_EQ(graph->SelectXAxis(0), S_OK);
    XAxis()->GetSelected(&bSelected);
    EXPECT_EQ(bSelected, 1);
    EXPECT_EQ(graph->SelectYAxis(0), S_OK);
    YAxis()->GetSelected(&bSelected);
    EXPECT_EQ(bSelected, 1);
}

TEST_F(GraphFrontDoorData, TheCallersArrayIsReadInPlace)
{
    auto points = Line();
    Holder<ISGraphDataSerie> curve;
    graph->SetData(curve.Out(), points.data(), 11, 0, 0, 0, 0);
    graph->SetShowLegend(0);
    const Picture before = Shoot();
    points[5].fYVal = 9.5;
    EXPECT_GT(Shoot().CountDifferences(before), 10);
}

TEST_F(GraphFrontDoorData, ACopiedArrayIsTheGraphsOwn)
{
    auto points = Line();
    Holder<ISGraphDataSerie> curve;
    graph->SetData(curve.Out(), points.data(), 11, 0, 0, 0, 1);
    const Picture before = Shoot();
    points.assign(11, {0, 0});
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}

TEST_F(GraphFrontDoorData, AnArrayHandedOverIsFreedWithTheGraphsAllocator)
{
    AddLine(0);
    auto* pOwned = static_cast<TDataPoint*>(::CoTaskMemAlloc(11 * sizeof(TDataPoint)));
    const auto points = Line();
    std::copy(points.begin(), points.end(), pOwned);
    graph->SetData(nullptr, pOwned, 11, 0, 0, 0, 1); // replaces, so it becomes the curve's
    Shoot();
    EXPECT_EQ(graph->ResetAll(), S_OK);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(GraphFrontDoorData, AutoscaleUndoesAZoomedRange)
{
    AddLine(0);
    auto log = Server::Shared().Make<SGraphLogAxis, ISGraphLogAxis>();
    ASSERT_TRUE(log);
    EXPECT_EQ(graph->Autoscale(0, 0, 0), S_OK);
    Shoot();
    double fLeft = -1;
    RECT rect = {};
    XAxis()->GetRect(&rect);
    EXPECT_EQ(XAxis()->GetValueForPos(rect.left + 1, &fLeft), S_OK);
    EXPECT_EQ(fLeft, 0.0);
}

TEST_F(GraphFrontDoorData, LabelsAreInsertedWithAndWithoutARectangle)
{
    Shoot();
    RECT rect = {20, 30, 90, 70};
    Holder<ISGraphLabel> label;
    EXPECT_EQ(graph->InsertLabel(Text(L"placed"), &rect, label.Out()), S_OK);
    ASSERT_TRUE(label);
    RECT placed = {};
    EXPECT_EQ(label->GetRect(&placed), S_OK);
    EXPECT_EQ(placed.left, 20);
    EXPECT_EQ(placed.bottom, 70);
    Text text;
    EXPECT_EQ(label->GetText(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"placed");

    EXPECT_EQ(graph->InsertLabel(nullptr, nullptr, label.Out()), S_OK);
    label->GetRect(&placed);
    EXPECT_EQ(placed.right - placed.left, 100);
    EXPECT_EQ(placed.bottom - placed.top, 100);
    EXPECT_EQ(label->GetText(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"");
    EXPECT_EQ(graph->InsertLabel(Text(L"unasked"), nullptr, nullptr), S_OK);
}

TEST_F(GraphFrontDoorData, AHostileAmountOfPointsIsRefused)
{
    auto points = Line();
    EXPECT_EQ(graph->SetData(nullptr, points.data(), -5, 0, 0, 0, 1), S_OK);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(GraphFrontDoorData, DeathTest_IndicesOutsideEndTheProcess)
{
    AddLine(0);
    EXPECT_EXIT(graph->GetXAxis(nullptr, 1), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph->GetCurve(nullptr, -1), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(AddLine(5), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph->Autoscale(0, 3, 0), testing::ExitedWithCode(InvalidParameter), "");
}
