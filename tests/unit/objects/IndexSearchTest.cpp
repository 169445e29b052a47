#include "objects/IndexSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace
{

using namespace IndexSearch;

constexpr double Infinity = std::numeric_limits<double>::infinity();

std::vector<TDataPoint> PointsAt(const std::vector<double>& xs)
{
    std::vector<TDataPoint> points;
    for (const double x : xs)
        points.push_back({x, 0});
    return points;
}

int Find(const std::vector<double>& xs, double x)
{
    return FindIndexForX(PointsAt(xs), x);
}

TEST(FindIndexForX, EndsOnTheFirstPointPastX)
{
    EXPECT_EQ(Find({0, 1, 2, 3}, 1.5), 2);
    EXPECT_EQ(Find({0, 1, 2, 3}, 1), 2);
    EXPECT_EQ(Find({0, 10, 11, 20}, 12), 3);
}

TEST(FindIndexForX, StepsDownFromAGuessPastXToTheLastPointNotPastIt)
{
    EXPECT_EQ(Find({0, 1, 10, 20}, 5), 1);
    EXPECT_EQ(Find({0, 1, 100, 200, 300}, 3), 1);
    EXPECT_EQ(Find({0, 1, 2, 3}, -5), 0);
}

TEST(FindIndexForX, MayEqualTheCount)
{
    EXPECT_EQ(Find({0, 1, 2, 3}, 3), 4);
    EXPECT_EQ(Find({0, 1, 2, 3}, 99), 4);
}

TEST(FindIndexForX, FewerThanTwoPointsGiveZero)
{
    EXPECT_EQ(Find({}, 1), 0);
    EXPECT_EQ(Find({5}, 9), 0);
    EXPECT_EQ(FindIndexForXAscending({}, 1), 0);
    EXPECT_EQ(FindIndexForXAscending(PointsAt({5}), 9), 0);
}

TEST(FindIndexForX, HostileValuesStayInTheArray)
{
    EXPECT_EQ(Find({0, 1, 2}, std::nan("")), 0);
    EXPECT_EQ(Find({0, 1, 2}, Infinity), 3);
    EXPECT_EQ(Find({0, 1, 2}, -Infinity), 0);
    EXPECT_EQ(Find({1, 1, 1}, 1), 3);
    EXPECT_EQ(Find({std::nan(""), 1, 2}, 1), 0);
}

// The walk point by point, as it is defined.
int WalkPointByPoint(const std::vector<TDataPoint>& points, double x, int guess)
{
    const int count = static_cast<int>(points.size());
    int index = guess;
    if (points[index].fXVal > x) {
        while (index > 0 && points[index].fXVal > x)
            --index;
    } else {
        while (index < count && x >= points[index].fXVal)
            ++index;
    }
    return index;
}

TEST(FindIndexForX, LongWalksStopAtEveryPointThatEndsThem)
{
    // Level runs with one point out of line, which the walk may not pass.
    constexpr int count = 100;
    for (int odd = 2; odd < count; ++odd) {
        for (const double value : {-50.0, 50.0, std::nan(""), Infinity, -Infinity}) {
            std::vector<double> xs(count, 10.0);
            xs[0] = 0;
            xs[1] = 1; // so that x itself is the guess
            xs[static_cast<std::size_t>(odd)] = value;
            const auto points = PointsAt(xs);
            for (const double x : {2.0, 5.0, 9.0, 50.0, 98.0, 11.0, 33.0})
                ASSERT_EQ(FindIndexForX(points, x), WalkPointByPoint(points, x, static_cast<int>(x)))
                    << odd << ' ' << value << ' ' << x;
            xs.assign(count, 1000.0);
            xs[0] = 0;
            xs[1] = 1;
            xs[static_cast<std::size_t>(odd)] = value;
            const auto falling = PointsAt(xs);
            for (const double x : {40.0, 90.0, 99.0})
                ASSERT_EQ(FindIndexForX(falling, x), WalkPointByPoint(falling, x, static_cast<int>(x)))
                    << odd << ' ' << value << ' ' << x;
        }
    }
}

TEST(FindIndexForX, TheSearchEqualsTheWalkOnAscendingPoints)
{
    std::mt19937 random(11);
    for (int round = 0; round < 3000; ++round) {
        std::vector<double> xs(2 + random() % 40);
        for (double& x : xs)
            x = static_cast<int>(random() % 30) * (random() % 5 == 0 ? 100.0 : 1.0);
        if (random() % 4 == 0)
            xs.back() = Infinity;
        if (random() % 4 == 0)
            xs.front() = -Infinity;
        std::sort(xs.begin(), xs.end());
        const auto points = PointsAt(xs);
        for (const double x :
             {-1.0, 0.0, 3.0, 14.5, 29.0, 700.0, 1e9, Infinity, -Infinity, std::nan("")})
            ASSERT_EQ(FindIndexForXAscending(points, x), FindIndexForX(points, x)) << x;
    }
}

TEST(IsAscending, AllowsEqualNeighboursAndInfinities)
{
    EXPECT_TRUE(IsAscending(PointsAt({-Infinity, 1, 1, 2, Infinity})));
    EXPECT_TRUE(IsAscending(PointsAt({1})));
    EXPECT_FALSE(IsAscending(PointsAt({1, 2, 1.5})));
    EXPECT_FALSE(IsAscending({}));
}

TEST(IsAscending, RefusesWhatIsNoNumberAnywhere)
{
    EXPECT_FALSE(IsAscending(PointsAt({std::nan("")})));
    EXPECT_FALSE(IsAscending(PointsAt({std::nan(""), 1})));
    std::vector<double> xs(5000, 1.0);
    EXPECT_TRUE(IsAscending(PointsAt(xs)));
    xs[4999] = std::nan("");
    EXPECT_FALSE(IsAscending(PointsAt(xs)));
    xs[4999] = 0.5;
    EXPECT_FALSE(IsAscending(PointsAt(xs)));
}

} // namespace
