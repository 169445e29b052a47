// Data entry: what SetData, Autoscale and the operations on the lists do.

#include "NativeGraph.h"

#include <cfloat>

namespace
{
using GraphData = GraphTest;

std::vector<TDataPoint> Some()
{
    return {{1, 5}, {4, -2}, {2, 9}};
}
} // namespace

TEST_F(GraphData, NothingIsTakenFromANullArrayOrWithoutPoints)
{
    auto points = Some();
    EXPECT_EQ(graph.SetData(nullptr, 3, 0, 0, 0, true), nullptr);
    EXPECT_EQ(graph.SetData(points.data(), 0, 0, 0, 0, true), nullptr);
    EXPECT_EQ(graph.SetData(points.data(), -1, 0, 0, 0, true), nullptr);
    EXPECT_TRUE(graph.m_Curves.empty());
    EXPECT_TRUE(graph.m_XAxes.empty());
    EXPECT_TRUE(graph.m_YAxes.empty());
}

TEST_F(GraphData, TheFirstCurveBringsItsAxesWithExactlyItsExtent)
{
    auto points = Some();
    CXGraphDataSerie* pCurve = graph.SetData(points.data(), 3, 0, 0, 0, false);
    ASSERT_EQ(graph.m_Curves.size(), 1u);
    ASSERT_EQ(graph.m_XAxes.size(), 1u);
    ASSERT_EQ(graph.m_YAxes.size(), 1u);
    EXPECT_EQ(pCurve, graph.GetCurve(0));
    EXPECT_EQ(pCurve->m_pGraph, &graph);
    EXPECT_EQ(graph.GetXAxis(0)->m_fMin, 1);
    EXPECT_EQ(graph.GetXAxis(0)->m_fMax, 4);
    EXPECT_EQ(graph.GetYAxis(0)->m_fCurMin, -2);
    EXPECT_EQ(graph.GetYAxis(0)->m_fCurMax, 9);
    EXPECT_EQ(graph.GetXAxis(0)->m_AxisKind, akXAxis);
    EXPECT_EQ(graph.GetYAxis(0)->m_AxisKind, akYAxis);
    EXPECT_EQ(graph.GetXAxis(0)->m_pGraph, &graph);
}

TEST_F(GraphData, ASinglePointGetsARangeOfOneToEachSide)
{
    TDataPoint point{3, 7};
    graph.SetData(&point, 1, 0, 0, 0, true);
    EXPECT_EQ(graph.GetXAxis(0)->m_fMin, 2);
    EXPECT_EQ(graph.GetXAxis(0)->m_fMax, 4);
    EXPECT_EQ(graph.GetYAxis(0)->m_fMin, 6);
    EXPECT_EQ(graph.GetYAxis(0)->m_fMax, 8);
}

TEST_F(GraphData, ANewCurveCopiesTheArrayOnlyWhenAsked)
{
    auto points = Some();
    CXGraphDataSerie* pCopied = graph.SetData(points.data(), 3, 0, 0, 0, true);
    EXPECT_NE(pCopied->m_pData, points.data());
    EXPECT_EQ(pCopied->m_pData[1].fYVal, -2);
    EXPECT_TRUE(pCopied->m_bAutoDelete);
    CXGraphDataSerie* pShared = graph.SetData(points.data(), 3, 1, 0, 0, false);
    EXPECT_EQ(pShared->m_pData, points.data());
    EXPECT_FALSE(pShared->m_bAutoDelete);
}

TEST_F(GraphData, TwelveColoursGoRoundByPosition)
{
    const COLORREF expected[] = {0x000080, 0x0000FF, 0x008080, 0x00FFFF, 0x008000, 0x00FF00, 0x808000,
                                 0xFFFF00, 0x800000, 0xFF0000, 0x800080, 0xFF00FF, 0x000080};
    for (const COLORREF color : expected)
        EXPECT_EQ(AddLine()->m_crColor, color);
}

TEST_F(GraphData, AReplacedCurveKeepsItsLooksAndTakesTheNewAxes)
{
    auto points = Some();
    CXGraphDataSerie* pCurve = AddLine();
    pCurve->m_cLabel = L"kept";
    pCurve->m_crColor = 0x123456;
    EXPECT_EQ(graph.SetData(points.data(), 3, 0, 1, 1, false), graph.GetCurve(0));
    pCurve = graph.GetCurve(0);
    EXPECT_EQ(pCurve->m_cLabel, L"kept");
    EXPECT_EQ(pCurve->m_crColor, 0x123456u);
    EXPECT_EQ(pCurve->m_nXAxis, 1);
    EXPECT_EQ(pCurve->m_nYAxis, 1);
    EXPECT_EQ(pCurve->m_pData, points.data());
    EXPECT_EQ(pCurve->m_nCount, 3);
    EXPECT_EQ(graph.m_XAxes.size(), 2u);
}

TEST_F(GraphData, NewDataUndoesAZoomButKeepsItsHistory)
{
    AddLine();
    CXGraphAxis* pAxis = graph.GetXAxis(0);
    pAxis->m_ZoomHistory.push_back({0, 10});
    pAxis->SetCurrentRange(2, 3, 0);
    auto points = Some();
    graph.SetData(points.data(), 3, 0, 0, 0, false);
    EXPECT_EQ(pAxis->m_fCurMin, 0); // an existing range only grows
    EXPECT_EQ(pAxis->m_fCurMax, 10);
    EXPECT_EQ(pAxis->m_ZoomHistory.size(), 1u);
}

TEST_F(GraphData, AtMostOneAxisOfEachKindIsMadePerCall)
{
    AddLine(0, 0);
    AddLine(0, 1);
    AddLine(1, 1);
    EXPECT_EQ(graph.m_XAxes.size(), 2u);
    EXPECT_EQ(graph.m_YAxes.size(), 2u);
}

TEST_F(GraphData, ReplacingWithTheGraphsOwnArrayKeepsIt)
{
    CXGraphDataSerie* pCurve = AddLine();
    TDataPoint* pOwn = pCurve->m_pData;
    graph.SetData(pOwn, pCurve->m_nCount, 0, 0, 0, true);
    EXPECT_EQ(graph.GetCurve(0)->m_pData, pOwn);
    EXPECT_EQ(graph.GetCurve(0)->m_pData[10].fYVal, 10);
}

TEST_F(GraphData, AutoscaleTellsWhetherTheYRangeWasTaken)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    TDataPoint points[] = {{1, nan}, {2, nan}};
    graph.SetData(points, 2, 0, 0, 0, true);
    EXPECT_FALSE(graph.Autoscale(0, 0, 0)); // its range is still inverted
    EXPECT_EQ(graph.GetYAxis(0)->m_fMin, DBL_MAX);
    AddLine(0, 1);
    EXPECT_TRUE(graph.Autoscale(0, 1, 1));
}

TEST_F(GraphData, SelectionMarksOneElementAndInvalidates)
{
    AddLine();
    AddLine(1, 1);
    Paint();
    EXPECT_TRUE(graph.SelectCurve(1));
    EXPECT_TRUE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    EXPECT_FALSE(graph.GetCurve(0)->m_bSelected);
    EXPECT_TRUE(graph.GetCurve(1)->m_bSelected);
    EXPECT_TRUE(graph.SelectCurve(0));
    EXPECT_TRUE(graph.GetCurve(0)->m_bSelected);
    EXPECT_FALSE(graph.GetCurve(1)->m_bSelected);
    EXPECT_TRUE(graph.SelectXAxis(1));
    EXPECT_TRUE(graph.GetXAxis(1)->m_bSelected);
    EXPECT_TRUE(graph.SelectYAxis(0));
    EXPECT_TRUE(graph.GetYAxis(0)->m_bSelected);
}

TEST_F(GraphData, SelectingOutsideTheListChangesNothing)
{
    AddLine();
    graph.SelectCurve(0);
    Paint();
    EXPECT_FALSE(graph.SelectCurve(-1));
    EXPECT_FALSE(graph.SelectCurve(1));
    EXPECT_FALSE(graph.SelectXAxis(-1));
    EXPECT_FALSE(graph.SelectYAxis(1));
    EXPECT_TRUE(graph.GetCurve(0)->m_bSelected);
    EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
}

TEST_F(GraphData, ResetAllLeavesTheCursorsLabelAndTheMeasures)
{
    AddLine();
    graph.InsertLabel(CRect(1, 2, 3, 4), L"one");
    graph.InsertLabel(CRect(1, 2, 3, 4), L"two");
    graph.m_Measures.push_back({0, 1, 0, 2});
    graph.ResetAll();
    EXPECT_TRUE(graph.m_Curves.empty());
    EXPECT_TRUE(graph.m_XAxes.empty());
    EXPECT_TRUE(graph.m_YAxes.empty());
    ASSERT_EQ(graph.m_Objects.GetCount(), 1);
    EXPECT_EQ(ObjectAt(graph, 0), &graph.m_CursorLabel);
    EXPECT_EQ(graph.m_Measures.size(), 1u);
}

TEST_F(GraphData, DeletingAnXAxisRenumbersNothing)
{
    AddLine(0, 0);
    AddLine(1, 0);
    EXPECT_TRUE(graph.DeleteXAxis(0));
    EXPECT_EQ(graph.m_XAxes.size(), 1u);
    EXPECT_EQ(graph.GetCurve(1)->m_nXAxis, 1); // past the end now
}

TEST_F(GraphData, DeletingAYAxisTakesTheLastXAxisInstead)
{
    AddLine(0, 0);
    AddLine(1, 1);
    graph.GetXAxis(0)->m_cLabel = L"first";
    EXPECT_TRUE(graph.DeleteYAxis(0));
    EXPECT_EQ(graph.m_YAxes.size(), 2u);
    ASSERT_EQ(graph.m_XAxes.size(), 1u);
    EXPECT_EQ(graph.GetXAxis(0)->m_cLabel, L"first");
    EXPECT_TRUE(graph.DeleteYAxis(1));
    EXPECT_TRUE(graph.m_XAxes.empty());
    EXPECT_TRUE(graph.DeleteYAxis(1)); // no X axis is left to lose
    EXPECT_FALSE(graph.DeleteYAxis(2));
    EXPECT_FALSE(graph.DeleteYAxis(-1));
    EXPECT_EQ(graph.m_YAxes.size(), 2u);
}

TEST_F(GraphData, DeletingACurveMovesTheLaterOnesDown)
{
    AddLine()->m_cLabel = L"a";
    AddLine()->m_cLabel = L"b";
    EXPECT_FALSE(graph.DeleteCurve(2));
    EXPECT_FALSE(graph.DeleteCurve(-1));
    EXPECT_TRUE(graph.DeleteCurve(0));
    ASSERT_EQ(graph.m_Curves.size(), 1u);
    EXPECT_EQ(graph.GetCurve(0)->m_cLabel, L"b");
    EXPECT_EQ(graph.GetCurve(0)->m_nIndex, 1); // not renumbered
}

TEST_F(GraphData, IndicesTellThePositionInWhicheverListItIs)
{
    AddLine(0, 0);
    AddLine(1, 1);
    EXPECT_EQ(graph.GetAxisIndex(graph.GetXAxis(1)), 1);
    EXPECT_EQ(graph.GetAxisIndex(graph.GetYAxis(0)), 0);
    EXPECT_EQ(graph.GetAxisIndex(nullptr), -1);
    EXPECT_EQ(graph.GetCurveIndex(graph.GetCurve(1)), 1);
    EXPECT_EQ(graph.GetCurveIndex(nullptr), -1);
}
