#include "objects/LogDecades.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace
{

using namespace LogDecades;

constexpr double Infinity = std::numeric_limits<double>::infinity();

std::pair<double, double> Walked(double lower, double upper, bool strict)
{
    WalkBounds(lower, upper, strict);
    return {lower, upper};
}

std::pair<double, double> Scaled(double lower, double upper)
{
    AutoScale(lower, upper);
    return {lower, upper};
}

std::pair<double, double> Floored(double lower, double upper)
{
    FloorBounds(lower, upper);
    return {lower, upper};
}

struct TTick {
    double fValue;
    bool bDecade;
};

std::vector<TTick> Ticks(double lower, double upper)
{
    std::vector<TTick> ticks;
    WalkTicks(lower, upper, [&](double value, bool decade) { ticks.push_back({value, decade}); });
    return ticks;
}

TEST(LogBounds, EqualOnesGoADecadeApart)
{
    EXPECT_EQ(Floored(5, 5), std::pair(0.5, 50.0));
}

TEST(LogBounds, ZerosBecomeTheFloors)
{
    EXPECT_EQ(Floored(0, 0), std::pair(1e-16, 1e-15));
    EXPECT_EQ(Floored(-3, -2), std::pair(1e-16, 1e-15));
}

TEST(LogBounds, FallingBoundsStand)
{
    EXPECT_EQ(Floored(10, 1), std::pair(10.0, 1.0));
}

TEST(LogWalk, BoundsGoToTheStepsOfTheirDecade)
{
    const auto [lower, upper] = Walked(350, 350, true);
    EXPECT_NEAR(lower, 300, 1e-9);
    EXPECT_NEAR(upper, 400, 1e-9);
}

// The steps of the walk, not round numbers: decades grow by products that round.
TEST(LogWalk, ABoundThatIsAStepStaysBelowAndMovesOnAbove)
{
    const double third = Walked(1, 250, false).second;
    EXPECT_NEAR(third, 300, 1e-9);
    EXPECT_EQ(Walked(third, third, false).second, third);
    const auto [lower, upper] = Walked(third, third, true);
    EXPECT_NEAR(lower, third, 1e-9);
    EXPECT_NEAR(upper, 400, 1e-9);
}

TEST(LogWalk, BoundsInTheLastTenthOfADecadeStay)
{
    EXPECT_EQ(Walked(950, 950, true), std::pair(950.0, 950.0));
    // Ten steps are exactly the next decade here, and belong to that one alone.
    EXPECT_EQ(Walked(9500, 9500, true), std::pair(9500.0, 9500.0));
    EXPECT_EQ(Walked(0.95, 0.95, true), std::pair(0.95, 0.95));
}

TEST(LogWalk, NothingToWalkForHostileBounds)
{
    EXPECT_EQ(Walked(-1, 0, true), std::pair(-1.0, 0.0));
    EXPECT_EQ(Walked(Infinity, Infinity, false), std::pair(Infinity, Infinity));
    EXPECT_TRUE(std::isnan(Walked(std::nan(""), 1, false).first));
}

TEST(LogAutoScale, RaisesBoundsToWholeDecades)
{
    EXPECT_EQ(Scaled(3.5, 350), std::pair(1.0, 1000.0));
    EXPECT_EQ(Scaled(950, 950), std::pair(100.0, 1000.0));
    EXPECT_EQ(Scaled(0.02, 7), std::pair(std::pow(10.0, -2), 10.0));
}

TEST(LogTicks, OneToThousandHasTwentySevenTicksAndThreeLabels)
{
    const auto ticks = Ticks(1, 1000);
    std::vector<double> labels;
    for (const TTick& tick : ticks) {
        if (tick.bDecade)
            labels.push_back(tick.fValue);
    }
    EXPECT_EQ(ticks.size(), 27u);
    EXPECT_EQ(labels, (std::vector<double>{1, 10, 100}));
}

TEST(LogTicks, OnlyValuesWithinTheBoundsAreTicks)
{
    const auto ticks = Ticks(25, 60);
    ASSERT_EQ(ticks.size(), 4u);
    EXPECT_EQ(ticks.front().fValue, 30);
    EXPECT_EQ(ticks.back().fValue, 60);
}

TEST(LogTicks, BoundsWithoutALogarithmHaveNone)
{
    EXPECT_TRUE(Ticks(0, 10).empty());
    EXPECT_TRUE(Ticks(-1, 10).empty());
    EXPECT_TRUE(Ticks(std::nan(""), 10).empty());
    EXPECT_TRUE(Ticks(10, 1).empty());
}

TEST(LogTicks, TheWidestBoundsEnd)
{
    EXPECT_LT(Ticks(std::numeric_limits<double>::denorm_min(), 1.7e308).size(), 10000u);
    EXPECT_LT(Ticks(1e-300, Infinity).size(), 10000u);
}

} // namespace
