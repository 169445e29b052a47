#include "draw/EllipsePart.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
// A circle of radius 1000 around the origin with a line from 900 to 1100.
constexpr TRect Circle = {-1000, -1000, 1000, 1000};

EEllipsePart PartAt(std::int32_t x, std::int32_t y)
{
    return EllipsePart({x, y, x + 20, y + 10}, Circle, 200);
}
} // namespace

TEST(EllipsePart, WhatLiesWithinTheLineIsInside)
{
    EXPECT_EQ(PartAt(-10, -5), EEllipsePart::inside);
    EXPECT_EQ(PartAt(870, 0), EEllipsePart::inside);
    EXPECT_EQ(PartAt(-897, 0), EEllipsePart::inside);
    EXPECT_EQ(PartAt(-898, 0), EEllipsePart::mixed) << "too near to be sure";
}

TEST(EllipsePart, WhatLiesBetweenItsEdgesIsLine)
{
    EXPECT_EQ(PartAt(1000, 0), EEllipsePart::line);
    EXPECT_EQ(PartAt(-10, -1050), EEllipsePart::line);
    EXPECT_EQ(PartAt(890, 0), EEllipsePart::mixed);
    EXPECT_EQ(PartAt(1090, 0), EEllipsePart::mixed);
}

TEST(EllipsePart, BeyondTheLineThereIsNothing)
{
    EXPECT_EQ(PartAt(1103, 0), EEllipsePart::nothing);
    EXPECT_EQ(PartAt(1100, 0), EEllipsePart::mixed);
    EXPECT_EQ(PartAt(900, 900), EEllipsePart::nothing) << "within the bounding box";
}

TEST(EllipsePart, AFlatEllipseHasItsOwnHalfAxes)
{
    const TRect flat = {-2000, -100, 2000, 100};

    EXPECT_EQ(EllipsePart({1000, -10, 1010, 10}, flat, 4), EEllipsePart::inside);
    EXPECT_EQ(EllipsePart({-10, 150, 10, 160}, flat, 4), EEllipsePart::nothing);
}

TEST(EllipsePart, ALineWiderThanTheEllipseCoversItsMiddle)
{
    const TRect middle = {-5, -5, 5, 5};
    EXPECT_EQ(EllipsePart(middle, {-10, -1000, 10, 1000}, 100), EEllipsePart::line);
    EXPECT_EQ(EllipsePart(middle, {-1000, -10, 1000, 10}, 100), EEllipsePart::line);
    EXPECT_EQ(EllipsePart(middle, {-1000, -1000, 1000, 1000}, 100), EEllipsePart::inside);
}

TEST(EllipsePart, CornersInTheWrongOrderMeanTheSameEllipse)
{
    EXPECT_EQ(EllipsePart({0, 0, 9, 9}, {1000, 1000, -1000, -1000}, 2), EEllipsePart::inside);
}

TEST(EllipseOutline, FollowsTheRimWhereItIsSeen)
{
    constexpr TRect visible = {-50, -40, 50, 40};
    constexpr TRect huge = {-2'000'000, -1'000'000, 0, 1'000'000};
    const auto outline = EllipseOutline(visible, huge, 10);

    EXPECT_LT(outline.size(), 100u);
    int nSeen = 0;
    for (const LongLines::TVertex& vertex : outline) {
        const double x = (vertex.x + 1'000'000) / 1'000'010, y = vertex.y / 1'000'010;
        EXPECT_NEAR(std::hypot(x, y), 1, 1e-12);
        nSeen += std::fabs(vertex.y) < 2'000 && vertex.x > 0 ? 1 : 0;
    }
    EXPECT_GE(nSeen, 2);
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const auto& from = outline[i];
        const auto& to = outline[(i + 1) % outline.size()];
        if (from.x <= 0 || to.x <= 0 || from.y * to.y > 0)
            continue; // the edge that crosses the visible rectangle
        const double at = from.x - from.y * (to.x - from.x) / (to.y - from.y);
        EXPECT_NEAR(at, 10, 0.25);
    }
}

TEST(EllipseOutline, IsEmptyWithoutHalfAxes)
{
    EXPECT_TRUE(EllipseOutline({0, 0, 10, 10}, {0, 0, 20, 200}, -10).empty());
    EXPECT_TRUE(EllipseOutline({0, 0, 10, 10}, {0, 0, 200, 20}, -10).empty());
    EXPECT_FALSE(EllipseOutline({0, 0, 10, 10}, {0, 0, 20, 200}, -9).empty());
    EXPECT_TRUE(EllipseOutline({0, 0, 10, 10}, {5, 5, 5, 5}, 0).empty());
}
