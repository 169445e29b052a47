#include "objects/SegmentHit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

namespace
{

using namespace SegmentHit;

TEST(PointLineDistance, IsTheDistanceFromTheEndlessLine)
{
    EXPECT_DOUBLE_EQ(PointLineDistance({0, 0}, {10, 0}, {5, 3}), 3);
    EXPECT_DOUBLE_EQ(PointLineDistance({0, 0}, {10, 0}, {500, -3}), 3);
    EXPECT_DOUBLE_EQ(PointLineDistance({0, 0}, {3, 4}, {4, -3}), 5);
}

TEST(PointLineDistance, ASegmentWithoutLengthHasNone)
{
    EXPECT_TRUE(std::isnan(PointLineDistance({1, 1}, {1, 1}, {2, 2})));
}

TEST(HitTestSegment, HalvesTheToleranceButNotBelowOne)
{
    EXPECT_TRUE(HitTestSegment({0, 0}, {10, 0}, {5, 2}, 4));
    EXPECT_FALSE(HitTestSegment({0, 0}, {10, 0}, {5, 3}, 4));
    EXPECT_TRUE(HitTestSegment({0, 0}, {10, 0}, {5, 2}, 5));
    EXPECT_TRUE(HitTestSegment({0, 0}, {10, 0}, {5, 1}, 0));
    EXPECT_TRUE(HitTestSegment({0, 0}, {10, 0}, {5, 1}, -7));
    EXPECT_FALSE(HitTestSegment({0, 0}, {10, 0}, {5, 2}, 1));
}

TEST(HitTestSegment, ASegmentWithoutLengthIsNeverHit)
{
    EXPECT_FALSE(HitTestSegment({1, 1}, {1, 1}, {1, 1}, 4));
}

TEST(HitsSegment, TheBoxReachesTwoPixelsAndExcludesItsFarEdges)
{
    const TSegment segment{{10, 10}, {20, 10}};
    EXPECT_TRUE(HitsSegment(segment, {8, 10}, 4));
    EXPECT_FALSE(HitsSegment(segment, {7, 10}, 4));
    EXPECT_TRUE(HitsSegment(segment, {21, 10}, 4));
    EXPECT_FALSE(HitsSegment(segment, {22, 10}, 4));
    EXPECT_TRUE(HitsSegment(segment, {15, 8}, 4));
    EXPECT_FALSE(HitsSegment(segment, {15, 7}, 8));
    EXPECT_FALSE(HitsSegment(segment, {15, 12}, 4));
}

TEST(HitsSegment, TheBoxIsThatOfASegmentInAnyDirection)
{
    const TSegment segment{{20, 30}, {10, 10}};
    EXPECT_TRUE(HitsSegment(segment, {15, 20}, 4));
    EXPECT_FALSE(HitsSegment(segment, {10, 30}, 4));
}

TEST(HitsSegment, TheLargestCoordinatesDontOverflow)
{
    const TSegment segment{{INT32_MIN, INT32_MIN}, {INT32_MAX, INT32_MAX}};
    EXPECT_TRUE(HitsSegment(segment, {5, 5}, 4));
    EXPECT_FALSE(HitsSegment(segment, {500, 5}, 4));
}

TEST(HitsAny, LooksAtEverySegment)
{
    const std::vector<TSegment> segments{{{0, 0}, {10, 0}}, {{10, 0}, {10, 50}}};
    EXPECT_TRUE(HitsAny(segments, {11, 40}, 4));
    EXPECT_FALSE(HitsAny(segments, {30, 40}, 4));
    EXPECT_FALSE(HitsAny({}, {0, 0}, 4));
}

} // namespace
