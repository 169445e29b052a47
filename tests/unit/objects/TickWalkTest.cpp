#include "objects/TickWalk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace
{

using namespace TickWalk;

std::vector<std::pair<double, double>> Ticks(const TWalk& walk)
{
    std::vector<std::pair<double, double>> ticks;
    const int count = Walk(walk, [&](double value, double place) { ticks.emplace_back(value, place); });
    EXPECT_EQ(static_cast<int>(ticks.size()), count);
    return ticks;
}

int Count(double from, double to, double step)
{
    return Walk({from, to, step, 0, 1, true}, [](double, double) {});
}

TEST(TickWalk, IncludesTheUpperBoundWhereTold)
{
    const auto ticks = Ticks({0, 10, 2, 400, -50.5, true});
    ASSERT_EQ(ticks.size(), 6u);
    EXPECT_EQ(ticks[5], std::pair(10.0, 400 - 5 * 50.5));
}

TEST(TickWalk, ExcludesTheUpperBoundWhereTold)
{
    EXPECT_EQ(Ticks({0, 10, 2, 0, 1, false}).size(), 5u);
}

TEST(TickWalk, FallingAndUndefinedRangesHaveNoTicks)
{
    EXPECT_EQ(Count(5, 1, 1), 0);
    EXPECT_EQ(Count(std::nan(""), 1, 1), 0);
    EXPECT_EQ(Count(0, std::nan(""), 1), 0);
}

TEST(TickWalk, AStepThatAddsNothingEndsTheWalk)
{
    EXPECT_EQ(Count(0, 10, 0), 1);
    EXPECT_EQ(Count(0, 10, -1), 1);
    EXPECT_EQ(Count(0, 10, std::nan("")), 1);
    EXPECT_EQ(Count(1e16, 1.0001e16, 0.5), 1);
    EXPECT_EQ(Count(-std::numeric_limits<double>::infinity(), 0, 1), 1);
}

TEST(TickWalk, EndsAtTheLargestNumberOfTicks)
{
    EXPECT_EQ(Count(0, 1e9, 1e-3), MostTicks);
    EXPECT_EQ(Count(0, std::numeric_limits<double>::infinity(), 1), MostTicks);
}

TEST(TickWalk, AnInfiniteStepReachesTheEnd)
{
    EXPECT_EQ(Count(0, 10, std::numeric_limits<double>::infinity()), 1);
}

} // namespace
