// The point under the cursor: the graph's own ascending curves are searched by halving, and the
// result is that of the walk over any array, to the last bit.

#include "NativeGraph.h"
#include "graph/PointSearch.h"

#include <algorithm>
#include <array>

namespace
{

class CursorSearch : public GraphTest
{
protected:
    // Curve 0 has a copy of the points, curve 1 reads them where they are.
    void Add(std::vector<TDataPoint> points)
    {
        m_points = std::move(points);
        const long nCount = static_cast<long>(m_points.size());
        graph.SetData(m_points.data(), nCount, 0, 0, 0, true);
        graph.SetData(m_points.data(), nCount, 1, 0, 0, false);
    }
    std::array<int, 2> Find(double fX)
    {
        std::array<int, 2> found = {-1, -1};
        graph.GetXAxis(0)->FindIndexForX(found[0], fX, 0);
        graph.GetXAxis(0)->FindIndexForX(found[1], fX, 1);
        return found;
    }
    void ExpectTheSameEverywhere(double fFrom, double fTo)
    {
        for (int i = -10; i <= 210; ++i) {
            const double fX = fFrom + (fTo - fFrom) * i / 200;
            const auto [own, callers] = Find(fX);
            ASSERT_EQ(own, callers) << fX;
        }
    }
    std::vector<TDataPoint> m_points;
};

} // namespace

TEST_F(CursorSearch, OwnCurvesAreKnownToAscendAndCallersAreNot)
{
    Add(Line());
    EXPECT_TRUE(graph.m_Curves[0].IsAscending());
    EXPECT_FALSE(graph.m_Curves[1].IsAscending());
    for (int i = 0; i < 20; ++i)
        AddLine(); // the list grows and moves its curves
    EXPECT_TRUE(graph.m_Curves[0].IsAscending());
    graph.DeleteCurve(1);
    EXPECT_TRUE(graph.m_Curves[1].IsAscending());
}

TEST_F(CursorSearch, EvenAndUnevenPointsGiveTheWalksResult)
{
    Add(Line(1001));
    ExpectTheSameEverywhere(0, 10);
    std::vector<TDataPoint> uneven;
    for (int i = 0; i < 2000; ++i)
        uneven.push_back({i * i / 1000.0, 1.0});
    graph.ResetAll();
    Add(uneven);
    EXPECT_TRUE(graph.m_Curves[0].IsAscending());
    ExpectTheSameEverywhere(0, 4000);
}

TEST_F(CursorSearch, AGuessFarInFrontOfManyClosePointsGivesTheWalksResult)
{
    std::vector<TDataPoint> dense = {{0, 1.0}};
    for (int i = 0; i < 1000; ++i)
        dense.push_back({100 + i * 0.01, 1.0});
    Add(dense);
    EXPECT_EQ(Find(105.005)[1], 502);
    ExpectTheSameEverywhere(100, 110);
}

TEST_F(CursorSearch, EqualNeighboursAndWildStartsGiveTheWalksResult)
{
    std::vector<TDataPoint> steps;
    for (int i = 0; i < 500; ++i)
        steps.push_back({static_cast<double>(i / 7), 1.0}); // the first two are one
    Add(steps);
    ExpectTheSameEverywhere(0, 71);
    graph.ResetAll();
    Add({{-1e300, 0}, {0, 1}, {0, 2}, {1e-300, 3}, {1e300, 4}});
    ExpectTheSameEverywhere(-1, 1);
    ExpectTheSameEverywhere(-1e300, 1e300);
}

TEST_F(CursorSearch, FallingPointsAreWalked)
{
    std::vector<TDataPoint> points = Line(101);
    std::reverse(points.begin(), points.end());
    Add(points);
    EXPECT_FALSE(graph.m_Curves[0].IsAscending());
    ExpectTheSameEverywhere(0, 10);
}

TEST_F(CursorSearch, BeyondTheLastPointTheIndexIsTheCountAndTheLastPointIsRead)
{
    Add(Line());
    EXPECT_EQ(Find(11), (std::array{11, 11}));
    EXPECT_EQ(PointSearch::Index(graph, 0, 11), 10);
    EXPECT_EQ(PointSearch::Y(graph, 0, 11), 10);
    graph.ResetAll();
    Add({{5, 7}});
    EXPECT_EQ(Find(99), (std::array{0, 0}));
}

TEST_F(CursorSearch, APointThatWasDraggedStaysInPlace)
{
    Add(Line());
    graph.m_Curves[0].m_pData[5].fYVal = 99; // as a drag does: y alone
    EXPECT_TRUE(graph.m_Curves[0].IsAscending());
    EXPECT_EQ(PointSearch::Y(graph, 0, 4.5), 99);
}
