#include "draw/EllipsePart.h"

#include <gtest/gtest.h>

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
