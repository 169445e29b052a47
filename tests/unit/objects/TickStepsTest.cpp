#include "objects/TickSteps.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

namespace
{

using namespace TickSteps;

constexpr double Infinity = std::numeric_limits<double>::infinity();
const double NaN = std::nan("");

double NiceStep(int n, double lower, double upper, double start = -1)
{
    CalcNiceStep(n, lower, upper, start);
    return start;
}

std::pair<double, double> Adjusted(double lower, double upper, double step)
{
    AdjustRange(lower, upper, step);
    return {lower, upper};
}

TEST(CalcNiceStep, SevenTicksOverHundredGiveTwenty)
{
    EXPECT_EQ(NiceStep(7, 0, 100), 20);
}

TEST(CalcNiceStep, ThreeTicksOverOneGiveHalf)
{
    EXPECT_EQ(NiceStep(3, 0, 1), 0.5);
}

TEST(CalcNiceStep, MantissasRoundUpToOneTwoFiveTen)
{
    EXPECT_EQ(NiceStep(1, 0, 1), 1);
    EXPECT_EQ(NiceStep(1, 0, 1.5), 2);
    EXPECT_EQ(NiceStep(1, 0, 3), 5);
    EXPECT_EQ(NiceStep(1, 0, 7), 10);
    EXPECT_EQ(NiceStep(2, -1000, 1000), 1000);
    EXPECT_EQ(NiceStep(1, 0, 1e-10), 1e-10);
}

TEST(CalcNiceStep, EmptyRangeLeavesTheStep)
{
    double step = 7;
    EXPECT_FALSE(CalcNiceStep(5, 3, 3, step));
    EXPECT_EQ(step, 7);
}

TEST(CalcNiceStep, InfiniteUndefinedAndFallingRangesCountAsEmpty)
{
    for (const auto& [lower, upper] :
         {std::pair{-Infinity, Infinity}, std::pair{0.0, Infinity}, std::pair{NaN, 1.0},
          std::pair{0.0, NaN}, std::pair{Infinity, Infinity}, std::pair{-1.7e308, 1.7e308},
          std::pair{1.0, 0.0}}) {
        double step = 7;
        EXPECT_FALSE(CalcNiceStep(5, lower, upper, step)) << lower << " to " << upper;
        EXPECT_EQ(step, 7);
    }
}

TEST(CalcNiceStep, NoTicksAreAnEmptyRange)
{
    double step = 7;
    EXPECT_FALSE(CalcNiceStep(0, 0, 1, step));
    EXPECT_EQ(step, 7);
}

TEST(CalcNiceStep, EndsAtBothEndsOfTheDoubles)
{
    EXPECT_GT(NiceStep(2, -8e307, 8e307), 7e307);
    EXPECT_TRUE(std::isfinite(NiceStep(2, -8e307, 8e307)));
    // A step too small for a double becomes 0.1.
    EXPECT_EQ(NiceStep(2, 0, 2 * std::numeric_limits<double>::denorm_min()), 0.1);
    EXPECT_GT(NiceStep(2, 0, 1e-300), 0);
    EXPECT_LT(NiceStep(2, 0, 1e-300), 1e-299);
}

TEST(FloatRemainder, HasTheSignOfTheValue)
{
    EXPECT_EQ(FloatRemainder(7.5, 2), 1.5);
    EXPECT_EQ(FloatRemainder(-7.5, 2), -1.5);
    EXPECT_EQ(FloatRemainder(6, 2), 0);
    EXPECT_EQ(FloatRemainder(1, 2), 1);
    EXPECT_EQ(FloatRemainder(0.75, 0.5), 0.25);
}

TEST(FloatRemainder, KeepsTheErrorsOfAddition)
{
    // Ten tenths add up to a little less than 1, and an eleventh doesn't fit.
    EXPECT_GT(FloatRemainder(1.0, 0.1), 0.0);
    EXPECT_LT(FloatRemainder(1.0, 0.1), 1e-15);
}

TEST(FloatRemainder, TakesAThousandMillionAdditionsAtOnce)
{
    // Whole numbers and powers of two are exact, so the row ends at the true multiple.
    EXPECT_EQ(FloatRemainder(1e9 + 0.5, 1), 0.5);
    EXPECT_EQ(FloatRemainder(-0x1p45 - 0.25, 1), -0.25);
    EXPECT_EQ(FloatRemainder(3e15, 7), std::fmod(3e15, 7));
}

TEST(FloatRemainder, EndsWhereTheSumStopsGrowing)
{
    EXPECT_EQ(FloatRemainder(1e300, 1), 1e300 - 0x1p53);
    EXPECT_EQ(FloatRemainder(Infinity, 1), Infinity);
    EXPECT_EQ(FloatRemainder(-Infinity, 1), -Infinity);
    EXPECT_EQ(FloatRemainder(5, 0), 5);
    EXPECT_EQ(FloatRemainder(5, -1), 5);
    EXPECT_EQ(FloatRemainder(5, NaN), 5);
    EXPECT_EQ(FloatRemainder(5, Infinity), 5);
    EXPECT_TRUE(std::isnan(FloatRemainder(NaN, 1)));
    EXPECT_TRUE(std::isnan(FloatRemainder(Infinity, Infinity)));
    EXPECT_TRUE(std::isfinite(FloatRemainder(1e308, std::numeric_limits<double>::denorm_min())));
}

TEST(AdjustRange, RoundsOutwardByItsOwnRule)
{
    EXPECT_EQ(Adjusted(1.3, 8.7, 1), std::pair(0.0, 9.0));
    EXPECT_EQ(Adjusted(-8.7, -1.3, 1), std::pair(-9.0, 0.0));
}

TEST(AdjustRange, MultiplesStay)
{
    EXPECT_EQ(Adjusted(2, 8, 1), std::pair(2.0, 8.0));
    EXPECT_EQ(Adjusted(0, 100, 20), std::pair(0.0, 100.0));
}

TEST(AdjustRange, BoundsWithoutAFiniteResultStay)
{
    EXPECT_EQ(Adjusted(-1.7e308, 0.0, 1e308).first, -1.7e308);
    EXPECT_EQ(Adjusted(-Infinity, Infinity, 1), std::pair(-Infinity, Infinity));
    EXPECT_TRUE(std::isnan(Adjusted(NaN, 1, 1).first));
}

TEST(AdjustRange, BoundsThatTheStepCantReachStay)
{
    EXPECT_EQ(Adjusted(1e17, 1e17 + 16, 5), std::pair(1e17, 1e17 + 16));
}

TEST(TickCount, IsAtLeastTwo)
{
    EXPECT_EQ(TickCount(100, 14), 7);
    EXPECT_EQ(TickCount(10, 14), 2);
    EXPECT_EQ(TickCount(-50, 14), 2);
    EXPECT_EQ(TickCount(100, 0), 2);
    EXPECT_EQ(TickCount(0, 0), 2);
}

} // namespace
