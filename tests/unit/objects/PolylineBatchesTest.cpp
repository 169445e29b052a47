#include "objects/PolylineBatches.h"

#include <gtest/gtest.h>

#include <span>
#include <utility>
#include <vector>

namespace
{

using Polylines = std::vector<std::vector<TPoint>>;

Polylines Joined(const std::vector<std::pair<TPoint, TPoint>>& segments)
{
    Polylines polylines;
    std::vector<TPoint> room;
    CPolylineBatches batches(TRect{0, 0, 100, 100}, room, [&](std::span<const TPoint> points) {
        polylines.emplace_back(points.begin(), points.end());
    });
    for (const auto& [from, to] : segments)
        batches.Add(from, to);
    batches.Flush();
    return polylines;
}

TEST(PolylineBatches, SuccessiveSegmentsAreOnePolyline)
{
    EXPECT_EQ(Joined({{{1, 1}, {2, 5}}, {{2, 5}, {3, 3}}}), (Polylines{{{1, 1}, {2, 5}, {3, 3}}}));
}

TEST(PolylineBatches, AGapStartsANewOne)
{
    EXPECT_EQ(Joined({{{1, 1}, {2, 5}}, {{7, 5}, {8, 3}}}),
              (Polylines{{{1, 1}, {2, 5}}, {{7, 5}, {8, 3}}}));
}

TEST(PolylineBatches, SegmentsOnOneOuterSideAreLeftOut)
{
    EXPECT_EQ(
        Joined({{{-5, 1}, {-2, 500}}, {{101, 5}, {108, 3}}, {{1, -5}, {50, -1}}, {{1, 101}, {3, 900}}}),
        Polylines{});
}

TEST(PolylineBatches, SegmentsThatMayCrossStay)
{
    EXPECT_EQ(Joined({{{-5, 50}, {500, 60}}, {{-5, -5}, {500, 500}}, {{0, 0}, {0, 1}}}).size(), 3u);
    EXPECT_EQ(Joined({{{100, 3}, {120, 3}}}).size(), 1u);
}

TEST(PolylineBatches, LongOnesComeInPartsThatMeet)
{
    std::vector<std::pair<TPoint, TPoint>> segments;
    for (int i = 0; i < 40000; ++i)
        segments.push_back({{i % 100, i % 7}, {(i + 1) % 100, (i + 1) % 7}});
    const Polylines polylines = Joined(segments);
    ASSERT_EQ(polylines.size(), 3u);
    EXPECT_EQ(polylines[0].back(), polylines[1].front());
    EXPECT_EQ(polylines[1].back(), polylines[2].front());
    EXPECT_EQ(polylines[0].size() + polylines[1].size() + polylines[2].size(), 40003u);
}

TEST(PolylineBatches, NothingAddedEmitsNothing)
{
    EXPECT_TRUE(Joined({}).empty());
}

} // namespace
