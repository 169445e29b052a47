// An index outside a list ends the process with the run-time's code for a bad parameter.

#include "NativeGraph.h"

namespace
{

using GraphBoundsDeathTest = GraphTest;

constexpr int InvalidParameter = static_cast<int>(0xC0000417);

std::vector<TDataPoint> g_points{{0, 0}, {1, 1}};

} // namespace

TEST_F(GraphBoundsDeathTest, AccessOutsideTheListsEndsTheProcess)
{
    AddLine();
    EXPECT_EXIT(graph.GetXAxis(1), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph.GetYAxis(-1), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph.GetCurve(1), testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph.Autoscale(0, 0, 5), testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(GraphBoundsDeathTest, DataForACurvePastTheEndEndsTheProcess)
{
    EXPECT_EXIT(graph.SetData(g_points.data(), 2, 1, 0, 0, true),
                testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph.SetData(g_points.data(), 2, -1, 0, 0, true),
                testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(GraphBoundsDeathTest, AnAxisMoreThanOnePastTheEndEndsTheProcess)
{
    EXPECT_EXIT(graph.SetData(g_points.data(), 2, 0, 1, 0, true),
                testing::ExitedWithCode(InvalidParameter), "");
    EXPECT_EXIT(graph.SetData(g_points.data(), 2, 0, 0, 2, true),
                testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(GraphBoundsDeathTest, ASymbolKeyWithoutAYAxisEndsTheProcess)
{
    AddLine()->m_nMarkerType = 1;
    graph.m_YAxes.clear();
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(GraphBoundsDeathTest, ALabelOfACurveThatIsGoneEndsTheProcess)
{
    graph.InsertLabel(CRect(50, 50, 90, 90), L"tied")->m_nCurve = 3;
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
}
